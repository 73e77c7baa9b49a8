// A PBN text cut into its games: tags, the lines of their sections, notes and comments.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "core/notation.h"

namespace tricklet {

/// The tags that are read.
enum class PbnTag : std::uint8_t {
  Event,
  Site,
  Date,
  Board,
  West,
  North,
  East,
  South,
  Dealer,
  Vulnerable,
  Deal,
  Scoring,
  Declarer,
  Contract,
  Result,
  Score,
  ScoreImp,
  ScoreMp,
  ScorePercentage,
  Room,
  HomeTeam,
  VisitTeam,
  Competition,
  Auction,
  Play,
  OptimumResultTable,
  DoubleDummyTricks,
  ScoreTable,
  TotalScoreTable,
  Note
};
inline constexpr int kPbnTags = IndexOf(PbnTag::Note) + 1;
template <class Value>
using PerPbnTag = EnumArray<PbnTag, Value, kPbnTags>;

/// A line of a section, or a part of one that comments divide; without blanks at both ends. A line
/// that is empty in the file is one with an empty text.
struct PbnPiece {
  std::string_view text;
  int line = 0;  ///< the first line of the file being 1
};

/// What a game says of one tag.
struct PbnField {
  bool given = false;       ///< the tag stands in the game itself
  std::string_view value;   ///< as it stands, or as the games before it hand it on
  std::string_view source;  ///< the line that holds the tag
  int line = 0;             ///< of the file, the first being 1
  int place = 0;            ///< among the game's tags, the first being 1; 0: not given
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

/// `value` without its escapes ("\"" and "\\") and the blanks around it.
std::string PbnText(std::string_view value);

/// "?", "-", or nothing at all.
bool IsUnknownPbn(std::string_view value);

/// Cuts a text into games. A new one begins with a tag that the game has already (a note apart),
/// and with an identifying tag that follows an empty line when the game has a deal or a result. A
/// line that begins with "%" says nothing, unless it stands in a comment. Lines end in CR LF, CR
/// or LF; time and memory are linear in the text.
class PbnGames {
 public:
  /// `text` is UTF-8, without a byte order mark.
  explicit PbnGames(std::string_view text) : rest_(text) {}

  /// Puts the next game into `game`; false when there is none. A value "#" has become that of the
  /// game before, and the value of an earlier "##..." stands where a later game has no such tag.
  bool Next(PbnGame& game);

  /// "2.1", of the first "% PBN 2.1" line so far; empty where there was none.
  const std::string& Version() const { return version_; }

 private:
  struct Tag {
    std::optional<PbnTag> known;
    std::string_view name;
    std::string_view value;
    std::string_view source;
    int line = 0;
  };

  void NextLine();
  void PassOverBlanks();
  void NoteVersion(std::string_view line);
  bool AtTag() const;
  Tag ReadTag();
  std::string_view ReadValue();
  void ReadComment();
  void ReadPiece(PbnGame& game);
  bool BeginsGame(const PbnGame& game, const Tag& tag) const;
  void AddTag(PbnGame& game, const Tag& tag);
  void HandOver(PbnGame& game);
  void Inherit(PbnGame& game);

  std::string_view rest_;  // the lines after the current one
  std::string_view line_;  // the whole of the current line
  std::string_view left_;  // what is left of it
  int number_ = 0;
  std::string version_;
  bool blankLine_ = false;  // an empty line has come since the last tag
  std::optional<Tag> pending_;
  std::vector<std::string_view> comments_;  // since the last tag or empty line
  std::optional<PbnTag> section_;           // that the current lines belong to
  PbnTag noted_ = PbnTag::Note;             // the section that notes belong to
  int place_ = 0;
  std::unordered_set<std::string> others_;  // tags of the game that are not read
  PerPbnTag<std::optional<std::string_view>> before_;
  PerPbnTag<std::optional<std::string_view>> standing_;
};

}  // namespace tricklet
