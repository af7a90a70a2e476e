#include "cut/letras.h"

#include <algorithm>

namespace duktores {

namespace {

struct Letra {
  char letra;
  std::string_view trazos;  // two digits a point, x and y; blanks between lines
};
// clang-format off
constexpr Letra kLetras[]{
    {'A', "002640 1232"},               {'B', "00063645443303 3342413000"},
    {'C', "4536160501103041"},          {'D', "00062644422000"},
    {'E', "46060040 0333"},             {'F', "460600 0333"},
    {'G', "45361605011030414323"},      {'H', "0006 4046 0343"},
    {'I', "1030 2026 1636"},            {'J', "4641301001"},
    {'K', "0006 460340"},               {'L', "060040"},
    {'M', "0006234640"},                {'N', "00064046"},
    {'O', "100105163645413010"},        {'P', "00063645443303"},
    {'Q', "100105163645413010 2240"},   {'R', "00063645443303 2340"},
    {'S', "453616050413334241301001"},  {'T', "0646 2026"},
    {'U', "060110304146"},              {'V', "062046"},
    {'W', "0610233046"},                {'X', "0046 0640"},
    {'Y', "062346 2320"},               {'Z', "06460040"},
    {'0', "100105163645413010 1135"},   {'1', "152620 1030"},
    {'2', "05163645440040"},            {'3', "0516364544334241301001 1333"},
    {'4', "30360242"},                  {'5', "460603334241301001"},
    {'6', "4536160501103041423303"},    {'7', "064610"},
    {'8', "13040516364544331302011030414233"},
    {'9', "0110304145361605041343"},
    {'_', "0040"},                      {'-', "1333"},
    {'.', "2021"},
};
// clang-format on

}  // namespace

std::vector<std::vector<Punto2>> TrazosLetra(char letra) {
  const char capital = letra >= 'a' && letra <= 'z' ? static_cast<char>(letra - 'a' + 'A') : letra;
  const Letra* una = std::ranges::find(kLetras, capital, &Letra::letra);
  std::vector<std::vector<Punto2>> trazos;
  if (una == std::end(kLetras)) return trazos;
  trazos.emplace_back();
  for (std::size_t i = 0; i < una->trazos.size(); ++i) {
    if (una->trazos[i] == ' ') {
      trazos.emplace_back();
    } else {
      const double x = una->trazos[i] - '0', y = una->trazos[++i] - '0';
      trazos.back().push_back({x, y});
    }
  }
  return trazos;
}

}  // namespace duktores
