#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <sstream>
#include <stdexcept>

#include "piece/numeros_texto.h"
#include "state/caracteres.h"
#include "state/error_corrida.h"
#include "state/estado.h"
#include "state/numeros.h"
#include "state/textos.h"

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
      {59, 60, 0, 0}, {61, 61, 0, 6}, {63, 66, 0, 6}, {67, 68, 6, 6}, {80, 121, 0, 6}, {130, 148, 0, 6}, {150, 164, 0, 6},
      {170, 182, 0, 6}, {200, 207, 0, 6}, {220, 237, 0, 6}, {240, 268, 0, 6}, {270, 310, 0, 6}, {320, 334, 0, 6},
      {370, 373, 0, 6}, {380, 409, 0, 6}, {420, 431, 0, 6}};
  // clang-format on
  for (int i = 0; i < 7 * 500; ++i) {
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
  EXPECT_EQ(Busca(10000 + texto::kDemasiadas), "The unfolding ended early: too many entities");
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

TEST(Caracteres, Utf8AndUtf16AreTheSameText) {
  const std::u16string unidades = u"aº\u07FF\u0800\uFFFF\U00010000\U0010FFFF";
  const std::string utf8 = "a\xC2\xBA\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
  EXPECT_TRUE(Utf16(utf8) == unidades && Utf8(unidades) == utf8);
  EXPECT_TRUE(LongitudUtf16(utf8) == 9 && EsUtf8(utf8));
  for (const std::string mal :
       {"\x80", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\xFF"}) {
    EXPECT_EQ(Utf16(mal + "z"), std::u16string(mal.size(), u'\uFFFD') + u"z");
    EXPECT_TRUE(!EsUtf8(mal) && LongitudUtf16(mal) == static_cast<int>(mal.size()));
  }
  const char16_t sueltos[] = {0xD800, u'a', 0xDC00, 0xD801};
  EXPECT_EQ(Utf16(Utf8({sueltos, 4})), u"\uFFFDa\uFFFD\uFFFD");
}

TEST(Caracteres, CodePageTrimAndCapitals) {
  int sinCaracter = 0;
  for (int i = 0; i < 256; ++i) {
    const std::string byte(1, static_cast<char>(i));
    sinCaracter += Cp1252DeUtf8(Utf8DeCp1252(byte)) == byte ? 0 : 1;
  }
  EXPECT_EQ(sinCaracter, 5);
  EXPECT_EQ(Utf8DeCp1252("\x80\xE9\x9F\x81"), "€éŸ\uFFFD");
  EXPECT_EQ(Cp1252DeUtf8("Ā度\u0081𝄞\xFF€"), "\\U+0100\\U+5EA6\\U+0081\\U+D834\\U+DD1E\\U+FFFD\x80");
  EXPECT_TRUE(Recorta("\t a b\r\n") == "a b" && Recorta(" \r\n").empty());
  EXPECT_EQ(Mayusculas("Übergang größe ñÿ÷ 度"), "ÜBERGANG GRÖßE Ñÿ÷ 度");
}

// clang-format off
TEST(Numeros, AsText) {
  estado = EstadoPrograma{};
  const std::pair<double, const char*> casos[] = {
      {0, "0"}, {-0.0, "0"}, {1, "1"}, {-12.5, "-12.5"}, {0.1 + 0.2, "0.3"}, {1.0 / 3, "0.333333333333333"},
      {2.0 / 3 * 100, "66.6666666666667"}, {123456789012345.0, "123456789012345"}, {1e14, "100000000000000"},
      {1e15, "1E+15"}, {1.5e-7, "1.5E-07"}, {0.0001, "0.0001"}, {0.00001, "1E-05"}, {1e100, "1E+100"}};
  for (const auto& [v, texto] : casos) EXPECT_EQ(TextoDeNumero(v), texto);
  estado.bComaDecimal = true;
  EXPECT_EQ(TextoDeNumero(1.25e-9), "1,25E-09");
  for (const auto& [v, texto] : casos) EXPECT_NEAR(NumeroDeTexto(TextoDeNumero(v)), v, std::abs(v) * 5e-15);
  for (const auto& [v, texto] : casos) EXPECT_NEAR(NumeroDeTexto(texto), v, std::abs(v) * 5e-15) << "under either mark";
}

TEST(Numeros, FromTheLeft) {
  const std::pair<const char*, double> casos[] = {
      {"", 0}, {"  2.5 mm", 2.5}, {"1,5", 1}, {"+3", 3}, {"-.5x", -0.5}, {"7.", 7}, {".", 0}, {"--1", 0}, {"+-1", 0},
      {"- 1", 0}, {"1e3", 1000}, {"1E+2", 100}, {"2e", 2}, {"2e-", 2}, {"inf", 0}, {"-nan", 0}, {"0x1F", 0},
      {"\t12;note", 12}, {"1e999", 0}, {"-1e999", 0}, {"1 2", 1}, {"abc1", 0}, {"1.2.3", 1.2}};
  for (const auto& [texto, v] : casos) EXPECT_EQ(NumeroIzquierda(texto), v) << texto;
}

TEST(Numeros, OfAField) {
  const std::pair<std::string, std::optional<double>> casos[] = {
      {" -12,75 ", -12.75}, {"12.75", 12.75}, {".5", 0.5}, {"5.", 5}, {std::string(308, '9'), 1e308},
      {"", {}}, {" ", {}}, {"-", {}}, {".", {}}, {",", {}}, {"-.", {}}, {"1-", {}}, {"+1", {}}, {"--1", {}},
      {"1.2.3", {}}, {"1,2.3", {}}, {"1e3", {}}, {"1 2", {}}, {"inf", {}}, {"0x1", {}}, {std::string(400, '9'), {}}};
  for (const auto& [texto, v] : casos) EXPECT_EQ(NumeroDeCampo(texto), v) << texto;
}
// clang-format on

TEST(Numeros, ShortIntegers) {
  const std::pair<double, int> casos[] = {{0.5, 0},     {1.5, 2},      {-2.5, -2}, {32767.4, 32767}, {-32768.5, -32768},
                                          {32767.5, 0}, {-32769.0, 0}, {1e300, 0}, {NAN, 0},         {HUGE_VAL, 0}};
  for (const auto& [v, entero] : casos) EXPECT_EQ(EnteroCorto(v), entero) << v;
}

}  // namespace
}  // namespace duktores
