// The options of the command line that print without a window.
#pragma once

#include <filesystem>

#include <QString>

#include "publish/published.h"
#include "publish/sheet_choices.h"

class QCommandLineParser;

namespace tricklet::ui {

/// What is to be written. Title and subtitle are those that were given, if any.
struct PrintOptions {
  std::filesystem::path pdf;  ///< a file; empty: none
  std::filesystem::path png;  ///< a folder for a picture of each page; empty: none
  std::filesystem::path svg;  ///< the same
  BoardRange boards;
  SheetChoices choices;
  bool titled = false;     ///< a title was given, which may be empty
  bool subtitled = false;  ///< a subtitle was given, which may be empty

  bool Wanted() const { return !pdf.empty() || !png.empty() || !svg.empty(); }
};

void AddPrintOptions(QCommandLineParser& parser);

/// Reads the options of a parser that knows them. `error` is set when a value makes no sense or an
/// option stands where it has no effect, and else left alone.
PrintOptions ReadPrintOptions(const QCommandLineParser& parser, QString& error);

/// One of the words of a command line asks for a file to be printed, for which no screen is needed.
bool AsksForPrint(int count, char** values);

}  // namespace tricklet::ui
