#include "ui/table/table_edit.h"

#include <utility>

#include <QLineF>

#include "generate/editing.h"

namespace tricklet::ui {
namespace {

bool HasRoom(const HandTable& hands, const CardMove& move) {
  Board board;
  board.hands = hands;
  return MoveCard(board, move.card, SeatOf(move.to));
}

std::optional<HandFrame> FrameOfArrow(int key) {
  switch (key) {
    case Qt::Key_Up:
      return HandFrame::North;
    case Qt::Key_Right:
      return HandFrame::East;
    case Qt::Key_Down:
      return HandFrame::South;
    case Qt::Key_Left:
      return HandFrame::West;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_P:
      return HandFrame::Pack;
    default:
      return std::nullopt;
  }
}

/// The key S stands for spades until a card has been chosen, and then for South.
std::optional<HandFrame> FrameOfLetter(int key) {
  switch (key) {
    case Qt::Key_N:
      return HandFrame::North;
    case Qt::Key_E:
      return HandFrame::East;
    case Qt::Key_S:
      return HandFrame::South;
    case Qt::Key_W:
      return HandFrame::West;
    default:
      return FrameOfArrow(key);
  }
}

PerSuit<Holding> AllOf(std::optional<Suit> suit) {
  PerSuit<Holding> cards;
  for (const Suit each : kAllSuits) {
    if (!suit || suit == each) cards[each] = Holding::FromBits(Holding::kAllBits);
  }
  return cards;
}

}  // namespace

void TableEdit::Show(const HandTable& hands, EditMethod method) {
  if (hands != hands_) {
    grip_.reset();
    target_.reset();
    chosen_.reset();
  }
  if (method != method_) Forget();
  hands_ = hands;
  method_ = method;
}

void TableEdit::Forget() {
  grip_.reset();
  target_.reset();
  chosen_.reset();
  receiver_.reset();
  keys_.Forget();
  lastSuit_.reset();
}

std::optional<CardMove> TableEdit::Press(const EditLayout& layout, QPointF at) {
  keys_.Forget();
  if (method_ == EditMethod::Clicking) return Click(layout, at);
  if (method_ == EditMethod::Dragging) {
    chosen_.reset();
    receiver_.reset();
    if (const auto hit = EditedCardAt(layout, hands_, at)) grip_ = Grip{*hit, at, at};
  }
  return std::nullopt;
}

std::optional<CardMove> TableEdit::Click(const EditLayout& layout, QPointF at) {
  const auto frame = FrameAt(layout, at);
  const auto hit = EditedCardAt(layout, hands_, at);
  if (const auto chosen = chosen_; chosen && frame && *frame != FrameHolding(hands_, *chosen)) {
    chosen_.reset();
    return CardMove{*chosen, *frame};
  }
  if (hit && receiver_ && FrameHolding(hands_, hit->card) != *receiver_) {
    return CardMove{hit->card, *receiver_};
  }
  if (hit) {
    receiver_.reset();
    chosen_ = chosen_ == hit->card ? std::nullopt : std::optional(hit->card);
  } else if (frame && !chosen_) {
    Choose(*frame);
  } else {
    chosen_.reset();
    receiver_.reset();
  }
  return std::nullopt;
}

void TableEdit::Choose(HandFrame receiver) {
  receiver_ = receiver_ == receiver ? std::nullopt : std::optional(receiver);
}

void TableEdit::Drag(const EditLayout& layout, QPointF at, double distance) {
  if (!grip_) return;
  grip_->at = at;
  grip_->moving = grip_->moving || QLineF(grip_->pressed, at).length() >= distance;
  target_ = grip_->moving ? FrameAt(layout, at) : std::nullopt;
  if (target_ && (*target_ == FrameHolding(hands_, grip_->from.card) ||
                  !HasRoom(hands_, {grip_->from.card, *target_}))) {
    target_.reset();
  }
}

std::optional<CardMove> TableEdit::Release(const EditLayout& layout, QPointF at) {
  const auto grip = std::exchange(grip_, std::nullopt);
  target_.reset();
  if (!grip || !grip->moving) return std::nullopt;
  const auto frame = FrameAt(layout, at);
  if (!frame || *frame == FrameHolding(hands_, grip->from.card)) return std::nullopt;
  return CardMove{grip->from.card, *frame};
}

std::optional<EditedCard> TableEdit::Held() const {
  if (!grip_ || !grip_->moving) return std::nullopt;
  return EditedCard{grip_->from.card, grip_->from.rect.translated(grip_->at - grip_->pressed)};
}

TableEdit::KeyAnswer TableEdit::Key(int key, Qt::KeyboardModifiers modifiers) {
  constexpr Qt::KeyboardModifiers kHarmless = Qt::ShiftModifier | Qt::KeypadModifier;
  if ((modifiers & ~kHarmless) != 0) return {};
  if (key == Qt::Key_Escape) {
    const bool something = grip_ || chosen_ || receiver_ || keys_.HalfTyped();
    Forget();
    return {something, std::nullopt};
  }
  if (grip_) return {};
  if (const auto chosen = chosen_; chosen && !keys_.HalfTyped()) {
    if (const auto to = FrameOfLetter(key)) {
      chosen_.reset();
      return {true, CardMove{*chosen, *to}};
    }
  }
  if (const auto receiver = FrameOfArrow(key)) {
    keys_.Forget();
    Choose(*receiver);
    return {true, std::nullopt};
  }
  return TypeCard(key, modifiers);
}

TableEdit::KeyAnswer TableEdit::TypeCard(int key, Qt::KeyboardModifiers modifiers) {
  const auto answer = keys_.Press(key, modifiers, AllOf({}), AllOf(lastSuit_));
  if (!answer.ours) return {};
  if (!answer.card) {
    if (keys_.HalfTyped()) chosen_.reset();
    return {true, std::nullopt};
  }
  lastSuit_ = answer.card->suit;
  if (receiver_) return {true, CardMove{*answer.card, *receiver_}};
  chosen_ = answer.card;
  return {true, std::nullopt};
}

}  // namespace tricklet::ui
