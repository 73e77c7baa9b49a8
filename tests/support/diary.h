// A host that writes down what it is told and asked.
#pragma once

#include <string>

#include "tests/support/scripted_host.h"

namespace tricklet::test {

/// Agrees to everything; to overwriting without a note.
class Diary : public ScriptedHost {
 public:
  using Host::Ask;
  using Host::Tell;
  void Tell(const Message& message) override { said += message.text + "\n"; }
  Answer Ask(const Question& question) override {
    const std::string& text = question.text;
    // Of a fault without the line of the source that found it.
    if (!text.starts_with("Overwrite")) said += "? " + text.substr(0, text.find("\nLine ")) + "\n";
    return Answer::Yes;
  }
  /// `from` stands as `to` in what was said.
  void Shorten(const std::string& from, const std::string& to) {
    for (auto at = said.find(from); at != std::string::npos; at = said.find(from)) {
      said.replace(at, from.size(), to);
    }
  }
  std::string said;  ///< a line each, or more where a text has more; questions after "? "
};

}  // namespace tricklet::test
