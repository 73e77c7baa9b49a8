// Reading a USEBIO file for a library: its boards, and its results for "LIN.txt".
#pragma once

#include <string_view>

#include "core/fault.h"
#include "core/host.h"
#include "formats/exchange/reading.h"

namespace tricklet {

/// The XML text (UTF-8) holds LIN data.
bool CheckXMLfile(std::string_view text);

/// Tells of an unexpected failure of the import of an XML file.
void TellXmlFailure(Host& host, const Fault& fault);

/// Reads a whole results file. Everything is read before the first board goes to `sink`; what
/// cannot be read is said in the result's messages, and a file that cannot be read at all stores
/// nothing. When the document type lies on a web host, `reading.extended` becomes the file with the
/// extended document type in its place. Throws nothing but what `sink` throws.
void ReadXML(RecordSource& source, BoardSink& sink, Reading& reading);

}  // namespace tricklet
