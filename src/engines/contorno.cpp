#include "engines/contorno.h"

#include <initializer_list>
#include <utility>
#include <vector>

#include "dxf/anotacion.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr int kTextoColocar = 63, kTextoColocarSegunda = 64;

// F(desde) .. F(hasta), the vertices given, and F(desde) again.
std::vector<Punto2> Contorno(const Transicion& t, int desde, int hasta, std::initializer_list<Punto2> resto) {
  std::vector<Punto2> contorno;
  contorno.reserve(static_cast<std::size_t>(hasta - desde + 2) + resto.size());
  for (int k = desde; k <= hasta; ++k) contorno.push_back(t.dPuntosPlano(k));
  contorno.insert(contorno.end(), resto);
  contorno.push_back(t.dPuntosPlano(desde));
  return contorno;
}

// The outline hangs on the pointer until the pick has placed it.
Punto2 ColocaPieza(EWdraw& axew, int mitad, std::vector<Punto2> contorno) {
  estado.PoliContorno.clear();
  MuestraMensaje(Texto(mitad == 1 ? kTextoColocar : kTextoColocarSegunda), EstiloMensaje::informacion, "");
  axew.EwGhost(contorno);
  Punto3 sitio;
  axew.EwPickPoint(sitio.x, sitio.y, sitio.z);
  const Punto2 base{sitio.x, sitio.y};
  for (Punto2& p : contorno) p = p + base;
  DibujaForma(axew, Forma::mitad, mitad, std::move(contorno));
  return base;
}

// All that stands on the outline of a pattern, or of one piece of two, which lies at `base`.
void Anota(const Transicion& t, EWdraw& axew, int N, Parte parte, Punto2 base, const EstiloDesarrollo& estilo) {
  const std::vector<LineaNumerada> lineas = LineasNumeradas(t, parte);
  const bool cotas = HayCotas(), primero = parte != Parte::entera || estilo.cotasPrimero;
  GeneraDoblados(axew, lineas, base);
  if (cotas && primero) GeneraCotas(axew, t, parte, estilo.cotas, base);
  GeneraRestoNumeros(axew, lineas, base);
  if (cotas && !primero) GeneraCotas(axew, t, parte, estilo.cotas, base);
  axew.EwRegen();
  if (estilo.soloCaja1 ? estado.iBox != 1 : estado.iBox == 0) return;
  ColocaCajetin(axew, estilo.cajetin, static_cast<std::int16_t>(N), parte, lineas);
  axew.EwRegen();
}

}  // namespace

void GeneraDesarrollo(Transicion& t, EWdraw& axew, std::int16_t inumPuntos, const EstiloDesarrollo& estilo) {
  const auto& C = t.dVerticesPlano;
  const int N = inumPuntos, h = N / 2;
  if (!estado.bDosPiezas) {
    DibujaForma(axew, Forma::entera, 1, Contorno(t, 1, N + 1, {C(6), C(6), C(5), C(4), C(3), C(2), C(1)}));
    Anota(t, axew, N, Parte::entera, {}, estilo);
    return;
  }
  CortePieza1(t);
  const Punto2 base1 = ColocaPieza(axew, 1, Contorno(t, 1, h + 1, {t.dCorteBajo, C(3), C(2), C(1)}));
  Anota(t, axew, N, Parte::primera, base1, estilo);
  const Punto2 base2 = ColocaPieza(axew, 2, Contorno(t, h + 1, N + 1, {C(6), C(5), C(4), t.dCorteBajo2}));
  Anota(t, axew, N, Parte::segunda, base2, estilo);
}

}  // namespace duktores
