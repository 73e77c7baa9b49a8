#include "formats/dlm/dlm_writer.h"

#include "core/text.h"
#include "formats/dlm/dlm_deal.h"

namespace tricklet {
namespace {

constexpr std::size_t kNumberDigits = 2;

std::string LineOfBoard(int number, const std::string& deal) {
  return "Board " + ZeroPadded(number, kNumberDigits) + "=" + deal + "\r\n";
}

}  // namespace

std::string DLMHeader(int first, int last) {
  constexpr std::size_t kChecksumDigits = 3;
  const unsigned checksum = static_cast<unsigned>(first) ^ static_cast<unsigned>(last);
  return "[DOCUMENT]\r\nHeadline=\r\nStatus=Show\r\nDuplicates=1\r\nFrom board=" +
         std::to_string(first) + "\r\nTo board=" + std::to_string(last) +
         "\r\nDealing method=1\r\nNext board to duplimate=0\r\nPrintOuts=0\r\nCrypto key=0\r\n"
         "Checksum=" +
         ZeroPadded(static_cast<int>(checksum), kChecksumDigits) + "\r\n";
}

std::string DLMBoardHead(int number) {
  const std::string digits = ZeroPadded(number, kNumberDigits);
  return "Duplicates " + digits + "=0\r\nProperty " + digits + "=1\r\n";
}

std::string DLMBoardLine(int number, const HandTable& hands) {
  return LineOfBoard(number, EncodeDLMDeal(number, hands));
}

std::string DLMPlaceholderLine(int number) {
  return LineOfBoard(number, WithDLMChecksum(number, kDLMPlaceholderDeal));
}

std::string DLMFooter() {
  return "[STARTUP]\r\nStatistics=Yes\r\nAdd filename=Yes\r\nMakeable=1\r\nReversed=0\r\n";
}

}  // namespace tricklet
