#include "core/text.h"

#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(Text, SingleNumbersAreShortAndHaveNoExponent) {
  EXPECT_EQ(ShortestText(-0.1F), "-0.1");
  EXPECT_EQ(ShortestText(12.25F), "12.25");
  EXPECT_EQ(ShortestText(1e-5F), "0.00001");
  EXPECT_EQ(ShortestText(std::numeric_limits<float>::max()).size(), 39U);
}

TEST(Text, LeadingNumber) {
  constexpr std::pair<const char*, int> kCases[] = {
      {"  7th", 7}, {"-3", -3},         {"", 0},           {"4-1", 4},
      {"?", 0},     {"0001 Opener", 1}, {"+12", 12},       {"99999999999", 32767},
      {"x1", 0},    {"32767", 32767},   {"-99999", -32768}};
  for (const auto& [text, number] : kCases) EXPECT_EQ(LeadingNumber(text), number) << text;
}

TEST(Text, ShowableMakesForeignBytesFit) {
  EXPECT_EQ(Showable("caf\xc3\xa9"), "caf\u00e9");
  EXPECT_EQ(Showable("caf\xe9"), "caf\u00e9");
  EXPECT_EQ(Showable(std::string_view("a\0b\tc", 5)), "a b c");
  EXPECT_EQ(Showable("ab\xc3\xa9", 3), "ab...");  // never half a character
  EXPECT_EQ(Showable("a\x1b[m\n\xc2\x9b\u00a0\u202eb\u2066\u2028\u202f"), "a [m  \u00a0 b  \u202f");
  EXPECT_EQ(ShowableLines("a\tb\nc\r\x9b\u2069\u00e9"), "a\tb\nc   \u00e9");
  EXPECT_FALSE(IsValidUtf8("\xed\xa0\x80"));  // a surrogate
  EXPECT_FALSE(IsValidUtf8("\xc0\xaf"));      // an overlong form
  EXPECT_EQ(Utf8ToLatin1("caf\u00e9 \u00ff\u0100\u2660"), "caf\xe9 \xff??");
}

TEST(Text, WholeNumbersAreNumbersToTheirEnd) {
  EXPECT_EQ(NumberFromText("-12"), -12);
  EXPECT_EQ(NumberFromText("ff", 16), 255);
  EXPECT_EQ(NumberFromText<double>("1e3"), 1000);
  EXPECT_FALSE(NumberFromText<std::int16_t>("32768"));
  for (const char* none : {"", " 1", "1 ", "+1", "1.0", "-", "2x"}) {
    EXPECT_FALSE(NumberFromText(none)) << none;
  }
}

TEST(Text, FoldedTextsAreEqualInEveryCaseAndComposition) {
  for (const char* other :
       {"\u00dcNAL \u0394\u0416", "U\u0308nal \u0394\u0436", "\xDCnal \u03b4\u0416"}) {
    EXPECT_TRUE(EqualFolded("\u00fcnal \u03b4\u0436", other)) << other;
  }
  EXPECT_FALSE(EqualFolded("\u00fcnal", "unal"));
}

}  // namespace
}  // namespace tricklet
