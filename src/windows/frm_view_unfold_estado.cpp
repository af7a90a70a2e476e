// The viewer's status line.

#include "dxf/dibujo.h"
#include "piece/numeros_texto.h"
#include "shell/juicio.h"
#include "shell/texto_linea.h"
#include "shell/texto_veredicto.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/frm_view_unfold.h"

namespace duktores {

namespace {

constexpr const char* kAviso = "background: #c00000; color: white; font-weight: bold;";

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

}  // namespace

void FrmViewUnfold::PonHecho(const QString& hecho) { PonEstado(hecho + " - " + lineaVeredicto_); }

void FrmViewUnfold::LimpiaEstado() {
  LblEstado_->clear();
  LblEstado_->setToolTip({});
  LblEstado_->setStyleSheet({});
}

// What stands there while nothing is pointed at. The tooltip has what the line has no room for.
void FrmViewUnfold::PonEstado(const QString& linea) {
  LblEstado_->setText(LblEstado_->fontMetrics().elidedText(linea, Qt::ElideRight, LblEstado_->width()));
  LblEstado_->setToolTip(linea);
}

void FrmViewUnfold::MuestraEleccion(bool empieza) {
  CursorEspera(!empieza);
  FrmZoom_->setEnabled(!empieza);  // the left button places the shape; wheel and middle button still move the view
  LimpiaEstado();
  if (empieza) lienzo_->setFocus();
}

void FrmViewUnfold::MuestraPunto(QPointF punto) {
  const int decimales = estado.iUnidad == 1 ? 2 : 3;
  const std::string& rotulo = EWdraw_.RotuloFantasma();
  const QString solapes = colocador_->SolapesEn(punto), estilo = solapes.isEmpty() ? "" : kAviso;
  if (LblEstado_->styleSheet() != estilo) LblEstado_->setStyleSheet(estilo);
  const QString sitio = QString("    X %1   Y %2").arg(punto.x(), 0, 'f', decimales).arg(punto.y(), 0, 'f', decimales);
  const QString frase =
      (rotulo.empty() ? QString() : Q(rotulo) + ": ") + (solapes.isEmpty() ? Q(Texto(texto::kElige)) : solapes);
  LblEstado_->ensurePolished();
  const QFontMetrics medidas = LblEstado_->fontMetrics();
  const int queda = LblEstado_->width() - medidas.horizontalAdvance(sitio);
  LblEstado_->setText(medidas.elidedText(frase, Qt::ElideRight, queda) + sitio);
}

// A pattern that is incomplete or not true is told in a colour that nobody overlooks; it never stops the work.
void FrmViewUnfold::MuestraVeredicto(const Corrida& corrida) {
  const bool completo = corrida.fin == FinCorrida::completo;
  veredicto_ = completo ? Juzga(*estado.pieza, solido_, corrida.hoja) : Veredicto();
  const QString solapes = colocador_->Solapes();
  const QString veredicto = Q(completo ? TextoVeredicto(veredicto_) : Texto(texto::kIncompleto));
  const bool cierto = completo && veredicto_.Cierto();
  // What is wrong comes first: the line may be too short for all.
  lineaVeredicto_ = solapes.isEmpty() ? veredicto : cierto ? solapes + ". " + veredicto : veredicto + ". " + solapes;
  bien_ = cierto && solapes.isEmpty();
  LblEstado_->setStyleSheet(bien_ ? "" : kAviso);
  LblEstado_->ensurePolished();  // bold letters are wider
  PonEstado(lineaVeredicto_);
}

// What the line under the pointer is; away from all lines the verdict.
void FrmViewUnfold::MuestraLinea(QPointF punto, double alcance) {
  if (hoja_.formas.empty()) return;
  const auto cercana = FrmView_->isEnabled() ? std::nullopt : LineaCercana(hoja_, {punto.x(), punto.y()}, alcance);
  cercana ? LblEstado_->setText(Q(TextoLinea(*cercana, solido_))) : MuestraArrastre({});
}

// What is dragged onto something; else the verdict.
void FrmViewUnfold::MuestraArrastre(const QString& solapes) {
  const QString linea = solapes.isEmpty() ? LblEstado_->toolTip() : solapes;
  const QString estilo = bien_ && solapes.isEmpty() ? "" : kAviso;
  if (LblEstado_->styleSheet() != estilo) LblEstado_->setStyleSheet(estilo);
  LblEstado_->setText(LblEstado_->fontMetrics().elidedText(linea, Qt::ElideRight, LblEstado_->width()));
}

}  // namespace duktores
