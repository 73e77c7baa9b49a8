#include "ui/dialogs/condition_highlighter.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <QTextCharFormat>

#include "conditions/tokens.h"
#include "conditions/vocabulary.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

/// What a line begins inside of.
enum State { kNothing = 0, kComment = 1, kText = 2 };

/// What opens it.
constexpr std::array<const char*, 3> kOpening{"", "/*", "\""};

QTextCharFormat Coloured(const QPalette& palette, const QColor& wanted) {
  QTextCharFormat format;
  format.setForeground(ReadableOn(palette.color(QPalette::Base), wanted));
  return format;
}

QTextCharFormat FormatOf(TokenKind kind, const QPalette& palette) {
  const bool dark = IsDark(palette);
  switch (kind) {
    case TokenKind::Keyword:
      return Coloured(palette, dark ? QColor(0x7f, 0xb2, 0xf0) : QColor(0x1f, 0x5f, 0xa8));
    case TokenKind::Pattern:
    case TokenKind::Number:
      return Coloured(palette, dark ? QColor(0xf0, 0xb0, 0x70) : QColor(0x9a, 0x4d, 0x00));
    case TokenKind::Text:
      return Coloured(palette, dark ? QColor(0x8f, 0xd0, 0x8f) : QColor(0x1d, 0x6b, 0x2f));
    case TokenKind::Comment: {
      QTextCharFormat format = Coloured(palette, palette.color(QPalette::PlaceholderText));
      format.setForeground(dark ? QColor(0xa0, 0xa4, 0xaa) : QColor(0x66, 0x69, 0x6d));
      return format;
    }
    case TokenKind::Name:
    case TokenKind::Operator:
    case TokenKind::Fault:
      break;
  }
  return {};
}

/// What stays open at the end of a line: of that, the last token is all that can tell.
State OpenAtTheEnd(const std::string& line, const std::vector<Token>& tokens) {
  if (tokens.empty() || tokens.back().kind != TokenKind::Fault) return kNothing;
  const std::string_view last = std::string_view(line).substr(tokens.back().offset);
  if (last.starts_with("/*")) return kComment;
  return last.starts_with('"') ? kText : kNothing;
}

}  // namespace

ConditionHighlighter::ConditionHighlighter(QTextDocument* document, const QPalette& palette)
    : QSyntaxHighlighter(document), palette_(palette) {}

void ConditionHighlighter::SetPalette(const QPalette& palette) {
  palette_ = palette;
  rehighlight();
}

void ConditionHighlighter::highlightBlock(const QString& text) {
  const int before = std::clamp(previousBlockState(), 0, 2);
  const std::string opening = kOpening.at(static_cast<std::size_t>(before));
  const std::string line = opening + text.toStdString();
  const std::vector<Token> tokens = Tokens(line);
  const State after = OpenAtTheEnd(line, tokens);
  setCurrentBlockState(after);
  // Offsets are in bytes, and those of the line's own text begin after what was put before it.
  const auto column = [&](std::size_t offset) {
    if (offset <= opening.size()) return 0;
    return static_cast<int>(
        QString::fromStdString(line.substr(opening.size(), offset - opening.size())).size());
  };
  for (const Token& token : tokens) {
    TokenKind kind = token.kind;
    if (&token == &tokens.back() && after == kComment) kind = TokenKind::Comment;
    if (&token == &tokens.back() && after == kText) kind = TokenKind::Text;
    const int begin = column(token.offset);
    setFormat(begin, column(token.offset + token.length) - begin, FormatOf(kind, palette_));
  }
}

}  // namespace tricklet::ui
