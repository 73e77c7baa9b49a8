// Lists written as one text.
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace tricklet::test {

/// The words of a text, which blanks separate.
inline std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

/// Those of the words that `holds` (of a C string) accepts, again as one text.
template <class Holds>
std::string WordsWhere(const std::string& text, const Holds& holds) {
  std::string chosen;
  for (const std::string& word : Words(text)) {
    if (holds(word.c_str())) chosen += (chosen.empty() ? "" : " ") + word;
  }
  return chosen;
}

}  // namespace tricklet::test
