#include "check/cotejo.h"

#include <algorithm>
#include <cmath>

#include "check/cruce.h"
#include "dxf/anotacion.h"

namespace duktores {

namespace {

// A facet of less height has no sides to tell apart.
constexpr double kSinAltura = 1e-3, kCerca = 1e-3;

double Largo2(Punto2 v) { return std::sqrt(v.x * v.x + v.y * v.y); }

}  // namespace

void Cotejo::Largo(Punto2 p, Punto2 q, double verdadero) {
  const double error = std::abs(Largo2(q - p) - verdadero);
  largo_.Anota(std::isfinite(error) ? error : HUGE_VAL, p, q);
}

void Cotejo::Cara(Punto2 a, Punto2 b, Punto2 c, double signo) {
  const Punto2 u = b - a, v = c - a;
  const double doble = signo * (u.x * v.y - u.y * v.x);
  if (!(doble < 0)) return;
  const double altura = -doble / std::max({Largo2(u), Largo2(v), Largo2(c - b)});
  if (altura > kSinAltura) vuelta_.Anota(altura, a, 0.5 * (b + c));
}

void Cotejo::Numero(Punto2 p, Punto2 q, Punto2 aparte) {
  if (!forma_->HayNumero(++numeros_, 0.5 * (p + q) + aparte)) numero_.Anota(1, p, q);
}

void Cotejo::Doblez(Punto2 p, Punto2 q) {
  ++dobleces_;
  if (!forma_->HayLinea(p, q)) doblez_.Anota(1, p, q);
}

Punto2 Cotejo::FinDeLinea(Punto2 p) {
  ++numeros_;
  if (numeros_ > forma_->numeros.size()) {
    numero_.Anota(1, p, p);
    return p;
  }
  const Punto2 medio = forma_->numeros[numeros_ - 1].sitio, fin = 2 * medio - p;
  const bool dibujada = std::ranges::any_of(
      forma_->lineas, [&](const auto& linea) { return linea[0] == p && Distancia(linea[1], fin) < kCerca; });
  if (!dibujada) doblez_.Anota(1, medio, medio);
  return fin;
}

void Cotejo::Cierra(Veredicto& veredicto) {
  Largo(forma_->contorno.front(), forma_->contorno.back(), 0);
  if (!forma_->NumerosHasta(numeros_)) numero_.Anota(1, forma_->contorno.front(), forma_->contorno.front());
  if (estado.iColorDoblez != kColorCota && forma_->Dobleces() != dobleces_)
    doblez_.Anota(1, forma_->contorno.front(), forma_->contorno.front());
  const auto anota = [&](Falta falta, const Peor& peor, double medida) {
    veredicto.defectos.push_back({falta, forma_->Donde(peor.sitio), medida});
  };
  veredicto.desviacion = std::max(veredicto.desviacion, largo_.medida);
  if (largo_.medida > ToleranciaPatron()) anota(Falta::largo, largo_, largo_.medida);
  if (vuelta_.medida > 0) anota(Falta::vuelta, vuelta_, 0);
  if (const auto cruce = Cruce(forma_->contorno, kSinAltura)) anota(Falta::cruce, {1, *cruce}, 0);
  if (numero_.medida > 0) anota(Falta::numeros, numero_, 0);
  if (doblez_.medida > 0) anota(Falta::doblez, doblez_, 0);
}

}  // namespace duktores
