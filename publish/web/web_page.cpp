#include "publish/web/web_page.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"
#include "formats/pbn/pbn_writer.h"
#include "publish/html_text.h"
#include "publish/web/page_text.h"
#include "publish/web/web_data.h"

namespace tricklet {
namespace {

constexpr std::string_view kGenerator = R"(<meta name="generator" content="Tricklet">)";

struct Part {
  std::string_view place;  // in `kPageText`
  std::string text;
};

/// The page with its parts filled in, from its beginning to its end: what is in a part is no place.
template <std::size_t N>
std::string Filled(std::string_view page, const std::array<Part, N>& parts) {
  std::string filled;
  for (;;) {
    std::size_t first = std::string_view::npos;
    const Part* found = nullptr;
    for (const Part& part : parts) {
      const std::size_t at = page.find(part.place);
      if (at < first) {
        first = at;
        found = &part;
      }
    }
    filled += page.substr(0, first);
    if (found == nullptr) return filled;
    filled += found->text;
    page.remove_prefix(first + found->place.size());
  }
}

bool HasUnreadCall(const CallList& calls) {
  return std::any_of(calls.begin(), calls.end(), [](Call call) { return call.IsUnread(); });
}

}  // namespace

std::string WebPage(const Published& published, const WebChoices& choices) {
  const std::array<Part, 4> parts{{{"{{title}}", HtmlText(MendUtf8(Showable(choices.title)))},
                                   {"{{date}}", HtmlText(choices.date)},
                                   {"{{pbn}}", kWebPbnName},
                                   {"{{data}}", WebData(published, choices)}}};
  return Filled(kPageText, parts);
}

std::string WebPbn(const Published& published, const WebChoices& choices) {
  std::string text;
  for (const PublishedBoard& board : published.boards) {
    if (!board.complete) continue;
    const bool bids = choices.names == NamesShown::Full || !HasUnreadCall(board.board.calls);
    const std::string_view notes = choices.notes ? board.notes : std::string_view();
    const PbnOptions options{.bids = bids, .shark = false, .notes = notes};
    text += PbnRecord(board.board, choices.title, options) + "\r\n";
  }
  return text;
}

bool IsWebPage(std::string_view page) {
  constexpr std::size_t kHead = 1024;
  return page.substr(0, kHead).find(kGenerator) != std::string_view::npos;
}

}  // namespace tricklet
