#include "formats/pbn/pbn_games.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kBlanks = " \t\v\f";
constexpr std::string_view kBlanksAndEnds = " \t\v\f\r\n";
constexpr auto kEnd = std::string_view::npos;

/// PBN standard 2.1: the mandatory and supplemental tags, and DoubleDummyTricks of online tables.
constexpr PerPbnTag<std::string_view> kTagNames{{"Event",
                                                 "Site",
                                                 "Date",
                                                 "Board",
                                                 "West",
                                                 "North",
                                                 "East",
                                                 "South",
                                                 "Dealer",
                                                 "Vulnerable",
                                                 "Deal",
                                                 "Scoring",
                                                 "Declarer",
                                                 "Contract",
                                                 "Result",
                                                 "Score",
                                                 "ScoreIMP",
                                                 "ScoreMP",
                                                 "ScorePercentage",
                                                 "Room",
                                                 "HomeTeam",
                                                 "VisitTeam",
                                                 "Competition",
                                                 "Auction",
                                                 "Play",
                                                 "OptimumResultTable",
                                                 "DoubleDummyTricks",
                                                 "ScoreTable",
                                                 "TotalScoreTable",
                                                 "Note"}};

std::optional<PbnTag> TagOf(std::string_view name) {
  for (int index = 0; index < kPbnTags; ++index) {
    const auto tag = static_cast<PbnTag>(index);
    if (EqualNoCase(name, kTagNames[tag])) return tag;
  }
  return std::nullopt;
}

/// The tags that say which game it is, up to its deal: with one of them a game begins.
bool IsIdentifying(PbnTag tag) {
  return tag <= PbnTag::Deal;
}

bool HasSection(PbnTag tag) {
  return tag == PbnTag::Auction || tag == PbnTag::Play || tag == PbnTag::OptimumResultTable ||
         tag == PbnTag::ScoreTable || tag == PbnTag::TotalScoreTable;
}

bool IsTable(PbnTag tag) {
  return HasSection(tag) && tag != PbnTag::Auction && tag != PbnTag::Play;
}

bool IsNameLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view WithoutBlanks(std::string_view text, std::string_view blanks) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text;
}

/// The name that `text` begins with; empty when it begins with none.
std::string_view NameAt(std::string_view text) {
  const auto* const end = std::find_if_not(text.begin(), text.end(), IsNameLetter);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

/// The line opens with a tag that is read, which in a comment means that its end is missing.
bool OpensWithTag(std::string_view line) {
  line = WithoutBlanks(line, kBlanks);
  if (!line.starts_with('[')) return false;
  const std::string_view name = NameAt(line.substr(1));
  return WithoutBlanks(line.substr(1 + name.size()), kBlanks).starts_with('"') && TagOf(name);
}

/// Where the value that begins after a quote ends; `kEnd` when no quote ends it.
std::size_t EndOfValue(std::string_view text) {
  std::size_t quote = 0;
  for (; quote < text.size() && text[quote] != '"'; ++quote) {
    if (text[quote] == '\\') ++quote;
  }
  if (quote >= text.size()) return kEnd;
  // A quote inside the value ("The "Big" One") is not followed by what can follow a value.
  constexpr std::size_t kLongestValue = 1000;
  const std::string_view after = WithoutBlanks(text.substr(quote + 1), kBlanks);
  if (after.empty() || std::string_view("][{;").find(after.front()) != kEnd) return quote;
  const auto end = text.substr(0, kLongestValue).find("\"]", quote);
  return end == kEnd ? quote : end;
}

}  // namespace

std::string PbnText(std::string_view value) {
  std::string text;
  text.reserve(value.size());
  for (std::size_t i = 0; i < value.size(); ++i) {
    const bool escape =
        value[i] == '\\' && i + 1 < value.size() && (value[i + 1] == '"' || value[i + 1] == '\\');
    if (escape) ++i;
    text += value[i];
  }
  return std::string(TrimLines(text));
}

bool IsUnknownPbn(std::string_view value) {
  return value.empty() || value == "?" || value == "-";
}

std::string PbnGame::Value(PbnTag tag) const {
  std::string text = PbnText(fields[tag].value);
  return IsUnknownPbn(text) ? "" : text;
}

