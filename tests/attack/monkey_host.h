// A host who answers as they please.
#pragma once

#include <functional>
#include <random>
#include <string>

#include "core/host.h"
#include "tests/support/library_fixture.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"

namespace tricklet::test {

/// Chooses files and folders under `top` alone, where "bin" is the recycle bin.
class MonkeyHost : public Host {
 public:
  MonkeyHost(std::filesystem::path top, std::mt19937& random)
      : top_(std::move(top)), random_(random) {}

  using Host::Ask;
  using Host::Tell;
  void Tell(const Message& message) override { Note("told", message.text); }
  Answer Ask(const Question& question) override {
    const std::string& text = question.text;
    static constexpr Answer kAnswers[] = {Answer::Yes, Answer::No, Answer::Cancel};
    Answer answer = kAnswers[random_() % 3];
    if (question.buttons == Buttons::OKCancel && answer != Answer::Cancel) answer = Answer::OK;
    if (text.find("Error no.") != std::string::npos) fault = text;
    const bool agrees = answer == Answer::Yes || answer == Answer::OK;
    agreed = agreed || agrees;
    Note(agrees ? "agreed" : "refused", text);
    return answer;
  }
  void Beep() override {}
  std::optional<std::filesystem::path> ChooseFolder(const std::string& /*title*/,
                                                    const std::filesystem::path& /*at*/) override {
    static const char* const kFolders[] = {"out", "root", "root/Club", "other"};
    return Chosen(kFolders[random_() % std::size(kFolders)]);
  }
  std::optional<std::filesystem::path> ChooseOpenFile(const FileChoice& /*choice*/) override {
    static const char* const kFiles[] = {"three.pbn", "torn.pbn", "none.pbn", "out/x.pbn"};
    return Chosen(kFiles[random_() % std::size(kFiles)]);
  }
  std::vector<std::filesystem::path> ChooseOpenFiles(const FileChoice& choice) override {
    const auto path = ChooseOpenFile(choice);
    return path ? std::vector{*path} : std::vector<std::filesystem::path>();
  }
  std::optional<std::filesystem::path> ChooseSaveFile(const FileChoice& choice) override {
    return Chosen("out/x." + (choice.extensions.empty() ? "pbn" : choice.extensions.front()));
  }
  bool Recycle(const std::filesystem::path& path) override {
    const auto place = top_ / "bin" / std::to_string(++recycled_);
    std::filesystem::create_directories(place);
    std::error_code failure;
    std::filesystem::rename(path, place / path.filename(), failure);
    return !failure;
  }
  bool OpenUrl(const std::string& /*address*/) override { return true; }
  bool Step(const std::string& text, int done, int total) override {
    return progress == nullptr ||
           (progress->Step(ui::ToQt(text), done, total) && random_() % 200 != 0);
  }
  void BeginWork() override {
    if (progress != nullptr) progress->Begin();
  }
  void EndWork() override {
    if (progress != nullptr) progress->End();
  }
  void EndProgram() override {}

  ui::ProgressFrame* progress = nullptr;
  std::function<void(const std::string&)> note;
  bool agreed = false;  ///< to anything since it was last set to false
  std::string fault;    ///< the last one that was reported

 private:
  std::optional<std::filesystem::path> Chosen(const std::string& name) {
    if (random_() % 3 == 0) return std::nullopt;
    agreed = true;
    Note("chose", name);
    return top_ / name;
  }
  void Note(const char* what, const std::string& text) const {
    if (note) note("  " + std::string(what) + ": " + text.substr(0, text.find("\nLine ")));
  }

  std::filesystem::path top_;
  std::mt19937& random_;
  int recycled_ = 0;
};

}  // namespace tricklet::test
