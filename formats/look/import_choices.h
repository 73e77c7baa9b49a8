// What a person decides about an import after a look at its file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

namespace tricklet {

/// Under which numbers the deals of a file are stored.
enum class Numbering : std::uint8_t {
  Keep,   ///< their own; a later deal of a number replaces an earlier one
  First,  ///< their own; only the first deal of a number is stored
  Next,   ///< their own; repeated and missing ones get the next free number
  From    ///< from `ImportChoices::from` on, in the order of the file
};

/// What decides who deals and who is vulnerable.
enum class DealerBy : std::uint8_t {
  Number,  ///< the board number, whatever the file says
  File     ///< the file: the deal gets the next number that goes with it
};

/// Instead of a section: every one of the file, each in a new library of its own.
inline constexpr std::size_t kEverySection = static_cast<std::size_t>(-1);

struct ImportChoices {
  Numbering numbers = Numbering::Next;
  int from = 1;  ///< for `Numbering::From`, 1..999
  DealerBy dealer = DealerBy::File;
  /// What cannot be read is left out by itself; else nothing after it is stored.
  bool skipBad = true;
  bool keepResults = true;         ///< results, play and notes come into the library too
  std::size_t section = 0;         ///< which session or section of the file, or `kEverySection`
  std::set<std::size_t> unwanted;  ///< boards that the person left out, as `ImportPlan` counts them
  std::string newLibrary;          ///< the library to make for it; empty: the open one
  friend bool operator==(const ImportChoices&, const ImportChoices&) = default;
};

/// Choices that import a file as if nobody had looked at it.
ImportChoices WithoutALook();
bool IsWithoutALook(const ImportChoices& choices);

}  // namespace tricklet
