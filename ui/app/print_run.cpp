#include "ui/app/print_run.h"

#include "core/fault.h"
#include "core/local_time.h"
#include "disk/presence.h"
#include "library/library_folders.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "publish/sheet_pages.h"
#include "ui/print/sheet_output.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Makes `library` the current one; false, with a message, when it is not there. Throws `Fault`.
bool OpenNamed(Session& session, const QString& library) {
  if (session.settings.filelocation.empty() || !FolderExists(session.FileLocation())) {
    session.host.TellError("There is no library root: name one with --root");
    return false;
  }
  const std::string wanted = library.isEmpty() ? session.LibraryName() : FromQt(library);
  const std::string name = NameMeant(FoldersOf(session.FileLocation()), wanted);
  if (name.empty()) {
    TellNoLibrary(session, wanted);
    return false;
  }
  session.settings.library = name;
  return true;
}

SheetChoices ChoicesFor(const Session& session, const PrintOptions& options) {
  SheetChoices choices = options.choices;
  if (!options.titled) choices.title = session.LibraryName();
  if (!options.subtitled) choices.subtitle = TodayText();
  return choices;
}

void Write(const Sheets& sheets, const std::string& name, const PrintOptions& options) {
  if (!options.pdf.empty()) WritePdf(sheets, options.pdf);
  if (!options.png.empty()) WritePictures(sheets, PictureFormat::Png, options.png, name);
  if (!options.svg.empty()) WritePictures(sheets, PictureFormat::Svg, options.svg, name);
}

}  // namespace

int RunPrint(Session& session, const QString& library, const PrintOptions& options) {
  try {
    TellUnreadSettings(session);
    if (!OpenNamed(session, library)) return 1;
    const SheetChoices choices = ChoicesFor(session, options);
    auto published = GatherBoards(session, options.boards, WantsTables(choices));
    if (!published) return 1;
    const std::string nothing = WhyNothingToPrint(*published, choices);
    if (!nothing.empty()) {
      session.host.TellError(nothing);
      return 1;
    }
    const std::string remark = RemarkOn(*published, WantsTables(choices));
    Write(Sheets(std::move(*published), choices), session.LibraryName(), options);
    if (!remark.empty()) session.host.TellResult(remark);
    return 0;
  } catch (const Fault& fault) {
    session.host.TellError(fault.Description());
    return 1;
  }
}

}  // namespace tricklet::ui
