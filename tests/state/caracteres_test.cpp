#include "state/caracteres.h"

#include <gtest/gtest.h>

namespace duktores {
namespace {

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

}  // namespace
}  // namespace duktores
