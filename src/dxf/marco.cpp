#include "dxf/marco.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <set>
#include <span>
#include <stdexcept>
#include <vector>

#include "state/caracteres.h"

namespace duktores {

namespace {

/// What is wrong, on its way out.
struct Falta : std::runtime_error {
  Falta(std::size_t linea, const std::string& que) : std::runtime_error("line " + std::to_string(linea) + ": " + que) {}
};

struct Par {
  std::size_t linea;  // of the value
  int codigo;
  std::string_view valor;
};

enum class Clase { texto, real, entero, handle };

struct Tramo {
  int desde, hasta;
  Clase clase;
};
// Codes beyond these hold texts.
constexpr Tramo kTramos[] = {
    {5, 5, Clase::handle},     {10, 59, Clase::real},     {60, 79, Clase::entero},    {90, 99, Clase::entero},
    {105, 105, Clase::handle}, {110, 149, Clase::real},   {160, 179, Clase::entero},  {210, 239, Clase::real},
    {270, 299, Clase::entero}, {320, 369, Clase::handle}, {370, 389, Clase::entero},  {390, 399, Clase::handle},
    {400, 409, Clase::entero}, {420, 429, Clase::entero}, {440, 459, Clase::entero},  {460, 469, Clase::real},
    {480, 481, Clase::handle}, {1010, 1059, Clase::real}, {1060, 1071, Clase::entero}};
constexpr int kUltimoCodigo = 1071;

// What a drawing of ours stands on or points at: sections, tables, records by table and name or handle.
constexpr std::string_view kExigidos[] = {
    "$ACADVER",      "$HANDSEED",     "SECTION HEADER", "SECTION TABLES", "SECTION BLOCKS", "SECTION ENTITIES",
    "TABLE VPORT",   "TABLE LTYPE",   "TABLE LAYER",    "TABLE STYLE",    "TABLE APPID",    "TABLE DIMSTYLE",
    "VPORT *ACTIVE", "LTYPE BYLAYER", "LTYPE BYBLOCK",  "LAYER 0",        "STYLE STANDARD", "BLOCK_RECORD 6B"};

bool EsReal(std::string_view texto) {
  double v = 0;
  const auto fin = std::from_chars(texto.data(), texto.data() + texto.size(), v);
  return fin.ec == std::errc() && fin.ptr == texto.data() + texto.size();
}

bool EsEntero(std::string_view texto, int base) {
  long long v = 0;
  const auto fin = std::from_chars(texto.data(), texto.data() + texto.size(), v, base);
  return fin.ec == std::errc() && fin.ptr == texto.data() + texto.size();
}

bool EsDeSuClase(const Par& par) {
  const auto* tramo =
      std::ranges::find_if(kTramos, [&](const Tramo& t) { return par.codigo >= t.desde && par.codigo <= t.hasta; });
  if (tramo == std::end(kTramos)) return true;
  switch (tramo->clase) {
    case Clase::real:
      return EsReal(par.valor);
    case Clase::entero:
      return EsEntero(par.valor, 10);
    case Clase::handle:
      return EsEntero(par.valor, 16);
    case Clase::texto:
      break;
  }
  return true;
}

std::vector<Par> Pares(std::string_view dxf) {
  std::vector<Par> pares;
  std::string_view anterior;
  for (std::size_t linea = 1; !dxf.empty(); ++linea) {
    const std::size_t fin = std::min(dxf.find('\n'), dxf.size() - 1);
    const std::string_view texto = Recorta(dxf.substr(0, fin + 1));
    dxf.remove_prefix(fin + 1);
    const auto esControl = [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t'; };
    if (std::ranges::any_of(texto, esControl)) throw Falta(linea, "a control character");
    if (linea % 2 == 1) {
      if (texto.empty() && Recorta(dxf).empty()) break;
      if (!EsEntero(texto, 10)) throw Falta(linea, "no group code");
      anterior = texto;
      continue;
    }
    Par par{linea, -1, texto};
    std::from_chars(anterior.data(), anterior.data() + anterior.size(), par.codigo);
    if (par.codigo < 0 || par.codigo > kUltimoCodigo) throw Falta(linea - 1, "no group code");
    if (!EsDeSuClase(par)) throw Falta(linea, "no value of its group code");
    pares.push_back(par);
  }
  return pares;
}

using Registro = std::span<const Par>;

const Par* Busca(Registro registro, int codigo) {
  const auto par = std::ranges::find(registro, codigo, &Par::codigo);
  return par == registro.end() ? nullptr : &*par;
}

/// Goes through the records of a file, a record from one pair of code 0 to the next.
class Marco {
 public:
  void Lee(Registro registro) {
    const Par& inicio = registro.front();
    if (inicio.codigo != 0) throw Falta(inicio.linea, "no record");
    if (acabado_) throw Falta(inicio.linea, "something behind the end");
    if (inicio.valor == "SECTION" || inicio.valor == "TABLE" || inicio.valor == "BLOCK") {
      Abre(registro);
    } else if (inicio.valor == "ENDSEC" || inicio.valor == "ENDTAB" || inicio.valor == "ENDBLK") {
      Cierra(inicio);
    } else if (inicio.valor == "EOF") {
      if (!abiertos_.empty()) throw Falta(inicio.linea, "the end within " + abiertos_.back());
      acabado_ = true;
      return;
    } else if (abiertos_.empty()) {
      throw Falta(inicio.linea, "a record outside the sections");
    }
    if (inicio.valor != "SECTION" && inicio.valor != "ENDSEC" && inicio.valor != "ENDTAB") Objeto(registro);
  }

  void Acaba(std::size_t linea, std::span<const std::string_view> capas) const {
    if (!acabado_) throw Falta(linea, "cut short");
    const auto exige = [&](const std::string& que) {
      if (!hay_.contains(que)) throw Falta(linea, "no " + que);
    };
    for (const auto que : kExigidos) exige(std::string(que));
    for (const auto capa : capas) exige("LAYER " + std::string(capa));
    for (const Par& puntero : punteros_) {
      if (!handles_.contains(puntero.valor)) throw Falta(puntero.linea, "a pointer to no object");
    }
  }

 private:
  void Abre(Registro registro) {
    const Par& inicio = registro.front();
    const Par* nombre = Busca(registro, 2);
    if (nombre == nullptr) throw Falta(inicio.linea, std::string(inicio.valor) + " without a name");
    const std::string dentro = abiertos_.empty() ? "" : abiertos_.back();
    const std::string_view sitio = inicio.valor == "SECTION" ? "" : inicio.valor == "TABLE" ? "TABLES" : "BLOCKS";
    if (dentro != sitio) throw Falta(inicio.linea, std::string(inicio.valor) + " within " + dentro);
    if (nombre->valor == "HEADER") Variables(registro);
    abiertos_.push_back(inicio.valor == "BLOCK" ? "BLOCK" : Mayusculas(nombre->valor));
    hay_.insert(std::string(inicio.valor) + " " + Mayusculas(nombre->valor));
  }
  /// Each variable of the header has a value.
  void Variables(Registro registro) {
    constexpr int kVariable = 9;
    for (std::size_t i = 2; i < registro.size(); ++i) {
      const Par& par = registro[i];
      const bool sola = i + 1 == registro.size() || registro[i + 1].codigo == kVariable;
      if (par.codigo != kVariable && i > 2) continue;
      if (sola || par.codigo != kVariable || !par.valor.starts_with('$'))
        throw Falta(par.linea, "no variable of HEADER");
      hay_.insert(std::string(par.valor));
    }
  }
  void Cierra(const Par& inicio) {
    const bool bloque = !abiertos_.empty() && abiertos_.back() == "BLOCK";
    const std::size_t hondo = inicio.valor == "ENDSEC" ? 1 : 2;
    if (abiertos_.size() != hondo || bloque != (inicio.valor == "ENDBLK")) {
      throw Falta(inicio.linea, std::string(inicio.valor) + " closes nothing");
    }
    abiertos_.pop_back();
  }
  /// A record of a table, a block, an entity, an object.
  void Objeto(Registro registro) {
    const Par& inicio = registro.front();
    const std::string& donde = abiertos_.front();
    if (donde == "HEADER") throw Falta(inicio.linea, "a record within HEADER");
    if (donde == "CLASSES") return;
    const Par* handle = Busca(registro, inicio.valor == "DIMSTYLE" ? 105 : 5);
    if (handle == nullptr) throw Falta(inicio.linea, std::string(inicio.valor) + " without a handle");
    if (!handles_.insert(handle->valor).second) throw Falta(handle->linea, "a handle for the second time");
    for (const Par& par : registro) {
      if (par.codigo >= 330 && par.codigo <= 369 && par.valor != "0") punteros_.push_back(par);
    }
    const bool deTabla = donde == "TABLES" && inicio.valor != "TABLE";
    if (!deTabla) return;
    const Par* nombre = Busca(registro, 2);
    const bool suya = abiertos_.size() == 2 && abiertos_.back() == inicio.valor;
    if (nombre == nullptr || !suya) throw Falta(inicio.linea, "no record of its table");
    hay_.insert(std::string(inicio.valor) + " " +
                (inicio.valor == "BLOCK_RECORD" ? std::string(handle->valor) : Mayusculas(nombre->valor)));
  }

  bool acabado_ = false;
  std::vector<std::string> abiertos_;  // section, then table or block
  std::set<std::string> hay_;
  std::set<std::string_view> handles_;
  std::vector<Par> punteros_;
};

}  // namespace

std::optional<std::string> FaltaEnMarco(std::string_view dxf, std::span<const std::string_view> capas) {
  try {
    const std::vector<Par> pares = Pares(dxf);
    Marco marco;
    const auto esInicio = [](const Par& par) { return par.codigo == 0; };
    for (auto par = pares.begin(); par != pares.end();) {
      const auto fin = std::find_if(par + 1, pares.end(), esInicio);
      marco.Lee({par, fin});
      par = fin;
    }
    marco.Acaba(pares.empty() ? 1 : pares.back().linea, capas);
  } catch (const Falta& falta) {
    return falta.what();
  }
  return std::nullopt;
}

}  // namespace duktores
