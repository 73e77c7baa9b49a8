#include "formats/usebio/xml_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";

// Unicode standard, section 3.9: surrogate pairs.
constexpr char32_t kHighSurrogates = 0xD800;
constexpr char32_t kLowSurrogates = 0xDC00;
constexpr char32_t kSurrogatesEnd = 0xE000;
constexpr char32_t kFirstPair = 0x10000;
constexpr char32_t kReplacement = 0xFFFD;

bool IsLow(char32_t unit) {
  return unit >= kLowSurrogates && unit < kSurrogatesEnd;
}

char32_t UnitAt(std::string_view bytes, std::size_t at, bool big) {
  const auto first = static_cast<unsigned char>(bytes[at]);
  const auto second = static_cast<unsigned char>(bytes[at + 1]);
  return big ? (static_cast<char32_t>(first) << 8U) | second
             : (static_cast<char32_t>(second) << 8U) | first;
}

void AppendUtf8(std::string& text, char32_t code) {
  const auto trail = [code](unsigned shift) {
    return static_cast<char>(0x80U | ((code >> shift) & 0x3FU));
  };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += {static_cast<char>(0xC0U | (code >> 6U)), trail(0)};
  } else if (code < kFirstPair) {
    text += {static_cast<char>(0xE0U | (code >> 12U)), trail(6), trail(0)};
  } else {
    text += {static_cast<char>(0xF0U | (code >> 18U)), trail(12), trail(6), trail(0)};
  }
}

std::string Utf16ToUtf8(std::string_view bytes, bool big) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t code = UnitAt(bytes, at, big);
    if (code >= kHighSurrogates && code < kSurrogatesEnd) {
      const char32_t low = at + 3 < bytes.size() ? UnitAt(bytes, at + 2, big) : 0;
      if (IsLow(code) || !IsLow(low)) {
        code = kReplacement;
      } else {
        code = kFirstPair + ((code - kHighSurrogates) << 10U) + (low - kLowSurrogates);
        at += 2;
      }
    }
    AppendUtf8(text, code);
  }
  return text;
}

/// The code point at the front of valid UTF-8, which is taken from it.
char32_t TakeCode(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  constexpr std::array<unsigned, 5> kLeadBits{0, 0x7F, 0x1F, 0x0F, 0x07};
  char32_t code = lead & kLeadBits.at(length);
  for (std::size_t i = 1; i < length; ++i) {
    code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  text.remove_prefix(length);
  return code;
}

std::string Utf8ToUtf16(std::string_view text, bool big) {
  std::string bytes(big ? kBigMark : kLittleMark);
  bytes.reserve(2 * text.size() + 2);
  const auto append = [&bytes, big](char32_t unit) {
    const auto high = static_cast<char>(unit >> 8U);
    const auto low = static_cast<char>(unit & 0xFFU);
    bytes += big ? high : low;
    bytes += big ? low : high;
  };
  while (!text.empty()) {
    const char32_t code = TakeCode(text);
    if (code < kFirstPair) {
      append(code);
    } else {
      append(kHighSurrogates + ((code - kFirstPair) >> 10U));
      append(kLowSurrogates + ((code - kFirstPair) & 0x3FFU));
    }
  }
  return bytes;
}

/// What the bytes 0x80 to 0x9F are in Windows-1252, by the index of the WHATWG Encoding Standard,
/// which is Unicode's mapping with the five unused bytes standing for their control characters. The
/// other bytes are Latin-1.
constexpr std::size_t kFirstOwn = 0x80;
constexpr std::array<char32_t, 32> kWindows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string Windows1252ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool own = byte >= kFirstOwn && byte < kFirstOwn + kWindows1252.size();
    AppendUtf8(text, own ? kWindows1252.at(byte - kFirstOwn) : byte);
  }
  return text;
}

std::string Utf8ToWindows1252(std::string_view text) {
  constexpr char32_t kLatin1 = 0xA0;
  constexpr char32_t kLatin1End = 0x100;
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const char32_t code = TakeCode(text);
    if (code < kFirstOwn || (code >= kLatin1 && code < kLatin1End)) {
      bytes += static_cast<char>(code);
      continue;
    }
    const auto* const own = std::find(kWindows1252.begin(), kWindows1252.end(), code);
    if (own != kWindows1252.end()) {
      bytes += static_cast<char>(kFirstOwn + static_cast<std::size_t>(own - kWindows1252.begin()));
    } else {
      bytes += '?';
    }
  }
  return bytes;
}

