// `Host` on a console: messages and questions on standard error, answers from the terminal.
#pragma once

#include <atomic>
#include <chrono>
#include <iosfwd>
#include <optional>

#include "core/host.h"

namespace tricklet::cli {

struct ConsoleOptions {
  std::optional<bool> answer;  ///< --yes or --no: the answer to every question
  bool quiet = false;          ///< no progress bar
  bool terminal = false;       ///< a person sits at the other end
};

class ConsoleHost : public Host {
 public:
  /// `interrupted`: Ctrl-C was pressed; cancels the work that is under way.
  ConsoleHost(std::istream& in, std::ostream& messages, const ConsoleOptions& options,
              const std::atomic<bool>& interrupted)
      : in_(in), messages_(messages), options_(options), interrupted_(interrupted) {}

  using Host::Ask;
  using Host::Tell;
  void Tell(const Message& message) override;
  Answer Ask(const Question& question) override;
  void Beep() override;
  std::optional<std::filesystem::path> ChooseFolder(const std::string& title,
                                                    const std::filesystem::path& start) override;
  std::optional<std::filesystem::path> ChooseOpenFile(const FileChoice& choice) override;
  std::vector<std::filesystem::path> ChooseOpenFiles(const FileChoice& choice) override;
  std::optional<std::filesystem::path> ChooseSaveFile(const FileChoice& choice) override;
  bool Recycle(const std::filesystem::path& path) override;
  bool OpenUrl(const std::string& address) override;
  bool Step(const std::string& text, int done, int total) override;
  void BeginWork() override {}
  void EndWork() override;
  void FailureReported() override { failed_ = true; }
  void EndProgram() override { ended_ = true; }

  /// The program is to end: no further command is carried out.
  bool Ended() const { return ended_; }
  /// A failure has been reported: the command has not been carried out in full.
  bool Failed() const { return failed_; }

 private:
  std::istream& in_;
  std::ostream& messages_;
  ConsoleOptions options_;
  const std::atomic<bool>& interrupted_;
  std::chrono::steady_clock::time_point lastDrawn_;
  bool barShown_ = false;
  bool ended_ = false;
  bool failed_ = false;
};

}  // namespace tricklet::cli
