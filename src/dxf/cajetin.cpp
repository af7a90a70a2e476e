#include "dxf/cajetin.h"

#include <algorithm>

#include "dxf/anotacion.h"
#include "dxf/escritor.h"
#include "dxf/finitos.h"
#include "state/estado.h"
#include "state/fibra.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr std::int16_t kColorRotulo = 7, kColorValor = 3;
constexpr double kAltura = 11;
constexpr int kFilasColumna = 30;

double Ensancha(int filas) {
  const int columnas = (filas + kFilasColumna - 1) / kFilasColumna;
  return 200.0 * std::max(columnas - 3, 0);
}

void DibujaMarcoDatos(EWdraw& axew, const EstiloCajetin& estilo, double ancho, Punto2 a) {
  const auto linea = [&](Punto2 p, Punto2 q) { DibujaLinea(axew, a + p, a + q, kColorRotulo); };
  const Punto2 b{ancho, 0}, c{0, -estilo.cabeza}, d{ancho, -estilo.cabeza}, e{0, -estilo.alto}, f{ancho, -estilo.alto};
  linea({}, b);
  linea(b, d);
  linea(d, c);
  linea(c, {});
  linea(c, e);
  linea(e, f);
  linea(f, d);
}

Punto2 PideSitio(EWdraw& axew, const EstiloCajetin& estilo, double ancho) {
  constexpr int kTextoColocar = 65, kTextoCajetin = 106;
  MuestraMensaje(Texto(kTextoColocar), EstiloMensaje::informacion, "");
  const Punto2 c{0, -estilo.cabeza}, d{ancho, -estilo.cabeza};
  axew.EwGhost({{}, {ancho, 0}, d, c, d, {ancho, -estilo.alto}, {0, -estilo.alto}}, Texto(kTextoCajetin));
  Punto3 sitio;
  axew.EwPickPoint(sitio.x, sitio.y, sitio.z);
  return {sitio.x, sitio.y};
}

void DibujaRenglon(EWdraw& axew, Punto2 sitio, Renglon renglon, double letra, double desvio = 0) {
  const double alValor = LongitudTexto(renglon.rotulo) * letra + desvio;
  DibujaTexto(axew, sitio.x, sitio.y, renglon.rotulo, kAltura, kColorRotulo, 0);
  if (renglon.valor.empty()) return;
  DibujaTexto(axew, sitio.x + alValor, sitio.y, renglon.valor, kAltura, kColorValor, 0);
}

std::string TextoCortado(double v, int decimales) {
  const double cortado = decimales == 2 ? TruncaDosDecimales(v) : TruncaTresDecimales(v);
  ExigeFinitos({cortado});
  return TextoDeNumero(cortado);
}

// The sheet of a piece. The rectangle is the one around the piece: what is off it is waste.
struct Chapa {
  double densidad = 0, espesor = 0;
  double area = 0, rectangulo = 0, perimetro = 0;
};

Chapa MideChapa(EWdraw& axew) {
  Chapa chapa{.densidad = NumeroDeTexto(estado.sDensidad), .espesor = estado.dEspesor};
  MidePieza(axew, 1, chapa.area, chapa.rectangulo, chapa.perimetro);
  return chapa;
}

// In millimetres a block shows centimetres and grams, with a density per cubic centimetre: `escala` is what brings a
// figure there.
struct Magnitud {
  double escala;
  std::string_view milimetros, pulgadas;
};
constexpr Magnitud kDensidad{1, "gr/(cm^3)", "oz/(in^3)"}, kLongitud{10, " cm", " in"},
    kArea{0.01, " (cm^2)", " (in^2)"}, kPeso{0.001, " gr", " oz"}, kParte{1, "", ""};

struct FilaChapa {
  int texto;
  const Magnitud& magnitud;
  double (*valor)(const Chapa&, double escala);
};
double Desperdicio(const Chapa& c, double) { return c.rectangulo == 0 ? 0 : 100 - c.area * 100 / c.rectangulo; }
// clang-format off
constexpr int kTextoRectangulo = 31;
constexpr FilaChapa kFilasChapa[]{
    {28,               kDensidad, [](const Chapa& c, double)   { return c.densidad; }},
    {29,               kLongitud, [](const Chapa& c, double e) { return c.perimetro / e; }},
    {30,               kArea,     [](const Chapa& c, double e) { return c.area * e; }},
    {kTextoRectangulo, kArea,     [](const Chapa& c, double e) { return c.rectangulo * e; }},
    {32,               kPeso,     [](const Chapa& c, double e) { return c.densidad * c.area * e * c.espesor; }},
    {33,               kPeso,     [](const Chapa& c, double e) { return c.densidad * c.rectangulo * e * c.espesor; }},
    {34,               kArea,     [](const Chapa& c, double e) { return (c.rectangulo - c.area) * e; }},
    {35,               kParte,    Desperdicio},
};
// clang-format on

