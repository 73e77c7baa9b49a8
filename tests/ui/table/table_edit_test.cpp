#include "ui/table/table_edit.h"

#include <array>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "core/text.h"
#include "generate/editing.h"
#include "tests/support/hands.h"
#include "tests/support/words.h"
#include "tests/ui/geometry.h"

namespace tricklet::ui {
namespace {

using test::CardOf;

constexpr QSizeF kSize(900, 680);
constexpr double kTremble = 10;
constexpr std::string_view kFrameLetters = "NESWP";

HandFrame FrameOfText(char letter) {
  return static_cast<HandFrame>(kFrameLetters.find(letter));
}

/// The cards on a table, moved as the edit asks for it.
class Editing {
 public:
  Editing(EditMethod method, const char* deal) : method_(method) {
    board.hands = test::HandsOf(deal);
    edit.Show(board.hands, method_);
  }

  EditLayout Layout() const { return LayOutEdit(kSize, board.hands); }
  QPointF At(Card card) const { return SeizePoint(Layout(), card); }
  QPointF At(HandFrame frame) const { return Layout().Caption(frame).center(); }

  void Seize(Card card) { Take(edit.Press(Layout(), At(card))); }
  void Drag(QPointF to) { edit.Drag(Layout(), to, kTremble); }
  void Drop(QPointF at) { Take(edit.Release(Layout(), at)); }
  void Click(QPointF at) {
    Take(edit.Press(Layout(), at));
    Drop(at);
  }
  bool Key(int key, Qt::KeyboardModifiers modifiers = {}) {
    const TableEdit::KeyAnswer answer = edit.Key(key, modifiers);
    Take(answer.move);
    return answer.ours;
  }
  void Take(const std::optional<CardMove>& move) {
    if (!move) return;
    refused += MoveCard(board, move->card, SeatOf(move->to)) ? 0 : 1;
    edit.Show(board.hands, method_);
  }

  /// Each of the words "SA:N" tells where a card lies.
  void Expect(const char* places, const char* after) const {
    for (const std::string& word : test::Words(places)) {
      EXPECT_EQ(FrameHolding(board.hands, CardOf(word)), FrameOfText(word.at(3)))
          << word << " after " << after;
    }
  }

  Board board;
  TableEdit edit;
  int refused = 0;

