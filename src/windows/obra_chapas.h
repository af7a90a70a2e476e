#pragma once
// The work behind the sheets' window: unfolds the pieces of a list, lays their parts on sheets, better and better, and
// writes the sheets. All of it goes on beside the windows.

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "jobs/chapas.h"
#include "windows/tarea.h"

namespace duktores {

/// What is to be laid on what, and for how long it is improved.
struct PedidoChapas {
  std::vector<Existencia> existencias;
  ReglasChapa reglas;
  double segundos = 5;
};

/// The parts of a list, and what of it has none.
struct PartesLista {
  std::vector<ParteChapa> partes;
  std::vector<FilaSinChapa> sinParte;
  bool entera = true;  ///< false: the unfolding was stopped
};

/// The best layout so far.
struct Reparto {
  std::shared_ptr<const PartesLista> lista;
  std::shared_ptr<const std::vector<Lote>> lotes;
  std::vector<Nido> nidos;        ///< of each of them
  std::vector<FilaChapa> chapas;  ///< of all sheets, one behind the other; once the work has ended

  /// What lies on no sheet.
  std::vector<FilaSinChapa> Faltan() const;
};

class ObraChapas {
 public:
  /// Begins at once, under the configuration as it is. `partes` is what an earlier work made of the same list; null if
  /// there was none.
  ObraChapas(std::vector<Trabajo> trabajos, PedidoChapas pedido, std::shared_ptr<const PartesLista> partes);

  /// Ends the work soon; the best layout so far stays.
  void Para() { tarea_.Para(); }
  bool Acabada() const { return tarea_.Acabada(); }
  bool Fallida() const { return tarea_.Fallida(); }
  /// The layout, if there is a better one than when it was last asked for.
  std::optional<Reparto> Toma();
  /// How many jobs are unfolded; all of them while it is laid.
  std::size_t Desarrolladas() const { return desarrolladas_; }
  std::size_t Trabajos() const { return trabajos_.size(); }

 private:
  void Trabaja(const std::stop_token& para);
  std::shared_ptr<const PartesLista> Desarrolla(const std::stop_token& para);
  void Distribuye(const std::stop_token& para);

  std::vector<Trabajo> trabajos_;
  PedidoChapas pedido_;
  std::atomic<std::size_t> desarrolladas_ = 0;
  std::mutex cerrojo_;
  Reparto reparto_;
  bool nuevo_ = false;
  Tarea tarea_;  // the last one: it ends before the others go
};

/// Writes the sheets of a layout, and their table, into a folder.
class EscrituraChapas {
 public:
  EscrituraChapas(Reparto reparto, std::string carpeta, HabitoCsv habito);

  /// Names of the files that it writes, without folder.
  static std::vector<std::string> Ficheros(const Reparto& reparto);
  /// Ends it behind the sheet that it is at, without the table.
  void Para() { tarea_.Para(); }
  const std::string& Carpeta() const { return carpeta_; }
  bool Acabada() const { return tarea_.Acabada(); }
  bool Fallida() const { return tarea_.Fallida(); }
  std::size_t Hechas() const { return hechas_; }

  /// Once it has ended: the files that stand, a line for each that doesn't, and sheets of an earlier time.
  const std::vector<std::string>& Escritos() const { return escritos_; }
  const std::vector<std::string>& Fallos() const { return fallos_; }
  const std::vector<std::string>& Viejas() const { return viejas_; }

 private:
  void Trabaja(const std::stop_token& para);

  Reparto reparto_;
  std::string carpeta_;
  HabitoCsv habito_;
  std::atomic<std::size_t> hechas_ = 0;
  std::vector<std::string> escritos_, fallos_, viejas_;
  Tarea tarea_;
};

}  // namespace duktores
