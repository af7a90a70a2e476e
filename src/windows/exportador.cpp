#include "windows/exportador.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <array>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

#include "paint/pintura.h"
#include "piece/numeros_texto.h"
#include "shell/corrida.h"
#include "shell/cortes.h"
#include "shell/lista.h"
#include "shell/nombre_pieza.h"
#include "state/estado.h"
#include "state/propio.h"
#include "state/textos.h"
#include "windows/guarda.h"
#include "windows/iconos.h"
#include "windows/proporcion.h"
#include "windows/ventanas.h"

namespace duktores {

namespace {

constexpr std::string_view kSeccion = "EXPORT", kCarpeta = "Folder";

/// A kind of file: the key of its choice, and its name in the menu.
struct ClaseFichero {
  std::string_view clave;
  int texto;
  const char* literal;
  std::optional<Formato> imagen;
  bool alPrincipio;
};
constexpr std::array kClases{
    ClaseFichero{"Cut", texto::kCortes, "", {}, true},
    ClaseFichero{"Bends", texto::kListaDobleces, "", {}, true},
    ClaseFichero{"Pdf", texto::kPdf, "", Formato::pdf, false},
    ClaseFichero{"Svg", 0, "SVG", Formato::svg, false},
    ClaseFichero{"Png", 0, "PNG", Formato::png, false},
};
enum Cual : std::size_t { kDeCorte, kDeDobleces };

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

bool Elegida(const ClaseFichero& clase) {
  return LeePropio(kSeccion, clase.clave).value_or(clase.alPrincipio ? "1" : "0") == "1";
}

/// Stays open while one chooses.
class MenuElige : public QMenu {
 public:
  using QMenu::QMenu;

 protected:
  void mouseReleaseEvent(QMouseEvent* suceso) override {
    QAction* accion = activeAction();
    accion && accion->isCheckable() ? accion->trigger() : QMenu::mouseReleaseEvent(suceso);
  }
};

/// What is to be written, and under which names.
class Exportacion {
 public:
  Exportacion(const Exportable& que, const QFileInfo& base, std::vector<bool> elegidas)
      : que_(que),
        carpeta_(base.absolutePath().toStdString()),
        nombre_(base.fileName().toStdString()),
        elegidas_(std::move(elegidas)) {
    const Patron patron = DesarrolloDe(*estado.pieza, que.solido).patron;
    if (elegidas_[kDeCorte] || elegidas_[kDeDobleces]) cortes_ = CortesDe(nombre_, que.solido, patron);
    if (!elegidas_[kDeCorte]) cortes_.ficheros.assign(cortes_.partes.size(), "");
  }

  /// Asks what has to be asked; false if the user would rather not.
  bool Pregunta(QWidget* padre) {
    const std::string faltas = elegidas_[kDeCorte] ? TextoSinCorte(cortes_, que_.veredicto) : "";
    const bool todas = !faltas.empty() && Confirma(padre, Q(faltas) + "\n\n" + Q(Texto(texto::kCortarIgual)));
    const Cortes todos = cortes_;
    Deja(cortes_, que_.veredicto, todas ? Cuales::todas : Cuales::sanas);
    viejos_ = TextoViejos(todos, cortes_, carpeta_);
    QStringList estan;
    for (const std::string& nombre : Nombres()) {
      if (QFileInfo::exists(Q(Ruta(nombre)))) estan += Q(nombre);
    }
    return estan.isEmpty() || Confirma(padre, estan.join(", ") + "\n\n" + Q(Texto(texto::kReemplazarEsos)));
  }

  /// Writes until something can't be written, which the user is told. What was written, in one line.
  QString Escribe() {
    std::vector<std::string> escritos;
    const auto guarda = [&](const std::string& ruta, const Guardado& guardado) {
      if (!guardado) MuestraMensaje(TextoNoGuardado(ruta, guardado), EstiloMensaje::exclamacion, "");
      return static_cast<bool>(guardado);
    };
    std::string ruta;
    const Guardado cortados = GuardaCortes(cortes_, carpeta_, ruta);
    bool bien = guarda(ruta, cortados);
    if (bien) escritos = Ficheros(cortes_);
    const auto anade = [&](const std::string& fichero, const auto& escribe) {
      bien = bien && guarda(Ruta(fichero), escribe(Ruta(fichero)));
      if (bien) escritos.push_back(fichero);
    };
    if (elegidas_[kDeDobleces]) {
      const HabitoCsv habito = estado.bComaDecimal ? kConComa : kConPunto;
      anade(FicheroDobleces(nombre_),
            [&](const std::string& donde) { return EscribeFichero(donde, ListaDobleces(cortes_, habito)); });
    }
    const Escala escala = estado.iUnidad == 1 ? Escala::milimetros : Escala::pulgadas;
    for (std::size_t i = 0; i < kClases.size(); ++i) {
      if (!elegidas_[i] || !kClases[i].imagen) continue;
      const Formato formato = *kClases[i].imagen;
      anade(nombre_ + Sufijo(formato),
            [&](const std::string& donde) { return GuardaImagen(que_.axew, donde, formato, escala); });
    }
    QStringList nombres, hecho;
    for (const std::string& fichero : escritos) nombres += Q(fichero);
    if (!escritos.empty()) hecho += Q(Texto(texto::kEscrito)) + " " + Q(carpeta_) + ": " + nombres.join(", ");
    if (!viejos_.empty()) hecho += Q(viejos_);
    return hecho.join(". ");
  }

