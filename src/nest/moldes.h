#pragma once
// What all searches of an order share: the silhouettes of its parts, their boxes at each turn, and the no-fit polygons.

#include "nest/no_cabe.h"

namespace duktores {

/// Units by which a part may be longer than its room: what sums of lengths are rounded by.
inline constexpr double kRoce = 1e-4;

class Moldes {
 public:
  explicit Moldes(const EncargoNido& encargo);

  std::size_t Cuantos() const { return siluetas_.size(); }
  bool Sirve(std::size_t parte) const { return sirve_[parte]; }
  double Area(std::size_t parte) const { return siluetas_[parte].area; }
  /// How parts may be turned, as numbers of steps.
  const std::vector<double>& Giros() const { return giros_; }
  const Giro& GiroDe(std::size_t giro) const { return vueltas_[giro]; }
  const Giro& ContragiroDe(std::size_t giro) const { return contravueltas_[giro]; }
  /// Of the true outline, turned so.
  const Extremos& ExtremosEn(std::size_t parte, std::size_t giro) const { return cajas_[parte * giros_.size() + giro]; }
  /// Where `movida` may not have its origin while that of `fija` lies at its own.
  std::shared_ptr<const NoCabe> NoCabeEntre(std::size_t fija, std::size_t giroFija, std::size_t movida,
                                            std::size_t giroMovida);
  /// Units of the search in a unit of the order.
  double Escala() const { return escala_; }

 private:
  double escala_;
  std::vector<double> giros_;
  std::vector<Giro> vueltas_, contravueltas_;
  std::vector<Silueta> siluetas_;
  std::vector<bool> sirve_;
  std::vector<Extremos> cajas_;
  NoCaben noCaben_{siluetas_};
};

}  // namespace duktores
