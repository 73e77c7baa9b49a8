#include "library/dated_folder.h"

#include <system_error>

#include "core/local_time.h"
#include "core/text.h"
#include "disk/presence.h"

namespace tricklet {

namespace fs = std::filesystem;

std::string DatedText(std::time_t time) {
  return LocalTimeText(time, "%Y-%m-%d %H.%M");
}

std::string DatedName(const std::string& library, const std::string& end) {
  constexpr std::size_t kLongest = 200;
  const auto isInside = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
  std::size_t size = library.size();
  if (size > kLongest) {
    for (size = kLongest; size > 0 && isInside(library[size]);) --size;
  }
  return library.substr(0, size) + " " + DatedText(std::time(nullptr)) + " " + end;
}

fs::path BringBeside(const fs::path& library, const fs::path& folder, const std::string& name,
                     UnflushedFolders& unflushed) {
  fs::path to = library.parent_path() / PathFromText(name);
  for (int i = 2; IsTaken(to); ++i) {
    to.replace_filename(PathFromText(name + " (" + std::to_string(i) + ")"));
  }
  std::error_code failure;
  fs::rename(folder, to, failure);
  if (failure) return folder;
  unflushed.Add(library.parent_path());
  unflushed.Add(library);
  return to;
}

}  // namespace tricklet
