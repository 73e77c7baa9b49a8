// A session as a web page: one file that needs nothing beside it.
#pragma once

#include <string>

#include "publish/published.h"
#include "publish/web/shown_names.h"

namespace tricklet {

/// What is chosen before a session becomes a page.
struct WebChoices {
  std::string title;  ///< UTF-8
  std::string date;   ///< below the title, "17 November 2026"; may be empty
  NamesShown names = NamesShown::Full;
  bool notes = false;  ///< those of the boards are in both files; they may name people
};

/// The file beside the page that holds the boards, by its name in the page.
inline constexpr const char* kWebPbnName = "boards.pbn";

/// The whole page, UTF-8. It shows texts of foreign files as text, runs its own script alone (a
/// Content-Security-Policy says so) and names no address but that of `kWebPbnName`. Of the players
/// it holds no more than `choices.names` says, the notes to the boards and the remarks on
/// calls apart, which are texts that may name anybody: notes are left out unless they are chosen.
std::string WebPage(const Published& published, const WebChoices& choices);

/// The boards of the page with their auctions and tables, without players, as PBN for
/// `kWebPbnName`. Boards with an incomplete deal are left out. Notes stand there where they are
/// chosen. Where names are held back, so is an auction with a call that cannot be read.
std::string WebPbn(const Published& published, const WebChoices& choices);

/// `page` begins like one that `WebPage` has made.
bool IsWebPage(std::string_view page);

}  // namespace tricklet
