// The text of LIN hand records: percent escapes, and the bars between tags and values.
//
// A record is a row of pairs "tag|value|": "md|3S..,S..,S..,|", "mb|1N|", "pg||". Tags are two
// lower-case letters; a scorer's own tags in "LIN.txt" are "qen" and one or two more. Text is kept
// as the bytes that it came in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tricklet {

/// Decodes one record: puts the character itself in the place of each percent escape ("%2C" becomes
/// ","; "%25" becomes "%" and is not decoded again), and cuts each of the first four names of its
/// first "pn" field off at its "#": "pn|Ann#12,Bob#7,Cy,Di#3|" becomes "pn|Ann,Bob,Cy,Di|". A field
/// without an end reaches to the end of the text. Throws `Fault` FaultNumber::TypeMismatch for a
/// "%" without two hexadecimal digits after it. `room`: bytes that can be appended to the result
/// without moving it.
std::string ReadLinData(std::string_view text, std::size_t room = 0);

/// Stands where the "%" of a broken escape was: the control character SUB, which ASCII (RFC 20) has
/// for a character that is not valid.
inline constexpr char kBrokenEscape = '\x1A';

/// Decodes the text of several records in the same way, with the names of each of its "pn" fields.
/// A broken escape throws nothing and becomes `kBrokenEscape`, so that its record can be
/// recognised.
std::string DecodeLinRecords(std::string_view text);

/// One pair of a record.
struct LinField {
  std::string_view tag;
  std::string_view value;  ///< as it stands, without blanks and line ends at both ends
};

/// Takes the next pair from the front of `rest`; false when there is none. Blanks, line ends and
/// further bars before a tag do not matter, and what stands in the place of a tag but is none is
/// skipped with its bar. A value without its bar reaches to the end.
bool NextLinField(std::string_view& rest, LinField& field);

}  // namespace tricklet
