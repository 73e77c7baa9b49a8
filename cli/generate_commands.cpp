// The command that generates deals.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/notation_text.h"
#include "core/text.h"
#include "generate/constraints.h"
#include "generate/generate.h"
#include "library/tables.h"

namespace tricklet::cli {
namespace {

/// What is asked of one constrained hand, as typed.
struct HandArguments {
  std::optional<std::string> direction = {};  ///< a seat, "dealer", or "dealer+1" to "dealer+3"
  std::optional<std::string> points = {};     ///< "15-17", or "16" for exactly so many
  std::optional<std::string> lengths = {};    ///< of S, H, D, C: "5-13,0-4,2,0-13"
  std::optional<std::string> type = {};       ///< "balanced", "weak2", "4441" or "preempt"
  std::optional<int> option = {};             ///< of the type: 1 or 2

  bool Any() const { return direction || points || lengths || type || option; }
};

struct GenerateArguments {
  int first = 1;
  int last = 1;
  PerGenHand<HandArguments> hands;    ///< the second counts only when it has an option
  std::optional<std::uint64_t> seed;  ///< the same seed gives the same deals
  bool analyse = false;               ///< computes the double-dummy tables too
};

constexpr EnumArray<HandType, std::string_view, kHandTypes> kTypeWords{
    {"balanced", "weak2", "4441", "preempt"}};

/// A number of 0 to `highest`.
std::optional<int> NumberOf(std::string_view text, int highest) {
  const auto number = NumberFromText(text);
  return number && *number >= 0 && *number <= highest ? number : std::nullopt;
}

/// "15-17" or "16".
std::optional<Limits> LimitsFromText(std::string_view text, int highest) {
  const auto dash = text.find('-');
  const auto low = NumberOf(text.substr(0, dash), highest);
  const auto high = dash == std::string_view::npos ? low : NumberOf(text.substr(dash + 1), highest);
  if (!low || !high || *low > *high) return std::nullopt;
  return Limits{*low, *high};
}

/// Four ranges with commas between them.
std::optional<PerSuit<Limits>> LengthsFromText(std::string_view text) {
  if (std::count(text.begin(), text.end(), ',') != kSuits - 1) return std::nullopt;
  PerSuit<Limits> lengths;
  for (const Suit suit : kAllSuits) {
    const auto comma = text.find(',');
    const auto range = LimitsFromText(text.substr(0, comma), kCardsInHand);
    if (!range) return std::nullopt;
    lengths[suit] = *range;
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
  }
  return lengths;
}

struct Direction {
  int index = 0;
  bool fromDealer = false;
};

std::optional<Direction> DirectionFromText(std::string_view text) {
  constexpr std::string_view kDealer = "dealer";
  if (const auto seat = SeatFromText(text)) return Direction{IndexOf(*seat), false};
  if (!EqualNoCase(text.substr(0, kDealer.size()), kDealer)) return std::nullopt;
  text.remove_prefix(kDealer.size());
  if (text.empty()) return Direction{0, true};
  const auto steps = text.front() == '+' ? NumberOf(text.substr(1), kSeats - 1) : std::nullopt;
  if (!steps) return std::nullopt;
  return Direction{*steps, true};
}

std::optional<HandType> TypeFromText(std::string_view text) {
  for (const HandType type : kAllHandTypes) {
    if (EqualNoCase(text, kTypeWords[type])) return type;
  }
  return std::nullopt;
}

std::optional<std::string> ReadShape(const HandArguments& asked, GenHand hand,
                                     Constraints& constraints) {
  if (asked.type && asked.lengths) return "A hand has either lengths or a type";
  if (asked.lengths) {
    const auto lengths = LengthsFromText(*asked.lengths);
    if (!lengths) return *asked.lengths + " are no four ranges of 0-13 cards";
    constraints.suitLimits[hand] = *lengths;
  }
  if (!asked.type) {
    return asked.option ? std::optional<std::string>("An option belongs to a type") : std::nullopt;
  }
  const auto type = TypeFromText(*asked.type);
  if (!type) return *asked.type + " is no hand type";
  constraints.useSuitLengths[hand] = false;
  constraints.handTypeIndex[hand] = *type;
  if (!asked.option) return std::nullopt;
  const bool exists =
      (*asked.option == 1 || *asked.option == 2) && !HandTypeOptions[*type].front().empty();
  if (!exists) return *asked.type + " has no option " + std::to_string(*asked.option);
  constraints.handTypeOption[*type][hand] = *asked.option - 1;
  return std::nullopt;
}

std::optional<std::string> ReadPoints(const HandArguments& asked, GenHand hand,
                                      Constraints& constraints) {
  if (!asked.points) return std::nullopt;
  const auto points = LimitsFromText(*asked.points, kMaxPoints);
  if (!points) return *asked.points + " is no range of 0-37 points";
  constraints.pointLimits[hand] = *points;
  return std::nullopt;
}

/// Both directions count from the same: from North, or from the dealer.
std::optional<std::string> ReadDirections(const PerGenHand<HandArguments>& hands,
                                          Constraints& constraints) {
  std::optional<bool> fromDealer;
  for (const GenHand hand : kGenHands) {
    const auto& text = hands[hand].direction;
    if (!text) continue;
    const auto direction = DirectionFromText(*text);
    if (!direction) return *text + " is no seat";
    if (fromDealer && *fromDealer != direction->fromDealer) {
      return "Both hands are given by seats, or both from the dealer";
    }
    fromDealer = direction->fromDealer;
    constraints.handDirection[hand] = direction->index;
  }
  constraints.relativeToDealer = fromDealer.value_or(false);
  return std::nullopt;
}

Constraints ReadConstraints(const GenerateArguments& arguments,
                            std::optional<std::string>& problem) {
  Constraints constraints;
  constraints.genBoards = {arguments.first, arguments.last};
  constraints.numGenHands = arguments.hands[GenHand::Second].Any() ? 2 : 1;
  problem.reset();
  if (arguments.first > arguments.last) problem = "The first board is above the last";
  if (!problem) problem = ReadDirections(arguments.hands, constraints);
  for (const GenHand hand : kGenHands) {
    if (!problem) problem = ReadShape(arguments.hands[hand], hand, constraints);
    if (!problem) problem = ReadPoints(arguments.hands[hand], hand, constraints);
  }
  return constraints;
}

ExitCode GenerateBoards(const Context& context, const GenerateArguments& arguments) {
  Session& session = context.session;
  std::optional<std::string> problem;
  const Constraints constraints = ReadConstraints(arguments, problem);
  if (problem) {
    session.host.Tell(*problem);
    return ExitCode::Usage;
  }
  if (const auto contradiction = CheckConstraints(constraints)) {
    session.host.Tell(contradiction->text);
    return ExitCode::Refused;
  }
  if (arguments.analyse && !RequireSolver(session)) return ExitCode::Refused;
  if (!OpenLibrary(context, true)) return ExitCode::Refused;
  if (arguments.seed) session.random = RandomSource(*arguments.seed);
  const GenerateOutcome outcome =
      Generate(session, constraints, {.analyse = arguments.analyse, .preview = {}});
  if (outcome.refused) return ExitCode::Refused;
  context.data << outcome.boardsStored << (outcome.boardsStored == 1 ? " board" : " boards")
               << " generated\n";
  if (!Succeeded(outcome)) return ExitCode::Refused;  // why has been told already
  if (arguments.analyse) session.host.Tell(AnalysisText(outcome.tables));
  return ExitCode::Done;
}

void AddHand(CLI::App& generate, HandArguments& hand, const std::string& number) {
  generate.add_option("--hand" + number, hand.direction, "Its seat, or dealer+K")
      ->type_name("SEAT");
  generate.add_option("--points" + number, hand.points, "Its high-card points: 15-17")
      ->type_name("RANGE");
  generate
      .add_option("--lengths" + number, hand.lengths,
                  "Its spades, hearts, diamonds and clubs: 5-13,0-13,0-13,0-13")
      ->type_name("RANGES");
  generate.add_option("--type" + number, hand.type, "Its shape: balanced, weak2, 4441, preempt")
      ->type_name("TYPE");
  generate
      .add_option("--option" + number, hand.option,
                  "Of balanced: 1 allows a 5-card major, 2 does not; of weak2: 2 adds diamonds")
      ->type_name("K");
}

}  // namespace

void AddGenerateCommands(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<GenerateArguments>();
  const CLI::Range boards(kFirstBoardNumber, kLastBoardNumber);
  auto* generate = app.add_subcommand("generate", "Fill boards with random deals");
  generate->add_option("FIRST", asked->first, "First board")->required()->check(boards);
  generate->add_option("LAST", asked->last, "Last board")->required()->check(boards);
  AddHand(*generate, asked->hands[GenHand::First], "1");
  AddHand(*generate, asked->hands[GenHand::Second], "2");
  generate->add_option("--seed", asked->seed, "The same number gives the same deals")
      ->type_name("N");
  generate->add_flag("--analyse", asked->analyse, "Compute double-dummy tables");
  WhenChosen(*generate, command, [asked](const Context& context, const ConsoleHost&) {
    return GenerateBoards(context, *asked);
  });
}

}  // namespace tricklet::cli
