#include "formats/usebio/xml_text.h"

#include <array>
#include <utility>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

using namespace std::string_literals;

struct EncodingCase {
  const char* name;
  std::string bytes;
  std::string text;
  XmlEncoding encoding;
};

TEST(XmlText, DecodesEveryEncodingAndBack) {
  const std::string latin1 = "<?xml version='1.0' encoding='iso-8859-1'?><a>Zo";
  const std::string windows = "<?xml version='1.0' encoding='Windows-1252'?><a>";
  const std::array<EncodingCase, 10> cases{
      {{"UTF-8", "<a>Zo\u00eb \u0141</a>", "<a>Zo\u00eb \u0141</a>", XmlEncoding::Utf8},
       {"declared Latin-1", latin1 + "\xEB</a>", latin1 + "\u00eb</a>", XmlEncoding::Latin1},
       {"declared Latin-1 that could be UTF-8", latin1 + "\xC3\xAB</a>",
        latin1 + "\u00c3\u00ab</a>", XmlEncoding::Latin1},
       {"declared Latin-1 after the mark of UTF-8", "\xEF\xBB\xBF" + latin1 + "\xC3\xAB</a>",
        latin1 + "\u00eb</a>", XmlEncoding::Utf8Marked},
       {"declared Latin-1 with control characters", latin1 + "\x92\x80</a>",
        latin1 + "\u0092\u0080</a>", XmlEncoding::Latin1},
       {"declared Windows-1252", windows + "O\x92Neil \x8Aimon \x80\x81\x9F\xA0\xFF</a>",
        windows + "O\u2019Neil \u0160imon \u20ac\u0081\u0178\u00a0\u00ff</a>",
        XmlEncoding::Windows1252},
       {"an encoding that no declaration names", "<?xml <a encoding='latin1'?>\x92",
        "<?xml <a encoding='latin1'?>\u2019", XmlEncoding::Windows1252},
       {"neither declared nor UTF-8", "<a>Zo\xEB O\x92Neil</a>", "<a>Zo\u00eb O\u2019Neil</a>",
        XmlEncoding::Windows1252},
       {"UTF-16, low byte first", "\xFF\xFE<\0\xEB\0\x41\x01\x3D\xD8\x00\xDE>\0"s,
        "<\u00eb\u0141\U0001F600>", XmlEncoding::Utf16Little},
       {"UTF-16, high byte first", "\xFE\xFF\0<\0\xEB\x01\x41\xD8\x3D\xDE\x00\0>"s,
        "<\u00eb\u0141\U0001F600>", XmlEncoding::Utf16Big}}};
  for (const EncodingCase& c : cases) {
    const XmlText xml = DecodeXml(c.bytes);
    EXPECT_EQ(xml.text, c.text) << c.name;
    EXPECT_EQ(xml.encoding, c.encoding) << c.name;
    EXPECT_EQ(EncodeXml(xml), c.bytes) << c.name;
  }
}

TEST(XmlText, DecodesWithoutAMarkAndWhatIsBroken) {
  EXPECT_EQ(DecodeXml("\xEF\xBB\xBF<a>\xEB</a>").text, "<a>\u00eb</a>") << "a mark of other bytes";
  EXPECT_EQ(EncodeXml({"\u0141\u2019", XmlEncoding::Windows1252}), "?\x92");
  EXPECT_EQ(DecodeXml("<\0a\0>\0"s).text, "<a>");
  EXPECT_EQ(DecodeXml("\0<\0a\0>"s).text, "<a>");
  EXPECT_EQ(DecodeXml("\xFF\xFE<\0\x00\xDC\x3D\xD8<\0\x3D\xD8\x41"s).text, "<\uFFFD\uFFFD<\uFFFD")
      << "surrogates without their partner, and half a unit";
  EXPECT_EQ(DecodeXml("\xFF\xFE\x00\xDC\x01\xDC"s).text, "\uFFFD\uFFFD") << "two low ones";
  EXPECT_EQ(DecodeXml("\xFF\xFE"s).text, "");
  EXPECT_EQ(DecodeXml("").text, "");
}

TEST(XmlText, OnlyADocumentTypeOnAWebHostIsRewritten) {
  const std::string extended = "<!DOCTYPE USEBIO SYSTEM \"/dtd/usebio_v1_2_ext.dtd\">";
  const std::array<std::pair<std::string, std::string>, 9> cases{
      {{"<!DOCTYPE USEBIO SYSTEM \"http://dtd.example.org/usebio_v1_1.dtd\">", extended},
       {"<!DOCTYPE USEBIO SYSTEM 'HTTPS://example.org/a>b.dtd'>", extended},
       {"<!DOCTYPE USEBIO PUBLIC \"-//X\"\n \"http://example.org/u.dtd\" [<!ENTITY a \"]>\">]\n>",
        extended},
       {"<!DOCTYPE USEBIO SYSTEM \"usebio_v1_2.dtd\">", ""},
       {"<!DOCTYPE USEBIO>", ""},
       {"<!DOCTYPE OTHER SYSTEM \"http://example.org/o.dtd\">", ""},
       {"<!-- http://example.org -->", ""},
       {"<!DOCTYPE USEBIO SYSTEM \"http://example.org/no_end", ""},
       {"", ""}}};
  for (const auto& [declaration, changed] : cases) {
    std::string text = "<?xml version=\"1.0\"?>\n" + declaration + "\n<USEBIO/>";
    const std::string expected =
        changed.empty() ? text : "<?xml version=\"1.0\"?>\n" + changed + "\n<USEBIO/>";
    EXPECT_EQ(RewriteDocumentType(text), !changed.empty()) << declaration;
    EXPECT_EQ(text, expected);
  }
}

}  // namespace
}  // namespace tricklet