std::string ValorChapa(const FilaChapa& fila, const Chapa& chapa, const EstiloCajetin& estilo) {
  const bool milimetros = estilo.siempreMilimetros || estado.iUnidad == 1;
  const double valor = fila.valor(chapa, milimetros ? fila.magnitud.escala : 1);
  const int enPulgadas = fila.texto == kTextoRectangulo ? estilo.decimalesRectangulo : 3;
  return TextoCortado(valor, milimetros ? 2 : enPulgadas) +
         std::string(milimetros ? fila.magnitud.milimetros : fila.magnitud.pulgadas);
}

void DibujaDatosCajetin(EWdraw& axew, const EstiloCajetin& estilo, Punto2 izquierda, Punto2 derecha,
                        const std::vector<Renglon>& pieza, const Chapa& chapa) {
  constexpr double kPasoDerecha = 40;
  for (const Renglon& renglon : pieza) {
    DibujaRenglon(axew, izquierda, renglon, &renglon == pieza.data() ? estilo.letraPrimera : estilo.letra);
    izquierda.y -= estilo.pasoIzquierda;
  }
  for (const FilaChapa& fila : kFilasChapa) {
    const bool ultima = &fila + 1 == std::end(kFilasChapa);
    const std::string valor = ValorChapa(fila, chapa, estilo);
    DibujaRenglon(axew, derecha, {Texto(fila.texto), ultima ? valor + std::string(estilo.finDesperdicio) : valor},
                  estilo.letra, ultima ? estilo.desvioUltimo : 0);
    derecha.y -= kPasoDerecha;
  }
}

}  // namespace

Punto2 DibujaCajetin(EWdraw& axew, const EstiloCajetin& estilo, FilasCajetin filas, const std::vector<Renglon>& pieza) {
  const double ancho = 670 + Ensancha(filas.marco);
  const Punto2 esquina = PideSitio(axew, estilo, ancho);
  const Chapa chapa = MideChapa(axew);
  DibujaMarcoDatos(axew, estilo, ancho, esquina);
  DibujaDatosCajetin(axew, estilo, esquina + Punto2{20, -estilo.yIzquierda},
                     esquina + Punto2{310 + Ensancha(filas.columna), -estilo.yDerecha}, pieza, chapa);
  return esquina;
}

ListaLargos::ListaLargos(EWdraw& axew, const EstiloCajetin& estilo, Punto2 esquina)
    : axew_(axew),
      primera_(esquina + Punto2{50, -estilo.yLista}),
      sitio_(primera_),
      milimetros_(estilo.siempreMilimetros || estado.iUnidad == 1) {}

void ListaLargos::Fila(double largo, bool conUnidad, Salto salto) {
  if (salto == Salto::siLlena && enColumna_ > 0 && enColumna_ % kFilasColumna == 0) {
    sitio_ = {sitio_.x + 180, primera_.y};
    enColumna_ = 0;
  }
  std::string texto = std::to_string(++numero_) + "  " + TextoCortado(largo, milimetros_ ? 2 : 3);
  if (conUnidad) texto += milimetros_ ? " mm" : " in";
  DibujaTexto(axew_, sitio_.x, sitio_.y, texto, kAltura, kColorRotulo, 0);
  sitio_.y -= 22;
  ++enColumna_;
}

std::string TextoLongitud(double v) {
  std::string texto = TextoDeNumero(v);
  if (estado.iUnidad == 1) return texto + " mm";
  SustituyeCaracter(texto, ',', '.');
  return texto + " in";
}

std::string TextoFibra() {
  constexpr int kTextos[]{22, 21, 23};
  return estado.iFibra >= 1 && estado.iFibra <= 3 ? Texto(kTextos[estado.iFibra - 1]) : "";
}

double LadoEntrado(double lado) {
  const auto fibra = CorreccionFibra();
  return fibra ? lado - fibra->lado : lado;
}

double RadioEntrado(double radio) {
  const auto fibra = CorreccionFibra();
  return fibra ? radio - fibra->radio : radio;
}

}  // namespace duktores
