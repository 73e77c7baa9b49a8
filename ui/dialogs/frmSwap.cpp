#include "ui/dialogs/frmSwap.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/cards/card_glyphs.h"
#include "ui/control/edit_control.h"
#include "ui/dialogs/option_group.h"
#include "ui/style/dialog_parts.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr int kMargin = 8;  // narrow, so that the dialog leaves the table in sight

QGridLayout* MakeGrid(QGroupBox* box) {
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kMargin);
  return grid;
}

/// The symbol of `suit` in its colour, as high as a line of text.
QIcon SymbolIcon(Suit suit, bool fourColours, const QWidget& widget) {
  const int side = widget.fontMetrics().ascent();
  QPixmap picture(QSize(side, side) * widget.devicePixelRatioF());
  picture.setDevicePixelRatio(widget.devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(SuitColourOnWindow(suit, fourColours, widget.palette()));
  painter.drawPath(SuitOutline(suit, QPointF(side, side) / 2, 0.85 * side));
  return picture;
}

/// A column of options one below the other, under their caption; the one with the id `chosen` is
/// chosen.
QButtonGroup* AddOptions(QGridLayout* grid, const QString& name, const QString& caption,
                         const QStringList& texts, int chosen) {
  QButtonGroup* group = MakeOptions(name, texts, grid->parentWidget());
  const int column = grid->count() == 0 ? 0 : grid->columnCount();
  grid->addWidget(new QLabel(caption), 0, column);
  for (QAbstractButton* option : group->buttons()) {
    option->setAccessibleName(caption + u' ' + option->text());
    grid->addWidget(option, 1 + group->id(option), column);
  }
  group->button(chosen)->setChecked(true);
  return group;
}

/// The button below all options.
void AddButton(QGridLayout* grid, QPushButton* button) {
  grid->addWidget(button, grid->rowCount(), 0, 1, grid->columnCount());
}

QPushButton* MakeButton(const QString& name, const QString& text, const QString& title) {
  auto* button = new QPushButton(text);
  button->setObjectName(name);
  button->setAccessibleName(title);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

frmSwap::frmSwap(Session& session, EditControl& edit, QWidget* parent)
    : QDialog(parent), session_(session), edit_(edit) {
  setObjectName(QStringLiteral("frmSwap"));
  setWindowTitle(tr("Rotate/Swap"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  auto* swaps = new QBoxLayout(QBoxLayout::TopToBottom);
  swaps->addWidget(MakeHands());
  swaps->addWidget(MakeSuits());
  column->addLayout(swaps);
  column->addWidget(MakeRotation());
  QPushButton* cmdCancel = MakeButton(QStringLiteral("cmdCancel"), tr("&Done"), tr("Done"));
  cmdCancel->setDefault(true);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::accept);
  column->addWidget(cmdCancel);
  column->setSizeConstraint(QLayout::SetFixedSize);
  if (column->sizeHint().height() > RoomForDialog(*this).height())
    swaps->setDirection(QBoxLayout::LeftToRight);
}

QGroupBox* frmSwap::MakeHands() {
  auto* box = new QGroupBox(tr("Swap Hands"), this);
  QGridLayout* grid = MakeGrid(box);
  OptFrom = AddSeats(grid, QStringLiteral("OptFrom"), tr("From:"), Seat::North);
  OptTo = AddSeats(grid, QStringLiteral("OptTo"), tr("To:"), Seat::South);
  QPushButton* cmdSwap = MakeButton(QStringLiteral("cmdSwap"), tr("&Swap"), tr("Swap hands"));
  connect(cmdSwap, &QPushButton::clicked, this, [this] {
    Change([this] {
      edit_.SwapHands(static_cast<Seat>(OptFrom->checkedId()),
                      static_cast<Seat>(OptTo->checkedId()));
    });
  });
  AddButton(grid, cmdSwap);
  return box;
}

QGroupBox* frmSwap::MakeSuits() {
  auto* box = new QGroupBox(tr("Swap Suits"), this);
  QGridLayout* grid = MakeGrid(box);
  OptFromSuit = AddSuits(grid, QStringLiteral("OptFromSuit"), tr("From:"), Suit::Spades);
  OptToSuit = AddSuits(grid, QStringLiteral("OptToSuit"), tr("To:"), Suit::Hearts);
  QPushButton* cmdSwapSuit =
      MakeButton(QStringLiteral("cmdSwapSuit"), tr("S&wap"), tr("Swap suits"));
  connect(cmdSwapSuit, &QPushButton::clicked, this, [this] {
    Change([this] {
      edit_.SwapSuits(static_cast<Suit>(OptFromSuit->checkedId()),
                      static_cast<Suit>(OptToSuit->checkedId()));
    });
  });
  AddButton(grid, cmdSwapSuit);
  return box;
}

QGroupBox* frmSwap::MakeRotation() {
  auto* box = new QGroupBox(tr("Rotate hands"), this);
  QGridLayout* grid = MakeGrid(box);
  int index = 0;
  for (const QString& text : {tr("&Clockwise"), tr("&Anti-clockwise"), tr("&Half turn")}) {
    QPushButton* cmdRotate =
        MakeButton(QStringLiteral("cmdRotate_%1").arg(index), text, QString(text).remove(u'&'));
    const auto rotation = kAllRotations.at(static_cast<std::size_t>(index));
    connect(cmdRotate, &QPushButton::clicked, this, [this, rotation] {
      Change([&] { edit_.Rotate(rotation, chkAuction_->isChecked()); });
    });
    const bool half = rotation == Rotation::HalfTurn;
    grid->addWidget(cmdRotate, half ? 1 : 0, half ? 0 : index, 1, half ? 2 : 1);
    ++index;
  }
  chkAuction_ = new QCheckBox(tr("&Take the auction along"), box);
  chkAuction_->setObjectName(QStringLiteral("chkAuction"));
  chkAuction_->setToolTip(tr("Every player keeps his calls"));
  chkAuction_->setEnabled(session_.board.NumCalls() > 0);
  grid->addWidget(chkAuction_, 2, 0, 1, 2);
  return box;
}

QButtonGroup* frmSwap::AddSeats(QGridLayout* grid, const QString& name, const QString& caption,
                                Seat chosen) {
  QStringList texts;
  for (const Seat seat : kAllSeats) texts += ToQt(SeatName[seat]);
  return AddOptions(grid, name, caption, texts, IndexOf(chosen));
}

QButtonGroup* frmSwap::AddSuits(QGridLayout* grid, const QString& name, const QString& caption,
                                Suit chosen) {
  QStringList texts;
  for (const Suit suit : kAllSuits) texts += ToQt(SuitName[suit]);
  QButtonGroup* group = AddOptions(grid, name, caption, texts, IndexOf(chosen));
  for (const Suit suit : kAllSuits) {
    group->button(IndexOf(suit))->setIcon(SymbolIcon(suit, session_.settings.suitColour, *this));
  }
  return group;
}

template <class Procedure>
void frmSwap::Change(const Procedure& procedure) {
  procedure();
  emit Changed();
}

}  // namespace tricklet::ui