 private:
  std::string Ruta(const std::string& fichero) const { return std::filesystem::path(carpeta_) / fichero; }
  std::vector<std::string> Nombres() const {
    std::vector<std::string> nombres = Ficheros(cortes_);
    if (elegidas_[kDeDobleces]) nombres.push_back(FicheroDobleces(nombre_));
    for (std::size_t i = 0; i < kClases.size(); ++i) {
      if (elegidas_[i] && kClases[i].imagen) nombres.push_back(nombre_ + Sufijo(*kClases[i].imagen));
    }
    return nombres;
  }

  const Exportable& que_;
  std::string carpeta_, nombre_, viejos_;
  std::vector<bool> elegidas_;
  Cortes cortes_;
};

}  // namespace

bool Imprime(QPrinter& impresora, const EWdraw& axew) {
  const QRectF zona = ExtensionPintada(axew);
  impresora.setPageOrientation(zona.width() > zona.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPainter pintor;
  if (!pintor.begin(&impresora)) return false;
  const QSizeF hoja = impresora.pageRect(QPrinter::DevicePixel).size();
  Pinta(pintor, axew, Ajusta(axew, hoja), hoja, Fondo::claro, impresora.resolution());
  return pintor.end();
}

Exportador::Exportador(std::function<Exportable()> que, QWidget* padre) : QPushButton(padre), que_(std::move(que)) {
  PonBoton(*this, "CmdExport", Q(Texto(texto::kExporta)));
  setAutoDefault(false);
  auto* menu = new MenuElige(this);
  menu->setObjectName("MenuExport");
  for (const ClaseFichero& clase : kClases) {
    QAction* accion = menu->addAction(clase.texto == 0 ? QString(clase.literal) : Q(Texto(clase.texto)));
    accion->setCheckable(true);
    accion->setChecked(Elegida(clase));
    connect(accion, &QAction::toggled, this,
            [&clase](bool elegida) { PonPropio(kSeccion, clase.clave, elegida ? "1" : "0"); });
  }
  menu->addSeparator();
  connect(menu->addAction(Q(Texto(texto::kExporta)) + "..."), &QAction::triggered, this, &Exportador::Exporta);
  connect(menu->addAction(Q(Texto(texto::kImprime)) + "..."), &QAction::triggered, this, &Exportador::ImprimeEnPapel);
  setMenu(menu);
}

void Exportador::Exporta() {
  const std::string carpeta = LeePropio(kSeccion, kCarpeta).value_or("");
  QFileDialog dialogo(window(), Q(Texto(texto::kExporta)),
                      Q(QFileInfo(Q(carpeta)).isDir() ? carpeta : CarpetaDeGuardado()));
  dialogo.resize(dialogo.size().boundedTo(SitioLibre(*window())));
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setOption(QFileDialog::DontConfirmOverwrite);
  dialogo.selectFile(Q(NombrePropuesto(*estado.pieza)));
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return;
  const QFileInfo elegido(dialogo.selectedFiles().first());
  PonPropio(kSeccion, kCarpeta, elegido.absolutePath().toStdString());
  std::vector<bool> elegidas;
  for (const QAction* accion : menu()->actions()) {
    if (accion->isCheckable()) elegidas.push_back(accion->isChecked());
  }
  const Exportable que = que_();
  Exportacion exportacion(que, elegido, std::move(elegidas));
  if (!exportacion.Pregunta(window())) return;
  CursorEspera(true);
  const QString linea = exportacion.Escribe();
  CursorEspera(false);
  if (!linea.isEmpty()) emit escrito(linea);
}

void Exportador::ImprimeEnPapel() {
  QPrinter impresora;
  QPrintDialog dialogo(&impresora, window());
  if (dialogo.exec() != QDialog::Accepted) return;
  if (Imprime(impresora, que_().axew)) return;
  MuestraMensaje(Texto(texto::kNoPintado), EstiloMensaje::exclamacion, "");
}

}  // namespace duktores
