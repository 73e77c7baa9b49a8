#include "analysis/online_link.h"

#include "analysis/deal_text.h"
#include "core/statistics.h"

namespace tricklet {
namespace {

constexpr std::string_view kPage = "/bsol2/ddummy.htm";

/// Percent-encoding of a query value: what RFC 3986 calls unreserved stays, every other byte is
/// encoded.
std::string Encoded(std::string_view text) {
  constexpr std::string_view kUnreserved =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : text) {
    if (kUnreserved.find(c) != std::string_view::npos) {
      encoded += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      encoded += '%';
      encoded += kHex[byte >> 4U];
      encoded += kHex[byte & 0xFU];
    }
  }
  return encoded;
}

std::string Origin(std::string_view host) {
  while (host.ends_with('/')) host.remove_suffix(1);
  const bool hasScheme = host.find("://") != std::string_view::npos;
  return (hasScheme ? "" : "https://") + std::string(host);
}

}  // namespace

std::string SolverAddress(const Board& board, std::string_view libraryName, std::string_view host,
                          std::string_view linRecord) {
  std::string address = Origin(host);
  address += kPage;
  if (!linRecord.empty()) return address + "?lin=" + Encoded(linRecord);
  address += "?board=" + std::to_string(board.boardNumber);
  address += "&dealer=";
  address += SeatName[board.Dealer()].front();
  address += "&vul=";
  address += PBNVul[board.Vulnerability()];
  int cardCount = 0;
  for (const Seat seat : kAllSeats) {
    address += "&" + std::string(SeatName[seat]) + "=" + HandDealText(board.hands[seat], cardCount);
  }
  address += "&title=" + Encoded("Library: " + std::string(libraryName));
  return address + "&analyse=true&club=velm&event=01";
}

std::string SolverAddressError(const Board& board) {
  const PerSeat<int> cardCount = GetStats(board.hands).seatCardCount;
  std::string errors;
  for (const Seat seat : kAllSeats) {
    if (cardCount[seat] == kCardsInHand) continue;
    if (!errors.empty()) errors += '\n';
    errors += "Error - hand " + std::to_string(board.boardNumber) + " - " +
              std::string(SeatName[seat]) + " has " + std::to_string(cardCount[seat]) + " cards.";
  }
  return errors;
}

}  // namespace tricklet
