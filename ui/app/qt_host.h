// The window's side of the Host port.
#pragma once

#include <functional>

#include <QPointer>

#include "core/host.h"
#include "ui/style/progress_frame.h"

namespace tricklet::ui {

/// Asks by message boxes and file dialogs. Works without a window too; then no progress is shown.
class QtHost : public Host {
 public:
  /// Dialogs stand over `window` from now on, progress shows in `progress`, and `say` shows the
  /// results of commands, a line each.
  void Attach(QWidget* window, ProgressFrame* progress, std::function<void(const QString&)> say);

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
  void BeginWork() override;
  void EndWork() override;
  void EndProgram() override;

  /// True once `EndProgram` has been called: an event loop should then not be started.
  bool HasEnded() const { return ended_; }

 private:
  /// What a new dialog stands over: the dialog in front, or else the window.
  QWidget* Parent() const;

  QPointer<QWidget> window_;
  QPointer<ProgressFrame> progress_;
  QPointer<ProgressFrame> working_;  // where the work that is under way shows
  int works_ = 0;                    // begun and not ended
  std::function<void(const QString&)> say_;
  QString lastFolder_;  // where the file choosers begin when nothing is suggested
  bool ended_ = false;
};

}  // namespace tricklet::ui