/// The single-byte encoding that the declaration at the front of the file names.
std::optional<XmlEncoding> DeclaredEncoding(std::string_view bytes) {
  if (!bytes.starts_with("<?xml")) return std::nullopt;
  const std::string declaration = ToUpper(bytes.substr(0, bytes.find_first_of("<>", 1)));
  constexpr std::string_view kAttribute = "ENCODING";
  const auto attribute = declaration.find(kAttribute);
  if (attribute == std::string::npos) return std::nullopt;
  const std::string_view value = std::string_view(declaration).substr(attribute);
  constexpr std::array<std::pair<std::string_view, XmlEncoding>, 6> kNames{{
      {"ISO-8859-1\"", XmlEncoding::Latin1},
      {"ISO-8859-1'", XmlEncoding::Latin1},
      {"LATIN1", XmlEncoding::Latin1},
      {"LATIN-1", XmlEncoding::Latin1},
      {"WINDOWS-1252", XmlEncoding::Windows1252},
      {"CP1252", XmlEncoding::Windows1252},
  }};
  for (const auto& [name, encoding] : kNames) {
    if (value.find(name) != std::string_view::npos) return encoding;
  }
  return std::nullopt;
}

/// The position after the ">" that ends the declaration at `begin`. One in quotes or in the
/// internal subset does not end it.
std::optional<std::size_t> EndOfDeclaration(std::string_view text, std::size_t begin) {
  char quote = '\0';
  bool subset = false;
  for (std::size_t at = begin; at < text.size(); ++at) {
    const char c = text[at];
    if (quote != '\0') {
      if (c == quote) quote = '\0';
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '[' || c == ']') {
      subset = c == '[';
    } else if (c == '>' && !subset) {
      return at + 1;
    }
  }
  return std::nullopt;
}

}  // namespace

XmlText DecodeXml(std::string file) {
  const bool marked8 = file.starts_with(kUtf8Mark);
  if (marked8) file.erase(0, kUtf8Mark.size());
  const std::string_view bytes = file;
  using namespace std::string_view_literals;
  for (const bool big : {false, true}) {
    const bool marked = bytes.starts_with(big ? kBigMark : kLittleMark);
    if (!marked && !bytes.starts_with(big ? "\0<"sv : "<\0"sv)) continue;
    return {Utf16ToUtf8(bytes.substr(marked ? kLittleMark.size() : 0), big),
            big ? XmlEncoding::Utf16Big : XmlEncoding::Utf16Little};
  }
  const bool utf8 = IsValidUtf8(bytes);
  if (marked8 && utf8) return {std::move(file), XmlEncoding::Utf8Marked};
  const auto declared = DeclaredEncoding(bytes);
  if (!declared && utf8) return {std::move(file), XmlEncoding::Utf8};
  const bool latin1 = declared == XmlEncoding::Latin1;
  std::string text = latin1 ? Latin1ToUtf8(bytes) : Windows1252ToUtf8(bytes);
  // What follows the mark may look like another one, so it is written back with its mark.
  if (marked8) return {std::move(text), XmlEncoding::Utf8Marked};
  return {std::move(text), latin1 ? XmlEncoding::Latin1 : XmlEncoding::Windows1252};
}

std::string EncodeXml(const XmlText& xml) {
  switch (xml.encoding) {
    case XmlEncoding::Utf8Marked:
      return std::string(kUtf8Mark) + xml.text;
    case XmlEncoding::Latin1:
      return Utf8ToLatin1(xml.text);
    case XmlEncoding::Windows1252:
      return Utf8ToWindows1252(xml.text);
    case XmlEncoding::Utf16Little:
    case XmlEncoding::Utf16Big:
      return Utf8ToUtf16(xml.text, xml.encoding == XmlEncoding::Utf16Big);
    default:
      return xml.text;
  }
}

bool RewriteDocumentType(std::string& text) {
  // A document type stands before the outermost element.
  const auto begin =
      std::string_view(text).substr(0, text.find("<USEBIO")).find("<!DOCTYPE USEBIO");
  if (begin == std::string::npos) return false;
  const auto end = EndOfDeclaration(text, begin);
  if (!end) return false;
  const std::string declaration = ToUpper(std::string_view(text).substr(begin, *end - begin));
  if (declaration.find("HTTP://") == std::string::npos &&
      declaration.find("HTTPS://") == std::string::npos) {
    return false;
  }
  const std::string changed =
      "<!DOCTYPE USEBIO SYSTEM \"" + std::string(kDtdHost) + std::string(kDtdPath) + "\">";
  text.replace(begin, *end - begin, changed);
  return true;
}

}  // namespace tricklet
