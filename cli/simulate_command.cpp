// The command that deals many deals and asks the solver what happens in them.
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/notation_text.h"
#include "cli/script_text.h"
#include "core/text.h"
#include "library/tables.h"
#include "simulation/keep_deals.h"
#include "simulation/simulation_run.h"

namespace tricklet::cli {
namespace {

struct Asked {
  SimulatedQuestion question = SimulatedQuestion::Lead;
  int board = 0;
  std::string contract;  ///< "3NT", "4Sx"; empty: the board's
  std::string by;
  std::string against;
  std::string by2;
  std::string vulnerability;  ///< empty: the board's
  std::string cards;          ///< with blanks between them
  std::optional<std::vector<std::string>> forget;
  std::string condition;
  std::string script;  ///< a file that holds the condition
  SimulationLimit limit;
  std::uint64_t seed = 1;
  bool csv = false;
  std::string library;
};

std::optional<SimulatedContract> ReadContract(const std::string& text, const std::string& by,
                                              std::string& why) {
  Board board;
  const auto declarer = SeatFromText(by);
  if (!SetContract(board, text)) {
    why = text + " is no contract";
  } else if (!declarer) {
    why = by.empty() ? "Who plays " + text + "?" : by + " is no seat";
  } else {
    board.declarer = *declarer;
    return ContractOf(board);
  }
  return std::nullopt;
}

bool ReadContracts(const Asked& asked, const Board& board, SimulationPlan& plan, std::string& why) {
  if (!asked.contract.empty()) {
    const auto contract = ReadContract(asked.contract, asked.by, why);
    if (!contract) return false;
    plan.contract = *contract;
  } else if (board.contractLevel > 0) {
    plan.contract = ContractOf(board);
  } else {
    why = "The board has no contract: name one with --contract and --by";
    return false;
  }
  if (asked.against.empty()) return true;
  plan.against = ReadContract(asked.against, asked.by2.empty() ? asked.by : asked.by2, why);
  return plan.against.has_value();
}

bool ReadCards(const Asked& asked, SimulationPlan& plan, std::string& why) {
  std::istringstream words(asked.cards);
  for (std::string word; words >> word;) {
    const auto card = CardFromText(word);
    if (!card) {
      why = word + " is no card";
      return false;
    }
    plan.cards.push_back(*card);
  }
  return true;
}

bool ReadKnown(const Asked& asked, SimulationPlan& plan, std::string& why) {
  if (!asked.forget) return true;
  PerSeat<bool> known;
  known.fill(true);
  for (const std::string& text : *asked.forget) {
    const auto seat = SeatFromText(text);
    if (!seat) {
      why = text + " is no seat";
      return false;
    }
    known[*seat] = false;
  }
  plan.known = known;
  return true;
}

/// Nothing, and why, when the words are none.
std::optional<SimulationPlan> ReadPlan(const Asked& asked, const Board& board, std::string& why) {
  SimulationPlan plan;
  plan.question = asked.question;
  plan.hands = board.hands;
  plan.vulnerability = VulnerabilityFromText(asked.vulnerability).value_or(board.Vulnerability());
  plan.condition = asked.condition;
  plan.limit = asked.limit;
  plan.seed = asked.seed;
  const bool read = ReadContracts(asked, board, plan, why) && ReadCards(asked, plan, why) &&
                    ReadKnown(asked, plan, why);
  return read ? std::optional(std::move(plan)) : std::nullopt;
}

/// To its end, or to Ctrl-C.
void Finish(Host& host, SimulationRun& run, int wanted) {
  const WorkScope work(host);
  const auto goOn = [&] {
    const auto deals = static_cast<int>(run.Progress().deals);
    return host.Step(std::to_string(deals) + " deals", deals, wanted);
  };
  while (run.Step(goOn) && goOn()) {
  }
}

ExitCode Print(const Context& context, const Asked& asked, const SimulationRun& run) {
  Host& host = context.session.host;
  const SimulationProgress& progress = run.Progress();
  const SimulationSheet sheet = SheetOf(run.Table());
  context.data << (asked.csv ? CsvText(sheet) : TabText(sheet));
  host.Tell(sheet.title + ": " + ProgressText(progress));
  if (!asked.csv) {
    for (const std::string& remark : sheet.remarks) host.Tell(remark);
  }
  if (const std::string end = EndText(progress); !end.empty()) host.Tell(end);
  const bool ended =
      progress.end == SimulationEnd::Enough || progress.end == SimulationEnd::Precise;
  if (progress.end == SimulationEnd::Running) host.Tell("Interrupted: this is what was done");
  return ended ? ExitCode::Done : ExitCode::Refused;
}

ExitCode Simulate(const Context& context, const Asked& asked) {
  Session& session = context.session;
  if (!LoadBoard(context, asked.board)) return ExitCode::Refused;
  std::string why;
  auto plan = ReadPlan(asked, session.board, why);
  if (!plan) {
    session.host.Tell(why);
    return ExitCode::Usage;
  }
  if (!asked.script.empty()) {
    auto text = ReadScriptText(session.host, asked.script);
    if (!text) return ExitCode::Refused;
    plan->condition = *std::move(text);
  }
  if (!RequireSolver(session)) return ExitCode::Refused;
  const auto run = SimulationRun::Begin(*plan, session.getSolver(), why);
  if (!run) {
    session.host.Tell(why);
    return ExitCode::Refused;
  }
  Finish(session.host, *run, asked.limit.deals);
  const ExitCode code = Print(context, asked, *run);
  if (asked.library.empty() || run->Deals().empty()) return code;
  return KeepDeals(session, run->Deals(), asked.library) ? code : ExitCode::Refused;
}

void AddShared(CLI::App& simulate, Asked& asked) {
  AddBoardArgument(simulate, asked.board);
  auto* contract = simulate.add_option("--contract", asked.contract, "3NT, 4Sx; else the board's")
                       ->type_name("CONTRACT");
  auto* by = simulate.add_option("--by", asked.by, "Its declarer")->type_name("SEAT");
  contract->needs(by);
  by->needs(contract);
  simulate.add_option("--vul", asked.vulnerability, "Vulnerability; else the board's")
      ->check(CLI::IsMember({"none", "ns", "ew", "all"}, CLI::ignore_case));
  simulate.add_option("--forget", asked.forget, "Hands that are not known: N,E,S")
      ->type_name("SEATS")
      ->delimiter(',');
  auto* condition = simulate.add_option("--condition", asked.condition, "What the deals must meet")
                        ->type_name("TEXT");
  simulate.add_option("--script", asked.script, "The same, in a file; - for standard input")
      ->type_name("FILE")
      ->excludes(condition);
  simulate.add_option("--deals", asked.limit.deals, "At the most")
      ->type_name("K")
      ->check(CLI::Range(1, kMostSimulatedDeals));
  simulate.add_flag("--all-deals{false}", asked.limit.untilPrecise,
                    "All of them, however small the errors get");
  simulate.add_option("--seed", asked.seed, "The same number gives the same table")->type_name("K");
  simulate.add_flag("--csv", asked.csv, "Comma-separated values, for a spreadsheet");
  simulate.add_option("--library", asked.library, "Keep the deals in a new library")
      ->type_name("NAME")
      ->check(NotEmpty);
}

CLI::App* AddQuestion(CLI::App& simulate, Command& command, const char* name,
                      const char* description, const std::shared_ptr<Asked>& asked) {
  auto* question = simulate.add_subcommand(name, description);
  AddShared(*question, *asked);
  WhenChosen(*question, command, [asked](const Context& context, const ConsoleHost&) {
    return Simulate(context, *asked);
  });
  return question;
}

}  // namespace

void AddSimulateCommand(CLI::App& app, Command& command) {
  auto* simulate = app.add_subcommand("simulate", "Deal what is unknown and solve it, many times");
  simulate->require_subcommand(1);
  const auto asked = [](SimulatedQuestion question) {
    auto made = std::make_shared<Asked>();
    made->question = question;
    return made;
  };
  AddQuestion(*simulate, command, "lead", "How good each opening lead is",
              asked(SimulatedQuestion::Lead));
  const auto ofContract = asked(SimulatedQuestion::Contract);
  auto* contract = AddQuestion(*simulate, command, "contract",
                               "How good a contract is, or which of two", ofContract);
  auto* against = contract->add_option("--against", ofContract->against, "Another contract")
                      ->type_name("CONTRACT")
                      ->needs("--contract");
  contract->add_option("--by2", ofContract->by2, "Its declarer; else that of --by")
      ->type_name("SEAT")
      ->needs(against);
  const auto ofPlay = asked(SimulatedQuestion::Play);
  AddQuestion(*simulate, command, "play", "How good each card is in mid-play", ofPlay)
      ->add_option("--cards", ofPlay->cards, "Played so far: 'SA h10 HT c2'")
      ->type_name("CARDS")
      ->required();
}

}  // namespace tricklet::cli
