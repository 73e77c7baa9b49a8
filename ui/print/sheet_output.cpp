#include "ui/print/sheet_output.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include "core/fault.h"
#include "core/host.h"
#include "disk/file_io.h"
#include "ui/print/raster.h"
#include "ui/print/svg_page.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

bool GoesOn(const PageStep& step, int page, int pages) {
  return !step || step(page, pages);
}

QSizeF PaperOf(const Sheets& sheets) {
  return sheets.Layout().fullRect(QPageLayout::Point).size();
}

QByteArray PngOf(const Sheets& sheets, int page) {
  const QImage picture = Raster(PaperOf(sheets), kPictureResolution,
                                [&](QPainter& painter) { sheets.Paint(painter, page); });
  if (picture.isNull())
    throw Fault(FaultNumber::Unexpected, "There is not enough memory for the picture");
  QByteArray data;
  QBuffer buffer(&data);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return data;
}

QByteArray SvgOf(const Sheets& sheets, int page) {
  SvgPage svg(PaperOf(sheets), ToQt(sheets.Choices().title));
  QPainter painter(&svg);
  painter.fillRect(QRectF(QPointF(), PaperOf(sheets)), Qt::white);
  sheets.Paint(painter, page);
  painter.end();
  return svg.Document();
}

std::string_view BytesOf(const QByteArray& data) {
  return {data.constData(), static_cast<std::size_t>(data.size())};
}

}  // namespace

QByteArray PdfOf(const Sheets& sheets, const PageStep& step) {
  QByteArray data;
  QBuffer buffer(&data);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(ToQt(sheets.Choices().title));
  writer.setCreator(ToQt(kProgramName));
  writer.setPageLayout(sheets.Layout());
  QPainter painter(&writer);
  const double scale = writer.resolution() / kPointsPerInch;
  painter.scale(scale, scale);
  for (int page = 0; page < sheets.Pages(); ++page) {
    if (!GoesOn(step, page, sheets.Pages())) return {};
    if (page > 0) writer.newPage();
    sheets.Paint(painter, page);
  }
  painter.end();
  return data;
}

bool WritePdf(const Sheets& sheets, const std::filesystem::path& path, const PageStep& step) {
  const QByteArray data = PdfOf(sheets, step);
  if (data.isEmpty()) return false;
  ReplaceWholeFile(path, BytesOf(data));
  return true;
}

std::vector<std::filesystem::path> PicturePaths(const Sheets& sheets, PictureFormat format,
                                                const std::filesystem::path& folder,
                                                const std::string& name) {
  const char* ending = format == PictureFormat::Png ? ".png" : ".svg";
  std::vector<std::filesystem::path> paths;
  for (int page = 1; page <= sheets.Pages(); ++page)
    paths.push_back(folder / PathFromText(name + "-" + std::to_string(page) + ending));
  return paths;
}

bool WritePictures(const Sheets& sheets, PictureFormat format, const std::filesystem::path& folder,
                   const std::string& name, const PageStep& step) {
  MakeFolders(folder);
  std::vector<std::unique_ptr<Replacement>> files;
  int page = 0;
  for (const std::filesystem::path& path : PicturePaths(sheets, format, folder, name)) {
    if (!GoesOn(step, page, sheets.Pages())) return false;
    const QByteArray data =
        format == PictureFormat::Png ? PngOf(sheets, page) : SvgOf(sheets, page);
    files.push_back(std::make_unique<Replacement>(path));
    files.back()->File().Write(BytesOf(data));
    files.back()->Complete();
    ++page;
  }
  UnflushedFolders unflushed;
  for (const auto& file : files) file->PutInPlace(unflushed);
  unflushed.Flush();
  return true;
}

bool PrintSheets(const Sheets& sheets, QPrinter& printer, const PageStep& step) {
  const int first = std::max(printer.fromPage() - 1, 0);
  const int last =
      printer.toPage() > 0 ? std::min(printer.toPage(), sheets.Pages()) : sheets.Pages();
  printer.setFullPage(true);
  printer.setDocName(ToQt(sheets.Choices().title));
  QPainter painter;
  if (first >= last || !painter.begin(&printer)) return false;
  const QSizeF paper = PaperOf(sheets);
  const QSizeF target = printer.pageLayout().fullRectPixels(printer.resolution()).size();
  const double scale = std::min(target.width() / paper.width(), target.height() / paper.height());
  painter.scale(scale, scale);
  for (int page = first; page < last; ++page) {
    if (!GoesOn(step, page, sheets.Pages()) || (page > first && !printer.newPage())) {
      printer.abort();
      return false;
    }
    sheets.Paint(painter, page);
  }
  return painter.end() && printer.printerState() != QPrinter::Error;
}

}  // namespace tricklet::ui
