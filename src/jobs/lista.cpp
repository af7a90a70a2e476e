#include "jobs/lista.h"

#include <QString>
#include <algorithm>
#include <charconv>
#include <istream>
#include <nlohmann/json.hpp>

#include "state/caracteres.h"
#include "state/nombres.h"

namespace duktores {

namespace {

using nlohmann::json;

// Far more than any piece has or a person would type.
constexpr std::size_t kMaximoClaves = 64, kMaximoClave = 64, kMaximoPuntos = 64, kMaximoNombre = 4096;
constexpr int kMaximoTeclas = 32, kMaximaCantidad = 10000;
constexpr double kMinimoEspesor = 1e-6, kMaximoEspesor = 1000;

/// Whether the whole text is a number from `minimo` to `maximo`, which goes into `sitio`.
template <class Numero, class Sitio>
bool EsNumero(std::string_view texto, Numero minimo, Numero maximo, Sitio& sitio) {
  Numero v{};
  const auto fin = std::from_chars(texto.data(), texto.data() + texto.size(), v);
  const bool es = fin.ec == std::errc() && fin.ptr == texto.data() + texto.size() && v >= minimo && v <= maximo;
  if (es) sitio = v;
  return es;
}

bool EsDeControl(char32_t c) {
  switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      return false;
  }
}

bool EsAscii(const std::string& texto) {
  return std::ranges::all_of(texto, [](unsigned char c) { return c >= ' ' && c < 0x7F; });
}

/// The text with blanks for what a line of text may not hold. Not by way of a list of Qt's, which crash without memory.
std::string ConBlancos(const std::string& texto) {
  if (EsAscii(texto)) return texto;
  std::u16string unidades = Utf16(texto);
  for (std::size_t i = 0; i < unidades.size(); ++i) {
    const bool doble = QChar::isHighSurrogate(unidades[i]) && i + 1 < unidades.size();
    const char32_t letra = doble ? QChar::surrogateToUcs4(unidades[i], unidades[i + 1]) : char32_t{unidades[i]};
    if (EsDeControl(letra)) unidades.replace(i, doble ? 2 : 1, 1, u' ');
    if (doble && !EsDeControl(letra)) ++i;
  }
  return Utf8(unidades);
}

constexpr std::string_view kChapa = "sheet-";

/// Whether it is a name that a sheet may have, in small letters.
bool EsDeChapa(const std::string& nombre) {
  return nombre.starts_with(kChapa) && nombre.size() > kChapa.size() &&
         nombre.find_first_not_of("0123456789", kChapa.size()) == std::string::npos;
}

/// Takes what the parser finds. Depth 1 is within the list, 2 within a job, 3 within its picks, 4 within a pick.
class Lector : public nlohmann::json_sax<json> {
 public:
  Lector(FlujoLista& flujo, const std::function<void(Trabajo&&)>& toma, Admite admite)
      : flujo_(flujo), toma_(toma), admite_(admite) {}
  std::size_t Jobs() const { return cuantos_; }

  bool null() override { return Otro(); }
  bool boolean(bool) override { return Otro(); }
  bool binary(binary_t&) override { return Otro(); }
  bool number_integer(number_integer_t v) override { return Numero(std::to_string(v), static_cast<double>(v)); }
  bool number_unsigned(number_unsigned_t v) override { return Numero(std::to_string(v), static_cast<double>(v)); }
  bool number_float(number_float_t v, const string_t&) override { return Numero(TextoTecleado(v), v); }
  bool string(string_t& texto) override {
    if (hondo_ != 2) return Otro();
    if (clave_ == "name") {
      trabajo_.nombre = texto;
    } else if (clave_ == "piece" && texto.size() <= kMaximoClave) {
      trabajo_.pieza = texto;
    } else {
      Valor(texto);
    }
    return true;
  }
  bool start_object(std::size_t) override {
    if (hondo_ == 0 && admite_ == Admite::listaOUno) hondo_ = 1;
    if (hondo_ == 1) {
      Empieza();
    } else {
      Otro();
    }
    ++hondo_;
    return true;
  }
  bool key(string_t& clave) override {
    if (hondo_ != 2) return true;
    clave_ = clave.substr(0, kMaximoClave);
    if (clave.size() > kMaximoClave) {
      Rechaza("job", "a key is longer than any");
    } else if (std::ranges::find(claves_, clave) != claves_.end()) {
      Rechaza(clave, "\"" + clave + "\" stands twice in the job");
    } else if (claves_.size() == kMaximoClaves) {
      Rechaza("job", "the job has more keys than any");
    } else {
      claves_.push_back(clave);
    }
    return true;
  }
  bool end_object() override {
    if (--hondo_ == 1) Acaba();
    return true;
  }
  bool start_array(std::size_t) override {
    if (hondo_ == 2 && clave_ == "picks") {
      trabajo_.puntos.emplace();
    } else if (hondo_ == 3 && clave_ == "picks") {
      coordenadas_ = 0;
    } else if (hondo_ == 1) {
      NoObjeto();
    } else if (hondo_ > 1) {
      Otro();
    }
    ++hondo_;
    return true;
  }
  bool end_array() override {
    if (--hondo_ == 1) Acaba();
    if (hondo_ == 3 && clave_ == "picks") {
      if (coordenadas_ != 2) PuntoMalo();
      if (trabajo_.puntos && trabajo_.puntos->size() < kMaximoPuntos) trabajo_.puntos->push_back(punto_);
    }
    return true;
  }
  bool parse_error(std::size_t, const std::string&, const json::exception& error) override {
    // The library's texts begin with its own name in brackets.
    const std::string motivo = error.what();
    throw ErrorLista(motivo.substr(motivo.find(']') + 2));
  }

