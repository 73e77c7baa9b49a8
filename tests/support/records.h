// Hand-record files made for a test.
#pragma once

#include <initializer_list>
#include <string>

#include "tests/support/usebio.h"

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

}  // namespace tricklet::test
