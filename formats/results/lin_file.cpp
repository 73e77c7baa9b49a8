#include "formats/results/lin_file.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "formats/sink/record_text.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLineEnd = "\r\n";

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

/// Looks at every byte, even after it has found one, so that the compiler can look at many at a
/// time.
bool HasControl(std::string_view value) {
  unsigned char found = 0;
  for (const char c : value) found |= static_cast<unsigned char>(IsControl(c));
  return found != 0;
}

/// `value` as one line that is no header.
std::string Cleaned(std::string_view value) {
  std::string line;
  line.reserve(value.size());
  bool inLineEnd = false;
  for (const char c : value) {
    const bool lineEnd = c == '\r' || c == '\n';
    if (!lineEnd || !inLineEnd) line += IsControl(c) ? ' ' : c;
    inLineEnd = lineEnd;
  }
  if (line.starts_with('[')) line.insert(line.begin(), ' ');
  return line;
}

void AppendLine(std::string& text, std::string_view line) {
  text += line;
  text += kLineEnd;
}

/// A value as a line that reads back as a value.
void AppendValueLine(std::string& text, std::string_view value) {
  if (!HasControl(value) && !value.starts_with('[')) {
    AppendLine(text, value);
  } else {
    AppendLine(text, Cleaned(value));
  }
}

void AppendLines(std::string& text, std::string_view header,
                 const std::vector<std::string>& values) {
  AppendLine(text, header);
  for (const std::string& value : values) {
    if (!value.empty()) AppendValueLine(text, value);
  }
}

std::size_t LinesLength(const std::vector<std::string>& values) {
  return std::accumulate(values.begin(), values.end(), std::size_t{0},
                         [](std::size_t length, const std::string& value) {
                           return length + value.size() + kLineEnd.size();
                         });
}

void AppendValue(std::string& text, std::string_view header, std::string_view value) {
  AppendLine(text, header);
  AppendValueLine(text, value);
}

bool IsHeader(std::string_view line) {
  return line.starts_with('[') && line.ends_with(']');
}

/// Takes the lines of one section after another.
class LinFileParser {
 public:
  LinFile Parse(std::string_view text) {
    std::string_view header;
    text = WithoutUtf8Mark(text);
    while (!text.empty()) {
      const std::string_view line = TakeLine(text);
      if (IsHeader(line)) {
        header = line;
        if (EqualNoCase(header, "[teams]")) Teams();
      } else if (!line.empty()) {
        TakeValue(header, std::string(line));
      }
    }
    return std::move(data_);
  }

 private:
  void TakeValue(std::string_view header, std::string value) {
    if (EqualNoCase(header, "[lin]")) {
      data_.lin.push_back(std::move(value));
    } else if (EqualNoCase(header, "[names]")) {
      data_.names.push_back(std::move(value));
    } else if (EqualNoCase(header, "[boardscoringmethod]") ||
               EqualNoCase(header, "[boardscoring]")) {
      data_.boardScoringMethod = std::move(value);
    } else if (EqualNoCase(header, "[boardscoringabb]")) {
      data_.boardScoringAbb = std::move(value);
    } else if (EqualNoCase(header, "[teams]")) {
      Teams().teams.push_back(std::move(value));
    } else if (EqualNoCase(header, "[teamsscoringmethod]")) {
      Teams().teamScoringMethod = std::move(value);
    } else if (EqualNoCase(header, "[teamscoringabb]")) {
      Teams().teamScoringAbb = std::move(value);
    }
  }

  LinTeams& Teams() {
    if (!data_.teamEvent) data_.teamEvent.emplace();
    return *data_.teamEvent;
  }

  LinFile data_;
};

/// Throws when it is more than is read back.
std::string BoundedText(const LinFile& data, const fs::path& path) {
  std::string text = LinFileText(data);
  if (text.size() <= kMaxLinFileBytes) return text;
  throw Fault(FaultNumber::DeviceError, "The file would be too large: " + ShownPath(path));
}

}  // namespace

std::string LinFileText(const LinFile& data) {
  constexpr std::size_t kHeaders = 1024;
  std::string text;
  text.reserve(kHeaders + LinesLength(data.names) + LinesLength(data.lin));
  AppendValue(text, "[BoardScoringMethod]", data.boardScoringMethod);
  AppendValue(text, "[BoardScoringAbb]", data.boardScoringAbb);
  if (data.teamEvent) {
    AppendLines(text, "[Teams]", data.teamEvent->teams);
    AppendValue(text, "[TeamScoringMethod]", data.teamEvent->teamScoringMethod);
    AppendValue(text, "[TeamScoringAbb]", data.teamEvent->teamScoringAbb);
  }
  AppendLines(text, "[Names]", data.names);
  AppendLines(text, "[LIN]", data.lin);
  return text;
}

LinFile ParseLinFile(std::string_view text) {
  if (!IsValidUtf8(text)) return LinFileParser().Parse(Latin1ToUtf8(text));
  return LinFileParser().Parse(text);
}

fs::path LinDataPath(const Session& session) {
  return session.LibraryPath() / kLinFile;
}

LinFile LoadLinData(const Session& session) {
  return LoadLinDataOf(session.LibraryPath());
}

LinFile LoadLinDataOf(const fs::path& folder) {
  const fs::path path = folder / kLinFile;
  if (!FileExists(path)) return {};
  return ParseLinFile(ReadWholeFile(path, kMaxLinFileBytes));
}

void StoreLinData(const Session& session, const LinFile& data, LibraryWrite& write) {
  const fs::path path = LinDataPath(session);
  write.Replace(path, BoundedText(data, path));
}

void RenewLinData(Session& session, const LinFile& data, LibraryWrite& write) {
  const fs::path path = LinDataPath(session);
  const std::string text = BoundedText(data, path);
  if (FileExists(path) && ReadWholeFile(path, kMaxLinFileBytes) == text) return;
  // The new file is complete before the old one goes.
  Replacement renewed(path);
  renewed.File().Write(text);
  renewed.Complete();
  if (!RecycleLinData(session)) throw Fault(FaultNumber::PathFileAccess, kResultsNotRecycled);
  renewed.PutInPlace(write.Unflushed());
}

bool RecycleLinData(Session& session) {
  const fs::path path = LinDataPath(session);
  return !FileExists(path) || session.host.Recycle(path);
}

}  // namespace tricklet
