// The columns beside the table: their widths, their font and what is folded away in them.
#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTableWidget>
#include <QTreeView>

#include "tests/ui/window_fixture.h"
#include "ui/panes/board_list_model.h"
#include "ui/style/side_column.h"
#include "ui/style/theme.h"
#include "ui/window/work_area.h"

namespace tricklet::ui {
namespace {

TEST(ColumnFontFactor, GrowsWithTheWindowAndForTheBackRow) {
  const struct {
    int height;
    int fontHeight;
    bool fromAfar;
    double factor;
  } cases[] = {{500, 16, false, 1},     {896, 16, false, 1},  {1344, 16, false, 1.5},
               {4000, 16, false, 1.75}, {1344, 32, false, 1}, {416, 16, true, 1},
               {832, 16, true, 2},      {2160, 16, true, 5.2}};
  for (const auto& each : cases) {
    EXPECT_NEAR(ColumnFontFactor(each.height, each.fontHeight, each.fromAfar), each.factor, 1e-6)
        << each.height << " " << each.fontHeight;
  }
}

class ColumnsTest : public WindowTest {
 protected:
  int Width(const char* name) const { return Find<QWidget>(name)->width(); }
  void Drag(const char* handle, int pixels) const {
    auto* widget = Find<QWidget>(handle);
    const QPointF from = widget->mapToGlobal(widget->rect().center());
    const auto send = [&](QEvent::Type type, QPointF at) {
      QMouseEvent event(type, widget->mapFromGlobal(at), at, Qt::LeftButton, Qt::LeftButton,
                        Qt::NoModifier);
      QApplication::sendEvent(widget, &event);
    };
    send(QEvent::MouseButtonPress, from);
    send(QEvent::MouseMove, from + QPointF(pixels, 0));
    send(QEvent::MouseButtonRelease, from + QPointF(pixels, 0));
  }
};

TEST_F(ColumnsTest, WhatIsFoldedAwayStaysSo) {
  Open();
  EXPECT_TRUE(Shown("flexBids"));
  Click("cmdBid");
  EXPECT_FALSE(Shown("flexBids"));
  window.reset();
  session.settings = LoadSettings(session.store);
  Open();
  EXPECT_FALSE(Shown("flexBids"));
  EXPECT_EQ(Text("cmdBid"), "^");
  Click("cmdBid");
  EXPECT_TRUE(Shown("flexBids") && LoadSettings(session.store).showAuction);
}

TEST_F(ColumnsTest, AreWidenedByTheirHandles) {
  Open();
  window->resize(1600, 900);
  const std::tuple<const char*, const char*, int, int Settings::*> columns[] = {
      {"colLeft", "hdlLeft", 60, &Settings::leftWidth},
      {"colRight", "hdlRight", -60, &Settings::rightWidth}};
  for (const auto& [column, handle, pixels, setting] : columns) {
    const int before = Width(column);
    Drag(handle, pixels);
    EXPECT_NEAR(Width(column), before + 60, 4) << column;
    EXPECT_GT(LoadSettings(session.store).*setting, 0);
    Drag(handle, -20 * pixels);
    EXPECT_GT(Width(column), 100) << "nothing in it is cut";
    QTest::mouseDClick(Find<QWidget>(handle), Qt::LeftButton);
    EXPECT_EQ(Width(column), before);
    EXPECT_EQ(LoadSettings(session.store).*setting, 0);
  }
}

TEST_F(ColumnsTest, NothingIsCutByTheColumnsEdge) {
  Open();
  auto* column = Find<QScrollArea>("colLeft");
  Find<QLabel>("lblLibrary")->setText(QString(50, QLatin1Char('8')));
  QApplication::processEvents();
  EXPECT_LE(column->widget()->width(), column->viewport()->width());
  const auto* header = Find<QTreeView>("lstBoards")->header();
  EXPECT_GT(header->sectionSize(static_cast<int>(BoardColumn::Score)),
            header->fontMetrics().horizontalAdvance(QStringLiteral("+7600")));
}

TEST_F(ColumnsTest, GiveWayBeforeTheWindowScrolls) {
  Open();
  auto* right = Find<SideColumn>("colRight");
  const int table = Find<QWidget>("picTable")->minimumSizeHint().width();
  window->resize(Width("colLeft") + table + right->LeastWidth() + 5 * WorkArea::kMargin, 700);
  QCoreApplication::processEvents();
  const auto* scroll = Find<QScrollArea>("scrWorkArea");
  EXPECT_EQ(scroll->widget()->width(), scroll->viewport()->width());
  EXPECT_GE(right->width(), right->LeastWidth());
}

TEST_F(ColumnsTest, CanBeReadFromTheBackRow) {
  Open();
  session.board.makeableValid = true;
  for (int call = 0; call < 16; ++call) session.board.calls.Add(Call::Pass());
  window->resize(1366, 768);
  Find<QAction>("mnuPresentationPanes")->trigger();
  const auto capitals = [&](const char* name) {
    return Find<QWidget>(name)->fontMetrics().capHeight();
  };
  QCoreApplication::processEvents();
  const int before = capitals("lvwMake");
  const std::pair widths(Width("colLeft"), Width("colRight"));
  Find<QAction>("mnuPresentation")->trigger();
  QCoreApplication::processEvents();
  const int least = window->height() / 30 - 1;
  EXPECT_GE(capitals("lvwMake"), least);
  EXPECT_GE(capitals("lblPar"), least);
  EXPECT_GE(capitals("flexBids"), least) << "of a long auction too";
  EXPECT_GE(Find<QTableWidget>("flexBids")->horizontalHeader()->fontMetrics().capHeight(), least);
  Find<QAction>("mnuPresentation")->trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(capitals("lvwMake"), before);
  EXPECT_EQ(std::pair(Width("colLeft"), Width("colRight")), widths);
}

TEST_F(ColumnsTest, AListShowsThatKeysGoToIt) {
  Open();
  auto* list = Find<QWidget>("lstBoards");
  const auto* ring = list->findChild<QWidget*>(QStringLiteral("focusRing"));
  const std::pair<Qt::FocusReason, bool> reasons[] = {
      {Qt::TabFocusReason, true}, {Qt::MouseFocusReason, false}, {Qt::ShortcutFocusReason, true}};
  for (const auto& [reason, shown] : reasons) {
    Find<QWidget>("picTable")->setFocus();
    EXPECT_FALSE(ring->isVisible());
    list->setFocus(reason);
    EXPECT_EQ(ring->isVisible(), shown) << reason;
  }
}

TEST_F(ColumnsTest, TheFocusOfAListStandsOut) {
  Open();
  for (const char* name : {"lstBoards", "flexTricks", "flexTraveller"}) {
    auto* ring = Find<QWidget>(name)->findChild<QWidget*>(QStringLiteral("focusRing"));
    constexpr double kLeast = 3;  // WCAG 2.1, success criterion 1.4.11
    const QColor line = ring->grab().toImage().pixelColor(0, 0);
    EXPECT_GE(Contrast(line, window->palette().color(QPalette::Base)), kLeast) << name;
  }
}

TEST_F(ColumnsTest, NothingMovesWhenATableArrives) {
  Open();
  window->resize(1280, 800);
  const auto* pane = Find<QWidget>("fraMakeable");
  EXPECT_FALSE(Shown("fraMakeable"));
  EXPECT_TRUE(pane->sizePolicy().retainSizeWhenHidden());
  const int room = pane->sizeHint().height();
  session.board.makeableValid = true;
  window->Display();
  EXPECT_TRUE(Shown("fraMakeable"));
  EXPECT_EQ(pane->sizeHint().height(), room);
  EXPECT_GT(room, Find<QWidget>("lvwMake")->height());
}

}  // namespace
}  // namespace tricklet::ui
