#include "analysis/library_file.h"

#include <cstdint>
#include <cstring>
#include <string_view>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"

#ifdef __linux__
#include <elf.h>
#include <link.h>
#endif

namespace tricklet {
namespace {

/// Solver libraries take less than 1 MiB; nothing near this is one.
constexpr std::size_t kMaxLibraryBytes = std::size_t{256} * 1024 * 1024;

#ifdef __linux__

/// `size` bytes from `offset` on lie within `all`.
bool LiesWithin(std::uint64_t offset, std::uint64_t size, std::uint64_t all) {
  return offset <= all && size <= all - offset;
}

/// Every part that is to be loaded lies within the file (System V ABI, chapters 4 and 5). The
/// loader maps the parts unseen, and touching one that is missing would end the program by a
/// signal. What is no such file at all the loader refuses by itself.
bool IsWhole(std::string_view file) {
  ElfW(Ehdr) head{};
  if (file.size() < sizeof head) return false;
  std::memcpy(&head, file.data(), sizeof head);
  constexpr unsigned char kClass = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;
  if (std::memcmp(head.e_ident, ELFMAG, SELFMAG) != 0 || head.e_ident[EI_CLASS] != kClass) {
    return true;
  }
  ElfW(Phdr) part{};
  const std::uint64_t tableSize = std::uint64_t{head.e_phnum} * sizeof part;
  if (head.e_phentsize != sizeof part || !LiesWithin(head.e_phoff, tableSize, file.size())) {
    return false;
  }
  for (std::size_t i = 0; i < head.e_phnum; ++i) {
    std::memcpy(&part, file.data() + head.e_phoff + i * sizeof part, sizeof part);
    if (!LiesWithin(part.p_offset, part.p_filesz, file.size())) return false;
  }
  return true;
}

#else

/// The system looks by itself.
bool IsWhole(std::string_view /*file*/) {
  return true;
}

#endif

}  // namespace

std::string LibraryFileFlaw(const std::filesystem::path& path) {
  try {
    if (IsWhole(ReadWholeFile(path, kMaxLibraryBytes))) return {};
    return "The file is incomplete: " + ShownPath(path);
  } catch (const Fault& fault) {
    return fault.Description();
  }
}

}  // namespace tricklet
