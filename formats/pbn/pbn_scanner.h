// The marks of PBN: tags, comments, and the text between them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formats/pbn/pbn_tags.h"

namespace tricklet {

/// A tag as it stands in the text.
struct PbnTagText {
  std::optional<PbnTag> known;  ///< nothing for a tag that is not read
  std::string_view name;
  std::string_view value;   ///< with its escapes
  std::string_view source;  ///< the line that it begins in
  int line = 0;             ///< of the text, the first being 1
};

/// Goes through a text from mark to mark. Lines end in CR LF, CR or LF. A line that begins with "%"
/// says nothing, unless it stands in a comment. A tag may lack its quotes and its brackets, as long
/// as it opens its line. A comment without an end ends where a line opens with a tag. What is
/// handed out are parts of the text; time is linear in it.
class PbnScanner {
 public:
  enum class Item : std::uint8_t { End, EmptyLine, Tag, Comment, Text };

  /// `text` is UTF-8, without a byte order mark.
  explicit PbnScanner(std::string_view text) : rest_(text) {}

  /// Moves to the next item.
  Item Next();

  /// Of the item `Tag`.
  const PbnTagText& Tag() const { return tag_; }
  /// Of the item `Comment` without the marks around it; of the item `Text` without blanks, at most
  /// one line.
  std::string_view Text() const { return text_; }
  /// Of the current item, where it ends.
  int Line() const { return number_; }

  /// From now on marks between quotes are text, as in the cells of a table, or are not.
  void SetQuotes(bool quotes) { quotes_ = quotes; }

  /// "2.1", of the first "% PBN 2.1" line so far; empty where there was none.
  const std::string& Version() const { return version_; }

 private:
  void NextLine();
  void PassOverBlanks();
  void PassOverLines();
  void NoteVersion(std::string_view line);
  bool AtTag() const;
  void ReadTag();
  std::string_view ReadValue();
  void ReadComment();
  void ReadText();

  std::string_view rest_;          // the lines after the current one
  std::string_view line_;          // the whole of the current line
  std::string_view left_;          // what is left of it
  const char* opening_ = nullptr;  // its first character that is no blank, outside comments
  int number_ = 0;
  bool quotes_ = false;
  PbnTagText tag_;
  std::string_view text_;
  std::string version_;
};

}  // namespace tricklet
