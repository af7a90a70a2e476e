#pragma once
// Moves parts that overlap apart: each in turn to where it overlaps least, while pairs that go on overlapping weigh
// more and more. Coordinates are those of the search.

#include <functional>
#include <vector>

#include "nest/azar.h"
#include "nest/moldes.h"

namespace duktores {

/// A part on one of some sheets.
struct Suelta {
  std::size_t parte, giro, hoja;
  Punto2 sitio;
  std::optional<std::size_t> vedada{};  ///< the sheet that it may not stay on
};

class Separador {
 public:
  Separador(Moldes& moldes, double margen, Azar& azar) : moldes_(moldes), margen_(margen), azar_(azar) {}

  /// Until no two parts overlap and none reaches over the margin of its sheet. Parts may change sheets and turns. False
  /// if it was given up, with the parts anywhere.
  bool Separa(std::vector<Suelta>& partes, const std::vector<Punto2>& tamanos, const std::function<bool()>& sigue);

 private:
  /// What is in the way of a part at one of its turns on one of the sheets.
  struct Vecino {
    std::shared_ptr<const NoCabe> no;
    Punto2 sitio;
    Giro contragiro;
    double peso;
  };
  struct Lugar {
    std::size_t hoja, giro;
    Extremos donde;
    std::vector<Vecino> vecinos;
  };
  struct Postura {
    double valor;
    const Lugar* lugar;
    Punto2 sitio;
  };

  double& Peso(std::size_t i, std::size_t j) { return pesos_[i < j ? j * (j - 1) / 2 + i : i * (i - 1) / 2 + j]; }
  bool Dentro(const Suelta& parte) const;
  Extremos Sitios(std::size_t parte, std::size_t giro, std::size_t hoja) const;
  double Mide(std::vector<bool>& solapan);
  void Mueve(std::size_t cual);
  const Lugar* LugarDe(std::size_t cual, std::size_t hoja, std::size_t giro);
  void Prueba(std::size_t cual);
  void Afina(Postura& postura, double paso, double fino) const;
  static double Valor(const Lugar& lugar, Punto2 sitio, double tope);

  Moldes& moldes_;
  double margen_;
  Azar& azar_;
  std::vector<Suelta>* partes_ = nullptr;
  const std::vector<Punto2>* tamanos_ = nullptr;
  std::vector<std::vector<std::size_t>> enHoja_;
  std::vector<double> pesos_;
  // Of the part at hand.
  std::vector<std::unique_ptr<Lugar>> lugares_;
  std::vector<Postura> mejores_;  // the best first
};

}  // namespace duktores
