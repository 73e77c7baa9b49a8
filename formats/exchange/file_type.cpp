#include "formats/exchange/file_type.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "formats/lin/lin_reader.h"

namespace tricklet {
namespace {

/// `text`, which is in upper case, has `word` at the beginning of a line.
bool BeginsALine(std::string_view text, std::string_view word) {
  for (auto at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
    const std::string_view before = text.substr(0, at);
    const auto last = before.find_last_not_of(" \t");
    if (last == std::string_view::npos || before[last] == '\n' || before[last] == '\r') return true;
  }
  return false;
}

/// What the content looks like; empty when it looks like nothing that can be imported.
std::string TypeByContent(std::string_view bytes) {
  constexpr std::size_t kEnough = std::size_t{64} * 1024;
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  const std::string begin = ToUpper(TrimLines(bytes.substr(0, kEnough)));
  constexpr std::array<std::string_view, 2> kUtf16{"\xFF\xFE", "\xFE\xFF"};
  const bool wide = begin.starts_with(kUtf16[0]) || begin.starts_with(kUtf16[1]);
  if (wide || begin.starts_with("<?XML") || begin.starts_with("<USEBIO")) return "xml";
  if (BeginsALine(begin, "[DOCUMENT]")) return "dlm";
  for (const std::string_view tag : {"[DEAL ", "[BOARD ", "[EVENT ", "% PBN"}) {
    if (BeginsALine(begin, tag)) return "pbn";
  }
  return LooksLikeLin(bytes) ? "lin" : "";
}

}  // namespace

std::string FileTypeOf(const std::filesystem::path& path) {
  constexpr std::size_t kTypeLength = 3;
  const std::string text = PathText(path);
  std::string type = text.substr(text.size() - std::min(text.size(), kTypeLength));
  for (char& c : type) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return type;
}

std::string TypeOfRecords(const std::string& type, std::string_view bytes) {
  constexpr std::array<std::string_view, 4> kTypes{"pbn", "dlm", "xml", "lin"};
  const std::string content = TypeByContent(bytes);
  const bool known = std::find(kTypes.begin(), kTypes.end(), type) != kTypes.end();
  return content.empty() && known ? type : content;
}

}  // namespace tricklet
