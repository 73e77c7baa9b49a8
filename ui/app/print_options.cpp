#include "ui/app/print_options.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QStringList>

#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

struct Described {
  const char* name;
  const char* text;
  const char* value;  // null for a switch
};

constexpr std::array kOutputs{
    Described{
        "pdf",
        QT_TRANSLATE_NOOP(
            "Launch",
            "Write sheets of the boards to a PDF, which is replaced where it is there, and end."),
        "FILE"},
    Described{"png",
              QT_TRANSLATE_NOOP("Launch", "The same as pictures, LIBRARY-1.png for page 1 ..."),
              "DIR"},
    Described{"svg",
              QT_TRANSLATE_NOOP("Launch", "The same as drawings, LIBRARY-1.svg for page 1 ..."),
              "DIR"}};

constexpr std::array kChoices{
    Described{"boards",
              QT_TRANSLATE_NOOP("Launch", "Boards on the sheets, for example 1-36 or 1-3,7."),
              "RANGE"},
    Described{"layout", QT_TRANSLATE_NOOP("Launch", "records, lesson, slips or travellers."),
              "NAME"},
    Described{"per-page",
              QT_TRANSLATE_NOOP(
                  "Launch", "Boards on a page: of records 18, 12, 8 or 4, of a lesson 2, 1 or 4."),
              "N"},
    Described{"paper", QT_TRANSLATE_NOOP("Launch", "a4 or letter."), "NAME"},
    Described{"landscape", QT_TRANSLATE_NOOP("Launch", "Turn the paper."), nullptr},
    Described{"hands",
              QT_TRANSLATE_NOOP("Launch",
                                "Hands that a lesson shows, for example NS; the others "
                                "are among the answers at its end."),
              "SEATS"},
    Described{"title", QT_TRANSLATE_NOOP("Launch", "Title, instead of the library's name."),
              "TEXT"},
    Described{"subtitle", QT_TRANSLATE_NOOP("Launch", "Subtitle, instead of today's date."),
              "TEXT"},
    Described{"black", QT_TRANSLATE_NOOP("Launch", "Black instead of colours."), nullptr}};

QString Name(const Described& option) {
  return QString::fromLatin1(option.name);
}

void Add(QCommandLineParser& parser, const Described& option) {
  const QString text = QCoreApplication::translate("Launch", option.text);
  QCommandLineOption added(Name(option), text);
  if (option.value != nullptr) added.setValueName(QString::fromLatin1(option.value));
  parser.addOption(added);
}

/// Reads one option after the other, and stops at the first that makes no sense.
class Reader {
 public:
  Reader(const QCommandLineParser& parser, QString& error) : parser_(parser), error_(error) {}

  bool IsSet(const char* name) const { return parser_.isSet(QString::fromLatin1(name)); }
  bool HasFiles() const { return !parser_.positionalArguments().isEmpty(); }
  std::string Text(const char* name) const {
    return FromQt(parser_.value(QString::fromLatin1(name)));
  }
  /// `read` makes a value of the text, or nothing.
  template <class Value, class Reading>
  void Read(const char* name, Value& value, const Reading& read) {
    if (!IsSet(name) || !error_.isEmpty()) return;
    if (const auto found = read(Text(name))) {
      value = *found;
    } else {
      Refuse(QCoreApplication::translate("Launch", "Not a value of --%1: %2")
                 .arg(QString::fromLatin1(name), ToQt(Text(name))));
    }
  }
  std::filesystem::path Path(const char* name) {
    const QString text = parser_.value(QString::fromLatin1(name));
    if (IsSet(name) && text.isEmpty()) {
      Refuse(QCoreApplication::translate("Launch", "Nothing is named: --%1")
                 .arg(QString::fromLatin1(name)));
    }
    return text.isEmpty() ? std::filesystem::path() : PathFromQt(QDir().absoluteFilePath(text));
  }
  void Refuse(const QString& text) {
    if (error_.isEmpty()) error_ = text;
  }

 private:
  const QCommandLineParser& parser_;
  QString& error_;
};

/// The usual number for the layout where none is given.
void ReadPerPage(Reader& reader, SheetChoices& choices) {
  const auto numbers = BoardsPerPage(choices.layout);
  if (!numbers.empty()) choices.perPage = numbers.front();
  reader.Read("per-page", choices.perPage, [&](const std::string& text) {
    const auto number = NumberFromText(text);
    const bool known =
        number && std::find(numbers.begin(), numbers.end(), *number) != numbers.end();
    return known ? number : std::nullopt;
  });
}

/// An option that has no effect is one that was meant for something else.
void RefuseIdle(Reader& reader, const PrintOptions& options) {
  for (const Described& option : kChoices) {
    if (!options.Wanted() && reader.IsSet(option.name)) {
      reader.Refuse(QCoreApplication::translate("Launch", "Only with --pdf, --png or --svg: --%1")
                        .arg(Name(option)));
    }
  }
  if (options.Wanted() && reader.HasFiles())
    reader.Refuse(QCoreApplication::translate("Launch", "Files are not imported to be printed"));
  if (options.Wanted() && reader.IsSet("screenshot")) {
    reader.Refuse(
        QCoreApplication::translate("Launch", "Only without --pdf, --png and --svg: --screenshot"));
  }
  if (options.choices.layout != SheetLayout::Lesson && reader.IsSet("hands"))
    reader.Refuse(QCoreApplication::translate("Launch", "Only with --layout lesson: --hands"));
}

}  // namespace

void AddPrintOptions(QCommandLineParser& parser) {
  for (const Described& option : kOutputs) Add(parser, option);
  for (const Described& option : kChoices) Add(parser, option);
}

PrintOptions ReadPrintOptions(const QCommandLineParser& parser, QString& error) {
  PrintOptions options;
  Reader reader(parser, error);
  options.pdf = reader.Path("pdf");
  options.png = reader.Path("png");
  options.svg = reader.Path("svg");
  SheetChoices& choices = options.choices;
  reader.Read("boards", options.boards, ReadBoardRange);
  reader.Read("layout", choices.layout, SheetLayoutOf);
  ReadPerPage(reader, choices);
  reader.Read("paper", choices.paper, PaperOf);
  reader.Read("hands", choices.hands, SeatsOf);
  choices.landscape = reader.IsSet("landscape");
  choices.colours = !reader.IsSet("black");
  options.titled = reader.IsSet("title");
  options.subtitled = reader.IsSet("subtitle");
  choices.title = reader.Text("title");
  choices.subtitle = reader.Text("subtitle");
  RefuseIdle(reader, options);
  return options;
}

bool AsksForPrint(int count, char** values) {
  const auto isOutput = [](std::string_view value) {
    return std::any_of(kOutputs.begin(), kOutputs.end(), [value](const Described& option) {
      const std::string name = std::string("--") + option.name;
      return value == name || value.starts_with(name + "=");
    });
  };
  char** const files =
      std::find_if(values, values + count, [](std::string_view value) { return value == "--"; });
  return std::any_of(values, files, isOutput);
}

}  // namespace tricklet::ui
