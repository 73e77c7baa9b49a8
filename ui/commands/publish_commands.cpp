// The command that puts a library on the web.
#include <QUrl>

#include "core/text.h"
#include "library/library_scan.h"
#include "library/unsaved_changes.h"
#include "publish/web/publish_web.h"
#include "ui/commands/commands.h"
#include "ui/dialogs/frmPublish.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Offers to open the page.
void OfferToOpen(Host& host, const std::filesystem::path& page) {
  const QString text =
      Commands::tr("The web page is ready:\n%1\nPut this file and the one beside it on your site.")
          .arg(ToQt(ShownPath(page)));
  const Answer answer = host.Ask({.text = FromQt(text),
                                  .buttons = Buttons::YesNo,
                                  .agree = FromQt(Commands::tr("Open it")),
                                  .refuse = FromQt(Commands::tr("Close"))});
  if (answer != Answer::Yes) return;
  const QUrl address = QUrl::fromLocalFile(ToQt(PathText(page)));
  if (!host.OpenUrl(FromQt(address.toString()))) {
    host.TellError(
        FromQt(Commands::tr("The page could not be opened:\n%1").arg(ToQt(ShownPath(page)))));
  }
}

}  // namespace

void Commands::Publish() {
  emit Dealing(true);
  LeaveUnsaved([this] {
    if (!SettleChanges(session_)) return;
    CountHands(session_);
    if (session_.library.boardCount == 0) {
      session_.host.TellError(kNothingToPublish);
      return;
    }
    PublishBoards(ProposedPublish(session_), window_);
  });
  emit Dealing(false);
}

void Commands::PublishBoards(const PublishChoices& proposed, QWidget* over) {
  frmPublish dialog(session_, proposed, over);
  if (dialog.exec() != QDialog::Accepted) return;
  RememberPublish(session_, dialog.Choices());
  if (const auto page = PublishWebPage(session_, dialog.Choices()))
    OfferToOpen(session_.host, *page);
}

}  // namespace tricklet::ui
