// USEBIO files made for a test.
#pragma once

#include <string>

namespace tricklet::test {

/// One element: `Element("SCORE", "420")`.
inline std::string Element(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name + ">";
}

/// A LIN record as such files hold it: South has all spades, West all hearts, North all diamonds.
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

/// A board with one line.
inline std::string OneLineBoard(int number) {
  return BoardElement(std::to_string(number), TravellerLine(LinData(number)));
}

/// The elements of a file, without declaration.
inline std::string UsebioBody(const std::string& inEvent, const std::string& eventType = "PAIRS") {
  return "<USEBIO Version=\"1.2\">" + Element("CLUB", Element("CLUB_NAME", "Club")) +
         "<EVENT EVENT_TYPE=\"" + eventType + "\">\n<DATE>07/04/2025</DATE>" + inEvent +
         "</EVENT></USEBIO>\n";
}

inline std::string UsebioText(const std::string& inEvent, const std::string& eventType = "PAIRS") {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + UsebioBody(inEvent, eventType);
}

}  // namespace tricklet::test
