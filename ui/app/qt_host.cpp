#include "ui/app/qt_host.h"

#include <algorithm>

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

#include "platform/recycle.h"
#include "ui/background/later.h"
#include "ui/dialogs/folder_browser.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(QtHost)
};

/// "Hand Records (*.pbn *.dlm *.xml)".
QString NameFilter(const FileChoice& choice) {
  QStringList patterns;
  for (const std::string& extension : choice.extensions) {
    patterns += QStringLiteral("*.") + ToQt(extension);
  }
  const QString filter =
      QStringLiteral("%1 (%2)").arg(ToQt(choice.description), patterns.join(u' '));
  return choice.anyFile ? filter + QStringLiteral(";;") + Words::tr("All files (*)") : filter;
}

// In heights of a line of text.
constexpr int kFrameButtons = 8;  // what stands beside the title in the frame
constexpr int kMostForTitle = 32;

/// A box is laid out by its texts, and a title that is longer than a short text is cut. To be
/// called last: whatever else is set lays the box out anew.
void MakeRoomForTitle(QMessageBox& box) {
  auto* rows = qobject_cast<QGridLayout*>(box.layout());
  if (rows == nullptr) return;
  QFont bold = box.font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const int title = metrics.horizontalAdvance(box.windowTitle());
  const int width = title + kFrameButtons * metrics.height();
  rows->addItem(new QSpacerItem(std::min(width, kMostForTitle * metrics.height()), 0),
                rows->rowCount(), 0, 1, rows->columnCount());
}

/// Texts can hold names and bytes of foreign files: nothing in them is markup.
void Prepare(QMessageBox& box, const std::string& text, const std::string& title) {
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(ShowableLines(text)));
  box.setWindowTitle(ToQt(ShowableLines(title)));
}

void ShowDetail(QMessageBox& box, const std::string& detail) {
  if (detail.empty()) return;
  box.setInformativeText(ToQt(ShowableLines(detail)));
  // The box has a text format for its first text alone.
  for (QLabel* label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
}

void ShowButtons(QMessageBox& box, Buttons buttons) {
  if (buttons == Buttons::OKCancel) {
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
  } else {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    // The hidden button is what Escape and closing the box mean, as neither of them means "No".
    if (buttons == Buttons::YesNo) box.button(QMessageBox::Cancel)->hide();
  }
  box.setEscapeButton(QMessageBox::Cancel);
}

/// The buttons for these answers, the first that there is.
QAbstractButton* ButtonOf(const QMessageBox& box, QMessageBox::StandardButton one,
                          QMessageBox::StandardButton other) {
  QAbstractButton* const button = box.button(one);
  return button != nullptr ? button : box.button(other);
}

/// Captions that say what the buttons do, each with a letter of its own for the keyboard.
void Caption(const QMessageBox& box, const Question& question) {
  QChar taken;
  const auto caption = [&taken](QAbstractButton* button, const std::string& text) {
    if (button == nullptr || text.empty()) return;
    QString shown = ToQt(ShowableLines(text)).replace(u'&', QStringLiteral("&&"));
    qsizetype at = 0;
    while (at < shown.size() && (!shown[at].isLetter() || shown[at].toLower() == taken)) ++at;
    if (at < shown.size()) {
      taken = shown[at].toLower();
      shown.insert(at, u'&');
    }
    button->setText(shown);
  };
  caption(ButtonOf(box, QMessageBox::Yes, QMessageBox::Ok), question.agree);
  caption(box.button(QMessageBox::No), question.refuse);
}

QMessageBox::StandardButton ButtonFor(Answer answer) {
  switch (answer) {
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::OK:
      return QMessageBox::Ok;
    case Answer::No:
      return QMessageBox::No;
    case Answer::Cancel:
      break;
  }
  return QMessageBox::Cancel;
}

/// Where an answer loses something the icon warns.
QMessageBox::Icon IconOf(const Question& question) {
  if (question.kind == MessageKind::Error) return QMessageBox::Critical;
  return question.safe ? QMessageBox::Warning : QMessageBox::Question;
}

}  // namespace

void QtHost::Attach(QWidget* window, ProgressFrame* progress,
                    std::function<void(const QString&)> say) {
  window_ = window;
  progress_ = progress;
  say_ = std::move(say);
}