 private:
  void Empieza() {
    trabajo_ = {};
    trabajo_.numero = ++cuantos_;
    trabajo_.linea = flujo_.Linea();
    claves_.clear();
    clave_.clear();
  }
  void Acaba() {
    const auto esta = [&](const char* clave) { return std::ranges::find(claves_, clave) != claves_.end(); };
    if (!esta("name")) Rechaza("name", "name is missing");
    if (!EsNombre(trabajo_.nombre)) {
      Rechaza("name", "name must be a file name: not empty, no folder separators, no control characters");
      trabajo_.nombre = "#" + std::to_string(trabajo_.numero);
    }
    if (!esta("piece")) Rechaza("piece", "piece is missing");
    toma_(std::move(trabajo_));
  }
  /// The first reason counts.
  void Rechaza(const std::string& clave, const std::string& texto) {
    if (!trabajo_.rechazo) trabajo_.rechazo = {clave, texto + " (line " + std::to_string(flujo_.Linea()) + ")."};
  }
  void NoObjeto() {
    Empieza();
    Rechaza("job", "a job must be an object");
  }
  void PuntoMalo() { Rechaza("picks", "picks must be an array of points [x, y]"); }

  /// A text or a number of a field.
  void Valor(const std::string& texto) {
    if (LongitudUtf16(texto) > kMaximoTeclas) {
      Rechaza(clave_, clave_ + " takes at most " + std::to_string(kMaximoTeclas) + " characters");
    } else if (clave_ == "picks") {
      PuntoMalo();
    } else if (clave_ == "quantity") {
      if (!EsNumero(texto, 1, kMaximaCantidad, trabajo_.cantidad)) {
        Rechaza(clave_, "quantity must be a whole number from 1 to " + std::to_string(kMaximaCantidad));
      }
    } else if (clave_ == "thickness") {
      if (!EsNumero(texto, kMinimoEspesor, kMaximoEspesor, trabajo_.espesor)) {
        Rechaza(clave_, "thickness must be a number above 0, at most 1000");
      }
    } else if (!trabajo_.rechazo) {
      trabajo_.valores.emplace_back(clave_, texto);
    }
  }
  bool Numero(const std::string& texto, double valor) {
    if (hondo_ == 2 && clave_ != "name" && clave_ != "piece") {
      Valor(texto);
    } else if (hondo_ == 4 && clave_ == "picks") {
      if (++coordenadas_ <= 2) (coordenadas_ == 1 ? punto_.x : punto_.y) = valor;
    } else {
      Otro();
    }
    return true;
  }
  /// What may not stand there.
  bool Otro() {
    if (hondo_ == 0) throw ErrorLista("it must be one array of objects, one object a piece.");
    if (hondo_ == 1) {
      NoObjeto();
      Acaba();
      return true;
    }
    if (clave_ == "picks") {
      PuntoMalo();
    } else {
      const bool texto = clave_ == "name" || clave_ == "piece";
      Rechaza(clave_, texto ? clave_ + " must be a text" : "\"" + clave_ + "\" must be a number or a text");
    }
    return true;
  }

  FlujoLista& flujo_;
  const std::function<void(Trabajo&&)>& toma_;
  Admite admite_;
  int hondo_ = 0, coordenadas_ = 0;
  std::size_t cuantos_ = 0;
  Trabajo trabajo_;
  Punto2 punto_{};
  std::string clave_;
  std::vector<std::string> claves_;
};

}  // namespace

