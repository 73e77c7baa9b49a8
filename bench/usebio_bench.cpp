// The results of a club session, 30 boards at 15 tables each: importing them, beside the least that
// the disk has to do for it.
#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include "bench/import_measure.h"
#include "disk/file_io.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "formats/usebio/usebio_reader.h"
#include "library/board_file.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = 30;
constexpr int kTables = 15;

std::string Element(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name + ">\n";
}

std::vector<int> ShuffledPack(std::mt19937& random) {
  std::vector<int> pack(kCardsInPack);
  std::iota(pack.begin(), pack.end(), 0);
  std::shuffle(pack.begin(), pack.end(), random);
  return pack;
}

std::string CardText(int index) {
  const Card card = Card::FromIndex(index);
  return std::string() + "SHDC"[IndexOf(card.suit)] + "AKQJT98765432"[IndexOf(card.rank)];
}

/// South's, West's and North's hands, and an auction and a play of full length.
std::string LinData(int board, const std::vector<int>& pack, std::mt19937& random) {
  const std::string number = std::to_string(board);
  std::string text = "qx|o" + number + "|pn|Ann%20Other%2312%2CBob%20Other%2CCy%20Other%2CDi|md|3";
  for (int hand = 0; hand < kSeats - 1; ++hand) {
    const auto begin = pack.begin() + std::ptrdiff_t{hand} * kCardsInHand;
    std::vector<int> cards(begin, begin + kCardsInHand);
    std::sort(cards.begin(), cards.end());
    for (const int card : cards) text += CardText(card);
    text += ',';
  }
  text += "|rh||ah|Board%20" + number + "|sv|o|";
  for (const char* call : {"1C", "p", "1H", "p", "1N!", "p", "2D!", "p", "2H", "p", "3N", "p"}) {
    text += "mb|" + std::string(call) + "|";
  }
  text += "mb|p|mb|p|";
  for (const int card : ShuffledPack(random)) text += "pc|" + CardText(card) + "|";
  return text + "mc|9|pg||";
}

std::string TravellerLine(const std::string& linData) {
  return Element("TRAVELLER_LINE",
                 Element("NS_PAIR_NUMBER", "1") + Element("EW_PAIR_NUMBER", "2") +
                     Element("CONTRACT", "3N") + Element("PLAYED_BY", "N") + Element("LEAD", "HQ") +
                     Element("TRICKS", "9") + Element("SCORE", "400") +
                     Element("NS_MATCH_POINTS", "13.5") + Element("EW_MATCH_POINTS", "14.5") +
                     Element("LIN_DATA", linData));
}

std::string SessionText() {
  std::mt19937 random(1);
  std::string pairs;
  for (int pair = 1; pair <= 2 * kTables; ++pair) {
    const std::string player =
        Element("PLAYER", Element("PLAYER_NAME", "Player " + std::to_string(pair)));
    std::string text = Element("PAIR_NUMBER", std::to_string(pair));
    text += Element("DIRECTION", pair % 2 == 0 ? "EW" : "NS");
    text += player;
    text += player;
    pairs += Element("PAIR", text);
  }
  std::string boards;
  for (int board = 1; board <= kBoards; ++board) {
    const std::vector<int> pack = ShuffledPack(random);
    std::string lines;
    for (int table = 0; table < kTables; ++table) {
      lines += TravellerLine(LinData(board, pack, random));
    }
    boards += Element("BOARD", Element("BOARD_NUMBER", std::to_string(board)) + lines);
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<USEBIO Version=\"1.2\">\n" +
         Element("CLUB", Element("CLUB_NAME", "Club")) + "<EVENT EVENT_TYPE=\"PAIRS\">\n" +
         Element("PARTICIPANTS", pairs) + boards + "</EVENT></USEBIO>\n";
}

/// A root with the file of a session, and the texts of its boards' files.
class Fixture : public TemporaryRoot {
 public:
  Fixture() : file(root / "session.xml") {
    const std::string text = SessionText();
    ReplaceWholeFile(file, text);
    const auto read = std::get<UsebioResults>(ReadUsebio(text));
    LeftOut leftOut;
    for (const Board& board : BoardsOfLinData(read.data, kFirstBoardNumber, kBoards, leftOut)) {
      boardTexts.push_back(WriteBoardText(board));
    }
  }

  fs::path file;
  std::vector<std::string> boardTexts;
};

const Fixture& Results() {
  static const Fixture fixture;
  return fixture;
}

void UsebioFloor(benchmark::State& state) {
  MeasureImportFloor(state, Results(), Results().file, Results().boardTexts);
}
void ImportUsebio(benchmark::State& state) {
  MeasureImport(state, Results(), Results().file, kBoards);
  const fs::path results = Results().root / kImportLibrary / "LIN.txt";
  if (ParseLinFile(ReadWholeFile(results, kMaxLinFileBytes)).lin.size() !=
      std::size_t{kBoards} * kTables) {
    state.SkipWithError("not all results came in");
  }
}

TRICKLET_BENCH(UsebioFloor);
TRICKLET_BENCH(ImportUsebio);

}  // namespace
}  // namespace tricklet::bench
