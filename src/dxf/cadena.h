#pragma once
// cAddString: a growing text buffer with cheap appends. It is UTF-8; its capacity is counted at two bytes for each of
// its own and has an upper bound that doubles when an append would reach it.

#include <cstdint>
#include <string>
#include <string_view>

namespace duktores {

class cAddString {
 public:
  std::int32_t MaxBytes() const { return iMaxBytes_; }
  /// Capacity in characters of two bytes. What was held becomes as many NULs. Nothing happens for v <= 0.
  void MaxBytes(std::int32_t v);

  bool BeginAdd();                           ///< empties the buffer and keeps its capacity; true
  std::int32_t Length() const;               ///< characters held, in UTF-16 units
  bool AddString(std::string_view sString);  ///< sString must not lie in the buffer itself
  bool Add2Strings(std::string_view sString1, std::string_view sString2);
  const std::string& CurString() const { return texto_; }
  std::string EndAdd();  ///< the text; the buffer is then empty

 private:
  std::int32_t iMaxBytes_ = 128000;
  std::int64_t iLimite_ = 2 * 128000 - 1;  // highest index of a byte
  std::string texto_;
};

}  // namespace duktores
