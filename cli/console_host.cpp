#include "cli/console_host.h"

#include <algorithm>
#include <istream>
#include <ostream>
#include <string>

#include "core/text.h"
#include "platform/recycle.h"

namespace tricklet::cli {
namespace {

/// "y", and what the answer does where that has been said. The safe answer is the capital.
std::string Choice(char letter, const std::string& caption, bool safe) {
  const std::string shown(1, safe ? ToUpper(letter) : letter);
  return caption.empty() ? shown : shown + ": " + ShowableLines(caption);
}

/// "[y/N/c]", or "[y: Replace board 7 / N: Keep it]".
std::string Choices(const Question& question) {
  const auto safe = [&](Answer answer) { return question.safe == answer; };
  const std::string slash = question.agree.empty() && question.refuse.empty() ? "/" : " / ";
  std::string text = " [";
  if (question.buttons == Buttons::OKCancel) {
    text += Choice('o', question.agree, safe(Answer::OK));
  } else {
    text += Choice('y', question.agree, safe(Answer::Yes)) + slash +
            Choice('n', question.refuse, safe(Answer::No));
  }
  if (OffersCancel(question.buttons)) text += slash + Choice('c', "", safe(Answer::Cancel));
  return text + "] ";
}

/// The answer that a typed line means, an empty one the safe answer; nothing when it means none.
std::optional<Answer> FromLine(const std::string& line, const Question& question) {
  if (line.empty()) return question.safe;
  const Buttons buttons = question.buttons;
  const char c = line.empty() ? ' ' : line[0];
  const bool yesNo = buttons != Buttons::OKCancel;
  if (yesNo && (c == 'y' || c == 'Y')) return Answer::Yes;
  if (yesNo && (c == 'n' || c == 'N')) return Answer::No;
  if (!yesNo && (c == 'o' || c == 'O' || c == 'y' || c == 'Y')) return Answer::OK;
  if (OffersCancel(buttons) && (c == 'c' || c == 'C')) return Answer::Cancel;
  return std::nullopt;
}

Answer FromOption(bool yes, Buttons buttons) {
  if (buttons == Buttons::OKCancel) return yes ? Answer::OK : Answer::Cancel;
  return yes ? Answer::Yes : Answer::No;
}

}  // namespace

void ConsoleHost::Tell(const Message& message) {
  EndWork();
  messages_ << ShowableLines(message.text) << '\n';
}

Answer ConsoleHost::Ask(const Question& question) {
  EndWork();
  messages_ << ShowableLines(question.text);
  if (!question.detail.empty()) messages_ << '\n' << ShowableLines(question.detail);
  if (options_.answer) {
    messages_ << (*options_.answer ? " yes\n" : " no\n");
    return FromOption(*options_.answer, question.buttons);
  }
  if (!options_.terminal) {
    messages_ << " no answer (--yes or --no gives one)\n";
    return Answer::Cancel;
  }
  std::string line;
  for (;;) {
    messages_ << Choices(question) << std::flush;
    if (!std::getline(in_, line)) {
      messages_ << '\n';
      return Answer::Cancel;
    }
    if (const auto answer = FromLine(line, question)) return *answer;
  }
}

void ConsoleHost::Beep() {
  if (options_.terminal) messages_ << '\a';
}

// Paths are named in the arguments: a console has nobody to choose them.
std::optional<std::filesystem::path> ConsoleHost::ChooseFolder(
    const std::string& /*title*/, const std::filesystem::path& /*start*/) {
  return std::nullopt;
}
std::optional<std::filesystem::path> ConsoleHost::ChooseOpenFile(const FileChoice& /*choice*/) {
  return std::nullopt;
}
std::vector<std::filesystem::path> ConsoleHost::ChooseOpenFiles(const FileChoice& /*choice*/) {
  return {};
}
std::optional<std::filesystem::path> ConsoleHost::ChooseSaveFile(const FileChoice& /*choice*/) {
  return std::nullopt;
}

bool ConsoleHost::Recycle(const std::filesystem::path& path) {
  return platform::Recycle(path);
}

bool ConsoleHost::OpenUrl(const std::string& address) {
  messages_ << ShowableLines(address) << '\n';
  return true;
}

bool ConsoleHost::Step(const std::string& text, int done, int total) {
  constexpr int kBarWidth = 30;
  constexpr auto kRedrawEvery = std::chrono::milliseconds(50);
  const auto now = std::chrono::steady_clock::now();
  if (options_.terminal && !options_.quiet && total > 0 && now - lastDrawn_ >= kRedrawEvery) {
    lastDrawn_ = now;
    barShown_ = true;
    const int filled = std::clamp(done * kBarWidth / total, 0, kBarWidth);
    messages_ << "\r[" << std::string(static_cast<std::size_t>(filled), '#')
              << std::string(static_cast<std::size_t>(kBarWidth - filled), '.') << "] "
              << ShowableLines(text) << "   " << std::flush;
  }
  return !interrupted_.load();
}

void ConsoleHost::EndWork() {
  if (barShown_) messages_ << "\r\033[K" << std::flush;
  barShown_ = false;
}

}  // namespace tricklet::cli
