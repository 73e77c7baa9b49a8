// The commands that bring files of boards into a library.
#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "formats/exchange/file_type.h"
#include "formats/exchange/import.h"
#include "formats/exchange/import_planned.h"
#include "formats/look/plan_rows.h"
#include "library/library_choice.h"

namespace tricklet::cli {
namespace {

namespace fs = std::filesystem;

/// What the command line says about an import, as its words.
struct ImportWords {
  std::vector<std::string> files;
  std::string into;
  std::string newLibrary;
  std::string numbers;
  std::string dealer;
  std::string results;
  std::string section;
  bool skipBad = false;
  bool dryRun = false;

  /// Nothing is said: the files are imported as they are.
  bool AsTheyAre() const {
    return numbers.empty() && dealer.empty() && results.empty() && section.empty() && !skipBad &&
           !dryRun;
  }
};

/// An import of one file into the current library: `ImportFile`, `ImportLinFile`.
using Importer = ImportOutcome (*)(Session&, const fs::path&, const Looker&);

constexpr std::string_view kFrom = "from=";

/// N of "from=N"; 0 when it is no number.
int FirstNumber(std::string_view text) {
  return NumberFromText(text.substr(kFrom.size())).value_or(0);
}

/// The complaint about a value of --numbers; empty when it is one.
std::string NotNumbers(const std::string& text) {
  if (text == "keep" || text == "first" || text == "next") return "";
  const int number = text.starts_with(kFrom) ? FirstNumber(text) : 0;
  return IsStorable(number) ? "" : "keep, first, next or from=N with N from 1 to 999";
}

ImportChoices ChoicesOf(const ImportWords& words) {
  ImportChoices choices;
  if (words.numbers == "keep") choices.numbers = Numbering::Keep;
  if (words.numbers == "first") choices.numbers = Numbering::First;
  if (words.numbers.starts_with(kFrom)) {
    choices.numbers = Numbering::From;
    choices.from = FirstNumber(words.numbers);
  }
  if (words.dealer == "number") choices.dealer = DealerBy::Number;
  choices.skipBad = words.skipBad;
  // Both together are the import as it is without a look.
  const bool plain = words.numbers == "keep" && words.dealer == "number" && !words.skipBad;
  choices.keepResults = words.results.empty() ? !plain : words.results == "keep";
  return choices;
}

/// Chooses the section by its name; false, after a message, when the file has no such one, or
/// several and none was named.
bool ChooseSection(const ImportLook& look, const ImportWords& words, Host& host,
                   ImportChoices& choices) {
  const auto& sections = look.contents.sections;
  if (words.section == "all") {
    choices.section = kEverySection;
    return true;
  }
  if (words.section.empty() && sections.size() <= 1) return true;
  std::string names;
  for (std::size_t at = 0; at < sections.size(); ++at) {
    if (EqualFolded(sections[at].name, words.section)) {
      choices.section = at;
      return true;
    }
    names += (at == 0 ? "" : ", ") + Showable(sections[at].name);
  }
  host.TellError("The file " + ShownPath(look.file) + " has these sections: " + names +
                 "\nPlease name one with --section, or all of them with --section all");
  return false;
}

Looker LookerFor(const ImportWords& words, Host& host) {
  Looker looker;
  looker.always = !words.AsTheyAre();
  looker.decide = [&words, &host](const ImportLook& look) -> std::optional<ImportChoices> {
    if (words.AsTheyAre()) {
      const std::string loss =
          look.plain.losesNothing ? std::string() : look.plain.loss(look.contents);
      if (!loss.empty()) host.Tell(ShownPath(look.file.filename()) + ": " + loss);
      return WithoutALook();
    }
    ImportChoices choices = ChoicesOf(words);
    const bool plain = IsWithoutALook(choices) && words.section.empty();
    if (!plain && !ChooseSection(look, words, host, choices)) return std::nullopt;
    return choices;
  };
  return looker;
}

/// Removes the library that this call made for boards when none of them arrived.
void RemoveIfEmpty(const Session& session) {
  std::error_code ignored;
  fs::remove(session.LibraryPath(), ignored);  // only an empty folder goes
}

/// Opens the library that the words name, or the current one.
bool OpenTarget(const Context& context, const ImportWords& words) {
  if (!words.newLibrary.empty()) {
    return RootExists(context) && CreateLibrary(context.session, words.newLibrary);
  }
  return OpenLibrary(context, true);
}

/// The library that is open in the window stays that, whichever this call has made or filled.
class KeepsCurrentLibrary {
 public:
  explicit KeepsCurrentLibrary(Session& session)
      : session_(session), name_(session.LibraryName()) {}
  ~KeepsCurrentLibrary() {
    if (session_.settings.library == name_) return;
    session_.settings.library = name_;
    SaveSetting(session_, &Settings::library);
  }
  KeepsCurrentLibrary(const KeepsCurrentLibrary&) = delete;
  KeepsCurrentLibrary& operator=(const KeepsCurrentLibrary&) = delete;