bool PbnGames::Next(PbnGame& game) {
  game = {};
  others_.clear();
  section_.reset();
  noted_ = PbnTag::Note;
  place_ = 0;
  if (pending_) AddTag(game, *std::exchange(pending_, std::nullopt));
  while (!left_.empty() || !rest_.empty()) {
    if (left_.empty()) {
      NextLine();
      if (left_.empty() && blankLine_) {
        HandOver(game);
        if (section_) game.pieces.push_back({{}, number_});
      }
    }
    PassOverBlanks();
    if (left_.empty()) continue;
    if (AtTag()) {
      const Tag tag = ReadTag();
      if (BeginsGame(game, tag)) {
        pending_ = tag;
        break;
      }
      AddTag(game, tag);
    } else if (left_.front() == '{' || left_.front() == ';') {
      ReadComment();
    } else {
      ReadPiece(game);
    }
  }
  // A comment right before the first tag of a game is that game's, if an empty line divides it
  // from the game before.
  if (!pending_ || !blankLine_) HandOver(game);
  if (section_) game.fields[*section_].endPiece = game.pieces.size();
  if (place_ == 0) return false;
  Inherit(game);
  return true;
}

void PbnGames::NextLine() {
  line_ = left_ = TakeLine(rest_);
  ++number_;
  const std::string_view text = WithoutBlanks(line_, kBlanks);
  if (text.empty()) blankLine_ = true;
  if (text.starts_with('%')) NoteVersion(text);
  if (text.empty() || text.starts_with('%')) left_ = {};
}

void PbnGames::PassOverBlanks() {
  left_ = WithoutBlanks(left_, kBlanks);
}

/// "% PBN 2.1".
void PbnGames::NoteVersion(std::string_view line) {
  constexpr std::string_view kName = "PBN";
  line = WithoutBlanks(line.substr(1), kBlanks);
  if (!EqualNoCase(line.substr(0, kName.size()), kName)) return;
  const std::string_view version = Trim(line.substr(kName.size()));
  const bool isVersion =
      !version.empty() && version.size() <= 4 && version.find_first_not_of("0123456789.") == kEnd;
  if (isVersion && version_.empty()) version_ = version;
}

/// Name and value may stand on lines of their own, as long as the value is in quotes. One without
/// quotes is taken only at the beginning of a line and of a tag that is read.
bool PbnGames::AtTag() const {
  if (!left_.starts_with('[')) return false;
  std::string_view text = WithoutBlanks(left_.substr(1), kBlanks);
  const bool nextLine = text.empty();
  if (nextLine) text = WithoutBlanks(rest_, kBlanksAndEnds);
  const std::string_view name = NameAt(text);
  if (name.empty()) return false;
  text = WithoutBlanks(text.substr(name.size()), kBlanks);
  const bool first = left_.data() == WithoutBlanks(line_, kBlanks).data();
  if (!nextLine && first && !text.empty() && text.front() != '"' && TagOf(name)) return true;
  if (text.empty()) text = WithoutBlanks(rest_, kBlanksAndEnds);
  return WithoutBlanks(text, kBlanksAndEnds).starts_with('"');
}

PbnGames::Tag PbnGames::ReadTag() {
  Tag tag;
  tag.line = number_;
  tag.source = line_;
  left_.remove_prefix(1);
  PassOverBlanks();
  while (left_.empty()) {
    NextLine();
    PassOverBlanks();
  }
  tag.name = NameAt(left_);
  tag.known = TagOf(tag.name);
  left_.remove_prefix(tag.name.size());
  PassOverBlanks();
  while (left_.empty() && !rest_.empty()) {
    NextLine();
    PassOverBlanks();
  }
  tag.value = ReadValue();
  PassOverBlanks();
  if (left_.empty() && WithoutBlanks(rest_, kBlanksAndEnds).starts_with(']')) {
    while (left_.empty()) {
      NextLine();
      PassOverBlanks();
    }
  }
  if (left_.starts_with(']')) left_.remove_prefix(1);
  return tag;
}

/// Leaves `left_` after the value and its quote. Where the second quote is missing the value
/// reaches to the bracket that ends the line, where there are none at all to the first bracket.
std::string_view PbnGames::ReadValue() {
  std::string_view value = left_;
  if (!left_.starts_with('"')) {
    value = left_.substr(0, left_.find(']'));
    left_.remove_prefix(value.size());
    return Trim(value);
  }
  value.remove_prefix(1);
  if (const auto end = EndOfValue(value); end != kEnd) {
    left_ = value.substr(end + 1);
    return value.substr(0, end);
  }
  left_ = {};
  value = Trim(value);
  if (value.ends_with(']')) value.remove_suffix(1);
  if (value.ends_with('"')) value.remove_suffix(1);
  return value;
}

