#include "formats/pbn/pbn_play.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <utility>

#include "core/text.h"
#include "core/trick.h"
#include "formats/lin/lin_record.h"
#include "formats/pbn/pbn_values.h"

namespace tricklet {
namespace {

constexpr auto kNone = std::string_view::npos;

/// Calls `use` with each word of the section until it returns false.
void ForEachWord(const PbnGame& game, PbnTag section,
                 const std::function<bool(std::string_view)>& use) {
  constexpr std::string_view kBetweenCards = " \t\v\f";
  const PbnField& field = game.fields[section];
  for (std::size_t i = field.firstPiece; i < field.endPiece; ++i) {
    std::string_view rest = game.pieces[i].text;
    while (!rest.empty()) {
      const std::string_view word = rest.substr(0, rest.find_first_of(kBetweenCards));
      if (!word.empty() && !use(word)) return;
      rest.remove_prefix(word.size());
      rest.remove_prefix(std::min(rest.find_first_not_of(kBetweenCards), rest.size()));
    }
  }
}

/// Number and text of a note, "1: non-forcing".
std::pair<std::string_view, std::string_view> NoteParts(std::string_view note) {
  const auto colon = note.find(':');
  if (colon == kNone) return {{}, Trim(note)};
  return {Trim(note.substr(0, colon)), Trim(note.substr(colon + 1))};
}

/// Collects the calls of a section.
class AuctionReader {
 public:
  explicit AuctionReader(const PbnGame& game) : game_(game) {
    for (const PbnNote& note : game.notes) {
      const auto& [number, text] = NoteParts(note.text);
      if (note.section == PbnTag::Auction) notes_.try_emplace(number, Note{text, false});
    }
  }

  PbnAuction Read() {
    auction_.dealer = PbnSeat(game_.Value(PbnTag::Auction));
    ForEachWord(game_, PbnTag::Auction, [this](std::string_view word) { return Take(word); });
    if (auction_.overlong) auction_.calls.clear();
    AddUnused();
    return std::move(auction_);
  }

 private:
  struct Note {
    std::string_view text;
    bool used = false;
  };

  /// False when there are more calls than a board holds.
  bool Take(std::string_view word) {
    const char first = ToUpper(word[0]);
    const char second = word.size() > 1 ? ToUpper(word[1]) : ' ';
    if (first == 'P') {
      Add(Call::Pass());
    } else if (first == 'A') {
      for (int i = 0; i < 3 && !Full(); ++i) Add(Call::Pass());
    } else if (first == 'X') {
      Add(second == 'X' ? Call::Redouble() : Call::Double());
    } else if (const auto bid = Call::FromText(std::string{first, second}); bid && bid->IsBid()) {
      Add(*bid);
    } else if (first == '-' && auction_.calls.empty() && auction_.dealer) {
      auction_.dealer = SeatAfter(*auction_.dealer);
    }
    Explain(word);
    return !auction_.overlong;
  }

  bool Full() const { return auction_.calls.size() == std::size_t{CallList::kCapacity}; }

  void Add(Call call) {
    auction_.overlong = auction_.overlong || Full();
    if (!Full()) auction_.calls.push_back({call, ""});
  }

  /// Gives the last call the text of the note that `word` names, as "=1=" or at its end.
  void Explain(std::string_view word) {
    const auto first = word.find('=');
    const auto second = first == kNone ? kNone : word.find('=', first + 1);
    if (second == kNone || auction_.calls.empty()) return;
    const auto note = notes_.find(word.substr(first + 1, second - first - 1));
    if (note == notes_.end()) return;
    // A record is one line of a file, in which nobody looks for more.
    constexpr std::size_t kLongest = 1000;
    std::string& meaning = auction_.calls.back().meaning;
    note->second.used = true;
    if (meaning.size() >= kLongest) return;
    const std::string text = PbnComment(PbnText(note->second.text));
    meaning += (meaning.empty() ? "" : "; ") + Showable(text, kLongest);
  }

