#include "core/csv.h"

#include "core/text.h"

namespace tricklet {
namespace {

bool LooksLikeFormula(std::string_view text) {
  constexpr std::string_view kBegins = "=+-@\t\r";
  return !text.empty() && kBegins.find(text.front()) != std::string_view::npos &&
         !NumberFromText<double>(text);
}

}  // namespace

std::string CsvCell(std::string_view text) {
  std::string cell = LooksLikeFormula(text) ? "'" : "";
  cell += text;
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

std::string CsvLine(const std::vector<std::string>& cells) {
  std::string line;
  for (const std::string& cell : cells) {
    if (&cell != cells.data()) line += ',';
    line += CsvCell(cell);
  }
  return line + "\r\n";
}

}  // namespace tricklet
