#include "formats/usebio/xml_text.h"

#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

using namespace std::string_literals;

TEST(XmlText, DecodesEveryEncodingAndBack) {
  const std::string latin1 = "<?xml version='1.0' encoding='iso-8859-1'?><a>Zo";
  const std::string windows = "<?xml version='1.0' encoding='Windows-1252'?><a>";
  const std::string none = "<?xml <a encoding='latin1'?>";  // not in the declaration
  const std::tuple<std::string, std::string, XmlEncoding> kCases[] = {
      {"<a>Zo\u00eb \u0141", "<a>Zo\u00eb \u0141", XmlEncoding::Utf8},
      {latin1 + "\xEB", latin1 + "\u00eb", XmlEncoding::Latin1},
      {latin1 + "\xC3\xAB", latin1 + "\u00c3\u00ab", XmlEncoding::Latin1},
      {"\xEF\xBB\xBF" + latin1 + "\xC3\xAB", latin1 + "\u00eb", XmlEncoding::Utf8Marked},
      {latin1 + "\x92\x80", latin1 + "\u0092\u0080", XmlEncoding::Latin1},
      {windows + "O\x92N \x8A \x80\x81\x9F\xA0\xFF",
       windows + "O\u2019N \u0160 \u20ac\u0081\u0178\u00a0\u00ff", XmlEncoding::Windows1252},
      {none + "\x92", none + "\u2019", XmlEncoding::Windows1252},
      {"<a>\xEB O\x92Neil", "<a>\u00eb O\u2019Neil", XmlEncoding::Windows1252},
      {"\xFF\xFE<\0\xEB\0\x41\x01\x3D\xD8\x00\xDE>\0"s, "<\u00eb\u0141\U0001F600>",
       XmlEncoding::Utf16Little},
      {"\xFE\xFF\0<\0\xEB\x01\x41\xD8\x3D\xDE\x00\0>"s, "<\u00eb\u0141\U0001F600>",
       XmlEncoding::Utf16Big}};
  for (const auto& [bytes, text, encoding] : kCases) {
    const XmlText xml = DecodeXml(bytes);
    EXPECT_EQ(xml.text, text);
    EXPECT_EQ(xml.encoding, encoding) << text;
    EXPECT_EQ(EncodeXml(xml), bytes) << text;
  }
}

TEST(XmlText, DecodesWithoutAMarkAndWhatIsBroken) {
  EXPECT_EQ(DecodeXml("\xEF\xBB\xBF<a>\xEB</a>").text, "<a>\u00eb</a>") << "marked, yet no UTF-8";
  const XmlText twice = DecodeXml("\xEF\xBB\xBF\xEF\xBB\xBF\0<\xEB"s);
  EXPECT_EQ(DecodeXml(EncodeXml(twice)).text, twice.text) << "marked twice, yet no UTF-8";
  EXPECT_EQ(EncodeXml({"\u0141\u2019", XmlEncoding::Windows1252}), "?\x92");
  EXPECT_EQ(DecodeXml("<\0a\0>\0"s).text, "<a>");
  EXPECT_EQ(DecodeXml("\0<\0a\0>"s).text, "<a>");
  EXPECT_EQ(DecodeXml("\xFF\xFE<\0\x00\xDC\x3D\xD8<\0\x3D\xD8\x41"s).text, "<\uFFFD\uFFFD<\uFFFD")
      << "surrogates without their partner, and half a unit";
  EXPECT_EQ(DecodeXml("\xFF\xFE\x00\xDC\x01\xDC"s).text, "\uFFFD\uFFFD") << "two low surrogates";
  EXPECT_EQ(DecodeXml("\xFF\xFE"s).text, "");
  EXPECT_EQ(DecodeXml("").text, "");
}

TEST(XmlText, OnlyADocumentTypeOnAWebHostIsRewritten) {
  const std::string extended = "<!DOCTYPE USEBIO SYSTEM \"/dtd/usebio_v1_2_ext.dtd\">";
  const std::pair<std::string, bool> kCases[] = {
      {"<!DOCTYPE USEBIO SYSTEM \"http://dtd.example.org/usebio_v1_1.dtd\">", true},
      {"<!DOCTYPE USEBIO SYSTEM 'HTTPS://example.org/a>b.dtd'>", true},
      {"<!DOCTYPE USEBIO PUBLIC \"-//X\"\n \"http://example.org/u\" [<!ENTITY a \"]>\">]\n>", true},
      {"<!DOCTYPE USEBIO SYSTEM \"usebio_v1_2.dtd\">", false},
      {"<!DOCTYPE USEBIO>", false},
      {"<!DOCTYPE OTHER SYSTEM \"http://example.org/o.dtd\">", false},
      {"<!-- http://example.org -->", false},
      {"<!DOCTYPE USEBIO SYSTEM \"http://example.org/no_end", false}};
  for (const auto& [declaration, changes] : kCases) {
    std::string text = "<?xml version=\"1.0\"?>\n" + declaration + "\n<USEBIO/>";
    EXPECT_EQ(RewriteDocumentType(text), changes) << declaration;
    EXPECT_EQ(text,
              "<?xml version=\"1.0\"?>\n" + (changes ? extended : declaration) + "\n<USEBIO/>");
  }
}

}  // namespace
}  // namespace tricklet
