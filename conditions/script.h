// What a text in the language of deal conditions says. The language is that of the program
// "dealer" by Hans van Staveren and others, as its manual describes it and as it reads it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "conditions/expression.h"
#include "core/board.h"

namespace tricklet {

/// What is wrong in a text, and where.
struct ScriptFault {
  int line = 1;      ///< from 1
  int column = 1;    ///< in characters, from 1
  int length = 1;    ///< characters that are at fault, at least 1
  std::string text;  ///< "\"nort\" is no seat: north?"
};

/// "Line 6, column 5: ..."
std::string FaultText(const ScriptFault& fault);

/// Cards and suit lengths that are settled before dealing. In a script there is a deal that holds
/// them.
struct Predealt {
  HandTable cards;
  PerSeat<PerSuit<std::optional<std::uint8_t>>> lengths;  ///< not below the cards of `cards`
  bool Any() const;
  bool AnyLength() const;
};

/// One piece of `printes`: an expression, or a text where there is none.
struct PrintPiece {
  ExpressionId expression = kNoExpression;
  std::string text;
};

/// Values low..high, both included; none when `high` is below `low`.
struct ValueRange {
  ExpressionId expression = kNoExpression;
  int low = 0;
  int high = 0;
};

enum class ActionKind : std::uint8_t {
  PrintAll,
  Print,
  PrintEW,
  PrintPBN,
  PrintCompact,
  PrintOneLine,
  PrintEs,
  Average,
  Frequency
};

struct ScriptAction {
  ActionKind kind = ActionKind::PrintAll;
  std::string title = {};                   ///< of averages and frequencies
  ExpressionId expression = kNoExpression;  ///< of averages, compact and one-line deals
  std::vector<Seat> seats = {};             ///< of `Print`
  std::vector<PrintPiece> pieces = {};      ///< of `PrintEs`
  std::vector<ValueRange> ranges = {};      ///< of `Frequency`: one, or two
};

/// Whether an action writes something for each deal, or at the end about all of them.
bool PrintsDeals(ActionKind kind);

/// Everything that a script says, checked.
struct ScriptContent {
  std::vector<Node> nodes;  ///< operands stand before what is made of them
  std::vector<CountTable> counts;
  std::vector<ShapeSet> shapes;
  ExpressionId condition = kNoExpression;  ///< none: every deal
  std::vector<ScriptAction> actions;       ///< as written; none: `PrintAll`
  bool hasActions = false;                 ///< there is an "action", be it empty
  Predealt predealt;
  std::optional<std::int64_t> produce;   ///< not negative
  std::optional<std::int64_t> generate;  ///< not negative
  std::optional<std::uint64_t> seed;
  std::optional<Seat> dealer;
  std::optional<Vulnerability> vulnerable;
};

/// A script that has been read. Immutable; may be used from several threads.
class Script {
 public:
  /// `content` is checked: use `ReadScript`.
  explicit Script(ScriptContent content);

  const ScriptContent& Content() const { return content_; }
  const Node& At(ExpressionId id) const { return content_.nodes[static_cast<std::size_t>(id)]; }
  ExpressionId Condition() const { return content_.condition; }
  /// The actions; `PrintAll` where the script names none.
  const std::vector<ScriptAction>& Actions() const { return content_.actions; }
  /// Whether any action writes each deal.
  bool Prints() const;
  /// Whether the condition or an action asks for double-dummy tricks.
  bool UsesSolver() const { return usesSolver_; }
  /// Deals wanted when `generate` are tried at the most: as the script says, else 40 where deals
  /// are printed, and all that are found where they are only counted.
  std::int64_t Produce(std::int64_t generate) const;
  /// Deals tried at the most: as the script says, else 10,000,000.
  std::int64_t Generate() const;

 private:
  ScriptContent content_;
  bool usesSolver_ = false;
};

struct ReadOutcome {
  std::shared_ptr<const Script> script;  ///< null when there are faults
  std::vector<ScriptFault> faults;       ///< in the order of the text; the first ones, at most 20
};

inline constexpr std::size_t kLongestScript = std::size_t{1} << 20U;  ///< bytes
inline constexpr int kDeepestBrackets = 10000;

/// Reads a whole script; a bare condition is one too. Any bytes are taken; a text that is longer
/// or has more open brackets than the limits is a fault.
ReadOutcome ReadScript(std::string_view text);

}  // namespace tricklet
