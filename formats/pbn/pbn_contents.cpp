#include "formats/pbn/pbn_contents.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"
#include "formats/pbn/pbn_games.h"
#include "formats/pbn/pbn_makeable.h"
#include "formats/pbn/pbn_pairs.h"
#include "formats/pbn/pbn_play.h"
#include "formats/pbn/pbn_results.h"
#include "formats/pbn/pbn_scoring.h"
#include "formats/pbn/pbn_values.h"

namespace tricklet {
namespace {

/// What a game without a deal takes from the one before.
struct DealBefore {
  std::string label;
  HandTable hands;
  std::optional<Seat> dealer;
  std::optional<tricklet::Vulnerability> vulnerability;
};

/// The game has no deal of its own, or the same, and no other number.
bool IsOf(const DealBefore& before, const FoundGame& found, bool withoutDeal) {
  const bool sameNumber = found.label.empty() || found.label == before.label;
  const bool sameDeal = HasCards(found.board.hands) && found.board.hands == before.hands;
  return sameNumber && (withoutDeal || sameDeal);
}

/// The value of the tag, fit to be shown.
std::string ShownValue(const PbnGame& game, PbnTag tag) {
  return Showable(game.Value(tag));
}

std::string RoomOf(const PbnGame& game) {
  for (const char* room : {"Open", "Closed"}) {
    if (EqualNoCase(game.Value(PbnTag::Room), room)) return room;
  }
  return {};
}

/// Gives the board its calls, and their contract by the dealer of the game.
void SetCalls(const PbnAuction& auction, FoundGame& found) {
  if (auction.overlong) found.troubles.Add(DealTrouble::OverlongAuction);
  Board& board = found.board;
  for (const ExplainedCall& each : auction.calls) board.calls.Add(each.call);
  const int number = std::exchange(
      board.boardNumber, found.dealer ? kFirstBoardNumber + IndexOf(*found.dealer) : found.number);
  GetContract(board);
  board.boardNumber = number;
}

void AddLine(const std::string& line, std::string& text) {
  if (line.empty()) return;
  if (!text.empty()) text += '\n';
  text += line;
}

/// The comments, then the notes; those of the calls only where no record has them.
std::string NotesOf(const PbnGame& game, const PbnAuction& auction, bool callsKept) {
  std::string text;
  const std::string number = "Board " + ShownValue(game, PbnTag::Board);
  for (const std::string_view comment : game.comments) {
    const std::string line = PbnComment(comment);
    if (line != number) AddLine(line, text);  // which `PbnOptions::shark` writes
  }
  for (const PbnNote& note : game.notes) {
    if (note.section != PbnTag::Auction || !callsKept) AddLine(PbnNoteLine(note.text), text);
  }
  if (callsKept) {
    for (const std::string& note : auction.unused) AddLine(note, text);
  }
  return ShowableLines(text);
}

/// The name of the tag stands somewhere in the text, in any letter case.
bool NamesTag(std::string_view text, std::string_view name) {
  const auto hash = [](char c) { return static_cast<std::size_t>(ToUpper(c)); };
  const auto equal = [](char a, char b) { return ToUpper(a) == ToUpper(b); };
  const std::boyer_moore_horspool_searcher searcher(name.begin(), name.end(), hash, equal);
  return std::search(text.begin(), text.end(), searcher) != text.end();
}

/// Reads the games of one text.
class ContentsReader {
 public:
  explicit ContentsReader(std::string_view text) : text_(text) {}

  FileContents Read() {
    const PbnSession session = ReadSession();
    PbnResults results(session);
    PbnGames games(text_);
    for (PbnGame game; games.Next(game);) ReadGame(game, results);
    contents_.format = games.Version().empty() ? "PBN" : "PBN " + games.Version();
    const bool played = std::any_of(section_.games.begin(), section_.games.end(),
                                    [](const FoundGame& game) { return !game.records.empty(); });
    if (played) {
      section_.results = event_.Results(results.Points());
      section_.results.names = session.pairs.Lines();
    }
    if (!section_.games.empty()) contents_.sections.push_back(std::move(section_));
    std::stable_sort(contents_.unread.begin(), contents_.unread.end(),
                     [](const UnreadPart& a, const UnreadPart& b) { return a.line < b.line; });
    return std::move(contents_);
  }

 private:
  /// The pairs come first, since the table that names them may stand in any game.
  PbnSession ReadSession() const {
    PbnPairs pairs;
    if (NamesTag(text_, "TotalScoreTable")) {
      PbnGames games(text_);
      for (PbnGame game; games.Next(game);) pairs.Add(game);
    }
    PairNames names(pairs.Lines());
    return {std::move(pairs), std::move(names)};
  }

  void ReadGame(const PbnGame& game, PbnResults& results) {
    const bool own = !game.Value(PbnTag::Deal).empty() || !game.Value(PbnTag::Board).empty();
    if (!own && !HasPbnResult(game) && !game.Has(PbnTag::Auction)) return;
    event_.Add(game);
    FoundGame found;
    found.line = game.line;
    found.room = RoomOf(game);
    const PbnAuction auction = ReadPbnAuction(game);
    const bool read = ReadDeal(game, auction, found);
    SetCalls(auction, found);
    ReadPbnMakeable(game, found, contents_.unread);
    NoteDealTroubles(found);
    const bool calls = results.Add(game, auction, found, contents_.unread);
    found.notes = NotesOf(game, auction, calls);
    const bool kept = !found.records.empty() || (read && (own || game.Has(PbnTag::Auction)));
    if (kept) section_.games.push_back(std::move(found));
  }

  /// Number, hands, dealer and vulnerability, as far as the game and the one before give them.
  /// False when there is a deal that cannot be read.
  bool ReadDeal(const PbnGame& game, const PbnAuction& auction, FoundGame& found) {
    found.label = ShownValue(game, PbnTag::Board);
    const std::string deal = game.Value(PbnTag::Deal);
    const bool read = deal.empty() || ReadPbnDeal(deal, found.board.hands);
    const PbnField& field = game.fields[PbnTag::Deal];
    if (!read) {
      contents_.unread.push_back({field.line, found.label, Showable(Trim(field.source)), ""});
    }
    found.dealer = PbnSeat(game.Value(PbnTag::Dealer));
    found.vulnerability = PbnVulnerability(PbnText(game.fields[PbnTag::Vulnerable].value));
    if (before_ && IsOf(*before_, found, !field.given)) {
      found.label = before_->label;
      found.board.hands = before_->hands;
      if (!found.dealer) found.dealer = before_->dealer;
      if (!found.vulnerability) found.vulnerability = before_->vulnerability;
    }
    if (!found.dealer) found.dealer = auction.dealer;
    found.number = LeadingNumber(found.label);
    before_ = {found.label, found.board.hands, found.dealer, found.vulnerability};
    return read;
  }

  std::string_view text_;
  PbnEvent event_;
  std::optional<DealBefore> before_;
  FoundSection section_;
  FileContents contents_;
};

}  // namespace

FileContents ReadPbnContents(std::string_view text) {
  if (text.starts_with(kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
  const bool utf8 = IsValidUtf8(text);
  const std::string converted = utf8 ? "" : Latin1ToUtf8(text);
  FileContents contents = ContentsReader(utf8 ? text : std::string_view(converted)).Read();
  contents.encoding = utf8 ? "UTF-8" : "Latin-1";
  return contents;
}

}  // namespace tricklet
