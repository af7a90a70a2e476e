#include "shell/corrida.h"

#include <exception>
#include <memory>
#include <new>
#include <utility>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "shell/lista.h"
#include "state/error_corrida.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

std::int32_t AnadeCurva(EWdraw& axew, const Curva& curva) {
  constexpr Punto3 kEje{0, 1, 0}, kNormal{0, 0, 1};
  const auto id = curva.elipse ? axew.EwAddEllipse(curva.centro, curva.semiejeX, curva.semiejeY, kNormal)
                               : axew.EwAddCircle(curva.centro, curva.semiejeX, kNormal);
  if (curva.grados != 0) axew.EwRotate(id, curva.centro, kEje, curva.grados);
  return id;
}

std::int32_t AnadeLinea(EWdraw& axew, const Solido& solido, const std::vector<int>& linea) {
  const auto en = [&](int i) { return solido.puntos[static_cast<std::size_t>(i)]; };
  if (linea.size() == 2) return axew.EwAddLine(en(linea[0]), en(linea[1]));
  axew.EwBeginPolyline3D();
  for (const int i : linea) axew.EwAddVertex3D(en(i).x, en(i).y, en(i).z);
  return axew.EwEndPolyline3D(false);
}

}  // namespace

Solido SolidoDe(const Pieza& pieza) { return FilaDe(pieza.tipo).solido(pieza); }

Desarrollo DesarrolloDe(const Pieza& pieza, const Solido& solido) {
  return FilaDe(pieza.tipo).desarrollo(pieza, solido);
}

void DibujaSolido(EWdraw& axew, const Solido& solido) {
  axew.EwClear();
  if (solido.curva) axew.EwSetColor(AnadeCurva(axew, *solido.curva), kColorSolido);
  for (const auto& linea : solido.alambre) axew.EwSetColor(AnadeLinea(axew, solido, linea), kColorSolido);
}

Solido Dibuja3D(EWdraw& axew) {
  if (!estado.pieza) return {};
  CursorEspera(true);
  Solido solido = SolidoDe(*estado.pieza);
  DibujaSolido(axew, solido);
  CursorEspera(false);
  return solido;
}

void CambiaRegla() {
  Regla& regla = estado.pieza.value().regla;
  regla = regla == Regla::exacta ? Regla::usual : Regla::exacta;
}

FormatoHoja FormatoDeEstado() {
  const EstadoPrograma& e = estado;
  return {.milimetros = e.iUnidad == 1,
          .altura = e.dTamanoTexto,
          .colorDoblez = e.iColorDoblez,
          .cotas = EnteroCorto(NumeroDeTexto(e.sDimensiones)) == 1,
          .pasoX = e.dPasoTablaX,
          .pasoY = e.dPasoTablaY,
          .caja = e.iBox,
          .densidad = NumeroDeTexto(e.sDensidad),
          .espesor = e.dEspesor};
}

Corrida Despliega(EWdraw& axew, const HaceDesarrollo& hace, const PideSitio& pide) {
  Corrida corrida;
  if (!estado.pieza) return corrida;
  estado.oDrawing = std::make_shared<cDrawing>();
  estado.oDXF = std::make_shared<cDXF>();
  try {
    Desarrollo desarrollo = hace();
    if (estado.pieza->regla == Regla::exacta) estado.oDrawing->UnaVez();
    FilaDe(estado.pieza->tipo).deja(*estado.pieza, desarrollo);
    const auto anota = [&, &sitios = corrida.sitios](const Encargo& encargo) {
      sitios.push_back(pide(encargo));
      return sitios.back();
    };
    corrida.hoja = DibujaPatron(axew, std::move(desarrollo.patron), FormatoDeEstado(), anota);
    corrida.fin = FinCorrida::completo;
  } catch (const EleccionRechazada&) {
    corrida.fin = FinCorrida::eleccionRechazada;
  } catch (const ErrorCorrida& error) {
    MuestraMensaje(Texto(error.NumeroTexto()), EstiloMensaje::exclamacion, "");
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    // An error without a text of its own: the run ends with what has been drawn.
  }
  return corrida;
}

Corrida Despliega(EWdraw& axew) {
  const auto hace = [] { return DesarrolloDe(*estado.pieza, SolidoDe(*estado.pieza)); };
  return Despliega(axew, hace, [&](const Encargo& encargo) { return PideAlDueno(axew, encargo); });
}

Corrida Despliega(EWdraw& axew, Desarrollo desarrollo) {
  const auto hace = [&] { return std::move(desarrollo); };
  return Despliega(axew, hace, [&](const Encargo& encargo) { return PideAlDueno(axew, encargo); });
}

}  // namespace duktores
