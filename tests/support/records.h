// Hand-record files made for a test.
#pragma once

#include <initializer_list>
#include <string>

namespace tricklet::test {

inline const std::string kPbnDeal =
    "[Deal \"N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96\"]\n";

/// A PBN file of boards with the same deal.
inline std::string PbnText(std::initializer_list<int> numbers) {
  std::string text = "% PBN 2.1\n";
  for (const int number : numbers) {
    text += "[Board \"" + std::to_string(number) + "\"]\n" + kPbnDeal + "\n";
  }
  return text;
}

/// The board line of a DLM file; the pack is dealt round one card at a time.
inline std::string DlmLine(int number, const std::string& deal = "blblblblblblblblblblblblbl") {
  return "Board " + std::to_string(number) + "=" + deal + "\r\n";
}

/// A LIN record: `room` is "o5" or "c5". Dealer 0 is none; South has all spades, West all hearts.
inline std::string LinRecordText(const std::string& room, const std::string& more = "",
                                 const std::string& hands = "0SAKQJT98765432,HAKQJT98765432") {
  return "qx|" + room + "|md|" + hands + ",DAKQJT98765432,|" + more + "pg||\r\n";
}

/// `count` passes as LIN has them.
inline std::string LinPasses(int count) {
  std::string calls;
  for (int call = 0; call < count; ++call) calls += "mb|p|";
  return calls;
}

/// One element of a USEBIO file: `Element("SCORE", "420")`.
inline std::string Element(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name + ">";
}

/// A LIN record as USEBIO files hold it: South has all spades, West all hearts, North all diamonds.
inline std::string LinData(int board, const std::string& calls = "mb|1S|mb|p|mb|p|mb|p|") {
  const std::string number = std::to_string(board);
  const std::string dealer = std::to_string((board + 1) % 4 + 1);  // 1 is South, 2 West ...
  return "qx|o" + number + "|pn|Ann%2312%2CBob%2CCy%2CDi|md|" + dealer +
         "SAKQJT98765432,HAKQJT98765432,DAKQJT98765432,|rh||ah|Board%20" + number + "|sv|o|" +
         calls + "pg||";
}

inline std::string TravellerLine(const std::string& linData, const std::string& others = "") {
  return Element("TRAVELLER_LINE", others + Element("LIN_DATA", linData));
}

inline std::string BoardElement(const std::string& number, const std::string& lines) {
  return Element("BOARD", Element("BOARD_NUMBER", number) + lines);
}

/// A board with one traveller line.
inline std::string OneLineBoard(int number) {
  return BoardElement(std::to_string(number), TravellerLine(LinData(number)));
}

/// The elements of a USEBIO file, without the XML declaration.
inline std::string UsebioBody(const std::string& inEvent, const std::string& eventType = "PAIRS") {
  return "<USEBIO Version=\"1.2\">" + Element("CLUB", Element("CLUB_NAME", "Club")) +
         "<EVENT EVENT_TYPE=\"" + eventType + "\">\n<DATE>07/04/2025</DATE>" + inEvent +
         "</EVENT></USEBIO>\n";
}

inline std::string UsebioText(const std::string& inEvent, const std::string& eventType = "PAIRS") {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + UsebioBody(inEvent, eventType);
}

}  // namespace tricklet::test
