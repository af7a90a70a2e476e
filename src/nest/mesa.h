#pragma once
// A sheet while it is laid. Coordinates are those of the search, the origin is the sheet's lower left corner.

#include "nest/moldes.h"

namespace duktores {

struct Puesta {
  std::size_t parte, giro;
  Punto2 sitio;
};

/// What makes one place better than another: how far right the part reaches, and a part of how far up.
struct Gusto {
  double alto = 0.05;
  double Valor(const Extremos& caja, Punto2 sitio) const {
    return caja.hasta.x + sitio.x + alto * (caja.hasta.y + sitio.y);
  }
};

/// What a search needs again and again.
class Tanteo {
 public:
  explicit Tanteo(Moldes& moldes) : moldes_(moldes) {}

  /// The best place of a part beside those that lie there, at any of its turns, or at the one that is asked for.
  std::optional<Puesta> Busca(std::size_t parte, std::optional<std::size_t> giro, const std::vector<Puesta>& puestas,
                              Punto2 tamano, double margen, Gusto gusto);

 private:
  struct Lado {
    Punto2 p, q;
    double izquierda, derecha, abajo, arriba;
    std::size_t de;
  };
  struct Obstaculo {
    std::shared_ptr<const NoCabe> no;
    Punto2 sitio;
    Giro contragiro;
  };
  struct Candidato {
    double valor;
    Punto2 sitio;
    bool operator<(const Candidato& otro) const { return valor > otro.valor; }
  };

  void Reune(std::size_t parte, std::size_t giro, const std::vector<Puesta>& puestas);
  void Propon(Punto2 sitio);
  void ProponCruces();
  bool Libre(Punto2 sitio);

  Moldes& moldes_;
  std::vector<Lado> lados_, orden_;
  std::vector<Obstaculo> obstaculos_;
  std::vector<Candidato> candidatos_;
  // Of the query at hand.
  Extremos donde_;
  const Extremos* caja_ = nullptr;
  Gusto gusto_;
  double cota_ = 0;
  std::size_t ultimo_ = 0;
};

}  // namespace duktores
