// What mouse and keys do with the cards while hands are edited. Knows no widget and changes no
// board: it says which card is to go where.
#pragma once

#include <cstdint>
#include <optional>

#include <QPointF>
#include <Qt>

#include "core/settings.h"
#include "ui/table/edit_layout.h"
#include "ui/table/table_keys.h"

namespace tricklet::ui {

struct CardMove {
  Card card;
  HandFrame to = HandFrame::Pack;
  friend bool operator==(const CardMove&, const CardMove&) = default;
};

class TableEdit {
 public:
  struct KeyAnswer {
    bool ours = false;  ///< false: the key is left to others
    std::optional<CardMove> move;
  };

  /// Takes over the hands as they are now. When they have changed, a card in the air goes back.
  void Show(const HandTable& hands, EditMethod method);

  // The left button. Dragging: a card is in the air from the first movement on. Clicking: a card
  // and then its hand, or a hand and then the cards that it gets.
  std::optional<CardMove> Press(const EditLayout& layout, QPointF at);
  /// `distance`, in pixels, is the least movement that is more than an unsteady click.
  void Drag(const EditLayout& layout, QPointF at, double distance);
  std::optional<CardMove> Release(const EditLayout& layout, QPointF at);

  /// A suit and a rank choose a card; the arrow that points to a seat, or its letter, gives it the
  /// card; P or Delete puts it into the pack. An arrow first, and the cards typed then go there,
  /// ranks alone being of the suit typed last. Escape forgets.
  KeyAnswer Key(int key, Qt::KeyboardModifiers modifiers);

  /// Forgets what is in the air, chosen or half typed.
  void Forget();

  const HandTable& Hands() const { return hands_; }
  /// The card in the air, and its place under the mouse.
  std::optional<EditedCard> Held() const;
  /// The card that waits for a hand.
  std::optional<Card> Chosen() const { return chosen_; }
  /// The hand, or the pack, that waits for cards.
  std::optional<HandFrame> Receiver() const { return receiver_; }
  /// Where the card in the air would go now; nothing where there is no room for it.
  std::optional<HandFrame> Target() const { return target_; }
  std::optional<Suit> HalfTyped() const { return keys_.HalfTyped(); }

 private:
  struct Grip {
    EditedCard from;
    QPointF pressed;
    QPointF at;
    bool moving = false;
  };

  std::optional<CardMove> Click(const EditLayout& layout, QPointF at);
  KeyAnswer TypeCard(int key, Qt::KeyboardModifiers modifiers);
  void Choose(HandFrame receiver);

  HandTable hands_;
  EditMethod method_ = EditMethod::Dragging;
  std::optional<Grip> grip_;
  std::optional<HandFrame> target_;
  std::optional<Card> chosen_;
  std::optional<HandFrame> receiver_;
  TableKeys keys_;
  std::optional<Suit> lastSuit_;
};

}  // namespace tricklet::ui
