#include "nest/moldes.h"

#include <algorithm>
#include <cmath>

namespace duktores {

namespace {

constexpr double kVuelta = 360, kPasoMinimo = 1;  // degrees

// Those of a step that divides the whole turn, which a step that doesn't is taken for.
std::vector<double> GirosDe(double paso) {
  if (!(paso >= kPasoMinimo && paso < kVuelta)) return {0};
  const long cuantos = std::lround(kVuelta / paso);
  std::vector<double> giros;
  for (long i = 0; i < cuantos; ++i) giros.push_back(static_cast<double>(i) * kVuelta / static_cast<double>(cuantos));
  return giros;
}

}  // namespace

Moldes::Moldes(const EncargoNido& encargo) : escala_(kPorMilimetro / encargo.milimetro), giros_(GirosDe(encargo.giro)) {
  for (const double grados : giros_) {
    vueltas_.emplace_back(grados);
    contravueltas_.emplace_back(-grados);
  }
  for (const ParteNido& parte : encargo.partes) {
    auto silueta = SiluetaDe(parte.contorno, encargo.hueco, encargo.milimetro);
    sirve_.push_back(silueta.has_value());
    siluetas_.push_back(silueta ? std::move(*silueta) : Silueta());
    for (const double grados : giros_) {
      Extremos& caja = cajas_.emplace_back();
      for (const Punto2 p : ContornoEn(parte, {0, grados, {}})) caja.Incluye(escala_ * p);
    }
  }
}

std::shared_ptr<const NoCabe> Moldes::NoCabeEntre(std::size_t fija, std::size_t giroFija, std::size_t movida,
                                                  std::size_t giroMovida) {
  const std::size_t pasos = (giroMovida + giros_.size() - giroFija) % giros_.size();
  return noCaben_.De(fija, movida, pasos, giros_[pasos]);
}

}  // namespace duktores
