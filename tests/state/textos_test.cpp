#include "state/textos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <stdexcept>

#include "state/caracteres.h"
#include "state/error_corrida.h"
#include "state/estado.h"

namespace duktores {
namespace {

// From the first to the last number of each stretch.
constexpr int kEnTodas[][2] = {{1, 3}, {11, 15}, {17, 35}, {40, 47}, {49, 50}, {57, 58}, {61, 61}, {63, 66}, {80, 102}};
constexpr int kCortos[][2] = {{51, 56}, {59, 60}};
constexpr int kChinos[][2] = {{67, 68}};

template <class Tramos>
bool Esta(const Tramos& tramos, int n) {
  return std::ranges::any_of(tramos, [n](const auto& tramo) { return n >= tramo[0] && n <= tramo[1]; });
}

bool Existe(double id) {
  try {
    return !TextoIdioma(id).empty();
  } catch (const std::out_of_range&) {
    return false;
  }
}

TEST(Textos, ExactlyTheNumbersOfEachLanguage) {
  for (int base = 0; base <= 60000; base += 10000) {
    for (int n = 0; n < 200; ++n) {
      const bool soloAqui = (base == 0 && Esta(kCortos, n)) || (base == 60000 && Esta(kChinos, n));
      EXPECT_EQ(Existe(base + n), Esta(kEnTodas, n) || soloAqui) << base + n;
    }
  }
  for (const double id : {-1.0, 1.5, 70001.0, 1e300, -1e300, std::nan(""), HUGE_VAL}) EXPECT_FALSE(Existe(id)) << id;
}

TEST(Textos, FitTheirPlace) {
  for (int n = 0; n < 200; ++n) {
    if (!Esta(kEnTodas, n)) continue;
    const bool dosPuntos = TextoIdioma(n).ends_with(':');
    for (int base = 0; base <= 60000; base += 10000) {
      const std::string texto = TextoIdioma(base + n);
      EXPECT_EQ(Recorta(texto), texto) << base + n;
      EXPECT_TRUE(base == 10000 || texto.ends_with(':') == dosPuntos) << base + n;
      EXPECT_TRUE(base == 60000 || Utf8DeCp1252(Cp1252DeUtf8(texto)) == texto) << base + n;
    }
  }
  EXPECT_EQ(TextoIdioma(15), "Introduzca todos los datos");
  EXPECT_EQ(TextoIdioma(10049), "ELYPTIC TRANS.");
  EXPECT_EQ(TextoIdioma(52), "eMaS ");
  EXPECT_EQ(TextoIdioma(10000 + kTextoDemasiadas), "The unfolding ended early: too many entities");
}

TEST(Textos, ChineseKeepsToWhatADrawingCarries) {
  constexpr std::u16string_view kSignos = u"º /-)(%,.:";
  for (int n = 0; n < 200; ++n) {
    if (!Existe(60000 + n)) continue;
    bool haySinograma = false;
    for (const char16_t c : Utf16(TextoIdioma(60000 + n))) {
      const bool sinograma = c >= 0x4E00 && c <= 0x9FFF;
      const bool asciiLetra = c < 0x80 && std::isalnum(static_cast<int>(c)) != 0;
      haySinograma |= sinograma;
      EXPECT_TRUE(sinograma || asciiLetra || kSignos.find(c) != kSignos.npos) << n;
    }
    EXPECT_TRUE(haySinograma) << n;
  }
}

class Anota : public Plataforma {
 public:
  std::string hechos;

 private:
  void CajaMensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) override {
    hechos +=
        "box(" + std::string(texto) + "," + std::to_string(static_cast<int>(estilo)) + "," + std::string(titulo) + ") ";
  }
  void VentanaMensaje(std::string_view texto) override { hechos += "window(" + std::string(texto) + ") "; }
  void PonCursorEspera(bool espera) override { hechos += espera ? "wait " : "normal "; }
};

TEST(Mensajes, PointerAndRoadOfEachLanguage) {
  const std::string conNul("a\0", 2);
  estado = EstadoPrograma{};
  MuestraMensaje("a", EstiloMensaje::informacion, "");

  Anota plataforma;
  estado.plataforma = &plataforma;
  estado.dIdioma = 10000;
  MuestraMensaje(Texto(1), EstiloMensaje::exclamacion, "t");
  EXPECT_EQ(plataforma.hechos, "normal box(Continue,48,t) wait ");

  plataforma.hechos.clear();
  estado.dIdioma = kChino;
  MuestraMensaje(conNul, EstiloMensaje::informacion, "t");
  EXPECT_EQ(plataforma.hechos, "normal window(a) wait ");
  estado = EstadoPrograma{};
}

}  // namespace
}  // namespace duktores
