#include "formats/pbn/pbn_games.h"

#include <utility>

#include "core/text.h"

namespace tricklet {

std::string PbnGame::Value(PbnTag tag) const {
  const std::string_view value = fields[tag].value;
  if (IsUnknownPbn(value)) return {};
  std::string text = PbnText(value);
  return IsUnknownPbn(text) ? "" : text;
}

bool PbnGames::Next(PbnGame& game) {
  using Item = PbnScanner::Item;
  Clear(game);
  if (const auto first = std::exchange(pending_, std::nullopt)) AddTag(game, *first);
  while (!pending_) {
    const Item item = scanner_.Next();
    if (item == Item::End) break;
    if (item == Item::Comment) {
      comments_.push_back(scanner_.Text());
    } else if (item == Item::Text) {
      if (section_) game.pieces.push_back({scanner_.Text(), scanner_.Line()});
    } else if (item == Item::EmptyLine) {
      emptyLine_ = true;
      HandOver(game);
      if (section_) game.pieces.push_back({{}, scanner_.Line()});
    } else if (BeginsGame(game, scanner_.Tag())) {
      pending_ = scanner_.Tag();
    } else {
      AddTag(game, scanner_.Tag());
    }
  }
  // A comment right before the first tag of a game is that game's, if an empty line divides it
  // from the game before.
  if (!pending_ || !emptyLine_) HandOver(game);
  EndSection(game);
  if (place_ == 0) return false;
  Inherit(game);
  return true;
}

void PbnGames::Clear(PbnGame& game) {
  game.line = 0;
  game.fields.fill({});
  game.pieces.clear();
  game.notes.clear();
  game.comments.clear();
  others_.clear();
  noted_ = PbnTag::Note;
  place_ = 0;
}

bool PbnGames::BeginsGame(const PbnGame& game, const PbnTagText& tag) const {
  if (place_ == 0) return false;
  if (!tag.known) return others_.contains(ToUpper(tag.name));
  if (*tag.known == PbnTag::Note) return false;
  if (game.Has(*tag.known)) return true;
  const bool whole = game.Has(PbnTag::Deal) || game.Has(PbnTag::Contract) ||
                     game.Has(PbnTag::Result) || game.Has(PbnTag::Auction) ||
                     game.Has(PbnTag::Play);
  return emptyLine_ && whole && *tag.known <= PbnTag::Deal;
}

void PbnGames::AddTag(PbnGame& game, const PbnTagText& tag) {
  HandOver(game);
  EndSection(game);
  emptyLine_ = false;
  if (place_ == 0) game.line = tag.line;
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
  if (HasPbnSection(*tag.known)) section_ = tag.known;
  scanner_.SetQuotes(IsPbnTable(*tag.known));
  game.fields[*tag.known] = {.given = true,
                             .value = tag.value,
                             .source = tag.source,
                             .line = tag.line,
                             .place = place_,
                             .firstPiece = game.pieces.size(),
                             .endPiece = game.pieces.size()};
}

void PbnGames::EndSection(PbnGame& game) {
  if (section_) game.fields[*section_].endPiece = game.pieces.size();
  section_.reset();
  scanner_.SetQuotes(false);
}

void PbnGames::HandOver(PbnGame& game) {
  game.comments.insert(game.comments.end(), comments_.begin(), comments_.end());
  comments_.clear();
}

/// PBN standard 2.1 on inheritance: "#" and "##".
void PbnGames::Inherit(PbnGame& game) {
  constexpr std::size_t kLongest = 1000;  // each game after it has to read the value again
  for (int index = 0; index < kPbnTags; ++index) {
    const auto tag = static_cast<PbnTag>(index);
    PbnField& field = game.fields[tag];
    std::optional<std::string_view>& standing = standing_[tag];
    const bool canPass = field.value.size() <= kLongest;
    if (field.given && field.value == "#") {
      field.value = before_[tag].value_or("");
    } else if (field.given && field.value.starts_with("##")) {
      field.value.remove_prefix(2);
      standing = canPass ? std::optional(field.value) : std::nullopt;
    } else if (!field.given && standing) {
      field.value = *standing;
      field.source = *standing;
      field.line = game.line;
      field.given = true;
    }
    before_[tag] = field.given && canPass ? std::optional(field.value) : std::nullopt;
  }
}

}  // namespace tricklet
