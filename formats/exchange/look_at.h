// The look at a hand-record file before it is imported.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "formats/contents/contents.h"
#include "formats/exchange/record_reader.h"
#include "formats/look/import_choices.h"
#include "formats/look/import_plan.h"

namespace tricklet {

/// What an import without a look would make of a file. One without any deal or result loses
/// nothing: the import tells what is wrong with it.
struct PlainImport {
  /// It stores all that the file has, as the file has it.
  bool losesNothing = true;
  /// Else tells what it would lose or alter: "lost: 2170 of 2298 deals, 12 results; other dealer or
  /// vulnerability: 375 boards". May be empty all the same. Takes what the file holds, and reads
  /// the file once more.
  std::function<std::string(const FileContents& contents)> loss;
};

/// What a person is shown who is to decide about an import.
struct ImportLook {
  std::filesystem::path file;  ///< empty for a text that is in no file
  FileContents contents;
  BoardsThere there{};  ///< of the open library
  std::string library;  ///< the name of the open library
  /// The names of the libraries that a plan of so many parts would fill, from this one on. Not
  /// after the import.
  std::function<std::vector<std::string>(const std::string& library, int parts)> partNames;
  std::string suggestedLibrary;  ///< a name for a new one, which none has yet
  ImportChoices choices;         ///< those that are offered first
  PlainImport plain;             ///< the import without a look
};

/// Somebody who decides.
struct Looker {
  /// What is to be done; nothing when the import is not to take place. Called where an import
  /// without a look would lose or alter something. Empty: nobody decides.
  std::function<std::optional<ImportChoices>(const ImportLook&)> decide = {};
  /// It is called where nothing would be lost, too.
  bool always = false;
};

/// What a look at a file of the reader's type shows; `session` has scanned its library.
ImportLook LookAt(const Session& session, const RecordSource& source, const RecordReader& reader);

/// Everything that the bytes of a file of `type` ("pbn", "dlm", "xml", "lin") hold.
FileContents ReadContents(std::string_view type, const std::string& bytes);

/// `contents` is all that the file holds. It is read once more, as that import would, unless that
/// alone shows that something would be lost.
PlainImport WithoutLook(const RecordReader& reader, const RecordSource& source,
                        const FileContents& contents);

}  // namespace tricklet
