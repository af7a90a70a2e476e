#pragma once
// The dialogs as plain objects. A dialog is a table of fields, a table of checks, a function that makes a piece of the
// values and one that stores it in `estado`; the window shows it, the batch program types into it. CmdAceptar answers
// what the user would see.

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/campo.h"
#include "piece/pieza.h"

namespace duktores {

enum class Rotulo {
  longitud,        ///< the word and the unit
  angulo,          ///< the word and "degrees"; in Chinese a text alone
  textoLongitud,   ///< a text that is the same in every language, and the unit
  texto,           ///< a text
  textoDosPuntos,  ///< a text that ends in a colon, which Chinese leaves out
};

/// What a field is for: a size of the piece, an offset or a tilt, which are 0 in a straight one, or the divisions,
/// which are `estado.iDivisiones` at first and not empty.
enum class Uso { medida, desvio, divisiones };

struct DefCampo {
  std::string_view nombre;   ///< of the control
  std::string_view palabra;  ///< on the label, and key of a job
  Rotulo rotulo;
  int textoRotulo;                            ///< of `texto` and `textoDosPuntos`; of `angulo` in Chinese
  Filtro filtro;                              ///< null: a combo box, which the keyboard can't fill
  std::span<const std::string_view> valores;  ///< of a combo box
  Uso uso = Uso::medida;
};

/// The numbers of the fields, in their order.
using Valores = std::vector<double>;

struct Comprobacion {
  int campo;  ///< takes the focus when the check fails
  bool (*falla)(const Valores& v);
  int texto;  ///< the rule in words: %1 to %3 are the names of `campos`, %0 is the number `limite`
  std::array<int, 3> campos{};
  double (*limite)(const Valores& v) = nullptr;
};

/// The greatest tilt, to either side.
inline double AnguloMayor(const Valores&) { return 90; }

struct DefDialogo {
  TipoPieza tipo;
  std::string_view nombre;  ///< of the window
  std::string_view clave;   ///< of the piece, in a job
  bool poneTipo;            ///< the key is the piece type key too; else the catalogue's text stays as the type
  int textoTitulo;
  int textoVacio;  ///< message: a field is empty
  int textoError;  ///< error label: a check failed
  std::span<const DefCampo> campos;
  std::span<const Comprobacion> comprobaciones;
  bool opcionPiezas;  ///< has OpUnapieza and OpDosPiezas
  bool olvidaPiezas;  ///< each activation selects OpDosPiezas
  /// Puts the values into the piece, which has type, surface, thickness and number of pieces already. What a piece
  /// takes from the one before it reads from `estado`.
  void (*llena)(const Valores& v, Pieza& pieza);
  /// Stores the values of the piece in `estado` under their names.
  void (*guarda)(const Pieza& pieza);
};

/// What the fields make: a piece, or what keeps them from it in words, the field and its rule.
struct Tecleada {
  std::optional<Pieza> pieza;
  std::string reparo;
};

enum class Respuesta { aceptado, campoVacio, datoErroneo };

class Dialogo {
 public:
  /// All fields empty, no combo chosen, two pieces. `def` must outlive the dialog.
  explicit Dialogo(const DefDialogo& def);

  const DefDialogo& Definicion() const { return *def_; }
  /// The window's caption; none in Chinese, where the designed one stays.
  std::optional<std::string> Titulo() const;
  std::string TextoRotulo(int campo) const;

  Campo& CampoDe(int campo) { return campos_.at(static_cast<std::size_t>(campo)); }
  const Campo& CampoDe(int campo) const { return campos_.at(static_cast<std::size_t>(campo)); }
  /// Takes one of a combo box's values; false for any other text.
  bool Elige(int campo, std::string_view valor);

  /// Fills the empty offsets and tilts with 0.
  void PonCeros();

  bool dosPiezas = true;

  /// What CmdAceptar would make of the fields, or why it wouldn't; nothing is stored or shown.
  Tecleada Lee() const;

  /// Checks the fields and stores them in `estado`, the accepted piece too. What is refused is told: an empty field by
  /// a message box, a failed check in lblerror(). Foco() is then the field to mend.
  Respuesta CmdAceptar();

  /// The dialog is shown, or the viewer has returned.
  void Activa();
  int Foco() const { return foco_; }
  const std::string& lblerror() const { return lblerror_; }

 private:
  struct Reparo {
    int campo;
    const Comprobacion* regla;  // null: it holds no number
  };

  std::vector<int> Vacios() const;
  /// Reads the numbers of all fields, which aren't empty, and checks them.
  std::optional<Reparo> Comprueba(Valores& v) const;
  Pieza PiezaDe(const Valores& v) const;
  std::string NombreCampo(int campo) const;
  std::string TextoDe(const Reparo& reparo, const Valores& v) const;

  const DefDialogo* def_;
  std::vector<Campo> campos_;
  int foco_ = 0;
  std::string lblerror_;
};

}  // namespace duktores
