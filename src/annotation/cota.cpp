// The dimensions. Glossary: M measured point, P point near which the dimension line passes, E end of an extension line,
// m slope of the line through the measured points, d distance of P from it.

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "annotation/anotacion.h"
#include "annotation/finitos.h"
#include "geometry/planas.h"
#include "geometry/redondeo.h"
#include "state/caracteres.h"
#include "state/estado.h"
#include "state/numeros.h"

namespace duktores {
namespace {

constexpr double kLadoFlecha = 3;  // drawing units, in inches too
constexpr double kAnguloFlecha = 9;

std::string TextoMedida(double v) {
  const bool milimetros = estado.iUnidad == 1;
  const int decimales = milimetros ? 2 : 3;
  const double redondeado = Redondea(v, decimales);
  ExigeFinitos({redondeado});
  std::array<char, 320> letras;  // the largest double has 309 digits
  const auto fin =
      std::to_chars(letras.data(), letras.data() + letras.size(), redondeado, std::chars_format::fixed, decimales);
  std::string texto(letras.data(), fin.ptr);
  if (milimetros && estado.bComaDecimal) SustituyeCaracter(texto, '.', ',');
  return texto;
}

/// From a measured point to one of its candidates for E; the other lies as far on the opposite side. On a slope the
/// distance is not d: its step along x is the root of d*d - 1, as in all drawings of the workshops.
Punto2 HaciaCandidato(Punto2 M1, Punto2 M2, Punto2 P) {
  if (std::abs(M2.x - M1.x) <= 0.1) return {std::abs(M2.x - P.x), 0};
  const double m = (M2.y - M1.y) / (M2.x - M1.x);
  const double d = std::abs(P.y - M1.y - m * (P.x - M1.x)) / std::sqrt(m * m + 1);
  if (std::abs(m) <= 0.1) return {0, d};
  const double t = std::sqrt(std::max(d * d - 1, 0.0));
  return {t, -t / m};
}

/// The candidate that is nearer to P; a tie gives the second, M - v.
Punto2 ElijeCandidato(Punto2 M, Punto2 v, Punto2 P) {
  const bool primero = (P.x - M.x) * v.x + (P.y - M.y) * v.y > 0;
  return primero ? M + v : M - v;
}

double Pendiente(Punto2 p, Punto2 q) {
  if (q.x - p.x == 0) return 90;
  if (q.y - p.y == 0) return 0;
  return Grados(std::atan((q.y - p.y) / (q.x - p.x)));
}

Punto2 PuntaFlecha(Punto2 E, double grados) {
  return E + kLadoFlecha * Punto2{std::cos(Radianes(grados)), std::sin(Radianes(grados))};
}

void DibujaFlecha(EWdraw& axew, Punto2 E, double grados, std::int16_t color) {
  const Punto2 a = PuntaFlecha(E, grados + kAnguloFlecha), b = PuntaFlecha(E, grados - kAnguloFlecha);
  DibujaLinea(axew, E, a, color);
  DibujaLinea(axew, E, b, color);
  DibujaLinea(axew, a, b, color);
}

void CotaEntrePuntos(EWdraw& axew, Punto2 M1, Punto2 M2, Punto2 P, double altura, std::int16_t color) {
  const Punto2 v = HaciaCandidato(M1, M2, P);
  const Punto2 E1 = ElijeCandidato(M1, v, P), E2 = ElijeCandidato(M2, v, P);
  ExigeFinitos({E1.x, E1.y, E2.x, E2.y});
  const double pendiente = Pendiente(M1, M2);
  std::string texto = TextoMedida(Distancia(E1, E2));

  // With P on the measured line there is nothing to extend.
  if (M1 != E1) DibujaLinea(axew, M1, E1, color);
  if (M2 != E2) DibujaLinea(axew, M2, E2, color);
  DibujaLinea(axew, E1, E2, color);
  DibujaFlecha(axew, E1, pendiente, color);
  DibujaFlecha(axew, E2, pendiente + 180, color);
  const Punto2 medio = PuntoMedio(E1, E2);
  DibujaTexto(axew, medio.x, medio.y, texto, altura, color, pendiente);
}

void CotaEnPunto(EWdraw& axew, Punto2 p1, Punto2 p2, Punto2 enPunto, double altura, std::int16_t color) {
  std::string texto = TextoMedida(Distancia(p1, p2));
  DibujaLinea(axew, p1, p2, color);
  DibujaTexto(axew, enPunto.x, enPunto.y, texto, altura, color, 0);
}

bool Coinciden(Punto2 p, Punto2 q) { return Distancia(p, q) <= kNivel; }

}  // namespace

void DibujaCota(EWdraw& axew, double x1, double y1, double x2, double y2, double xp, double yp, double altura,
                std::int16_t color, std::string_view tipo) {
  ExigeFinitos({x1, y1, x2, y2, altura});
  const Punto2 p1{x1, y1}, p2{x2, y2};
  if (tipo == "M") CotaEntrePuntos(axew, p1, p2, {xp, yp}, altura, color);
  if (tipo == "S") CotaEnPunto(axew, p1, p2, p1, altura, color);
  if (tipo == "E") CotaEnPunto(axew, p1, p2, p2, altura, color);
}

void Acota(EWdraw& axew, double altura, Punto2 p, Punto2 q, Punto2 paso) {
  if (Coinciden(p, q)) return;
  DibujaCota(axew, p.x, p.y, q.x, q.y, paso.x, paso.y, altura, kColorCota, "M");
}

void Extiende(EWdraw& axew, Punto2 p, Punto2 q) {
  if (!Coinciden(p, q)) DibujaLinea(axew, p, q, kColorCota);
}

}  // namespace duktores
