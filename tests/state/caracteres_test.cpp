#include "state/caracteres.h"

#include <gtest/gtest.h>

namespace duktores {
namespace {

TEST(Caracteres, Utf8AndUtf16AreTheSameText) {
  const std::u16string unidades = u"aº\u07FF\u0800\uFFFF\U00010000\U0010FFFF";
  const std::string utf8 = "a\xC2\xBA\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
  EXPECT_EQ(Utf16(utf8), unidades);
  EXPECT_EQ(Utf8(unidades), utf8);
  EXPECT_EQ(LongitudUtf16(utf8), 9);
  EXPECT_TRUE(EsUtf8(utf8));
}

TEST(Caracteres, EachWrongByteIsReplaced) {
  for (const std::string mal :
       {"\x80", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\xFF"}) {
    EXPECT_FALSE(EsUtf8(mal));
    EXPECT_EQ(Utf16(mal), std::u16string(mal.size(), u'\uFFFD'));
    EXPECT_EQ(LongitudUtf16(mal), static_cast<int>(mal.size()));
  }
  EXPECT_EQ(Utf16("\xE2\x82z"), u"\uFFFD\uFFFDz");
  const char16_t sueltos[] = {0xD800, u'a', 0xDC00, 0xD801};
  EXPECT_EQ(Utf16(Utf8({sueltos, 4})), u"\uFFFDa\uFFFD\uFFFD");
}

TEST(Caracteres, CodePage1252) {
  int sinCaracter = 0;
  for (int i = 0; i < 256; ++i) {
    const std::string byte(1, static_cast<char>(i));
    const std::string utf8 = Utf8DeCp1252(byte);
    if (utf8 == "\uFFFD") {
      ++sinCaracter;
    } else {
      EXPECT_EQ(Cp1252DeUtf8(utf8), byte) << i;
    }
  }
  EXPECT_EQ(sinCaracter, 5);
  EXPECT_EQ(Utf8DeCp1252("\x80\xE9\x9F"), "€éŸ");
  EXPECT_EQ(Cp1252DeUtf8("90º €"), "90\xBA \x80");
  EXPECT_EQ(Cp1252DeUtf8("Ā度\u0081𝄞\xFF"), "\\U+0100\\U+5EA6\\U+0081\\U+D834\\U+DD1E\\U+FFFD");
}

TEST(Caracteres, TrimAndCapitals) {
  EXPECT_EQ(Recorta("\t a b\r\n"), "a b");
  EXPECT_EQ(Recorta(" \r\n"), "");
  EXPECT_EQ(Mayusculas("Übergang größe ñÿ÷ 度"), "ÜBERGANG GRÖßE Ñÿ÷ 度");
}

}  // namespace
}  // namespace duktores
