// What the table paints, and the colours that it takes from the settings.
#include "ui/table/table_view.h"

#include <tuple>
#include <vector>

#include <QApplication>
#include <QImage>
#include <QtTest>
#include <gtest/gtest.h>

#include "tests/support/hands.h"
#include "tests/ui/geometry.h"
#include "ui/style/theme.h"
#include "ui/table/text_hands.h"

namespace tricklet::ui {
namespace {

class TableViewTest : public testing::Test {
 protected:
  void TearDown() override { ApplyColourScheme(*qApp, ColourScheme::System); }

  static Board LongSuits() {
    Board board;
    board.boardNumber = 2;
    board.hands =
        test::HandsOf("N:AQ975.K8652.KT2. 84.A73.AQ3.AJ652 KJT3.QJT94..KT87 62..AKQJT9876543.");
    return board;
  }

  static QImage Picture(const Board& board, const Settings& settings, QSize size) {
    TableView view;
    return Picture(view, board, settings, size);
  }
  static QImage Picture(TableView& view, const Board& board, const Settings& settings, QSize size) {
    view.resize(size);
    view.Show(board, settings);
    return PictureOf(view);
  }
};

TEST_F(TableViewTest, PaintsEachDesignColouringAndDisplayItsOwnWay) {
  std::vector<QImage> pictures;
  for (const bool fourColours : {false, true}) {
    Settings settings;
    settings.suitColour = fourColours;
    for (const CardDesign design :
         {CardDesign::IndexAndSymbol, CardDesign::PipsAndCourts, CardDesign::LargeIndex}) {
      settings.cardDesign = design;
      pictures.push_back(Picture(LongSuits(), settings, {560, 560}));
    }
    settings.cardsFaces = false;
    pictures.push_back(Picture(LongSuits(), settings, {560, 560}));
  }
  pictures.push_back(Picture(Board(), Settings(), {560, 560}));
  ExpectDifferent(pictures);
}

TEST_F(TableViewTest, ForgetsThePicturesOfCardsWhenSettingsOrSizeChange) {
  constexpr auto kPlain = CardDesign::IndexAndSymbol;
  constexpr auto kCourts = CardDesign::PipsAndCourts;
  const std::tuple<CardDesign, bool, QSize> kSteps[] = {{kPlain, true, {560, 560}},
                                                        {kCourts, true, {560, 560}},
                                                        {kCourts, false, {560, 560}},
                                                        {kCourts, false, {760, 680}}};
  TableView view;
  for (const auto& [design, fourColours, size] : kSteps) {
    Settings settings;
    settings.cardDesign = design;
    settings.suitColour = fourColours;
    EXPECT_EQ(Picture(view, LongSuits(), settings, size), Picture(LongSuits(), settings, size))
        << "design " << IndexOf(design);
  }
}

TEST_F(TableViewTest, TellsWhyADropIsRefused) {
  TableView view;
  view.resize(900, 680);
  view.ShowEdit(LongSuits(), Settings());
  QStringList told;
  QObject::connect(&view, &TableView::Refused, &view, [&](const QString& why) { told << why; });
  const EditLayout layout = LayOutEdit(view.size(), LongSuits().hands);
  const QPoint from = SeizePoint(layout, {Suit::Spades, Rank::Ace}).toPoint();
  const QPointF drops[] = {layout.Area(HandFrame::East).center(), layout.table.centre.center(),
                           layout.packArea.center()};
  for (const QPointF to : drops) {
    QTest::mousePress(&view, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, to, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, to.toPoint());
  }
  EXPECT_EQ(told, (QStringList{QStringLiteral("East has 13 cards already"),
                               QStringLiteral("A card is dropped on a hand or on the pack")}));
}

TEST_F(TableViewTest, FitsTextIntoItsAreaWhateverTheFont) {
  const Board board = LongSuits();
  Settings settings;
  for (const double points : {6.0, 24.0, 96.0}) {
    settings.hgFont[0].size = settings.suitFontSize = points;
    for (const QSizeF size : {QSizeF(380, 340), QSizeF(760, 680), QSizeF(3840, 2160)}) {
      const TableLayout layout = LayOutTable(size, board.hands, {HandDisplay::Text});
      const TextHandMeasures measures = MeasureTextHands(layout, board.hands, settings, 96);
      for (const Seat seat : kAllSeats) {
        const QSizeF needed = TextHandSize(measures, board.hands[seat]);
        const QSizeF room = layout.hands[seat].area.size();
        EXPECT_LE(needed.width(), room.width()) << points << " " << SeatName[seat];
        EXPECT_LE(needed.height(), room.height()) << points << " " << SeatName[seat];
      }
      EXPECT_GE(measures.font.pixelSize(), 6);
    }
  }
}

TEST_F(TableViewTest, CanReadSuitsAndTextInEveryColourScheme) {
  constexpr double kLeast = 4.5;  // WCAG 2.1, success criterion 1.4.3
  const QColor before = QApplication::palette().color(QPalette::Window);
  for (const ColourScheme scheme : {ColourScheme::Dark, ColourScheme::Light}) {
    ApplyColourScheme(*qApp, scheme);
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(IsDark(palette), scheme == ColourScheme::Dark);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
      const QColor background = palette.color(role);
      EXPECT_GE(Contrast(background, palette.color(QPalette::Text)), 7.0);
      for (const Suit suit : kAllSuits) {
        for (const bool fourColours : {false, true}) {
          EXPECT_GE(Contrast(background, SuitColourOnWindow(suit, fourColours, palette)), kLeast)
              << SuitName[suit] << " scheme " << IndexOf(scheme);
          EXPECT_GE(Contrast(kPaper, SuitColourOnCard(suit, fourColours)), kCardContrast);
          EXPECT_GE(Contrast(kDimPaper, DimmedSuitColour(suit, fourColours)), kCardContrast);
        }
      }
    }
  }
  ApplyColourScheme(*qApp, ColourScheme::System);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), before);
}

TEST_F(TableViewTest, ReadsColourNumbersWithRedInTheLowestByte) {
  QPalette palette;
  palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
  EXPECT_EQ(ToColour({0x00112233U}, palette), QColor(0x33, 0x22, 0x11));
  EXPECT_EQ(ToColour(kWindowTextColour, palette), QColor(1, 2, 3));
  EXPECT_EQ(FromColour(QColor(0x33, 0x22, 0x11)).value, 0x00112233U);
}

}  // namespace
}  // namespace tricklet::ui
