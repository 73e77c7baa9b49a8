// Sheets as files and on a printer.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <QByteArray>

#include "ui/print/sheets.h"

class QPrinter;

namespace tricklet::ui {

enum class PictureFormat : std::uint8_t { Png, Svg };

/// Of a PNG, in dots per inch.
inline constexpr int kPictureResolution = 300;

/// Told before each page, 0.. < `pages`; may show progress and let events run. False ends the work,
/// of which nothing is left then.
using PageStep = std::function<bool(int page, int pages)>;

/// The document; empty when `step` has ended the work. Fonts are embedded, text can be searched and
/// copied.
QByteArray PdfOf(const Sheets& sheets, const PageStep& step = {});

/// Puts a PDF in the place of the file `path`, whole or not at all. False when `step` has ended the
/// work. Throws `Fault`.
bool WritePdf(const Sheets& sheets, const std::filesystem::path& path, const PageStep& step = {});

/// The files that `WritePictures` writes: "NAME-1.png" ... in `folder`.
std::vector<std::filesystem::path> PicturePaths(const Sheets& sheets, PictureFormat format,
                                                const std::filesystem::path& folder,
                                                const std::string& name);

/// Writes a file for each page into `folder`, which is made where it is missing; files of the same
/// names are replaced. They get their names when all have been written, so that a disk that fills
/// up leaves none. `name` is UTF-8 and can be part of a file name. False when `step` has ended the
/// work. Throws `Fault`.
bool WritePictures(const Sheets& sheets, PictureFormat format, const std::filesystem::path& folder,
                   const std::string& name, const PageStep& step = {});

/// Prints the pages that `printer` is set to, all where it has no range, as large as they fit its
/// paper. False when the printer does not take them, there are none in its range, or `step` has
/// ended the work; what was sent before may be printed.
bool PrintSheets(const Sheets& sheets, QPrinter& printer, const PageStep& step = {});

}  // namespace tricklet::ui
