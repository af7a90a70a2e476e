#pragma once
// A whole layout, made of an order of the parts: each goes to the first sheet that has room, and there to the best
// place.

#include "nest/mesa.h"
#include "nest/separa.h"

namespace duktores {

struct Turno {
  std::size_t parte;
  std::optional<std::size_t> giro{};  ///< none: whichever lies best
};

class Tanda {
 public:
  struct Hoja {
    std::size_t chapa;
    std::vector<Puesta> puestas;
    std::vector<std::size_t> turnos;  ///< whose place in the order
    /// Which turn found no room, and the least area of those so far.
    std::vector<std::pair<std::size_t, double>> llena{};
    bool apartada = false;         ///< that list is of all that lies here
    double area = 0, derecha = 0;  ///< of the parts; how far right they reach
  };

  Tanda(const EncargoNido& encargo, Moldes& moldes);

  std::vector<Turno> turnos;
  Gusto gusto;

  /// Lays what stands from this place of the order on; the rest stays. False if it was given up: because it would cost
  /// more than `tope`, or because `sigue` says so.
  bool Coloca(Tanteo& tanteo, std::size_t desde, double tope, const std::function<bool()>& sigue);
  /// Lays all anew at once, box beside box on shelves: loosely, but in no time.
  void Estantes();
  /// Puts the turns of these sheets behind all others and gives the place of the first one; what is laid stays so.
  std::size_t Aparta(const std::vector<std::size_t>& hojas);
  /// The parts as they lie on some sheets, each counted by its place among these; and how they are to lie instead.
  std::vector<Suelta> Sueltas(const std::vector<std::size_t>& hojas) const;
  void Toma(const std::vector<std::size_t>& hojas, const std::vector<Suelta>& partes);
  Punto2 Tamano(std::size_t chapa) const { return moldes_->Escala() * encargo_->chapas[chapa].tamano; }
  /// What is to be made small: area of sheets; of the emptiest only what is used of it; and of parts without a sheet.
  double Coste() const;
  const std::vector<Hoja>& Hojas() const { return hojas_; }
  Nido Resultado() const;
  /// Whether an empty sheet of some size takes the part.
  bool CabeEnAlguna(std::size_t parte) const;

 private:
  std::optional<std::size_t> GiroEn(std::size_t parte, std::size_t chapa) const;
  bool CabeEn(std::size_t parte, std::size_t chapa) const { return GiroEn(parte, chapa).has_value(); }
  std::optional<std::size_t> ChapaPara(std::size_t parte) const;
  void Rebobina(std::size_t desde);
  void Suma(Hoja& hoja) const;
  bool PonEn(Tanteo& tanteo, Hoja& hoja, std::size_t turno);
  bool Empieza(Tanteo& tanteo, std::size_t turno);
  double AreaDe(std::size_t chapa) const;

  const EncargoNido* encargo_;
  Moldes* moldes_;
  std::vector<std::size_t> porTamano_;  // the kinds of sheets, the smallest first
  std::vector<Hoja> hojas_;
  std::size_t hechos_ = 0;
  double faltaArea_ = 0;
  std::vector<std::size_t> faltan_;  // turns that found no sheet
};

}  // namespace duktores
