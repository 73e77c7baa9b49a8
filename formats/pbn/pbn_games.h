// A PBN text cut into its games: tags, the lines of their sections, notes and comments.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "formats/pbn/pbn_scanner.h"
#include "formats/pbn/pbn_tags.h"

namespace tricklet {

/// A line of a section, or a part of one that comments divide; without blanks at both ends. A line
/// that is empty in the file is one with an empty text.
struct PbnPiece {
  std::string_view text;
  int line = 0;  ///< the first line of the file being 1
};

/// What a game says of one tag.
struct PbnField {
  bool given = false;       ///< by the game itself, or handed on by the games before it
  std::string_view value;   ///< with its escapes
  std::string_view source;  ///< the line that holds the tag; what was handed on, where none does
  int line = 0;             ///< of the file, the first being 1; the game's where it was handed on
  int place = 0;            ///< among the game's tags, the first being 1; 0: not among them
  std::size_t firstPiece = 0;
  std::size_t endPiece = 0;  ///< past the last of its section's pieces
};

/// A note of an auction ("1:text"), of a play, or of neither.
struct PbnNote {
  PbnTag section = PbnTag::Note;  ///< `Auction`, `Play` or `Note`
  std::string_view text;
};

/// One game. Its texts are parts of the text that it was cut from.
struct PbnGame {
  int line = 0;  ///< where it begins, the first line of the file being 1
  PerPbnTag<PbnField> fields;
  std::vector<PbnPiece> pieces;
  std::vector<PbnNote> notes;
  std::vector<std::string_view> comments;  ///< without the marks around them

  bool Has(PbnTag tag) const { return fields[tag].given; }
  /// The value without its escapes and the blanks around it; empty where it is unknown: "?", "-".
  std::string Value(PbnTag tag) const;
};

/// Cuts a text into games. A new one begins with a tag that the game has already (a note apart),
/// and with an identifying tag that follows an empty line when the game has a deal or a result.
/// Time and memory are linear in the text.
class PbnGames {
 public:
  /// `text` is UTF-8, without a byte order mark.
  explicit PbnGames(std::string_view text) : scanner_(text) {}

  /// Puts the next game into `game`; false when there is none. A value "#" has become that of the
  /// game before, and the value of an earlier "##..." stands where a later game has no such tag;
  /// values of more than 1,000 bytes are not handed on.
  bool Next(PbnGame& game);

  /// "2.1", of the first "% PBN 2.1" line so far; empty where there was none.
  const std::string& Version() const { return scanner_.Version(); }

 private:
  void Clear(PbnGame& game);
  bool BeginsGame(const PbnGame& game, const PbnTagText& tag) const;
  void AddTag(PbnGame& game, const PbnTagText& tag);
  void EndSection(PbnGame& game);
  void HandOver(PbnGame& game);
  void Inherit(PbnGame& game);

  PbnScanner scanner_;
  bool emptyLine_ = false;                  // one has come since the last tag
  std::optional<PbnTagText> pending_;       // the first tag of the next game
  std::vector<std::string_view> comments_;  // since the last tag or empty line
  std::optional<PbnTag> section_;           // that the current lines belong to
  PbnTag noted_ = PbnTag::Note;             // the section that notes belong to
  int place_ = 0;                           // how many tags the game has
  std::unordered_set<std::string> others_;  // tags of the game that are not read
  PerPbnTag<std::optional<std::string_view>> before_;
  PerPbnTag<std::optional<std::string_view>> standing_;
};

}  // namespace tricklet
