// The text of an XML file, whichever way it is encoded, and its document type.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tricklet {

enum class XmlEncoding : std::uint8_t {
  Utf8,
  Utf8Marked,  ///< with a byte order mark
  Latin1,
  Windows1252,
  Utf16Little,
  Utf16Big
};

struct XmlText {
  std::string text;  ///< UTF-8, without a byte order mark
  XmlEncoding encoding = XmlEncoding::Utf8;
};

/// Decodes a whole file: by its byte order mark, else by the zero bytes of UTF-16, else by the
/// encoding of its declaration. What is declared as neither Latin-1 nor Windows-1252 and is no
/// valid UTF-8 is taken as Windows-1252. Broken UTF-16 becomes U+FFFD.
XmlText DecodeXml(std::string file);

/// The bytes of a file in the encoding that it was read in; UTF-16 with a byte order mark.
/// Characters that the encoding lacks become "?".
std::string EncodeXml(const XmlText& xml);

/// The host of the online document type. It is empty, so the declaration names the path alone.
/// Nothing is ever fetched from it.
inline constexpr std::string_view kDtdHost;
inline constexpr std::string_view kDtdPath = "/dtd/usebio_v1_2_ext.dtd";

/// Replaces the declaration "<!DOCTYPE USEBIO ...>", its internal subset with it, by one that names
/// the extended document type, when it names one on a web host. True when it was replaced.
bool RewriteDocumentType(std::string& text);

}  // namespace tricklet
