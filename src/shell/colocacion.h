#pragma once
// Where the things of one pattern go: shapes and title blocks in the order in which they are asked for. Whatever is
// changed, the whole pattern is drawn anew from the list of places, so a drawing is that of a run in which these places
// were clicked one after the other, to the last byte.

#include <optional>
#include <string>
#include <vector>

#include "sheet/ensayo.h"
#include "shell/corrida.h"

namespace duktores {

using Sitios = std::vector<Punto2>;

class Colocacion {
 public:
  /// `hace` makes the pattern of the accepted piece, once. Those that are asked for first stand at places known before.
  /// All places of `antes`, if it has as many as the pattern asks for, come back as if clearing them had been a change.
  explicit Colocacion(HaceDesarrollo hace, Sitios conocidos = {}, Sitios antes = {})
      : hace_(std::move(hace)), conocidos_(std::move(conocidos)), antes_(std::move(antes)) {}

  /// Draws what has a place and asks for the rest, a prompt's box with each that follows a click. A change during a
  /// pick begins the drawing anew as soon as the pick is refused.
  Corrida Despliega(EWdraw& axew);

  // Changes; false if there is nothing to change. To be followed by Despliega, or by refusing the pick that waits.
  bool PonTodas();  ///< this one and all that follow, as `Reparte` would, right of what is placed
  bool PonJunta();  ///< this one beside the last, on one bottom line with it: the next free place at the right
  bool Mueve(std::size_t cosa, Punto2 mas);  ///< a placed thing, a shape with its title block
  bool Deshace();                            ///< the last move, or the last thing placed
  bool Rehace();

  /// The things of the pattern, none before the first Despliega, and the places of the first of them.
  const std::vector<Cosa>& Cosas() const { return cosas_; }
  const Sitios& Puestas() const { return historia_[actual_]; }
  bool Completa() const { return !cosas_.empty() && Puestas().size() >= cosas_.size(); }
  /// The places that were asked for.
  Sitios Elegidas() const { return {Puestas().begin() + static_cast<std::ptrdiff_t>(fijas_), Puestas().end()}; }

  /// Whether all lies as `Reparte` lays it.
  bool Repartida() const;

  /// Shape, or shape of the title block, by its name.
  std::string Nombre(std::size_t cosa) const;
  /// The placed things that a thing would overlap at a place, without itself and what `consigo` says moves with it.
  std::vector<std::size_t> Solapadas(std::size_t cosa, Punto2 sitio, std::optional<std::size_t> consigo = {}) const;
  /// The title block that moves with a thing.
  std::optional<std::size_t> BloqueDe(std::size_t cosa) const;

 private:
  Desarrollo Desarrolla();
  Punto2 Pide(EWdraw& axew, const Encargo& encargo);
  std::string Cuenta(const Encargo& encargo) const;
  bool Cambia(Sitios sitios);
  void Apunta(Sitios sitios);
  void Anade(const Sitios& nuevas);

  HaceDesarrollo hace_;
  Sitios conocidos_, antes_;
  std::optional<Desarrollo> desarrollo_;
  std::vector<Cosa> cosas_;
  std::size_t fijas_ = 0;                      // of the things, those that lie where they are
  std::vector<Sitios> historia_ = {Sitios()};  // lists of places, behind the one in force those taken back
  std::size_t actual_ = 0;
  std::size_t pedidas_ = 0;  // in this run
  bool cambiada_ = false, conCaja_ = true;
};

}  // namespace duktores