QWidget* QtHost::Parent() const {
  QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : window_.data();
}

void QtHost::Tell(const Message& message) {
  if (message.kind == MessageKind::Result && window_ && say_) {
    // Once the command is over, as the window shows its state afresh then.
    QString line = ToQt(ShowableLines(message.text)).replace(u'\n', QStringLiteral("; "));
    Later(window_, [this, text = std::move(line)] { say_(text); });
    return;
  }
  QMessageBox box(Parent());
  Prepare(box, message.text, message.title);
  box.setIcon(message.kind == MessageKind::Error ? QMessageBox::Critical
                                                 : QMessageBox::Information);
  MakeRoomForTitle(box);
  box.exec();
}

Answer QtHost::Ask(const Question& question) {
  QMessageBox box(Parent());
  Prepare(box, question.text, question.title);
  ShowDetail(box, question.detail);
  box.setIcon(IconOf(question));
  ShowButtons(box, question.buttons);
  Caption(box, question);
  if (question.safe) box.setDefaultButton(ButtonFor(*question.safe));
  MakeRoomForTitle(box);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::Ok:
      return Answer::OK;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

void QtHost::Beep() {
  QApplication::beep();
}

std::optional<std::filesystem::path> QtHost::ChooseFolder(const std::string& title,
                                                          const std::filesystem::path& start) {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString usual = QFileInfo(documents).isDir() ? documents : QDir::homePath();
  FolderBrowser browser(Parent(), ToQt(title), start.empty() ? usual : PathToQt(start),
                        start.empty() ? ToQt(kProgramName) : QString());
  if (browser.exec() != QDialog::Accepted) return std::nullopt;
  return PathFromQt(browser.Folder());
}

std::optional<std::filesystem::path> QtHost::ChooseOpenFile(const FileChoice& choice) {
  const QString start = choice.suggested.empty() ? lastFolder_ : PathToQt(choice.suggested);
  const QString file = QFileDialog::getOpenFileName(Parent(), QString(), start, NameFilter(choice));
  if (file.isEmpty()) return std::nullopt;
  lastFolder_ = QFileInfo(file).path();
  return PathFromQt(file);
}

std::vector<std::filesystem::path> QtHost::ChooseOpenFiles(const FileChoice& choice) {
  const QString start = choice.suggested.empty() ? lastFolder_ : PathToQt(choice.suggested);
  const QStringList files =
      QFileDialog::getOpenFileNames(Parent(), QString(), start, NameFilter(choice));
  std::vector<std::filesystem::path> paths;
  for (const QString& file : files) paths.push_back(PathFromQt(file));
  if (!files.isEmpty()) lastFolder_ = QFileInfo(files.constFirst()).path();
  return paths;
}

std::optional<std::filesystem::path> QtHost::ChooseSaveFile(const FileChoice& choice) {
  QFileDialog dialog(Parent());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilter(NameFilter(choice));
  if (!choice.extensions.empty()) dialog.setDefaultSuffix(ToQt(choice.extensions.front()));
  if (!lastFolder_.isEmpty()) dialog.setDirectory(lastFolder_);
  if (!choice.suggested.empty()) dialog.selectFile(PathToQt(choice.suggested));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString file = dialog.selectedFiles().constFirst();
  lastFolder_ = QFileInfo(file).path();
  return PathFromQt(file);
}

bool QtHost::Recycle(const std::filesystem::path& path) {
  return platform::Recycle(path);
}

bool QtHost::OpenUrl(const std::string& address) {
  return QDesktopServices::openUrl(QUrl(ToQt(address)));
}

bool QtHost::Step(const std::string& text, int done, int total) {
  return working_ == nullptr || working_->Step(ToQt(text), done, total);
}

void QtHost::BeginWork() {
  if (works_++ == 0) working_ = ProgressFrame::InFront(progress_);
  if (working_ != nullptr) working_->Begin();
}

void QtHost::EndWork() {
  if (working_ != nullptr) working_->End();
  if (--works_ == 0) working_ = nullptr;
}

void QtHost::EndProgram() {
  ended_ = true;
  // Not quit(), which would ask every window whether it may be closed.
  Later(qApp, [] { QCoreApplication::exit(0); });
}

}  // namespace tricklet::ui
