#include "formats/usebio/line_index.h"

#include <algorithm>

namespace tricklet {
namespace {

constexpr std::size_t kBlock = 2048;

}  // namespace

LineIndex::LineIndex(std::string_view text) : text_(text) {
  int ends = 0;
  for (std::size_t begin = 0; begin < text_.size(); begin += kBlock) {
    before_.push_back(ends);
    ends += EndsBetween(begin, std::min(begin + kBlock, text_.size()));
  }
}

int LineIndex::LineAt(std::ptrdiff_t offset) const {
  const auto at = static_cast<std::size_t>(offset);
  if (offset < 0 || at >= text_.size()) return 0;
  const std::size_t block = at / kBlock;
  return 1 + before_[block] + EndsBetween(block * kBlock, at);
}

int LineIndex::EndsBetween(std::size_t begin, std::size_t end) const {
  int ends = 0;
  for (std::size_t at = begin; at < end; ++at) {
    const bool feed = text_[at] == '\n' && (at == 0 || text_[at - 1] != '\r');
    if (feed || text_[at] == '\r') ++ends;
  }
  return ends;
}

}  // namespace tricklet
