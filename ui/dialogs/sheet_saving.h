// Where sheets go: a file, pictures in a folder, a printer. The person chooses which.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include <QString>

#include "library/session.h"
#include "ui/print/sheet_output.h"

class QPrinter;
class QWidget;

namespace tricklet::ui {

/// Lets the person choose a printer and, of `pages`, those to be printed; false when none was
/// chosen.
using PrinterChooser = std::function<bool(QPrinter& printer, int pages, QWidget* parent)>;

/// The print dialog of the system.
bool AskForPrinter(QPrinter& printer, int pages, QWidget* parent);

// Each shows its progress and tells by a message when it fails. The answer says what has been done,
// in one line; it is empty when that is nothing. `last` is the folder where sheets were saved last,
// which is offered first and takes the one that is chosen; it may be empty.

/// Offers a file of the library's name.
QString SaveAsPdf(Session& session, const Sheets& sheets, std::filesystem::path& last);
/// A file for each page, named after the library, in a folder that the person chooses; asks before
/// files are replaced.
QString SaveAsPictures(Session& session, const Sheets& sheets, PictureFormat format,
                       std::filesystem::path& last);
/// Lines for a spreadsheet, which are proposed to be saved as `name`: "Club report.csv".
QString SaveAsCsv(Session& session, const QString& name, std::string_view lines,
                  std::filesystem::path& last);
QString PrintOnPaper(Session& session, const Sheets& sheets, const PrinterChooser& choose,
                     QWidget* parent);

}  // namespace tricklet::ui
