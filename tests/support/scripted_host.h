// A host that follows a script: every message and question must be expected, in order.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/host.h"

namespace tricklet::test {

/// Fails the test on a message or question that the script does not hold, on an answer that the
/// question does not offer (Cancel stands for none), and when it is destroyed with some of the
/// script left over.
class ScriptedHost : public Host {
 public:
  ~ScriptedHost() override {
    EXPECT_TRUE(script_.empty()) << "expected but not shown: " << script_.front().text;
    EXPECT_TRUE(choices_.empty()) << "a choice was never asked for";
  }

  /// The next message is exactly this.
  void ExpectTell(std::string text) { script_.push_back({std::move(text), {}, {}}); }
  /// The next message contains `part`.
  void ExpectTellWith(std::string part) { script_.push_back({std::move(part), {}, {}, true}); }
  /// The next question is exactly this, and is answered so.
  void ExpectAsk(std::string text, std::string title, Answer answer) {
    script_.push_back({std::move(text), std::move(title), answer});
  }
  /// The next question contains `part`, and is answered so.
  void ExpectAskWith(std::string part, Answer answer) {
    script_.push_back({std::move(part), {}, answer, true});
  }
  /// All that was expected has been shown.
  bool Done() const { return script_.empty(); }
  /// The next chooser's result.
  void Choose(std::optional<std::filesystem::path> path) { choices_.push_back(std::move(path)); }

  using Host::Ask;
  using Host::Tell;
  void Tell(const Message& message) override {
    const auto expected = Next(script_, message.text);
    EXPECT_FALSE(expected.answer) << "a message where a question was expected: " << message.text;
    Match(expected, message.text);
  }
  Answer Ask(const Question& question) override {
    asked = question;
    const std::string& text = question.text;
    const auto expected = Next(script_, text);
    if (onAsk) onAsk();
    Match(expected, text);
    if (!expected.title.empty()) {
      EXPECT_EQ(question.title, expected.title);
    }
    const Answer answer = expected.answer.value_or(Answer::Cancel);
    EXPECT_TRUE(expected.answer) << "a question where a message was expected: " << text;
    EXPECT_TRUE(Offers(question.buttons, answer)) << "no button for the scripted answer: " << text;
    const Answer byEnter = question.safe.value_or(answer);
    EXPECT_TRUE(Offers(question.buttons, byEnter)) << "no button for the safe answer: " << text;
    return answer;
  }
  void Beep() override { ++beeps; }
  std::optional<std::filesystem::path> ChooseFolder(const std::string& title,
                                                    const std::filesystem::path& start) override {
    folderTitle = title;
    folderStart = start;
    return Next(choices_, title);
  }
  std::optional<std::filesystem::path> ChooseOpenFile(const FileChoice& choice) override {
    return Next(choices_, choice.description);
  }
  /// The next choice, if it is one.
  std::vector<std::filesystem::path> ChooseOpenFiles(const FileChoice& choice) override {
    const auto path = Next(choices_, choice.description);
    return path ? std::vector{*path} : std::vector<std::filesystem::path>();
  }
  std::optional<std::filesystem::path> ChooseSaveFile(const FileChoice& choice) override {
    suggested = choice.suggested;
    return Next(choices_, choice.description);
  }
  /// Moves what is recycled out of the way, as a recycle bin does.
  bool Recycle(const std::filesystem::path& path) override {
    if (!hasRecycleBin) return false;
    const std::string replacedBy = UndatedName(path.filename().string());
    if (replacedBy.empty()) {
      recycled.push_back(path.filename().string());
    } else {
      replaced.push_back(replacedBy + ":" + NamesIn(path));
    }
    std::error_code failure;
    std::filesystem::remove_all(path, failure);
    return !failure;
  }
  bool OpenUrl(const std::string& address) override {
    opened.push_back(address);
    return true;
  }
  bool Step(const std::string& text, int /*done*/, int /*total*/) override {
    steps.push_back(text);
    if (onStep) onStep();
    return static_cast<int>(steps.size()) != cancelAtStep;
  }
  void BeginWork() override { ++working; }
  void EndWork() override { --working; }
  void EndProgram() override { ended = true; }

  int beeps = 0;
  int working = 0;
  bool ended = false;
  bool hasRecycleBin = true;
  int cancelAtStep = 0;  ///< the step (from 1) at which the person cancels
  std::function<void()> onStep;
  std::function<void()> onAsk;
  Question asked;  ///< the last one
  std::vector<std::string> steps;
  std::vector<std::string> recycled;
  std::vector<std::string> replaced;  ///< "Club before import: 001.txt 002.txt", likewise recycled
  std::vector<std::string> opened;
  std::filesystem::path suggested;
  std::string folderTitle;
  std::filesystem::path folderStart;

 private:
  /// "Club before import" of a folder of replaced boards; empty when it is none.
  static std::string UndatedName(const std::string& name) {
    constexpr std::size_t kDate = std::string_view(" 2026-11-22 10.31").size();
    const auto end = name.find(" before ");
    if (end == std::string::npos || end < kDate) return {};
    return name.substr(0, end - kDate) + name.substr(end);
  }
  static std::string NamesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      names.insert(entry.path().filename().string());
    }
    std::string text;
    for (const std::string& name : names) text += " " + name;
    return text;
  }

  struct Expected {
    std::string text;
    std::string title;
    std::optional<Answer> answer;
    bool part = false;
  };

  static bool Offers(Buttons buttons, Answer answer) {
    if (answer == Answer::OK) return buttons == Buttons::OKCancel;
    if (answer == Answer::Cancel) return true;
    return buttons != Buttons::OKCancel;
  }
  /// The first of what is left of a script, or an empty one and a failure.
  template <class Item>
  static Item Next(std::deque<Item>& script, const std::string& shown) {
    EXPECT_FALSE(script.empty()) << "not expected: " << shown;
    if (script.empty()) return {};
    Item next = std::move(script.front());
    script.pop_front();
    return next;
  }
  static void Match(const Expected& expected, const std::string& shown) {
    if (expected.part) {
      EXPECT_NE(shown.find(expected.text), std::string::npos) << shown;
    } else {
      EXPECT_EQ(shown, expected.text);
    }
  }

  std::deque<Expected> script_;
  std::deque<std::optional<std::filesystem::path>> choices_;
};

}  // namespace tricklet::test