void PbnGames::ReadComment() {
  const char* const begin = left_.data() + 1;
  if (left_.front() == ';') {
    comments_.push_back(left_.substr(1));
    left_ = {};
    return;
  }
  left_.remove_prefix(1);
  const char* end = begin + left_.size();
  auto brace = left_.find('}');
  while (brace == kEnd && !rest_.empty()) {
    std::string_view next = rest_;
    const std::string_view line = TakeLine(next);
    brace = line.find('}');
    if (brace == kEnd && OpensWithTag(line)) break;
    rest_ = next;
    ++number_;
    line_ = left_ = line;
    end = line.data() + line.size();
  }
  if (brace != kEnd) end = left_.data() + brace;
  left_ = brace == kEnd ? std::string_view() : left_.substr(brace + 1);
  comments_.emplace_back(begin, static_cast<std::size_t>(end - begin));
}

/// Takes the text up to what else the line holds. Marks in the quoted cells of a table are text.
void PbnGames::ReadPiece(PbnGame& game) {
  const bool quotes = section_ && IsTable(*section_);
  const std::string_view whole = left_;
  std::size_t end = 0;
  for (;;) {
    end = whole.find_first_of(quotes ? "{;[\"" : "{;[", end);
    if (end == kEnd) break;
    left_ = whole.substr(end);
    if (whole[end] == '"') {
      const auto second = whole.find('"', end + 1);
      if (second == kEnd) {
        end = kEnd;
        break;
      }
      end = second + 1;
    } else if (whole[end] != '[' || AtTag()) {
      break;
    } else {
      ++end;
    }
  }
  left_ = end == kEnd ? std::string_view() : whole.substr(end);
  if (section_) game.pieces.push_back({Trim(whole.substr(0, end)), number_});
}

bool PbnGames::BeginsGame(const PbnGame& game, const Tag& tag) const {
  if (place_ == 0) return false;
  if (!tag.known) return others_.contains(ToUpper(tag.name));
  if (*tag.known == PbnTag::Note) return false;
  if (game.Has(*tag.known)) return true;
  const bool whole = game.Has(PbnTag::Deal) || game.Has(PbnTag::Contract) ||
                     game.Has(PbnTag::Result) || game.Has(PbnTag::Auction) ||
                     game.Has(PbnTag::Play);
  return blankLine_ && whole && IsIdentifying(*tag.known);
}

void PbnGames::AddTag(PbnGame& game, const Tag& tag) {
  HandOver(game);
  blankLine_ = false;
  if (place_ == 0) game.line = tag.line;
  if (section_) game.fields[*section_].endPiece = game.pieces.size();
  section_.reset();
  ++place_;
  if (!tag.known) {
    others_.insert(ToUpper(tag.name));
    return;
  }
  if (*tag.known == PbnTag::Note) {
    game.notes.push_back({noted_, tag.value});
    return;
  }
  if (*tag.known == PbnTag::Auction || *tag.known == PbnTag::Play) noted_ = *tag.known;
  if (HasSection(*tag.known)) section_ = tag.known;
  game.fields[*tag.known] = {.given = true,
                             .value = tag.value,
                             .source = tag.source,
                             .line = tag.line,
                             .place = place_,
                             .firstPiece = game.pieces.size(),
                             .endPiece = game.pieces.size()};
}

void PbnGames::HandOver(PbnGame& game) {
  game.comments.insert(game.comments.end(), comments_.begin(), comments_.end());
  comments_.clear();
}

/// PBN standard 2.1 on inheritance: "#" and "##".
void PbnGames::Inherit(PbnGame& game) {
  for (int index = 0; index < kPbnTags; ++index) {
    const auto tag = static_cast<PbnTag>(index);
    PbnField& field = game.fields[tag];
    if (field.given && field.value == "#") {
      field.value = before_[tag].value_or("");
    } else if (field.given && field.value.starts_with("##")) {
      field.value.remove_prefix(2);
      standing_[tag] = field.value;
    } else if (!field.given && standing_[tag]) {
      field.value = *standing_[tag];
      field.given = true;
    }
    before_[tag] = field.given ? std::optional(field.value) : std::nullopt;
  }
}

}  // namespace tricklet
