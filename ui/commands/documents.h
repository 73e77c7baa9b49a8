// The documents that are installed with the program.
#pragma once

#include <string>

#include <QObject>
#include <QString>

namespace tricklet {
class Host;
struct Session;
}  // namespace tricklet

namespace tricklet::ui {

/// File names of the manual and of what is new.
inline constexpr const char* kManual = "Tricklet.pdf";
inline constexpr const char* kNewFeatures = "TrickletLatest.pdf";

/// Has the system open a document; a message when it is not installed or cannot be opened.
void OpenDocument(Host& host, const char* fileName);

/// Version, solver, folder of the libraries, licences: a paragraph each.
QString AboutText(const Session& session);

/// Opens the manual at F1 in any dialog, where the window's own keys do not reach. To be installed
/// as an event filter of the application.
class HelpKey : public QObject {
  Q_OBJECT

 public:
  /// `host` is to outlive it.
  explicit HelpKey(Host& host) : host_(host) {}

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  Host& host_;
};

}  // namespace tricklet::ui
