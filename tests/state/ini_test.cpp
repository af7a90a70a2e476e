#include "state/ini.h"

#include <gtest/gtest.h>

#include <random>

#include "state/caracteres.h"

namespace duktores {
namespace {

TEST(Ini, Values) {
  const struct {
    const char *contenido, *valor;
  } casos[] = {{"[S]\r\nK=1\r\n", "1"},
               {"[S]\nK=1", "1"},
               {"\xEF\xBB\xBF[S]\nK=1\n", "1"},
               {" [ s ] \n\t k \t=\t a b \t\n", "a b"},
               {"[s]\nK=\"  x \"\n", "  x "},
               {"[s]\nK='x'\n", "x"},
               {"[s]\nK=\"x\n", "\"x"},
               {"[s]\nK=\"\n", "\""},
               {"[s]\nK=\n", ""},
               {"[s]\nK=a=b;c\n", "a=b;c"},
               {"[s]\nK=1\nk=2\n", "1"},
               {"[s]\nX=1\n[t]\nK=3\n[S]\nK=2\n", "2"},
               {"[s]\n;K=1\n ;K=2\nK=3\n", "3"},
               {"K=1\n[t]\nK=2\n", ""},
               {"[s]\nK\n=1\nK2=1\n", ""},
               {"[s", ""},
               {"[s\nK=1\n", "1"},
               {"[]\nK=1\n", ""},
               {"[s]\nK=Espa\xF1"
                "a \x80\n",
                "España €"},
               {"[s]\nK=España €\n", "España €"}};
  for (const auto& [contenido, valor] : casos) EXPECT_EQ(ValorIni(contenido, "S", "K"), valor) << contenido;
}

TEST(Ini, LongValuesAreCutAtWholeCharacters) {
  const auto valor = [](const std::string& v) { return ValorIni("[s]\nk=" + v + "\n", "s", "k"); };
  EXPECT_EQ(valor(std::string(127, 'a')), std::string(127, 'a'));
  EXPECT_EQ(valor(std::string(5000, 'a')), std::string(127, 'a'));
  EXPECT_EQ(valor(std::string(126, 'a') + "éb"), std::string(126, 'a') + "é");
  EXPECT_EQ(valor(std::string(126, 'a') + "𝄞"), std::string(126, 'a'));
}

TEST(Ini, AnyBytes) {
  constexpr std::string_view kAlfabeto("[]=;\"'sk \r\n\t\0\xEF\xBB\xBF\xC3\x80", 18);
  for (unsigned semilla = 0; semilla < 3000; ++semilla) {
    SCOPED_TRACE(semilla);
    std::mt19937 azar(semilla);
    std::string bytes(azar() % 400, '\0');
    for (char& c : bytes) c = kAlfabeto[azar() % kAlfabeto.size()];
    const std::string valor = ValorIni(bytes, "s", "k");
    EXPECT_TRUE(EsUtf8(valor));
    EXPECT_LE(LongitudUtf16(valor), 127);
    EXPECT_EQ(ValorIni(bytes + "\n[own]\nplace=1", "own", "place"), "1");
  }
}

}  // namespace
}  // namespace duktores
