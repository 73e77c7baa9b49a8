// The command that deals to conditions, and tells which deals of a file meet them.
#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <random>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/script_text.h"
#include "conditions/evaluator.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "formats/dlm/dlm_writer.h"
#include "formats/lin/lin_writer.h"
#include "formats/pbn/pbn_contents.h"
#include "generate/deal_report.h"
#include "generate/store_deals.h"
#include "library/tables.h"

namespace tricklet::cli {
namespace {

struct DealArguments {
  std::string script;
  std::optional<std::int64_t> produce;
  std::optional<std::int64_t> generate;
  std::optional<std::uint64_t> seed;
  unsigned cores = 0;
  int first = 0;         ///< boards are stored from this one on; 0: deals are written
  bool analyse = false;  ///< of the boards stored
  std::string format;
  std::string check;
};

std::shared_ptr<const Script> ReadNamedScript(Host& host, const std::string& name) {
  const auto text = ReadScriptText(host, name);
  if (!text) return nullptr;
  ReadOutcome outcome = ReadScript(*text);
  for (const ScriptFault& fault : outcome.faults) {
    host.TellError(ShownScript(name) + ": " + FaultText(fault));
  }
  return outcome.script;
}

/// The solver where the script needs one; false when there is none, with a message.
bool SolverFor(Session& session, const Script& script, Solver*& solver) {
  solver = nullptr;
  if (!script.UsesSolver()) return true;
  if (!RequireSolver(session)) return false;
  solver = &session.getSolver();
  return true;
}

ExitCode CheckFile(const Context& context, const std::shared_ptr<const Script>& script,
                   Solver* solver, const DealArguments& asked) {
  constexpr std::size_t kLongestFile = std::size_t{256} << 20U;
  Host& host = context.session.host;
  FileContents contents;
  try {
    contents = ReadPbnContents(ReadWholeFile(PathFromText(asked.check), kLongestFile));
  } catch (const Fault& fault) {
    host.TellError(fault.Description());
    return ExitCode::Refused;
  }
  RandomSource random(asked.seed.value_or(1));
  Evaluator evaluator(script, solver, random);
  const WorkScope work(host);
  int number = 0;
  for (const FoundSection& section : contents.sections) {
    const int total = static_cast<int>(section.games.size());
    for (int done = 0; const FoundGame& game : section.games) {
      ++number;
      if (!host.Step("Checking", done++, total)) {
        host.TellError("Cancelled before deal " + std::to_string(number));
        return ExitCode::Refused;
      }
      const HandTable& hands = game.board.hands;
      const bool met = IsComplete(hands) && evaluator.Accepts(hands);
      context.data << number << '\t' << (met ? "yes" : "no") << '\n';
    }
  }
  return ExitCode::Done;
}

/// A deal in another format than the script asks for; `number` from 1.
void WriteDeal(std::ostream& data, const HandTable& hands, int number, const std::string& format) {
  if (format == "dlm") {
    data << DLMBoardHead(number) << DLMBoardLine(number, hands);
    return;
  }
  Board board;
  board.boardNumber = number;
  board.hands = hands;
  data << LinRecordLine(board);
}

std::uint64_t SeedOf(const Script& script, const DealArguments& asked) {
  if (asked.seed) return *asked.seed;
  const std::optional<std::uint64_t> seed = script.Content().seed;
  return seed ? *seed : std::random_device()();
}

/// A copy of the script whose one action writes each deal as `format` says.
std::shared_ptr<const Script> WithFormat(const Script& script, const std::string& format) {
  ScriptContent content = script.Content();
  content.hasActions = true;
  content.actions.clear();
  if (format == "pbn") content.actions.push_back({.kind = ActionKind::PrintPBN});
  if (format == "oneline") content.actions.push_back({.kind = ActionKind::PrintOneLine});
  return std::make_shared<const Script>(std::move(content));
}

ExitCode EndOfRun(Host& host, const DealRunOutcome& run) {
  if (!run.cancelled) return ExitCode::Done;
  host.TellError("Cancelled: " + DealCountsText(run));
  return ExitCode::Refused;
}

/// Below what the actions wrote; apart from it where that is PBN for another program.
void TellRun(const Context& context, const Script& script, const std::string& text) {
  const bool pbn = std::ranges::any_of(script.Actions(), [](const ScriptAction& action) {
    return action.kind == ActionKind::PrintPBN;
  });
  if (pbn) {
    context.session.host.Tell(text);
  } else {
    context.data << text << '\n';
  }
}

ExitCode WriteDeals(const Context& context, std::shared_ptr<const Script> script, Solver* solver,
                    const DealArguments& asked, DealRunOptions options) {
  const bool own = asked.format == "lin" || asked.format == "dlm";
  const int most = asked.format == "dlm" ? kLastDLMBoard : kLastBoardNumber;
  if (own && options.produce > most) {
    context.session.host.TellError("A file of this format holds at most " + std::to_string(most) +
                                   " deals");
    return ExitCode::Usage;
  }
  if (!asked.format.empty()) script = WithFormat(*script, asked.format);
  options.expressions = ExpressionsOf(*script);
  const std::string name = ShownPath(PathFromText(ShownScript(asked.script)).filename());
  DealReport report(script, name, options.seed, context.data);
  int number = 0;
  if (asked.format == "dlm") context.data << DLMHeader(1, static_cast<int>(options.produce));
  const DealRunOutcome run =
      RunDeals(script, solver, context.session.host, options, [&](const FoundDeal& deal) {
        ++number;
        if (own) {
          WriteDeal(context.data, deal.hands, number, asked.format);
        } else {
          report.Add(deal);
        }
        return static_cast<bool>(context.data);
      });
  if (asked.format == "dlm") {
    for (int rest = number + 1; rest <= kLastDLMBoard; ++rest) {
      context.data << DLMBoardHead(rest) << DLMPlaceholderLine(rest);
    }
    context.data << DLMFooter();
  }
  if (asked.format.empty()) {
    report.Finish();
    TellRun(context, *script, DealRunText(run, options.seed));
  }
  return EndOfRun(context.session.host, run);
}

ExitCode StoreBoards(const Context& context, const std::shared_ptr<const Script>& script,
                     Solver* solver, const DealArguments& asked, const DealRunOptions& options) {
  Session& session = context.session;
  if (options.produce > kLastBoardNumber - asked.first + 1) {
    session.host.TellError("A library holds boards up to 999: --produce says how many are wanted");
    return ExitCode::Usage;
  }
  if (asked.analyse && !RequireSolver(session)) return ExitCode::Refused;
  if (!OpenLibrary(context, true)) return ExitCode::Refused;
  const StoreDealsOutcome outcome =
      StoreDeals(session, script, solver, options, asked.first, asked.analyse);
  if (outcome.refused) return ExitCode::Refused;
  context.data << outcome.boardsStored << (outcome.boardsStored == 1 ? " board" : " boards")
               << " stored, " << outcome.dealing.tried << " deals tried\n";
  if (outcome.dealing.cancelled) return EndOfRun(session.host, outcome.dealing);
  return Succeeded(outcome) ? ExitCode::Done : ExitCode::Refused;
}

ExitCode Deal(const Context& context, const DealArguments& asked) {
  Session& session = context.session;
  const auto script = ReadNamedScript(session.host, asked.script);
  if (!script) return ExitCode::Refused;
  Solver* solver = nullptr;
  if (!SolverFor(session, *script, solver)) return ExitCode::Refused;
  if (!asked.check.empty()) return CheckFile(context, script, solver, asked);
  const std::int64_t generate = asked.generate.value_or(script->Generate());
  const DealRunOptions options{.produce = asked.produce.value_or(script->Produce(generate)),
                               .generate = generate,
                               .seed = SeedOf(*script, asked),
                               .cores = asked.cores};
  if (asked.first > 0) return StoreBoards(context, script, solver, asked, options);
  return WriteDeals(context, script, solver, asked, options);
}

}  // namespace

void AddDealCommand(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<DealArguments>();
  const CLI::Range counts(std::int64_t{0}, std::int64_t{1} << 52U);
  auto* deal = app.add_subcommand("deal", "Deal to conditions, in the language of dealer");
  deal->add_option("SCRIPT", asked->script, "File with the conditions; - for standard input")
      ->required()
      ->check(NotEmpty);
  deal->add_option("--produce", asked->produce, "Deals wanted")->check(counts)->type_name("N");
  deal->add_option("--generate", asked->generate, "Deals tried at the most")
      ->check(counts)
      ->type_name("N");
  deal->add_option("--seed", asked->seed, "The same number gives the same deals")->type_name("N");
  deal->add_option("--cores", asked->cores, "Cores to work on (all)")
      ->check(CLI::Range(1, 256))
      ->type_name("N");
  auto* first = deal->add_option("--first", asked->first,
                                 "Store the deals in the library, from this board on");
  first->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber))->type_name("N");
  deal->add_flag("--analyse", asked->analyse, "Compute the double-dummy tables of these boards too")
      ->needs(first);
  auto* format = deal->add_option("--format", asked->format,
                                  "Write each deal as pbn, oneline, lin or dlm, and no more");
  format->check(CLI::IsMember({"pbn", "oneline", "lin", "dlm"}))->excludes(first);
  deal->add_option("--check", asked->check, "Tell of each deal of a PBN file whether it meets them")
      ->check(NotEmpty)
      ->type_name("FILE")
      ->excludes(first)
      ->excludes(format);
  WhenChosen(*deal, command,
             [asked](const Context& context, const ConsoleHost&) { return Deal(context, *asked); });
}

}  // namespace tricklet::cli
