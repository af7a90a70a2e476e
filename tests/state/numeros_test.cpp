#include "state/numeros.h"

#include <gtest/gtest.h>

#include <cmath>

#include "state/estado.h"

namespace duktores {
namespace {

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