  void AddUnused() {
    for (const auto& [number, note] : notes_) {
      if (note.used) continue;
      const std::string text = PbnComment(PbnText(note.text));
      if (!text.empty()) {
        auction_.unused.push_back((number.empty() ? "" : std::string(number) + ": ") + text);
      }
    }
  }

  const PbnGame& game_;
  std::map<std::string_view, Note> notes_;
  PbnAuction auction_;
};

/// "SK", "S10", "s2!": nothing for anything else.
std::optional<Card> CardOf(std::string_view word) {
  if (word.size() < 2) return std::nullopt;
  const char rank = word.substr(1).starts_with("10") ? 'T' : word[1];
  return CardOfLetters(word[0], rank);
}

/// One trick by the columns of the section; nothing for a card that is not known.
using PlayRow = std::array<std::optional<Card>, kSeats>;

std::vector<PlayRow> RowsOf(const PbnGame& game) {
  std::vector<PlayRow> rows;
  std::size_t column = 0;
  ForEachWord(game, PbnTag::Play, [&](std::string_view word) {
    if (word.front() == '*') return false;
    const auto card = CardOf(word);
    if (!card && word.front() != '-' && word.front() != '+') return true;
    if (column == 0) {
      if (rows.size() == std::size_t{kCardsInHand}) return false;
      rows.emplace_back();
    }
    rows.back().at(column) = card;
    column = (column + 1) % kSeats;
    return true;
  });
  return rows;
}

}  // namespace

PbnAuction ReadPbnAuction(const PbnGame& game) {
  return AuctionReader(game).Read();
}

std::vector<Card> ReadPbnPlay(const PbnGame& game, std::optional<Strain> trumps,
                              std::optional<Seat> declarer) {
  std::vector<Card> cards;
  const auto columns = PbnSeat(game.Value(PbnTag::Play));
  if (!columns && !declarer) return cards;
  const Seat first = columns ? *columns : SeatAfter(*declarer);
  Seat onPlay = declarer ? SeatAfter(*declarer) : first;
  for (const PlayRow& row : RowsOf(game)) {
    Trick trick;
    for (int i = 0; i < kSeats; ++i) {
      const Seat seat = SeatAfter(onPlay, i);
      const auto card = row.at(static_cast<std::size_t>(IndexOf(SeatAfter(seat, -IndexOf(first)))));
      if (!card) return cards;
      cards.push_back(*card);
      trick.Add(*card, seat, trumps.value_or(Strain::NoTrump));
    }
    if (!trumps) break;
    onPlay = trick.trickWinner;
  }
  return cards;
}

std::string PbnComment(std::string_view comment) {
  constexpr std::string_view kSuitLetters = "SHDC";
  std::string text;
  text.reserve(comment.size());
  for (std::size_t i = 0; i < comment.size(); ++i) {
    const char c = comment[i];
    const auto suit =
        c == '\\' && i + 1 < comment.size() ? kSuitLetters.find(comment[i + 1]) : std::string::npos;
    if (suit != std::string::npos) {
      text += SuitSymbol[static_cast<Suit>(suit)];
      ++i;
    } else if (c == '\r') {
      if (i + 1 == comment.size() || comment[i + 1] != '\n') text += '\n';
    } else {
      text += c;
    }
  }
  // Blanks before the first of several lines can be part of a diagram.
  const auto content = text.find_first_not_of(" \t\n");
  if (content == std::string::npos) return "";
  const auto lineEnd = text.rfind('\n', content);
  const bool severalLines = text.find('\n', content) != std::string::npos;
  text.erase(0, severalLines && lineEnd != std::string::npos ? lineEnd + 1 : content);
  text.erase(text.find_last_not_of(" \t\n") + 1);
  return text;
}

std::string PbnNoteLine(std::string_view note) {
  const auto& [number, text] = NoteParts(note);
  const std::string shown = PbnComment(PbnText(text));
  if (shown.empty()) return "";
  return (number.empty() ? "" : std::string(number) + ": ") + shown;
}

}  // namespace tricklet
