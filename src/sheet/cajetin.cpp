#include "sheet/cajetin.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>

#include "annotation/anotacion.h"
#include "annotation/finitos.h"
#include "piece/numeros_texto.h"
#include "sheet/renglones.h"
#include "state/numeros.h"
#include "state/textos.h"

namespace duktores {

namespace {

constexpr std::int16_t kColorRotulo = 7, kColorValor = 3;
constexpr double kAltura = 11, kAncho = 670;
constexpr int kFilasColumna = 30;

// Which lengths are followed by their unit.
enum class Unidades { deDobleces, deTodos, deNinguno };

// What the blocks of the styles differ in. Heights count from the corner downwards.
struct Estilo {
  double cabeza, alto;               // of the frame's head, of the whole frame
  double yIzquierda, pasoIzquierda;  // first line of the left column, from line to line
  double yDerecha;                   // first line of the right column
  double yLista;                     // first row of the lengths
  double letra, letraPrimera;        // width of a label's character, and on the first line of the left column
  double desvioUltimo;               // how much further right the last value of the right column stands
  bool siempreMilimetros;            // also where inches are configured
  int decimalesRectangulo;           // of the rectangle's area in inches
  std::string_view finDesperdicio;   // behind the share of waste
  Unidades unidades;
  bool delPatron;  // the lengths, whose columns don't end at a side line, nor behind it, nor where the edges begin
};
// clang-format off
constexpr std::array<Estilo, 4> kEstilos{{
    // head, height  left       right list  letters  last  mm   in  end  units                 pattern
    {450, 1200,      80, 30,    110,  500,  10, 10,   0,   false, 2,  "  ", Unidades::deDobleces,  true},   // transicion
    {450, 1200,      80, 30,    110,  500,  10,  9,   0,   false, 2,  "  ", Unidades::deDobleces,  true},   // eliptica
    {510, 1260,      30, 22,     30,  540,  11, 11,  10,   true,  3,  "",   Unidades::deNinguno,   false},  // sector
    {510, 1260,      30, 22,     30,  540,  10,  9,  10,   false, 3,  "",   Unidades::deTodos,     false},  // panel
}};
// clang-format on
const Estilo& EstiloDe(EstiloBloque estilo) { return kEstilos[static_cast<std::size_t>(estilo)]; }

// Three columns of 30 lengths fit without.
double Ensancha(int filas) {
  const int columnas = (filas + kFilasColumna - 1) / kFilasColumna;
  return 200.0 * std::max(columnas - 3, 0);
}
double Ancho(const Bloque& bloque) { return kAncho + Ensancha(bloque.filasMarco); }

void DibujaMarcoDatos(EWdraw& axew, const Estilo& estilo, double ancho, Punto2 a) {
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

Chapa MideChapa(EWdraw& axew, const FormatoHoja& formato) {
  Chapa chapa{.densidad = formato.densidad, .espesor = formato.espesor};
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
constexpr FilaChapa kFilasChapa[]{
    {texto::kDensidad,         kDensidad, [](const Chapa& c, double)   { return c.densidad; }},
    {texto::kPerimetro,        kLongitud, [](const Chapa& c, double e) { return c.perimetro / e; }},
    {texto::kAreaPieza,        kArea,     [](const Chapa& c, double e) { return c.area * e; }},
    {texto::kAreaRectangulo,   kArea,     [](const Chapa& c, double e) { return c.rectangulo * e; }},
    {texto::kPesoPieza,        kPeso,     [](const Chapa& c, double e) { return c.densidad * c.area * e * c.espesor; }},
    {texto::kPesoRectangulo,   kPeso,
     [](const Chapa& c, double e) { return c.densidad * c.rectangulo * e * c.espesor; }},
    {texto::kDesperdicio,      kArea,     [](const Chapa& c, double e) { return (c.rectangulo - c.area) * e; }},
    {texto::kParteDesperdicio, kParte,    Desperdicio},
};
// clang-format on

std::string ValorChapa(const FilaChapa& fila, const Chapa& chapa, const Estilo& estilo, const FormatoHoja& formato) {
  const bool milimetros = estilo.siempreMilimetros || formato.milimetros;
  const double valor = fila.valor(chapa, milimetros ? fila.magnitud.escala : 1);
  const int enPulgadas = fila.texto == texto::kAreaRectangulo ? estilo.decimalesRectangulo : 3;
  return TextoCortado(valor, milimetros ? 2 : enPulgadas) +
         std::string(milimetros ? fila.magnitud.milimetros : fila.magnitud.pulgadas);
}

void DibujaIzquierda(EWdraw& axew, const Estilo& estilo, Punto2 sitio, const std::vector<Renglon>& pieza) {
  for (const Renglon& renglon : pieza) {
    DibujaRenglon(axew, sitio, renglon, &renglon == pieza.data() ? estilo.letraPrimera : estilo.letra);
    sitio.y -= estilo.pasoIzquierda;
  }
}

void DibujaDerecha(EWdraw& axew, const Estilo& estilo, Punto2 sitio, const Chapa& chapa, const FormatoHoja& formato) {
  constexpr double kPasoDerecha = 40;
  for (const FilaChapa& fila : kFilasChapa) {
    const bool ultima = &fila + 1 == std::end(kFilasChapa);
    const std::string valor = ValorChapa(fila, chapa, estilo, formato);
    DibujaRenglon(axew, sitio, {Texto(fila.texto), ultima ? valor + std::string(estilo.finDesperdicio) : valor},
                  estilo.letra, ultima ? estilo.desvioUltimo : 0);
    sitio.y -= kPasoDerecha;
  }
}

// Rows of running number and length, 30 to a column.
void DibujaLargos(EWdraw& axew, const Estilo& estilo, Punto2 primera, const std::vector<Linea>& lineas,
                  const std::vector<double>& largos, bool milimetros) {
  Punto2 sitio = primera;
  Clase anterior = Clase::doblez;
  int enColumna = 0;
  for (std::size_t i = 0; i < largos.size(); ++i) {
    const Clase clase = lineas[i].clase;
    const bool sigue = clase == Clase::lado || anterior == Clase::lado || (clase == Clase::borde && anterior != clase);
    if (!(estilo.delPatron && sigue) && enColumna > 0 && enColumna % kFilasColumna == 0) {
      sitio = {sitio.x + 180, primera.y};
      enColumna = 0;
    }
    std::string texto = std::to_string(i + 1) + "  " + TextoCortado(largos[i], milimetros ? 2 : 3);
    const bool conUnidad =
        estilo.unidades == Unidades::deTodos || (estilo.unidades == Unidades::deDobleces && clase != Clase::borde);
    if (conUnidad) texto += milimetros ? " mm" : " in";
    DibujaTexto(axew, sitio.x, sitio.y, texto, kAltura, kColorRotulo, 0);
    sitio.y -= 22;
    ++enColumna;
    anterior = clase;
  }
}

}  // namespace

std::vector<Punto2> MarcoCajetin(const Bloque& bloque) {
  const Estilo& estilo = EstiloDe(bloque.estilo);
  const double ancho = Ancho(bloque);
  const Punto2 c{0, -estilo.cabeza}, d{ancho, -estilo.cabeza};
  return {{}, {ancho, 0}, d, c, d, {ancho, -estilo.alto}, {0, -estilo.alto}};
}

bool LargosDelPatron(EstiloBloque estilo) { return EstiloDe(estilo).delPatron; }

void DibujaCajetin(EWdraw& axew, const FormaPatron& forma, const std::vector<double>& largos,
                   const FormatoHoja& formato, Punto2 esquina) {
  const Bloque& bloque = forma.bloque;
  const Estilo& estilo = EstiloDe(bloque.estilo);
  const Chapa chapa = MideChapa(axew, formato);
  DibujaMarcoDatos(axew, estilo, Ancho(bloque), esquina);
  DibujaIzquierda(axew, estilo, esquina + Punto2{20, -estilo.yIzquierda}, Renglones(bloque, formato.milimetros));
  DibujaDerecha(axew, estilo, esquina + Punto2{310 + Ensancha(bloque.filasColumna), -estilo.yDerecha}, chapa, formato);
  DibujaLargos(axew, estilo, esquina + Punto2{50, -estilo.yLista}, forma.lineas, largos,
               estilo.siempreMilimetros || formato.milimetros);
}

}  // namespace duktores
