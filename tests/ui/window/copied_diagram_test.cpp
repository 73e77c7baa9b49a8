// "Copy diagram": what is on the table goes to the clipboard, and no more.
#include <QClipboard>
#include <QImage>
#include <QMimeData>

#include "tests/ui/window_fixture.h"

namespace tricklet::ui {
namespace {

constexpr const char* kNorth = "\u2660 AKQJ1098765432";
constexpr const char* kEast = "\u2665 AKQJ1098765432";

class CopiedDiagramTest : public WindowTest {
 protected:
  void SetUp() override {
    session.settings.autoMakeable = false;
    Open();
    Bid("1S P P P");
  }
  static QByteArray Svg() {
    return QApplication::clipboard()->mimeData()->data(QStringLiteral("image/svg+xml"));
  }
  /// The diagram as text.
  std::string Copied() const {
    Key("Ctrl+Shift+C");
    return FromQt(QApplication::clipboard()->text());
  }
  static bool Has(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
  }
};

TEST_F(CopiedDiagramTest, EveryFormHasWhatIsSeen) {
  const std::string text = Copied();
  EXPECT_TRUE(Has(text, kNorth) && Has(text, kEast) && Has(text, "1\u2660 by North")) << text;
  EXPECT_TRUE(Has(text, "West   North  East   South")) << text;
  const QMimeData* data = QApplication::clipboard()->mimeData();
  EXPECT_TRUE(data->html().contains(QStringLiteral("</span> AKQJ1098765432")));
  const auto image = qvariant_cast<QImage>(data->imageData());
  EXPECT_EQ(image.dotsPerMeterX(), 7559) << "192 dots to the inch";
  EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
  EXPECT_TRUE(Svg().contains("\u2663"));
}

TEST_F(CopiedDiagramTest, NothingOfAHiddenHandOrAFoldedAuction) {
  Key("1");
  session.settings.showAuction = false;
  window->Display();
  const std::string text = Copied();
  EXPECT_TRUE(!Has(text, kNorth) && Has(text, kEast) && !Has(text, "Pass")) << text;
  const QMimeData* data = QApplication::clipboard()->mimeData();
  for (const QString& form : {data->html(), QString::fromUtf8(Svg())}) {
    EXPECT_TRUE(form.contains(QStringLiteral("North")) || form.contains(u'N'));
    EXPECT_FALSE(form.contains(QStringLiteral("Pass")));
  }
  EXPECT_EQ(data->html().count(QStringLiteral("AKQJ1098765432")), 3);
  Key("Ctrl+H");
  EXPECT_TRUE(Has(Copied(), kNorth)) << "no hand is hidden while they are edited";
}

TEST_F(CopiedDiagramTest, APlayIsCopiedAsFarAsItHasCome) {
  Key("F9");
  FocusKeys("HA");
  const std::string text = Copied();
  EXPECT_TRUE(Has(text, "\u2665 KQJ1098765432\n")) << text;
  EXPECT_TRUE(Has(text, "\u2665A")) << text;
  EXPECT_TRUE(Has(text, "NS: 0 \u00b7 EW: 0 \u00b7 South to play")) << text;
}

TEST_F(CopiedDiagramTest, AnEmptyTableHasNone) {
  EXPECT_TRUE(Enabled("mnuCopyDiagram"));
  session.board = Board();
  window->Display();
  EXPECT_FALSE(Enabled("mnuCopyDiagram"));
}

}  // namespace
}  // namespace tricklet::ui
