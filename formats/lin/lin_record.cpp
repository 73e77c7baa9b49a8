#include "formats/lin/lin_record.h"

#include <algorithm>
#include <array>

#include "core/statistics.h"
#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::size_t kByteValues = 256;

/// For each byte its place among `letters`, whatever its case, else -1.
constexpr std::array<int, kByteValues> PlacesOf(std::string_view letters) {
  std::array<int, kByteValues> places{};
  places.fill(-1);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const auto letter = static_cast<unsigned char>(letters[i]);
    places.at(letter) = static_cast<int>(i);
    if (letter >= 'A') places.at(letter + ('a' - 'A')) = static_cast<int>(i);
  }
  return places;
}

constexpr auto kSuitPlaces = PlacesOf("SHDC");
constexpr auto kRankPlaces = PlacesOf("AKQJT98765432");

/// The seats in the order of a record's hands and players.
constexpr std::array kLinSeats{Seat::South, Seat::West, Seat::North, Seat::East};

/// Cards of a text of suit and rank letters: one suit letter, then its ranks.
class CardLetters {
 public:
  /// The card that `c` completes; nothing when it is a suit letter or neither.
  std::optional<Card> Next(char c) {
    const auto letter = static_cast<unsigned char>(c);
    if (const int suit = kSuitPlaces.at(letter); suit >= 0) suit_ = suit;
    const int rank = kRankPlaces.at(letter);
    if (suit_ < 0 || rank < 0) return std::nullopt;
    return Card{static_cast<Suit>(suit_), static_cast<Rank>(rank)};
  }
  void NewHand() { suit_ = kNone; }

 private:
  static constexpr int kNone = -1;
  int suit_ = kNone;
};

void GiveCard(LinRecord& record, Card card, Seat seat) {
  if (const int holder = SeatHolding(record.hands, card); holder >= 0) {
    record.repeatsCard = true;
    record.hands[static_cast<Seat>(holder)][card.suit].Remove(card.rank);
  }
  AddCard(record.hands, card, seat);
  record.hasDeal = true;
}

bool IsEmpty(const PerSuit<Holding>& hand) {
  return std::all_of(hand.begin(), hand.end(), [](Holding holding) { return holding.Empty(); });
}

/// Gives the one empty hand all cards that the other three do not hold.
void CompleteDeal(HandTable& hands) {
  if (std::count_if(hands.begin(), hands.end(), IsEmpty) != 1) return;
  PerSuit<Holding>& fourth = *std::find_if(hands.begin(), hands.end(), IsEmpty);
  for (const Suit suit : kAllSuits) {
    Holding held;
    for (const Seat seat : kAllSeats) held = held | hands[seat][suit];
    fourth[suit] = Holding::FromBits(Holding::kAllBits) - held;
  }
}

void ReadDeal(std::string_view value, LinRecord& record) {
  if (record.hasDeal || value.empty()) return;
  const int digit = value[0] - '1';
  if (digit >= 0 && digit < kSeats) record.dealer = kLinSeats.at(static_cast<std::size_t>(digit));
  std::size_t hand = 0;
  CardLetters cards;
  for (const char c : value.substr(1)) {
    if (c == ',') {
      if (++hand == kLinSeats.size()) break;
      cards.NewHand();
    } else if (const auto card = cards.Next(c)) {
      GiveCard(record, *card, kLinSeats.at(hand));
    }
  }
  CompleteDeal(record.hands);
}

void AddCall(Call call, bool alerted, LinRecord& record) {
  record.calls.push_back(call);
  record.remarks.push_back({alerted, ""});
}

/// One call of an "mb" field, or several that stand there without a mark between them ("1Cp1Hp").
/// "!" alerts the call before it, or the one that stands alone.
void ReadCalls(std::string_view value, LinRecord& record) {
  std::string text;
  std::string alerts;  // as long as `text`, with the "!" at the character that it follows
  for (const char c : value) {
    if (c != '!') {
      text += c;
      alerts += ' ';
    } else if (!alerts.empty()) {
      alerts.back() = '!';
    }
  }
  const auto alerted = [&](std::size_t first, std::size_t length) {
    return alerts.find('!', first) < first + length;
  };
  if (const auto call = Call::FromText(text)) {
    AddCall(*call, text.size() < value.size(), record);
    return;
  }
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t length = text[i] >= '1' && text[i] <= '7' ? 2 : 1;
    if (const auto call = Call::FromText(std::string_view(text).substr(i, length))) {
      AddCall(*call, alerted(i, length), record);
      i += length - 1;
    }
  }
}

/// An explanation in one line. "!C" stands for a club, and so on, unless a word begins there.
std::string MeaningOf(std::string_view value) {
  constexpr std::size_t kLongest = 1000;  // as much as the reader of PBN puts into a record
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const int suit = value[i] == '!' && i + 1 < value.size()
                         ? kSuitPlaces.at(static_cast<unsigned char>(value[i + 1]))
                         : -1;
    const char after = i + 2 < value.size() ? ToUpper(value[i + 2]) : ' ';
    if (suit >= 0 && !(after >= 'A' && after <= 'Z')) {
      text += SuitSymbol[static_cast<Suit>(suit)];
      ++i;
    } else {
      text += value[i];
    }
  }
  return Showable(TrimLines(text), kLongest);
}