 private:
  Session& session_;
  std::string name_;
};

ExitCode ImportFiles(const Context& context, Importer import, const ImportWords& words,
                     const std::function<bool()>& ended) {
  Session& session = context.session;
  const KeepsCurrentLibrary keeps(session);
  if (!words.into.empty()) session.settings.library = words.into;
  const bool existed = words.newLibrary.empty() && IsTaken(session.LibraryPath());
  if (!OpenTarget(context, words)) return ExitCode::Refused;
  const std::string target = session.LibraryName();
  const Looker looker = LookerFor(words, session.host);
  bool allDone = true;
  for (const std::string& file : words.files) {
    const ImportOutcome outcome = import(session, PathFromText(file), looker);
    allDone = allDone && outcome.boardsSaved > 0 && !outcome.failed && !outcome.cancelled;
    if (outcome.cancelled || ended()) {
      allDone = false;
      break;
    }
  }
  session.settings.library = target;
  if (!existed) RemoveIfEmpty(session);
  return allDone ? ExitCode::Done : ExitCode::Refused;
}

/// Prints what an import of one section would do.
void PrintSection(const Context& context, const ImportLook& look, const ImportChoices& choices) {
  const bool intoNew = !choices.newLibrary.empty();
  const ImportPlan plan = PlanImport(look.contents, choices, intoNew ? BoardsThere{} : look.there);
  context.data << ShownPath(look.file) << '\t' << look.contents.format << '\t'
               << PlanSummary(look.contents, plan) << '\n';
  for (const PlanRow& row :
       PlanRows(look.contents, choices, plan,
                look.partNames(intoNew ? choices.newLibrary : look.library, plan.parts))) {
    context.data << (row.inFile.empty() ? "-" : row.inFile) << '\t'
                 << (row.storedAs.empty() ? "-" : row.storedAs) << '\t'
                 << (row.hand.empty() ? "-" : row.hand) << '\t' << row.what << '\n';
  }
}

/// Prints what an import of a file would do.
bool PrintLook(const Context& context, const ImportLook& look, const ImportWords& words) {
  ImportChoices choices = ChoicesOf(words);
  if (!ChooseSection(look, words, context.session.host, choices)) return false;
  if (choices.section != kEverySection) {
    PrintSection(context, look, choices);
    return true;
  }
  for (choices.section = 0; choices.section < look.contents.sections.size(); ++choices.section) {
    choices.newLibrary = SectionLibrary(context.session, look, choices.section);
    PrintSection(context, look, choices);
  }
  return true;
}

bool PrintPlan(const Context& context, const fs::path& file, const ImportWords& words) {
  const auto look = LookAtFile(context.session, file);
  return look && PrintLook(context, *look, words);
}

ExitCode PrintPlans(const Context& context, const ImportWords& words) {
  Session& session = context.session;
  if (!words.into.empty()) session.settings.library = words.into;
  const bool none = !words.newLibrary.empty() || !IsTaken(session.LibraryPath());
  if (!(none ? RootExists(context) : OpenLibrary(context, false))) return ExitCode::Refused;
  if (none) session.library = LibraryState();
  bool all = true;
  for (const std::string& file : words.files) {
    all = PrintPlan(context, PathFromText(file), words) && all;
  }
  return all ? ExitCode::Done : ExitCode::Refused;
}

void AddImporter(CLI::App& app, Command& command, const char* name, const char* description,
                 Importer import) {
  const auto words = std::make_shared<ImportWords>();
  CLI::App& reader = *app.add_subcommand(name, description);
  reader.add_option("FILE", words->files, "Files, told apart by their ending")->required();
  auto* into =
      reader.add_option("--into", words->into, "Library to import into; made when missing")
          ->type_name("NAME")
          ->check(NotEmpty);
  reader.add_option("--new", words->newLibrary, "New library to import into")
      ->type_name("NAME")
      ->check(NotEmpty)
      ->excludes(into);
  reader
      .add_option("--numbers", words->numbers,
                  "Repeated and missing numbers: keep (a later board replaces an earlier one), "
                  "first (the first of each), next (the next free number), from=N (all from N on)")
      ->type_name("RULE")
      ->check(NotNumbers);
  reader
      .add_option("--dealer", words->dealer,
                  "Dealer and vulnerability: number (those of the board number) or file (the next "
                  "number that has those of the file)")
      ->type_name("RULE")
      ->check(CLI::IsMember({"number", "file"}));
  reader.add_option("--results", words->results, "Results, play and notes: keep or drop")
      ->type_name("RULE")
      ->check(CLI::IsMember({"keep", "drop"}));
  reader
      .add_option("--section", words->section,
                  "Session or section of a file that has several; all: a library for each")
      ->type_name("NAME");
  reader.add_flag("--skip-bad", words->skipBad, "Leave out what cannot be read and go on");
  reader.add_flag("--dry-run", words->dryRun, "Print what would be stored, and store nothing");
  WhenChosen(reader, command, [words, import](const Context& context, const ConsoleHost& host) {
    if (words->dryRun) return PrintPlans(context, *words);
    return ImportFiles(context, import, *words, [&host] { return host.Ended(); });
  });
}

ImportOutcome ImportOfAnyType(Session& session, const fs::path& file, const Looker& looker) {
  return FileTypeOf(file) == "lin" ? ImportLinFile(session, file, looker)
                                   : ImportFile(session, file, looker);
}

}  // namespace

void AddImportCommands(CLI::App& app, Command& command) {
  AddImporter(app, command, "import", "Store the boards of hand-record files (pbn, dlm, xml, lin)",
              ImportOfAnyType);
  AddImporter(app, command, "import-lin", "Store the boards and records of LIN files",
              ImportLinFile);
}

}  // namespace tricklet::cli