 private:
  EditMethod method_;
};

constexpr const char* kSuitEach =
    "N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432";
constexpr const char* kEmpty = "N:... ... ... ...";

TEST(TableEditTest, DragsCardsBetweenHandsAndPack) {
  Editing table(EditMethod::Dragging, kSuitEach);
  const struct {
    const char* card;
    char to;
    const char* places;
    bool offered;  // as the place where the card would go
    int refused;
  } steps[] = {{"SA", 'N', "SA:N", false, 0},  // dropped at home
               {"SA", 'E', "SA:N", false, 1},  // East is full
               {"HA", 'P', "HA:P", true, 0},
               {"SA", 'E', "SA:E", true, 0},
               {"HA", 'N', "HA:N", true, 0}};
  for (const auto& [card, to, places, offered, refused] : steps) {
    table.refused = 0;
    table.Seize(CardOf(card));
    EXPECT_FALSE(table.edit.Held()) << "not before the mouse moves";
    const QPointF place = table.At(FrameOfText(to));
    table.Drag(place);
    EXPECT_EQ(table.edit.Held()->card, CardOf(card));
    EXPECT_EQ(table.edit.Target().has_value(), offered) << card << " to " << to;
    table.Drop(place);
    EXPECT_FALSE(table.edit.Held() || table.edit.Target());
    table.Expect(places, card);
    EXPECT_EQ(table.refused, refused) << card;
  }
}

TEST(TableEditTest, LetsACardGoHome) {
  Editing table(EditMethod::Dragging, kSuitEach);
  const Card ten = CardOf("CT");
  const QPointF pack = table.At(HandFrame::Pack);
  const QPointF home = table.At(ten);
  const auto escape = [&] { EXPECT_TRUE(table.Key(Qt::Key_Escape)); };
  const auto dealAnew = [&] {
    table.edit.Show(test::HandsOf(kEmpty), EditMethod::Dragging);
    table.edit.Show(table.board.hands, EditMethod::Dragging);
  };
  const struct {
    const char* name;
    QPointF over;
    QPointF drop;
    std::function<void()> between = [] {};
  } ways[] = {
      {"a click", home, home},
      {"a hand that trembles", home + QPointF(kTremble / 2, 0), pack},
      {"the middle", pack, table.Layout().table.centre.center()},
      {"outside", pack, QPointF(-50, 40)},
      {"Escape", pack, pack, escape},
      {"another deal under the mouse", pack, pack, dealAnew},
  };
  for (const auto& [name, over, drop, between] : ways) {
    table.Seize(ten);
    table.Drag(over);
    between();
    table.Drop(drop);
    table.Expect("CT:W", name);
    EXPECT_FALSE(table.edit.Held()) << name;
  }
}

TEST(TableEditTest, ClicksACardAndItsHandOrAHandAndItsCards) {
  // Clicks on cards and, by one letter, on hands and the pack.
  const std::pair<const char*, const char*> cases[] = {
      {"SA W", "SA:W"},           {"SA W SA P", "SA:P"},
      {"S SA SK", "SA:S SK:S"},   {"CT HA N", "CT:P HA:N"},  // another card is chosen instead
      {"CT CT N", "CT:P"},                                   // chosen no more
      {"S S SA N", "SA:N"},                                  // nor is the hand
      {"S SA SA P", "SA:P"},                                 // a card of the hand itself is chosen
      {"S SA P SK", "SA:S SK:P"},                            // P takes the place of S
  };
  for (const auto& [clicks, places] : cases) {
    Editing table(EditMethod::Clicking, kEmpty);
    for (const std::string& word : test::Words(clicks)) {
      table.Click(word.size() == 1 ? table.At(FrameOfText(word[0])) : table.At(CardOf(word)));
    }
    table.Expect(places, clicks);
    EXPECT_FALSE(table.edit.Held()) << "dragging is another way";
  }
}

TEST(TableEditTest, TypesACardAndItsHandOrAHandAndItsCards) {
  // "<>^v" for the arrows, "!" for Escape, "#" for Delete.
  const std::pair<const char*, const char*> cases[] = {
      {"SAS", "SA:S"},         {"H10S", "HT:S"},
      {"sk<", "SK:W"},         {">DAKQcT", "DA:E DK:E DQ:E CT:E"},
      {"SANSA#", "SA:P"},      {"SANSAP", "SA:P"},
      {"^SA!SK", "SA:N SK:P"}, {"SA!v", "SA:P"},
      {"SAHKE", "SA:P HK:E"}};
  for (const auto& [keys, places] : cases) {
    Editing table(EditMethod::Dragging, kEmpty);
    for (const char key : std::string_view(keys)) {
      constexpr std::string_view kSigns = "<>^v!#";
      constexpr std::array<int, 6> kKeys{Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,
                                         Qt::Key_Down, Qt::Key_Escape, Qt::Key_Delete};
      const auto sign = kSigns.find(key);
      const int code = sign == std::string_view::npos ? ToUpper(key) : kKeys.at(sign);
      EXPECT_TRUE(table.Key(code)) << key << " of " << keys;
    }
    table.Expect(places, keys);
  }
  Editing table(EditMethod::Dragging, kEmpty);
  EXPECT_FALSE(table.Key(Qt::Key_S, Qt::ControlModifier)) << "a command";
  EXPECT_FALSE(table.Key(Qt::Key_Escape)) << "there is nothing to forget";
  EXPECT_FALSE(table.Key(Qt::Key_X));
}

}  // namespace
}  // namespace tricklet::ui
