#include "piezas_azar.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <string>

namespace duktores {

namespace {

class Medidas {
 public:
  explicit Medidas(std::mt19937& azar) : azar_(azar) {}

  double Entre(double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar_); }
  bool Una(unsigned deCuantas) { return azar_() % deCuantas == 0; }

  // Names in small letters, as the fields' words differ in their case alone.
  std::map<std::string, double> Saca(TipoPieza tipo) {
    std::map<std::string, double> m;
    const double tamano = Una(4) ? Entre(20, 100) : Entre(100, 2000);
    const auto lado = [&] { return tamano * Entre(0.3, 1); };
    m["h"] = tamano * Entre(0.2, 1.5);
    for (const char* n : {"lx", "ly", "lx1", "ly1", "lx2", "ly2", "li", "ai", "ls", "as"}) m[n] = lado();
    if (Una(6)) m["ai"] = m["li"], m["as"] = m["ls"], m["ly1"] = m["lx1"], m["ly2"] = m["lx2"], m["ly"] = m["lx"];
    if (m["ly"] > m["lx"] && tipo != TipoPieza::esp3) std::swap(m["lx"], m["ly"]);
    m["rs"] = std::max(m["li"], m["ai"]) / 2 * Entre(0.2, 1);
    m["ri"] = std::min(m["ls"], m["as"]) / 2 * Entre(1, 3);
    m["emas"] = m["li"] * Entre(0.4, 1.1);
    m["emes"] = Una(8) ? m["emas"] : m["emas"] * Entre(0.4, 1);
    m["r"] = m["r1"] = tamano * Entre(0.05, 0.6);
    const bool redonda = Una(8);
    for (const auto& [n, mitad] :
         {std::pair("r1", std::min(m["lx1"], m["ly1"]) / 2), std::pair("r2", std::min(m["lx2"], m["ly2"]) / 2)}) {
      const double maximo = n[1] == '2' && tipo == TipoPieza::esp4 ? std::min(m["lx"], m["ly"]) / 2 : mitad;
      for (const char c : {'1', '2', '3', '4'}) {
        m[std::string(n) + c] = redonda ? std::floor(maximo * 100) / 100 : Una(8) ? 0 : maximo * Entre(0, 1);
      }
    }
    const double corrida = Una(3) ? 0 : tamano / 2, inclinada = Una(3) ? 0 : 40;
    for (const char* n : {"ax", "ay"}) m[n] = Una(4) ? 0 : Entre(0, corrida);
    for (const char* n : {"alfa", "beta"}) m[n] = Una(4) ? 0 : Entre(0, inclinada);
    if ((tipo == TipoPieza::cr || tipo == TipoPieza::rc) && Una(2)) m["alfa"] = -m["alfa"];
    m["divisions"] = 4.0 * (1 + Sorteo() % (Una(10) ? 16 : 6));
    return m;
  }
  unsigned Sorteo() { return static_cast<unsigned>(azar_()); }

 private:
  std::mt19937& azar_;
};

std::string Texto2(double v) {
  std::string texto = std::to_string(std::nearbyint(v * 100) / 100);
  texto.resize(texto.find('.') + 3);
  return texto;
}

}  // namespace

void TecleaMedidas(Dialogo& dialogo, const std::map<std::string, double>& m, std::mt19937& azar) {
  const auto campos = dialogo.Definicion().campos;
  for (std::size_t i = 0; i < campos.size(); ++i) {
    const DefCampo& campo = campos[i];
    std::string palabra(campo.palabra);
    std::ranges::transform(palabra, palabra.begin(), [](unsigned char c) { return std::tolower(c); });
    if (!campo.valores.empty()) {
      dialogo.Elige(static_cast<int>(i), campo.valores[azar() % campo.valores.size()]);
    } else {
      const double v = m.contains(palabra) ? m.at(palabra) : std::uniform_real_distribution<double>(50, 500)(azar);
      dialogo.CampoDe(static_cast<int>(i)).texto =
          campo.uso == Uso::divisiones ? std::to_string(std::lround(v)) : Texto2(v);
    }
  }
}

void TecleaPieza(Dialogo& dialogo, std::mt19937& azar) {
  Medidas medidas(azar);
  TecleaMedidas(dialogo, medidas.Saca(dialogo.Definicion().tipo), azar);
  dialogo.dosPiezas = medidas.Una(2);
}

}  // namespace duktores
