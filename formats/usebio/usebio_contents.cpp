#include "formats/usebio/usebio_contents.h"

#include <exception>
#include <utility>

#include <pugixml.hpp>

#include "core/fault.h"
#include "core/text.h"
#include "formats/usebio/usebio_document.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/usebio_text.h"
#include "formats/usebio/xml_text.h"

namespace tricklet {
namespace {

const char* NameOf(XmlEncoding encoding) {
  switch (encoding) {
    case XmlEncoding::Latin1:
      return "Latin-1";
    case XmlEncoding::Windows1252:
      return "Windows-1252";
    case XmlEncoding::Utf16Little:
    case XmlEncoding::Utf16Big:
      return "UTF-16";
    default:
      return "UTF-8";
  }
}

/// "USEBIO 1.2".
std::string FormatOf(const pugi::xml_document& document) {
  constexpr std::size_t kLongest = 20;
  const pugi::xml_node root = document.child("USEBIO");
  const std::string version = Showable(Trim(root.attribute("Version").value()), kLongest);
  return version.empty() ? "USEBIO" : "USEBIO " + version;
}

void Read(std::string bytes, FileContents& contents) {
  if (bytes.size() > kMaxXmlBytes) throw UsebioRefusal{kXmlLoadFailed};
  const XmlText xml = DecodeXml(std::move(bytes));
  contents.encoding = NameOf(xml.encoding);
  std::string parsed = xml.text;
  pugi::xml_document document;
  if (!LoadUsebio(parsed, document)) throw UsebioRefusal{kXmlLoadFailed};
  UsebioDocument results(document, xml.text);
  contents.format = FormatOf(document);
  results.Read(contents);
}

}  // namespace

FileContents ReadUsebioContents(std::string bytes) {
  FileContents contents;
  contents.format = "USEBIO";
  std::string reason;
  try {
    Read(std::move(bytes), contents);
    return contents;
  } catch (const UsebioRefusal& refusal) {
    reason = refusal.message;
  } catch (const std::exception& failure) {
    reason = FaultFrom(failure).Description();
  }
  contents.sections.clear();
  contents.unread = {{0, "", "", reason}};
  return contents;
}

}  // namespace tricklet
