// Operators by precedence, with a stack instead of calls that nest: a text may have 10,000 open
// brackets.
#include <array>
#include <optional>

#include "conditions/script_reader.h"

namespace tricklet {

/// An operator, bracket or function call that waits for what comes after it.
struct ScriptReader::Pending {
  enum class Kind : std::uint8_t { Operator, Bracket, Question, Colon };
  Kind kind = Kind::Operator;
  Node node;            ///< of operators; of brackets the call that they belong to, if `isCall`
  bool isCall = false;  ///< "(" of `imps`, `rnd` or `score`
  int precedence = 0;
  Token where;
};

namespace {

struct BinaryOperator {
  std::string_view sign;
  Op op;
  int precedence;
};

constexpr int kChoicePrecedence = 1;
constexpr int kOrPrecedence = 2;
constexpr int kAndPrecedence = 3;
constexpr int kUnaryPrecedence = 8;

constexpr std::array kBinary{BinaryOperator{"||", Op::Or, kOrPrecedence},
                             BinaryOperator{"&&", Op::And, kAndPrecedence},
                             BinaryOperator{"==", Op::Equal, 4},
                             BinaryOperator{"!=", Op::NotEqual, 4},
                             BinaryOperator{"<", Op::Less, 5},
                             BinaryOperator{"<=", Op::LessOrEqual, 5},
                             BinaryOperator{">", Op::Greater, 5},
                             BinaryOperator{">=", Op::GreaterOrEqual, 5},
                             BinaryOperator{"+", Op::Add, 6},
                             BinaryOperator{"-", Op::Subtract, 6},
                             BinaryOperator{"*", Op::Multiply, 7},
                             BinaryOperator{"/", Op::Divide, 7},
                             BinaryOperator{"%", Op::Modulo, 7}};

std::optional<BinaryOperator> BinaryAt(const ScriptCursor& cursor) {
  if (cursor.WordIs(WordCode::And)) return BinaryOperator{"&&", Op::And, kAndPrecedence};
  if (cursor.WordIs(WordCode::Or)) return BinaryOperator{"||", Op::Or, kOrPrecedence};
  for (const BinaryOperator& binary : kBinary) {
    if (cursor.SignIs(binary.sign)) return binary;
  }
  return std::nullopt;
}

}  // namespace

class ScriptReader::OperatorStack {
 public:
  explicit OperatorStack(ScriptReader& reader) : reader_(reader), cursor_(reader.cursor_) {}

  ExpressionId Read() {
    do {
      ReadPrefixes();
      operands_.push_back(reader_.ReadOperand());
    } while (ReadAfterOperand());
    Reduce(0);
    if (!pending_.empty()) FailOpen(pending_.back());
    return operands_.back();
  }

 private:
  void Push(Pending pending) {
    pending.where = cursor_.Here();
    if (pending.kind == Pending::Kind::Bracket && ++open_ > kDeepestBrackets) {
      cursor_.Fail("more than " + std::to_string(kDeepestBrackets) + " open brackets");
    }
    pending_.push_back(pending);
  }

  /// Signs before an operand, brackets and calls that have an expression in them.
  void ReadPrefixes() {
    while (true) {
      Pending pending{.node = {}, .where = {}};
      pending.precedence = kUnaryPrecedence;
      const Word* const word = cursor_.WordHere();
      if (cursor_.SignIs("!") || cursor_.WordIs(WordCode::Not)) {
        pending.node.op = Op::Not;
      } else if (cursor_.SignIs("-")) {
        pending.node.op = Op::Minus;
      } else if (cursor_.SignIs("(")) {
        pending.kind = Pending::Kind::Bracket;
      } else if (word != nullptr && IsCall(word->code)) {
        PushCall(word->code);
        continue;
      } else {
        return;
      }
      Push(pending);
      cursor_.Skip();
    }
  }

  static bool IsCall(WordCode code) {
    return code == WordCode::Imps || code == WordCode::Rnd || code == WordCode::Score;
  }

  /// A call as far as the expression in it.
  void PushCall(WordCode code) {
    Pending pending{.kind = Pending::Kind::Bracket, .node = {}, .isCall = true, .where = {}};
    pending.node.op = code == WordCode::Imps ? Op::Imps : Op::Rnd;
    Push(pending);
    cursor_.Skip();
    cursor_.Expect("(");
    if (code == WordCode::Score) pending_.back().node = reader_.ReadContract();
  }

  /// Whether another operand has to follow.
  bool ReadAfterOperand() {
    while (true) {
      if (const auto binary = BinaryAt(cursor_); binary) {
        Reduce(binary->precedence);
        Push({.node = {.op = binary->op}, .precedence = binary->precedence, .where = {}});
        cursor_.Skip();
        return true;
      }
      if (cursor_.SignIs("?")) {
        Reduce(kChoicePrecedence + 1);
        Push({.kind = Pending::Kind::Question, .node = {}, .where = {}});
        cursor_.Skip();
        return true;
      }
      if (cursor_.SignIs(":")) return TakeColon();
      if (!cursor_.SignIs(")") || open_ == 0) return false;
      CloseBracket();
    }
  }

  bool TakeColon() {
    Reduce(0);
    if (pending_.empty() || pending_.back().kind != Pending::Kind::Question) {
      cursor_.Fail("\":\" without a \"?\" before it");
    }
    pending_.back() = {.kind = Pending::Kind::Colon,
                       .node = {.op = Op::Choice},
                       .precedence = kChoicePrecedence,
                       .where = cursor_.Here()};
    cursor_.Skip();
    return true;
  }

  void CloseBracket() {
    Reduce(0);
    const Pending open = pending_.back();
    if (open.kind != Pending::Kind::Bracket) FailOpen(open);
    pending_.pop_back();
    --open_;
    cursor_.Skip();
    if (!open.isCall) return;
    Node call = open.node;
    call.first = operands_.back();
    operands_.back() = reader_.builder_.Add(call);
  }

  /// Settles the operators that bind at least as tightly; stops at what is still open.
  void Reduce(int precedence) {
    while (!pending_.empty()) {
      const Pending& top = pending_.back();
      const bool settles = top.kind == Pending::Kind::Operator || top.kind == Pending::Kind::Colon;
      if (!settles || top.precedence < precedence) return;
      Settle(top.node);
      pending_.pop_back();
    }
  }

  void Settle(Node node) {
    const auto take = [this] {
      const ExpressionId id = operands_.back();
      operands_.pop_back();
      return id;
    };
    const int count = OperandsOf(node.op);
    if (count == 3) node.third = take();
    if (count >= 2) node.second = take();
    node.first = take();
    operands_.push_back(reader_.builder_.Add(node));
  }

  [[noreturn]] void FailOpen(const Pending& open) const {
    if (open.kind == Pending::Kind::Question) cursor_.FailExpected("\":\"");
    cursor_.FailExpected("\")\"");
  }

  ScriptReader& reader_;
  ScriptCursor& cursor_;
  std::vector<Pending> pending_;
  std::vector<ExpressionId> operands_;
  int open_ = 0;
};

ExpressionId ScriptReader::ReadExpression() {
  const Token start = cursor_.Here();
  const ExpressionId id = OperatorStack(*this).Read();
  // A variable is computed afresh wherever it stands when it is random, and two variables can so
  // make work without end of a few lines.
  constexpr std::int64_t kMostRandomSteps = 100000;
  if (builder_.IsRandom(id) && builder_.RandomSteps(id) > kMostRandomSteps) {
    ScriptCursor::Fail(start, "too many random numbers in one expression");
  }
  return id;
}

}  // namespace tricklet
