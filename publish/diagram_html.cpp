// The diagram as HTML.
#include <algorithm>
#include <string_view>

#include "publish/diagram.h"
#include "publish/html_text.h"

namespace tricklet {
namespace {

// Dark enough to be read on white, 4.5 to 1 or more.
constexpr PerSuit<std::string_view> kFourColours{{"#1b2468", "#c8202f", "#b85a00", "#1d7a34"}};
constexpr PerSuit<std::string_view> kTwoColours{{"#16181c", "#c8202f", "#c8202f", "#16181c"}};

constexpr std::string_view kVulnerable = "color:#c8202f;font-weight:bold";
// Word processors and mails keep the style of a cell rather than that of the table.
constexpr std::string_view kCell = "padding:2px 10px;vertical-align:top;text-align:left";
constexpr std::string_view kMiddle = "padding:2px 10px;vertical-align:middle;text-align:center";

/// Writes into one text.
class HtmlWriter {
 public:
  HtmlWriter(const SeenBoard& seen, bool fourColours)
      : seen_(seen), colours_(fourColours ? kFourColours : kTwoColours) {}

  std::string Write() {
    text_ = "<meta charset=\"utf-8\">\n";
    Table([this] {
      const auto heading = DiagramHeading(seen_);
      if (!heading.empty()) {
        Row([&] { Cell(3, kCell, [&] { Heading(heading); }); });
      }
      Row([this] { Corner(), Hand(Seat::North), Corner(); });
      Row([this] { Hand(Seat::West), Centre(), Hand(Seat::East); });
      Row([this] { Corner(), Hand(Seat::South), Corner(); });
    });
    Auction();
    Foot();
    return std::move(text_);
  }

 private:
  template <class Content>
  void Table(const Content& content) {
    text_ +=
        "<table cellspacing=\"0\" cellpadding=\"0\" border=\"0\" "
        "style=\"border-collapse:collapse;border:none;background:#ffffff;color:#111111;"
        "font-family:Arial,Helvetica,sans-serif;font-size:11pt;line-height:1.3\">\n";
    content();
    text_ += "</table>\n";
  }
  template <class Content>
  void Row(const Content& content) {
    text_ += "<tr>";
    content();
    text_ += "</tr>\n";
  }
  template <class Content>
  void Cell(int columns, std::string_view style, const Content& content) {
    text_ += "<td";
    if (columns > 1) text_ += " colspan=\"" + std::to_string(columns) + "\"";
    text_ += " style=\"" + std::string(style) + "\">";
    content();
    text_ += "</td>";
  }
  void Corner() {
    Cell(1, kCell, [] {});
  }

  /// Escaped, and with suit symbols in their colours.
  void Text(std::string_view text) {
    while (!text.empty()) {
      const auto suit = std::find_if(kAllSuits.begin(), kAllSuits.end(), [text](Suit each) {
        return text.substr(0, SuitSymbol[each].size()) == SuitSymbol[each];
      });
      if (suit != kAllSuits.end()) {
        Symbol(*suit);
        text.remove_prefix(SuitSymbol[*suit].size());
      } else {
        text_ += HtmlText(text.substr(0, 1));
        text.remove_prefix(1);
      }
    }
  }
  void Symbol(Suit suit) {
    text_ += "<span style=\"color:" + std::string(colours_[suit]) + "\">" +
             std::string(SuitSymbol[suit]) + "</span>";
  }
  void Heading(const std::vector<std::string>& parts) {
    text_ += "<b>";
    Text(parts.front());
    text_ += "</b>";
    for (std::size_t i = 1; i < parts.size(); ++i) {
      text_ += "<br>";
      Text(parts[i]);
    }
  }

  void Hand(Seat seat) {
    Cell(1, kCell, [&] {
      text_ += "<b>" + std::string(SeatName[seat]) + "</b>";
      if (const std::string& name = seen_.names[seat]; !name.empty()) {
        text_ += " \u00b7 ";
        Text(name);
      }
      if (!HandSeen(seen_, seat)) return;
      for (const Suit suit : kAllSuits) {
        text_ += "<br>";
        Symbol(suit);
        text_ += " " + DiagramRanks(seen_.board.hands[seat][suit]);
      }
    });
  }

  /// The trick on the table, or the seats, of which those that are vulnerable stand out.
  void Centre() {
    const bool trick = seen_.play.has_value();
    Cell(1, kMiddle, [&] {
      const auto place = [&](Seat seat) { trick ? OnTable(seat) : Letter(seat); };
      place(Seat::North);
      text_ += "<br>";
      place(Seat::West);
      text_ += " &nbsp; &nbsp; ";
      place(Seat::East);
      text_ += "<br>";
      place(Seat::South);
    });
  }
  void OnTable(Seat seat) {
    if (const auto card = CardOnTable(seen_, seat)) {
      Symbol(card->suit);
      text_ += RankText[card->rank];
    } else {
      text_ += "&nbsp;";
    }
  }
  void Letter(Seat seat) {
    const Board& board = seen_.board;
    const bool vulnerable =
        IsStorable(board.boardNumber) && IsVulnerable(board.Vulnerability(), SideOf(seat));
    if (vulnerable) text_ += "<span style=\"" + std::string(kVulnerable) + "\">";
    text_ += SeatName[seat].front();
    if (vulnerable) text_ += "</span>";
  }

  void Auction() {
    const auto rows = DiagramCalls(seen_);
    if (rows.empty()) return;
    text_ += "<br>\n";
    Table([&] {
      Row([this] {
        for (const Seat seat : kCallSeats) {
          Cell(1, kCell, [&] { text_ += "<b>" + std::string(SeatName[seat]) + "</b>"; });
        }
      });
      for (const CallRow& row : rows) {
        Row([&] {
          for (const std::string& call : row) Cell(1, kCell, [&] { Text(call); });
        });
      }
    });
  }

  void Foot() {
    const auto lines = DiagramFoot(seen_);
    if (lines.empty()) return;
    text_ += "<br>\n";
    Table([&] {
      for (const std::string& line : lines) {
        Row([&] { Cell(1, kCell, [&] { Text(line); }); });
      }
    });
  }

  const SeenBoard& seen_;
  const PerSuit<std::string_view>& colours_;
  std::string text_;
};

}  // namespace

std::string DiagramHtml(const SeenBoard& seen, bool fourColours) {
  return HtmlWriter(seen, fourColours).Write();
}

}  // namespace tricklet
