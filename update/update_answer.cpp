#include "update/update_answer.h"

#include "core/text.h"
#include "update/update_address.h"

namespace tricklet {
namespace {

constexpr std::size_t kLongestVersion = 40;
constexpr std::size_t kLongestNotes = 300;

/// The values of the file's lines, as they stand there.
struct Lines {
  std::optional<std::string_view> version;
  std::optional<std::string_view> page;
  std::optional<std::string_view> notes;

  std::optional<std::string_view>* Named(std::string_view key) {
    if (key == "version") return &version;
    if (key == "page") return &page;
    return key == "notes" ? &notes : nullptr;
  }
};

/// False when the line names again what another one has named.
bool ReadLine(std::string_view line, Lines& lines) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return true;
  std::optional<std::string_view>* value = lines.Named(Trim(line.substr(0, equals)));
  if (value == nullptr) return true;
  if (*value) return false;
  *value = Trim(line.substr(equals + 1));
  return true;
}

}  // namespace

std::optional<UpdateAnswer> ReadUpdateAnswer(std::string_view bytes) {
  if (bytes.size() > kLongestAnswer) return std::nullopt;
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  Lines lines;
  while (!bytes.empty()) {
    if (!ReadLine(TakeLine(bytes), lines)) return std::nullopt;
  }
  if (!lines.version || !lines.page || !IsAllowedAddress(*lines.page)) return std::nullopt;
  auto version = ParseVersion(*lines.version);
  if (!version) return std::nullopt;
  return UpdateAnswer{std::move(*version), Showable(*lines.version, kLongestVersion),
                      std::string(*lines.page),
                      Showable(lines.notes.value_or(std::string_view()), kLongestNotes)};
}

}  // namespace tricklet
