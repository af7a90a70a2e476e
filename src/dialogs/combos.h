#pragma once
// What the combo boxes of the dialogs offer.

#include <array>
#include <string_view>

namespace duktores {

inline constexpr std::array<std::string_view, 10> kDivisiones{"12", "24", "36", "48",  "60",
                                                              "72", "84", "96", "108", "120"};
inline constexpr std::array<std::string_view, 4> kPosiciones{"1", "2", "3", "4"};

}  // namespace duktores
