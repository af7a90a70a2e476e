#include "state/textos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <sstream>
#include <stdexcept>

#include "state/caracteres.h"
#include "state/error_corrida.h"
#include "state/estado.h"

namespace duktores {
namespace {

/// The text of an id; empty if there is none.
std::string Busca(double id) {
  try {
    return TextoIdioma(id);
  } catch (const std::out_of_range&) {
    return "";
  }
}

/// Whether a text has Chinese characters and else only those that a drawing carries.
bool EsChino(const std::string& texto) {
  const auto sinograma = [](char16_t c) { return c >= 0x4E00 && c <= 0x9FFF; };
  std::u16string unidades = Utf16(texto);
  if (std::erase_if(unidades, sinograma) == 0) return false;
  std::erase_if(unidades, [](char16_t c) { return c < 0x80 && std::isalnum(c); });
  return unidades.find_first_not_of(u"º /-)(%,.:") == unidades.npos;
}

TEST(Textos, ExactlyTheNumbersOfEachLanguageFitForTheirPlace) {
  // clang-format off
  const int kTramos[][4] = {  // numbers from, to; languages from, to
      {1, 3, 0, 6}, {11, 15, 0, 6}, {17, 35, 0, 6}, {40, 47, 0, 6}, {49, 50, 0, 6}, {51, 56, 0, 0}, {57, 58, 0, 6},
      {59, 60, 0, 0}, {61, 61, 0, 6}, {63, 66, 0, 6}, {67, 68, 6, 6}, {80, 121, 0, 6}};
  // clang-format on
  for (int i = 0; i < 7 * 200; ++i) {
    const int n = i / 7, idioma = i % 7;
    const std::string texto = Busca(10000 * idioma + n), enEspanol = Busca(n);
    const bool existe = std::ranges::any_of(
        kTramos, [=](const int* t) { return n >= t[0] && n <= t[1] && idioma >= t[2] && idioma <= t[3]; });
    EXPECT_EQ(!texto.empty(), existe) << n << " of " << idioma;
    if (!existe || Busca(60000 + n).empty()) continue;
    EXPECT_EQ(Recorta(texto), texto);
    EXPECT_TRUE(idioma == 1 || enEspanol.empty() || texto.ends_with(':') == enEspanol.ends_with(':')) << texto;
    EXPECT_TRUE(idioma == 6 ? EsChino(texto) : Utf8DeCp1252(Cp1252DeUtf8(texto)) == texto) << texto;
  }
  for (const double id : {-1.0, 1.5, 70001.0, 1e300, std::nan(""), HUGE_VAL}) EXPECT_EQ(Busca(id), "") << id;
  EXPECT_TRUE(Busca(52) == "eMaS " && Busca(10049) == "ELYPTIC TRANS.");
  EXPECT_EQ(Busca(10000 + kTextoDemasiadas), "The unfolding ended early: too many entities");
}

struct Anota : Plataforma {
  void CajaMensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) override {
    hechos << "box(" << texto << "," << static_cast<int>(estilo) << "," << titulo << ") ";
  }
  void VentanaMensaje(std::string_view texto) override { hechos << "window(" << texto << ") "; }
  void PonCursorEspera(bool espera) override { hechos << (espera ? "wait " : "normal "); }
  std::ostringstream hechos;
};

TEST(Mensajes, PointerAndRoadOfEachLanguage) {
  Anota plataforma;
  estado = EstadoPrograma{};
  MuestraMensaje("nobody sees it", EstiloMensaje::informacion, "");
  estado.plataforma = &plataforma;
  estado.dIdioma = 10000;
  MuestraMensaje(Texto(1), EstiloMensaje::exclamacion, "t");
  estado.dIdioma = kChino;
  MuestraMensaje({"a\0", 2}, EstiloMensaje::informacion, "t");
  EXPECT_EQ(plataforma.hechos.str(), "normal box(Continue,48,t) wait normal window(a) wait ");
}

}  // namespace
}  // namespace duktores
