// Importing a USEBIO file into the current library: its boards, and its results as "LIN.txt".
#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

#include "formats/sink/board_sink.h"
#include "formats/usebio/xml_text.h"
#include "library/session.h"

namespace tricklet {

/// Largest XML file that is read: a session of 30 boards at 15 tables takes some 1 MiB, and the
/// document in memory may take twenty times its file.
inline constexpr std::size_t kMaxXmlBytes = std::size_t{64} * 1024 * 1024;

/// False, with a message, when the file holds no LIN data.
bool CheckXMLfile(Host& host, const std::filesystem::path& path, const XmlText& xml);

/// Reads `bytes`, the file `path`, into the current library. Everything is read before anything is
/// stored; then the boards go to `sink`, and when one was stored "LIN.txt" is replaced, by the
/// results of the boards that were stored when the storing has ended early. A file whose document
/// type lies on a web host is then left in the library as "QENXML.xml", with the extended document
/// type. Messages say what went wrong; nothing is thrown.
ReadResult ReadXML(Session& session, const std::filesystem::path& path, std::string bytes,
                   BoardSink& sink);

}  // namespace tricklet
