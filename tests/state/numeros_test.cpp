#include "state/numeros.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "state/estado.h"

namespace duktores {
namespace {

class Numeros : public testing::Test {
 protected:
  void SetUp() override { estado = EstadoPrograma{}; }
};

TEST_F(Numeros, AsText) {
  const struct {
    double v;
    const char* texto;
  } casos[] = {{0, "0"},
               {-0.0, "0"},
               {1, "1"},
               {-12.5, "-12.5"},
               {0.1 + 0.2, "0.3"},
               {1.0 / 3, "0.333333333333333"},
               {2.0 / 3 * 100, "66.6666666666667"},
               {1e14, "100000000000000"},
               {1e15, "1E+15"},
               {123456789012345.0, "123456789012345"},
               {1.5e-7, "1.5E-07"},
               {0.0001, "0.0001"},
               {0.00001, "1E-05"},
               {1e100, "1E+100"}};
  for (const auto& [v, texto] : casos) EXPECT_EQ(TextoDeNumero(v), texto);
  estado.bComaDecimal = true;
  EXPECT_EQ(TextoDeNumero(-1234.5), "-1234,5");
  EXPECT_EQ(TextoDeNumero(1.25e-9), "1,25E-09");
}

TEST_F(Numeros, FromTheLeft) {
  const struct {
    const char* texto;
    double v;
  } casos[] = {{"", 0},      {"  2.5 mm", 2.5}, {"1,5", 1}, {"+3", 3},   {"-.5x", -0.5}, {"7.", 7},
               {".", 0},     {"--1", 0},        {"+-1", 0}, {"- 1", 0},  {"1e3", 1000},  {"1E+2", 100},
               {"2e", 2},    {"2e-", 2},        {"inf", 0}, {"-nan", 0}, {"0x1F", 0},    {"\t12;note", 12},
               {"1e999", 0}, {"-1e999", 0},     {"1 2", 1}, {"abc1", 0}, {"1.2.3", 1.2}};
  for (const auto& [texto, v] : casos) EXPECT_EQ(NumeroIzquierda(texto), v) << texto;
}

TEST_F(Numeros, OfAField) {
  for (const char* mal :
       {"", " ", "-", ".", ",", "-.", "1-", "+1", "--1", "1.2.3", "1,2.3", "1e3", "1 2", "inf", "0x1"}) {
    EXPECT_EQ(NumeroDeCampo(mal), std::nullopt) << mal;
  }
  for (const bool coma : {false, true}) {
    estado.bComaDecimal = coma;
    EXPECT_EQ(NumeroDeCampo(" -12,75 "), -12.75);
    EXPECT_EQ(NumeroDeCampo("12.75"), 12.75);
    EXPECT_EQ(NumeroDeCampo(".5"), 0.5);
    EXPECT_EQ(NumeroDeCampo("5."), 5.0);
  }
  EXPECT_EQ(NumeroDeCampo(std::string(308, '9')), 1e308);
  EXPECT_EQ(NumeroDeCampo(std::string(400, '9')), std::nullopt);
}

TEST_F(Numeros, ThroughTextKeepsFifteenDigits) {
  std::mt19937_64 azar(7);
  for (int i = 0; i < 2000; ++i) {
    estado.bComaDecimal = i % 2 != 0;
    double v = 0;
    const std::uint64_t bits = azar();
    std::memcpy(&v, &bits, sizeof v);
    if (!std::isnormal(v) || std::abs(v) > 1e300) continue;
    const double leido = NumeroDeTexto(TextoDeNumero(v));
    ASSERT_LE(std::abs(leido - v), std::abs(v) * 5.0001e-15) << v;
    ASSERT_EQ(NumeroDeTexto(TextoDeNumero(leido)), leido) << v;
  }
}

TEST_F(Numeros, ShortIntegers) {
  EXPECT_EQ(EnteroCorto(0.5), 0);
  EXPECT_EQ(EnteroCorto(1.5), 2);
  EXPECT_EQ(EnteroCorto(-2.5), -2);
  EXPECT_EQ(EnteroCorto(32767.4), 32767);
  EXPECT_EQ(EnteroCorto(-32768.5), -32768);
  for (const double fuera : {32767.5, -32769.0, 1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(EnteroCorto(fuera), 0);
  }
}

}  // namespace
}  // namespace duktores