/// Explains the last call. Of several explanations the first is the one given at the table.
void ReadMeaning(std::string_view value, LinRecord& record) {
  if (record.remarks.empty() || !record.remarks.back().meaning.empty()) return;
  record.remarks.back().meaning = MeaningOf(value);
}

/// The names of the open room, or of the closed one where the field has those too.
void ReadPlayers(std::string_view value, LinRecord& record) {
  std::array<std::string_view, std::size_t{2} * kSeats> names{};
  std::size_t count = 0;
  for (; count < names.size(); ++count) {
    const auto comma = value.find(',');
    names.at(count) = Trim(value.substr(0, comma));
    if (comma == std::string_view::npos) break;
    value.remove_prefix(comma + 1);
  }
  const bool second = record.closedRoom && count + 1 >= names.size();
  for (std::size_t i = 0; i < kLinSeats.size(); ++i) {
    record.players[kLinSeats.at(i)] = names.at(i + (second ? kLinSeats.size() : 0));
  }
}

void ReadPlay(std::string_view value, std::vector<Card>& play) {
  CardLetters cards;
  for (const char c : value) {
    if (const auto card = cards.Next(c)) play.push_back(*card);
  }
}

/// "o12", "c12" or "12", with or without more after it.
void ReadRoom(std::string_view value, LinRecord& record, int& number) {
  if (value.empty()) return;
  const char room = ToUpper(value[0]);
  record.closedRoom = room == 'C';
  if (room == 'O' || room == 'C') value.remove_prefix(1);
  number = std::max(LeadingNumber(value), 0);
}

void ReadHeader(std::string_view value, LinRecord& record) {
  if (const int number = BoardNumberOfHeader(value); number > 0) record.boardNumber = number;
}

void ReadScorerTag(const LinField& field, LinRecord& record) {
  const auto tag = std::find(LinResultTagText.begin(), LinResultTagText.end(), field.tag);
  if (tag == LinResultTagText.end()) return;
  record.results[static_cast<LinResultTag>(tag - LinResultTagText.begin())] = field.value;
}

}  // namespace

int BoardNumberOfHeader(std::string_view header) {
  constexpr std::string_view kBoard = "Board ";
  if (!EqualNoCase(header.substr(0, kBoard.size()), kBoard)) return 0;
  return std::max(LeadingNumber(header.substr(kBoard.size())), 0);
}

std::optional<Card> CardOfLetters(char suit, char rank) {
  CardLetters card;
  card.Next(suit);
  return card.Next(rank);
}

LinRecord ParseLinRecord(std::string_view text) {
  LinRecord record;
  int roomNumber = 0;
  std::string_view players;
  for (LinField field; NextLinField(text, field);) {
    if (field.tag == "qx") {
      ReadRoom(field.value, record, roomNumber);
    } else if (field.tag == "ah") {
      ReadHeader(field.value, record);
    } else if (field.tag == "md") {
      ReadDeal(field.value, record);
    } else if (field.tag == "mb") {
      record.hasAuction = true;
      ReadCalls(field.value, record);
    } else if (field.tag == "an") {
      ReadMeaning(field.value, record);
    } else if (field.tag == "pn") {
      players = field.value;
    } else if (field.tag == "pc") {
      ReadPlay(field.value, record.play);
    } else if (field.tag == "mc") {
      record.claim = LeadingNumber(field.value);
    } else {
      ReadScorerTag(field, record);
    }
  }
  ReadPlayers(players, record);
  if (record.boardNumber == 0) record.boardNumber = roomNumber;
  return record;
}

bool CanBeDealt(const LinRecord& record) {
  return record.hasDeal && !record.repeatsCard &&
         std::all_of(kAllSeats.begin(), kAllSeats.end(),
                     [counts = GetStats(record.hands).seatCardCount](Seat seat) {
                       return counts[seat] <= kCardsInHand;
                     });
}

bool HasForeignDealer(const LinRecord& record) {
  return record.dealer && *record.dealer != DealerOfBoard(record.boardNumber);
}

Board StorableBoard(const LinRecord& record, LeftOut& leftOut) {
  Board board;
  board.boardNumber = record.boardNumber;
  board.hands = record.hands;
  if (HasForeignDealer(record) && !record.calls.empty()) {
    leftOut.foreign.push_back(record.boardNumber);
  } else if (record.calls.size() > CallList::kCapacity) {
    leftOut.overlong.push_back(record.boardNumber);
  } else {
    for (const Call call : record.calls) board.calls.Add(call);
  }
  GetContract(board);
  return board;
}

}  // namespace tricklet
