#include "ui/style/theme.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QApplication>
#include <QStyle>

namespace tricklet::ui {
namespace {

constexpr std::uint32_t kSystemColourBit = 0x80000000U;
/// `dim` is read on every background here, `dimAccent` among them.
struct Scheme {
  QRgb window, base, alternate, button, text, dim, accent, accentText, dimAccent, border;
};
constexpr Scheme kLight{0xF4F4F2, 0xFFFFFF, 0xF7F7F5, 0xFFFFFF, 0x1D1D1F,
                        0x646462, 0x2563A8, 0xFFFFFF, 0xE6E6E2, 0xD8D8D4};
constexpr Scheme kDark{0x26272B, 0x303236, 0x2B2D31, 0x303236, 0xECECEC,
                       0xA8AAAF, 0x66A3E8, 0x15171A, 0x3A3C41, 0x44464C};

void SetDimmed(QPalette& palette, const Scheme& scheme) {
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::HighlightedText, QPalette::BrightText}) {
    palette.setColor(QPalette::Disabled, role, QColor(scheme.dim));
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(scheme.dimAccent));
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(scheme.window));
}

QPalette ToPalette(const Scheme& scheme) {
  // The constructor derives the roles of bevels and shadows for all groups.
  QPalette palette{QColor(scheme.button), QColor(scheme.window)};
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, QColor(scheme.text));
  }
  palette.setColor(QPalette::Window, QColor(scheme.window));
  palette.setColor(QPalette::Base, QColor(scheme.base));
  palette.setColor(QPalette::AlternateBase, QColor(scheme.alternate));
  palette.setColor(QPalette::ToolTipBase, QColor(scheme.base));
  palette.setColor(QPalette::PlaceholderText, QColor(scheme.dim));
  palette.setColor(QPalette::Mid, QColor(scheme.border));
  palette.setColor(QPalette::BrightText, QColor(0xFF, 0xFF, 0xFF));
  palette.setColor(QPalette::Highlight, QColor(scheme.accent));
  palette.setColor(QPalette::HighlightedText, QColor(scheme.accentText));
  palette.setColor(QPalette::Link, QColor(scheme.accent));
  palette.setColor(QPalette::LinkVisited, QColor(scheme.accent));
  SetDimmed(palette, scheme);
  return palette;
}

/// The system's own is often half transparent, and then too pale to be read.
QColor QuietColour(const QPalette& palette) {
  constexpr float kOfText = 0.65F;
  const QColor text = palette.color(QPalette::WindowText);
  const QColor ground = palette.color(QPalette::Window);
  const auto mix = [&](float a, float b) { return kOfText * a + (1 - kOfText) * b; };
  return QColor::fromRgbF(mix(text.redF(), ground.redF()), mix(text.greenF(), ground.greenF()),
                          mix(text.blueF(), ground.blueF()));
}

/// The style draws the rings and boxes of option buttons and check boxes in a darker shade of the
/// window's colour, which is lost on a dark window. Nothing else in them is drawn in that role.
void BrightenIndicators(const Scheme& scheme) {
  QPalette palette = ToPalette(scheme);
  palette.setColor(QPalette::Window, QColor(scheme.text));
  palette.setColor(QPalette::Disabled, QPalette::Window, QColor(scheme.dim));
  for (const char* kind : {"QRadioButton", "QCheckBox"}) QApplication::setPalette(palette, kind);
}

/// Relative luminance, 0..1, after WCAG 2.1.
double Luminance(const QColor& colour) {
  const auto linear = [](double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

}  // namespace

QColor SuitColourOnCard(Suit suit, bool fourColours) {
  constexpr PerSuit<QRgb> kTwo{{0x16181C, 0xC8202F, 0xC8202F, 0x16181C}};
  constexpr PerSuit<QRgb> kFour{{0x1B2468, 0xC8202F, 0xB85A00, 0x1D7A34}};
  return QColor(fourColours ? kFour[suit] : kTwo[suit]);
}

QColor FaultColour(const QPalette& palette) {
  return SuitColourOnWindow(Suit::Hearts, false, palette);
}

QColor SuitColourOnWindow(Suit suit, bool fourColours, const QPalette& palette) {
  if (!IsDark(palette)) {
    // Paper's orange is too pale for a symbol on a background that is less than white.
    if (fourColours && suit == Suit::Diamonds) return QColor(0xA8, 0x52, 0x00);
    return SuitColourOnCard(suit, fourColours);
  }
  constexpr PerSuit<QRgb> kTwo{{0xF0F0F0, 0xFF7A84, 0xFF7A84, 0xF0F0F0}};
  constexpr PerSuit<QRgb> kFour{{0x93A0FF, 0xFF7A84, 0xFFA857, 0x5FCF80}};
  return QColor(fourColours ? kFour[suit] : kTwo[suit]);
}

bool IsDark(const QPalette& palette) {
  return Luminance(palette.color(QPalette::Window)) <
         Luminance(palette.color(QPalette::WindowText));
}

void ApplyColourScheme(QApplication& application, ColourScheme scheme) {
  static const QString systemStyle = application.style()->name();
  static bool changed = false;
  if (scheme != ColourScheme::System) {
    const bool dark = scheme == ColourScheme::Dark;
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(ToPalette(dark ? kDark : kLight));
    if (dark) BrightenIndicators(kDark);
    changed = true;
    return;
  }
  if (changed) {
    QApplication::setStyle(systemStyle);
    QApplication::setPalette(QPalette());  // follows the system again
    changed = false;
  }
  QPalette quiet;
  quiet.setColor(QPalette::PlaceholderText, QuietColour(QApplication::palette()));
  QApplication::setPalette(quiet);
}

QFont ToFont(const FontSetting& setting) {
  QFont font(QString::fromStdString(setting.name));
  font.setPointSizeF(std::max(1.0, setting.size));
  font.setBold(setting.bold);
  font.setItalic(setting.italic);
  font.setStrikeOut(setting.strikethrough);
  font.setUnderline(setting.underline);
  return font;
}

QColor ToColour(ColourNumber colour, const QPalette& palette) {
  if ((colour.value & kSystemColourBit) != 0) return palette.color(QPalette::WindowText);
  const auto channel = [&](unsigned shift) {
    return static_cast<int>(colour.value >> shift) & 0xFF;
  };
  return {channel(0), channel(8), channel(16)};
}

ColourNumber FromColour(const QColor& colour) {
  const auto channel = [](int value, unsigned shift) {
    return static_cast<std::uint32_t>(value) << shift;
  };
  return {channel(colour.red(), 0) | channel(colour.green(), 8) | channel(colour.blue(), 16)};
}

double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor ReadableOn(const QColor& background, const QColor& wanted) {
  if (Contrast(background, wanted) >= kLeastContrast) return wanted;
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  return Contrast(background, black) > Contrast(background, white) ? black : white;
}

}  // namespace tricklet::ui
