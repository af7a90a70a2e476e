#pragma once
// The job list: a JSON array of objects, one object a piece. Values are texts here, as they will be typed into the
// dialog; what a piece's fields are called and take is the dialog's to say. Work and memory grow with the length of the
// list, not faster, and no more than one job of it is held at a time.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "geometry/puntos.h"
#include "jobs/flujo_lista.h"

namespace duktores {

/// Why a job or a list is refused: the key, and a plain English sentence or the program's own text.
struct Rechazo {
  std::string clave, texto;
};

struct Trabajo {
  std::size_t numero = 0;  ///< place in the list, from 1
  std::size_t linea = 0;   ///< where it begins
  std::string nombre;      ///< of the drawing; "#3" where the third job has none that will do
  std::string pieza;
  std::vector<std::pair<std::string, std::string>> valores;  ///< key and text of every other key
  int cantidad = 1;                           ///< how many of the piece are wanted, where sheets are laid
  std::optional<double> espesor;              ///< stands for the configuration's
  std::optional<std::vector<Punto2>> puntos;  ///< answers to the picks; none: the program places the shapes
  std::optional<Rechazo> rechazo;             ///< what is wrong with the job as it stands in the list
};

/// Whether one object may stand where an array of them should.
enum class Admite { lista, listaOUno };

/// Hands on each job of a list as it is read. Throws ErrorLista, which tells line and job.
void RecorreLista(const LeeTrozo& lee, const std::function<void(Trabajo&&)>& toma, Admite admite = Admite::lista);

/// Reads what is in memory, which must outlive it.
LeeTrozo DeMemoria(std::string_view json);

/// Whether a text can be the name of a job.
bool EsNombre(const std::string& nombre);
/// What two names have in common that are one on some disk.
std::string SinCaja(std::string nombre);
/// A number as a person would type it: plain decimals, no exponent.
std::string TextoTecleado(double valor);

/// Which files are made of a job beside its drawing: no job may have their names.
struct Adjuntos {
  bool solidos = false;   ///< pictures of the solids
  bool cortes = false;    ///< cut files
  bool dobleces = false;  ///< lists of bends
  bool chapas = false;    ///< sheets
};

/// The names of a list. Nobody can tell which of two pieces the drawing of one name should be, and many disks don't
/// tell names apart that differ by case or by the way in which an accent is written.
class Nombres {
 public:
  explicit Nombres(Adjuntos adjuntos = {}) : adjuntos_(adjuntos) {}
  void Anota(const Trabajo& trabajo);
  /// Refuses a job whose name is another one's too.
  void Revisa(Trabajo& trabajo) const;

 private:
  bool EsDeCorte(const std::string& nombre) const;

  using Repetidos = std::unordered_map<std::string, bool>;  // by name without case: whether it is there twice
  Adjuntos adjuntos_;
  Repetidos repetidos_, portatiles_;  // the latter as cut files and lists of bends have them
};

/// Behind the name of a job it makes that of the picture of its solid.
inline constexpr std::string_view kSufijoSolido = "-3d";

/// The name of a sheet's files, by its number from 1.
std::string NombreChapa(std::size_t numero);

/// A whole list that is in memory.
std::vector<Trabajo> LeeLista(std::string_view json, Adjuntos adjuntos = {});

/// One line of what may hold anything: control characters and line separators become blanks.
std::string EnUnaLinea(const std::string& texto);

}  // namespace duktores
