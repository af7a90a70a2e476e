// Colours of the control: the values of EwRgb carry a mark above their 24 bits, so that none is a small index.

#include <algorithm>
#include <array>
#include <cstdlib>

#include "viewer/ewdraw.h"

namespace duktores {

namespace {

constexpr std::int32_t kMarcaRgb = 1 << 24;

// clang-format off
constexpr std::array<Rgb, 10> kFijos{{
    {255, 255, 255},  // 0, by block: like 7
    {255,   0,   0}, {255, 255,   0}, {  0, 255,   0}, {  0, 255, 255}, {  0,   0, 255}, {255,   0, 255},  // 1..6
    {255, 255, 255}, {128, 128, 128}, {192, 192, 192},                                                     // 7..9
}};
// clang-format on

/// 10..249: ten to a hue, 24 hues around the wheel from red; of the ten two to a brightness, first the full colour,
/// then the one half way to grey.
Rgb DeRueda(int indice) {
  constexpr std::array<int, 5> brillos{255, 165, 127, 76, 38};
  const int tono = indice / 10 - 1;
  const int alto = brillos[static_cast<std::size_t>(indice % 10 / 2)];
  const int bajo = indice % 2 == 0 ? 0 : alto / 2;
  // A channel is full up to 4 hues from its own place on the wheel and has gone at 8.
  const auto canal = [=](int lugar) {
    const int lejos = std::min(std::abs(tono - lugar), 24 - std::abs(tono - lugar));
    return static_cast<std::uint8_t>(bajo + (alto - bajo) * std::clamp(8 - lejos, 0, 4) / 4);
  };
  return {canal(0), canal(8), canal(16)};
}

}  // namespace

std::int32_t EwRgb(int r, int g, int b) {
  const auto canal = [](int c) { return std::clamp(c, 0, 255); };
  return kMarcaRgb | canal(r) << 16 | canal(g) << 8 | canal(b);
}

Rgb RgbDe(std::int32_t color) {
  if (color >= kMarcaRgb && color < 2 * kMarcaRgb) {
    return {static_cast<std::uint8_t>(color >> 16 & 255), static_cast<std::uint8_t>(color >> 8 & 255),
            static_cast<std::uint8_t>(color & 255)};
  }
  if (color < 0 || color > 255) return kFijos[7];
  if (color < 10) return kFijos[static_cast<std::size_t>(color)];
  if (color < 250) return DeRueda(color);
  const auto gris = static_cast<std::uint8_t>(51 + (color - 250) * 204 / 5);  // 250..255: dark grey to white
  return {gris, gris, gris};
}

}  // namespace duktores
