// The one port through which the engine reaches the person and the platform.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tricklet {

inline constexpr std::string_view kProgramName = "Tricklet";

/// What a message or question is about, which the window shows by its icon.
enum class MessageKind {
  Plain,
  Error,  ///< something has failed, or was not done
  Result  ///< what a command has done: the window shows it in its status line, without a box
};

/// Something to be told. Texts are UTF-8; line breaks in them are "\n".
struct Message {
  std::string text;
  std::string title = std::string(kProgramName);
  MessageKind kind = MessageKind::Plain;
};

enum class Buttons { YesNo, YesNoCancel, OKCancel };
enum class Answer { Yes, No, OK, Cancel };

/// A question with these buttons can be answered with Cancel.
constexpr bool OffersCancel(Buttons buttons) {
  return buttons == Buttons::YesNoCancel || buttons == Buttons::OKCancel;
}

/// Something to be asked. Texts are as those of a message.
struct Question {
  std::string text;
  std::string title = std::string(kProgramName);
  Buttons buttons = Buttons::YesNo;
  /// The answer that Enter gives, one of those that `buttons` offers: set wherever another answer
  /// overwrites or loses something. Unset, it is the first button.
  std::optional<Answer> safe = std::nullopt;
  /// What another answer than the safe one would lose, in whole sentences; may be empty.
  std::string detail = {};
  /// What the buttons for Yes or OK, and for No, say instead of those words. Empty: those words.
  std::string agree = {};
  std::string refuse = {};
  MessageKind kind = MessageKind::Plain;
};

/// What a file chooser offers.
struct FileChoice {
  std::string description;              ///< "Hand Records"
  std::vector<std::string> extensions;  ///< without the dot
  std::filesystem::path suggested;      ///< file or folder to begin with; may be empty
  bool anyFile = false;                 ///< files of other extensions are offered too
};

/// A window, a console or a test script.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  virtual void Tell(const Message& message) = 0;
  void Tell(const std::string& text) { Tell(Message{text}); }
  /// Something has failed, or was not done.
  void TellError(const std::string& text) {
    Tell(Message{.text = text, .kind = MessageKind::Error});
  }

  /// What a command has done.
  void TellResult(const std::string& text) {
    Tell(Message{.text = text, .kind = MessageKind::Result});
  }

  /// One of the answers that the question's buttons offer. Cancel too, whatever they offer, when
  /// nobody answered: the question was closed or abandoned, or there is nobody to ask. No always
  /// means that somebody said No.
  virtual Answer Ask(const Question& question) = 0;
  Answer Ask(const std::string& text, const std::string& title, Buttons buttons) {
    return Ask(Question{.text = text, .title = title, .buttons = buttons});
  }

  virtual void Beep() = 0;

  /// Nothing when the person chooses none.
  virtual std::optional<std::filesystem::path> ChooseFolder(const std::string& title,
                                                            const std::filesystem::path& start) = 0;
  virtual std::optional<std::filesystem::path> ChooseOpenFile(const FileChoice& choice) = 0;
  /// Several files at once; none when the person chooses none.
  virtual std::vector<std::filesystem::path> ChooseOpenFiles(const FileChoice& choice) = 0;
  virtual std::optional<std::filesystem::path> ChooseSaveFile(const FileChoice& choice) = 0;

  /// Sends a file or folder to the recycle bin; false when that could not be done, and then it is
  /// still in its place. Nothing is ever deleted for good.
  virtual bool Recycle(const std::filesystem::path& path) = 0;

  virtual bool OpenUrl(const std::string& address) = 0;

  /// One step of long work: shows `text` and `done` of `total` (0: not known) and lets pending
  /// events run. False when the person has cancelled the work.
  virtual bool Step(const std::string& text, int done, int total) = 0;
  /// The beginning and the end of long work: the progress display appears, and goes.
  virtual void BeginWork() = 0;
  virtual void EndWork() = 0;

  /// A failure has been reported to the person: what is under way has not been done in full.
  virtual void FailureReported() {}
  /// Ends the program as soon as the running procedure has returned.
  virtual void EndProgram() = 0;
};

/// Keeps the progress display up for as long as it lives, whichever way the work ends.
class WorkScope {
 public:
  explicit WorkScope(Host& host) : host_(host) { host_.BeginWork(); }
  ~WorkScope() { host_.EndWork(); }
  WorkScope(const WorkScope&) = delete;
  WorkScope& operator=(const WorkScope&) = delete;

 private:
  Host& host_;
};

}  // namespace tricklet
