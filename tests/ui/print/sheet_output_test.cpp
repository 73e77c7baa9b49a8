#include "ui/print/sheet_output.h"

#include <algorithm>

#include <QImage>
#include <QPrinter>
#include <gtest/gtest.h>

#include "core/fault.h"
#include "disk/file_io.h"
#include "tests/support/library_fixture.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

namespace fs = std::filesystem;

Sheets TwoPages() {
  Published published;
  for (int number = 1; number <= 5; ++number) {
    PublishedBoard one;
    one.board.boardNumber = number;
    published.boards.push_back(std::move(one));
  }
  return {std::move(published), {.perPage = 4, .title = "Club"}};
}

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

TEST(SheetOutput, WritesAFileForEachPage) {
  const test::TempFolder folder;
  const fs::path made = folder.Path() / "new" / "pictures";
  EXPECT_TRUE(WritePictures(TwoPages(), PictureFormat::Png, made, "Club"));
  EXPECT_TRUE(WritePictures(TwoPages(), PictureFormat::Svg, made, "Club"));
  EXPECT_EQ(NamesIn(made),
            (std::vector<std::string>{"Club-1.png", "Club-1.svg", "Club-2.png", "Club-2.svg"}));
  // A4 is 210 mm wide.
  const QImage picture(PathToQt(made / "Club-2.png"));
  EXPECT_NEAR(picture.width() / (kPictureResolution / 25.4), 210, 0.2);
  EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
}

TEST(SheetOutput, LeavesNothingOfWhatIsCancelledOrFails) {
  const test::TempFolder folder;
  const auto afterOne = [](int page, int /*pages*/) { return page < 1; };
  EXPECT_FALSE(WritePdf(TwoPages(), folder.Path() / "a.pdf", afterOne));
  EXPECT_FALSE(WritePictures(TwoPages(), PictureFormat::Svg, folder.Path(), "Club", afterOne));
  EXPECT_THROW(WritePictures(TwoPages(), PictureFormat::Svg, folder.Path(), "none/Club"), Fault);
  EXPECT_THROW(WritePdf(TwoPages(), folder.Path() / "none" / "a.pdf"), Fault);
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>());
}

TEST(SheetOutput, MakesAPdfOfAllPagesWithItsFonts) {
  const QByteArray pdf = PdfOf(TwoPages());
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.contains("/Count 2"));
  EXPECT_TRUE(pdf.contains("/FontFile2"));
  EXPECT_FALSE(pdf.contains("/Subtype /Image"));
}

TEST(SheetOutput, PrintsTheRangeThatThePrinterIsSetTo) {
  const test::TempFolder folder;
  const struct {
    int from;
    int to;
    bool printed;
    int pages;
  } rows[]{{0, 0, true, 2}, {2, 2, true, 1}, {1, 9, true, 2}, {3, 4, false, 0}};
  for (const auto& row : rows) {
    const fs::path file = folder.Path() / ("printed" + std::to_string(row.from) + ".pdf");
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(PathToQt(file));
    printer.setFromTo(row.from, row.to);
    EXPECT_EQ(PrintSheets(TwoPages(), printer), row.printed) << row.from;
    EXPECT_EQ(fs::exists(file), row.printed);
    if (!row.printed) continue;
    const std::string count = "/Count " + std::to_string(row.pages);
    EXPECT_NE(ReadWholeFile(file, 1 << 24).find(count), std::string::npos) << row.from;
  }
}

}  // namespace
}  // namespace tricklet::ui