bool EsNombre(const std::string& nombre) {
  if (nombre.empty() || nombre.size() > kMaximoNombre || nombre.find_first_of("/\\") != std::string::npos) return false;
  return ConBlancos(nombre) == nombre;
}

std::string SinCaja(std::string nombre) {
  if (EsAscii(nombre)) {
    std::ranges::transform(nombre, nombre.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    return nombre;
  }
  const QString suelto = QString::fromStdString(nombre).normalized(QString::NormalizationForm_D);
  return suelto.toCaseFolded().normalized(QString::NormalizationForm_D).toStdString();
}

std::string TextoTecleado(double valor) {
  std::string texto(400, '\0');
  const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), valor, std::chars_format::fixed);
  texto.resize(static_cast<std::size_t>(fin.ptr - texto.data()));
  return texto;
}

void RecorreLista(const LeeTrozo& lee, const std::function<void(Trabajo&&)>& toma, Admite admite) {
  FlujoLista flujo(lee);
  std::istream texto(&flujo);
  Lector lector(flujo, toma, admite);
  try {
    json::sax_parse(texto, &lector);
  } catch (const ErrorLista& motivo) {
    throw ErrorLista("job " + std::to_string(lector.Jobs()) + ": " + motivo.what());
  }
}

void Nombres::Anota(const Trabajo& trabajo) {
  const auto anota = [](Repetidos& nombres, const std::string& nombre) {
    const auto anotado = nombres.try_emplace(nombre, false);
    if (!anotado.second) anotado.first->second = true;
  };
  anota(repetidos_, SinCaja(trabajo.nombre));
  if (adjuntos_.cortes || adjuntos_.dobleces) anota(portatiles_, SinCaja(NombrePortatil(trabajo.nombre)));
}

// NAME-1of2 or NAME-cut.
bool Nombres::EsDeCorte(const std::string& nombre) const {
  const std::size_t guion = nombre.rfind('-');
  if (guion == std::string::npos || !portatiles_.contains(nombre.substr(0, guion))) return false;
  const std::string cola = nombre.substr(guion + 1);
  const std::size_t de = cola.find("of");
  const auto numero = [](std::string_view cifras) {
    return !cifras.empty() && cifras.find_first_not_of("0123456789") == std::string_view::npos;
  };
  return cola == "cut" || (de != std::string::npos && numero(cola.substr(0, de)) && numero(cola.substr(de + 2)));
}

std::string NombreChapa(std::size_t numero) { return std::string(kChapa) + std::to_string(numero); }

void Nombres::Revisa(Trabajo& trabajo) const {
  const std::string nombre = SinCaja(trabajo.nombre);
  const auto esta = [](const Repetidos& nombres, const std::string& cual) {
    const auto anotado = nombres.find(cual);
    return anotado != nombres.end() && anotado->second;
  };
  const bool deSolido = adjuntos_.solidos && nombre.ends_with(kSufijoSolido) &&
                        repetidos_.contains(nombre.substr(0, nombre.size() - kSufijoSolido.size()));
  const char* motivo = nullptr;
  if (esta(repetidos_, nombre)) {
    motivo = "the name stands on another job too";
  } else if (deSolido) {
    motivo = "the picture of another job's solid has that name";
  } else if (esta(portatiles_, SinCaja(NombrePortatil(trabajo.nombre)))) {
    motivo = "the cut files or bends of another job would have the same names";
  } else if (adjuntos_.cortes && EsDeCorte(nombre)) {
    motivo = "a cut file of another job has that name";
  } else if (adjuntos_.chapas && EsDeChapa(nombre)) {
    motivo = "a sheet may have that name";
  }
  if (motivo) trabajo.rechazo = {"name", std::string(motivo) + " (line " + std::to_string(trabajo.linea) + ")."};
}

LeeTrozo DeMemoria(std::string_view json) {
  return [json](std::span<char> sitio) mutable {
    const std::size_t n = json.copy(sitio.data(), sitio.size());
    json.remove_prefix(n);
    return n;
  };
}

std::vector<Trabajo> LeeLista(std::string_view json, Adjuntos adjuntos) {
  std::vector<Trabajo> trabajos;
  Nombres nombres(adjuntos);
  RecorreLista(DeMemoria(json), [&](Trabajo&& trabajo) {
    nombres.Anota(trabajo);
    trabajos.push_back(std::move(trabajo));
  });
  for (Trabajo& trabajo : trabajos) nombres.Revisa(trabajo);
  return trabajos;
}

std::string EnUnaLinea(const std::string& texto) { return ConBlancos(texto); }

}  // namespace duktores
