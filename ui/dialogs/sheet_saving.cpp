#include "ui/dialogs/sheet_saving.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

namespace fs = std::filesystem;

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(frmPrint)
};

/// Shows the pages as progress, and remembers whether the person has cancelled.
struct PageProgress {
  Session& session;
  QString text;  ///< "Printing page %1 of %2"
  bool cancelled = false;

  PageStep Step() {
    return [this](int page, int pages) {
      cancelled = !session.host.Step(FromQt(text.arg(page + 1).arg(pages)), page, pages);
      return !cancelled;
    };
  }
};

/// True when none of the files is there yet, or they may be replaced.
bool MayReplace(Session& session, const std::vector<fs::path>& files) {
  std::string there;
  int count = 0;
  for (const fs::path& file : files) {
    if (!FileExists(file)) continue;
    if (count++ == 0) there = ShownPath(file);
  }
  if (count == 0) return true;
  const std::string text = count == 1 ? there + " already exists\nDo you want to replace it?"
                                      : std::to_string(count) + " of the pictures already exist, " +
                                            there + " among them\nDo you want to replace them?";
  return session.host.Ask({.text = text,
                           .safe = Answer::No,
                           .agree = count == 1 ? "Replace the file" : "Replace the files",
                           .refuse = "Keep"}) == Answer::Yes;
}

/// Where sheets were saved last, else where the system keeps `kind`, else where people begin.
fs::path FolderFor(const fs::path& last, QStandardPaths::StandardLocation kind) {
  for (const QString& folder : {PathToQt(last), QStandardPaths::writableLocation(kind)}) {
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) return PathFromQt(folder);
  }
  return PathFromQt(QDir::homePath());
}

/// What `save` says; nothing, after a message, when a disk or the like has failed.
template <class Save>
QString Told(Session& session, const Save& save) {
  try {
    return save();
  } catch (const Fault& fault) {
    session.host.TellError(fault.Description());
    return {};
  }
}

}  // namespace

bool AskForPrinter(QPrinter& printer, int pages, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, pages > 1);
  dialog.setMinMax(1, pages);
  return dialog.exec() == QDialog::Accepted;
}

QString SaveAsPdf(Session& session, const Sheets& sheets, fs::path& last) {
  const auto file =
      session.host.ChooseSaveFile({.description = FromQt(Words::tr("PDF documents")),
                                   .extensions = {"pdf"},
                                   .suggested = FolderFor(last, QStandardPaths::DocumentsLocation) /
                                                PathFromText(session.LibraryName() + ".pdf")});
  if (!file) return {};
  last = file->parent_path();
  return Told(session, [&] {
    const WorkScope work(session.host);
    PageProgress progress{session, Words::tr("Saving page %1 of %2")};
    return WritePdf(sheets, *file, progress.Step())
               ? Words::tr("Saved as %1").arg(ToQt(ShownPath(*file)))
               : Words::tr("Cancelled: nothing has been saved");
  });
}

QString SaveAsPictures(Session& session, const Sheets& sheets, PictureFormat format,
                       fs::path& last) {
  const auto folder =
      session.host.ChooseFolder(FromQt(Words::tr("Choose the folder for the pictures")),
                                FolderFor(last, QStandardPaths::PicturesLocation));
  if (!folder) return {};
  last = *folder;
  return Told(session, [&] {
    const std::string name = session.LibraryName();
    const auto files = PicturePaths(sheets, format, *folder, name);
    if (!MayReplace(session, files)) return QString();
    const WorkScope work(session.host);
    PageProgress progress{session, Words::tr("Saving page %1 of %2")};
    if (!WritePictures(sheets, format, *folder, name, progress.Step()))
      return Words::tr("Cancelled: nothing has been saved");
    return Words::tr("Saved in %1: %2 to %3")
        .arg(ToQt(ShownPath(*folder)), ToQt(ShownPath(files.front().filename())),
             ToQt(ShownPath(files.back().filename())));
  });
}

QString SaveAsCsv(Session& session, const QString& name, std::string_view lines, fs::path& last) {
  const auto file =
      session.host.ChooseSaveFile({.description = FromQt(Words::tr("Tables for spreadsheets")),
                                   .extensions = {"csv"},
                                   .suggested = last / PathFromQt(name)});
  if (!file) return {};
  last = file->parent_path();
  try {
    ReplaceWholeFile(*file, lines);
    return Words::tr("Saved as %1").arg(ToQt(ShownPath(*file)));
  } catch (const Fault& fault) {
    session.host.TellError(fault.Description());
    return {};
  }
}

QString PrintOnPaper(Session& session, const Sheets& sheets, const PrinterChooser& choose,
                     QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQt(sheets.Choices().title));
  printer.setPageLayout(sheets.Layout());
  if (!choose(printer, sheets.Pages(), parent)) return {};
  return Told(session, [&] {
    const WorkScope work(session.host);
    PageProgress progress{session, Words::tr("Printing page %1 of %2")};
    if (PrintSheets(sheets, printer, progress.Step())) return Words::tr("Sent to the printer");
    if (progress.cancelled) return Words::tr("Printing was cancelled");
    session.host.TellError(
        FromQt(Words::tr("The printer does not take the pages:\n%1")
                   .arg(printer.printerName().isEmpty() ? printer.outputFileName()
                                                        : printer.printerName())));
    return QString();
  });
}

}  // namespace tricklet::ui
