#include "core/scoring.h"

#include <cstdlib>

namespace tricklet {
namespace {

constexpr int kGame = 100;  // contract points that make a game

int Penalty(int undertricks, bool vulnerable, Doubling doubling) {
  const int factor = vulnerable ? 2 : 1;
  if (doubling == Doubling::Undoubled) return undertricks * 50 * factor;
  int doubled = 100 * factor * undertricks + 100 * (undertricks - 1);
  if (!vulnerable && undertricks >= 4) doubled += 100 * (undertricks - 3);
  return doubling == Doubling::Redoubled ? 2 * doubled : doubled;
}

int TrickValue(Strain strain) {
  return strain == Strain::Clubs || strain == Strain::Diamonds ? 20 : 30;
}

int Overtricks(int overtricks, int trickValue, bool vulnerable, Doubling doubling) {
  const int factor = vulnerable ? 2 : 1;
  switch (doubling) {
    case Doubling::Undoubled:
      return overtricks * trickValue;
    case Doubling::Doubled:
      return overtricks * 100 * factor;
    case Doubling::Redoubled:
      return overtricks * 200 * factor;
  }
  return 0;
}

/// For making a doubled or redoubled contract.
int InsultBonus(Doubling doubling) {
  return 50 * static_cast<int>(doubling);
}

int MadeScore(int level, Strain strain, Doubling doubling, int overtricks, bool vulnerable) {
  const int trickValue = TrickValue(strain);
  const int undoubled = level * trickValue + (strain == Strain::NoTrump ? 10 : 0);
  const int contract = undoubled << static_cast<int>(doubling);
  int score =
      contract + Overtricks(overtricks, trickValue, vulnerable, doubling) + InsultBonus(doubling);
  score += contract >= kGame ? 300 + (vulnerable ? 200 : 0) : 50;
  if (level >= kSmallSlam) score += 250 * (vulnerable ? 3 : 2) * (level - kSmallSlam + 1);
  return score;
}

}  // namespace

int GameLevel(Strain strain) {
  constexpr EnumArray<Strain, int, kStrains> kLevels{{4, 4, 5, 5, 3}};
  return kLevels[strain];
}

int ScoreContract(Vulnerability vulnerability, int level, Strain strain, Doubling doubling,
                  int result, Seat declarer) {
  if (level == 0) return 0;
  const Side side = SideOf(declarer);
  const bool vulnerable = IsVulnerable(vulnerability, side);
  const int score = result < 0 ? -Penalty(-result, vulnerable, doubling)
                               : MadeScore(level, strain, doubling, result, vulnerable);
  return side == Side::NorthSouth ? score : -score;
}

std::string ResultText(int result) {
  if (result == 0) return "=";
  return (result > 0 ? "+" : "-") + std::to_string(std::abs(result));
}

Doubling DoublingOf(const std::string& contract) {
  if (contract.ends_with("xx")) return Doubling::Redoubled;
  return contract.ends_with("x") ? Doubling::Doubled : Doubling::Undoubled;
}

std::string ResultLine(const Board& board, int declarerTricks) {
  if (board.contractLevel == 0) return board.contract.empty() ? "" : board.contract + " : 0";
  const int result = declarerTricks - board.contractLevel - kBook;
  const int score = ScoreContract(board.Vulnerability(), board.contractLevel, board.trumps,
                                  DoublingOf(board.contract), result, board.declarer);
  return board.contract + ResultText(result) + " by " + std::string(SeatName[board.declarer]) +
         " : " + (score > 0 ? "NS +" : "EW +") + std::to_string(std::abs(score));
}

}  // namespace tricklet
