// LIN records on their ways into the window.
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/ui/window_fixture.h"

namespace tricklet::ui {
namespace {

const QString kRecord = ToQt(test::LinRecordText("o7", "mb|1C|"));

class LinWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    SelectLibrary(session, "Teaching");
    Open();
  }
  void Paste(const QString& text) const {
    QApplication::clipboard()->setText(text);
    Key("Ctrl+Shift+V");
  }
  /// Whether the window takes `data` when it is dragged over it; then drops it.
  bool Drop(const QMimeData& data) const {
    const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(9, 9), possible, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(top, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(9, 9), possible, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);  // as file managers propose
    QCoreApplication::sendEvent(top, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "a moved file is deleted where it was";
    QTest::qWait(1);
    return true;
  }
};

TEST_F(LinWindowTest, AreChosenPastedOrDropped) {
  const auto file = folder.Path() / "a.lin";
  const auto other = folder.Path() / "b.txt";
  test::WriteFile(file, FromQt(kRecord));
  test::WriteFile(other, "Dear Ann");
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(PathToQt(file)), QUrl::fromLocalFile(PathToQt(other))});
  QMimeData text;
  text.setText(kRecord);
  const auto choose = [&] {
    host.Choose(file);
    Key("Ctrl+Shift+I");
  };
  const auto dropFiles = [&] {
    host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTellWith("The file must be of type");
    EXPECT_TRUE(Drop(files)) << "one after another, whatever comes of each";
  };
  const std::function<void()> ways[] = {choose, [this] { Paste(kRecord); },
                                        [&] { EXPECT_TRUE(Drop(text)); }, dropFiles};
  for (const auto& way : ways) {
    if (&way != &ways[0]) host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTell("Hand 7 has been saved to the library - Teaching");
    way();
    EXPECT_EQ(Text("cmbBoard"), "Board 7");
    EXPECT_EQ(session.board.contract, "1C");
  }
}

TEST_F(LinWindowTest, OtherTextIsRefused) {
  host.ExpectTell("There are no LIN records in this text");
  Paste(QStringLiteral("Dear Ann"));
  QMimeData text;
  text.setText(QStringLiteral("Dear Ann"));
  EXPECT_FALSE(Drop(text));
}

}  // namespace
}  // namespace tricklet::ui
