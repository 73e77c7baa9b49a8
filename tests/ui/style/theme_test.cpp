// Whether everything that is written can be read.
#include "ui/style/theme.h"

#include <QApplication>
#include <gtest/gtest.h>

#include "ui/cards/card_painter.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {
namespace {

class ThemeTest : public testing::TestWithParam<ColourScheme> {
 protected:
  void SetUp() override { ApplyColourScheme(*qApp, GetParam()); }
  void TearDown() override { ApplyColourScheme(*qApp, ColourScheme::System); }

  static void ExpectReadable(const QColor& text, const QColor& ground, const std::string& what) {
    EXPECT_GE(Contrast(text, ground), kLeastContrast)
        << what << ": " << text.name().toStdString() << " on " << ground.name().toStdString();
  }
};

TEST_P(ThemeTest, TextsOfThePaletteCanBeRead) {
  const std::pair<QPalette::ColorRole, std::vector<QPalette::ColorRole>> kTexts[] = {
      {QPalette::WindowText, {QPalette::Window}},
      {QPalette::Text, {QPalette::Base, QPalette::AlternateBase}},
      {QPalette::ButtonText, {QPalette::Button}},
      {QPalette::ToolTipText, {QPalette::ToolTipBase}},
      {QPalette::HighlightedText, {QPalette::Highlight}},
      {QPalette::Link, {QPalette::Window, QPalette::Base}},
      {QPalette::PlaceholderText, {QPalette::Window, QPalette::Base, QPalette::AlternateBase}},
  };
  const QPalette palette = QApplication::palette();
  const bool ours = GetParam() != ColourScheme::System;
  for (const auto& [text, grounds] : kTexts) {
    // The rest of the system's palette is the system's choice.
    if (!ours && text != QPalette::PlaceholderText) continue;
    for (const auto ground : grounds) {
      for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        if (!ours && group == QPalette::Disabled) continue;
        ExpectReadable(palette.color(group, text), palette.color(group, ground),
                       std::to_string(text) + " on " + std::to_string(ground));
      }
    }
  }
}

TEST_P(ThemeTest, SuitsCanBeToldOnCardsAndOnTheWindow) {
  const QPalette palette = QApplication::palette();
  for (const bool fourColours : {false, true}) {
    for (const Suit suit : kAllSuits) {
      const std::string name = std::to_string(IndexOf(suit)) + (fourColours ? " of 4" : " of 2");
      ExpectReadable(SuitColourOnCard(suit, fourColours), kPaper, name);
      const QColor shown = SuitColourOnWindow(suit, fourColours, palette);
      for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
        ExpectReadable(shown, palette.color(ground), name);
      }
    }
  }
}

TEST_P(ThemeTest, WhatIsWrittenOnTheTableCanBeRead) {
  const TableColours colours = ColoursFor(QApplication::palette());
  for (const QColor& ground : {colours.feltTop, colours.feltBottom, colours.caption}) {
    ExpectReadable(colours.text, ground, "text");
  }
  ExpectReadable(colours.text, colours.centre, "text in the middle");
  ExpectReadable(colours.dimText, colours.centre, "quiet text in the middle");
  ExpectReadable(Qt::white, kVulnerableRed, "vulnerable");
  ExpectReadable(Qt::black, kToActYellow, "to act");
}

TEST_P(ThemeTest, AColourThatCannotBeReadGivesWay) {
  EXPECT_EQ(ReadableOn(Qt::white, QColor(0x1D, 0x7A, 0x34)), QColor(0x1D, 0x7A, 0x34));
  EXPECT_EQ(ReadableOn(Qt::white, QColor(0xE6, 0x54, 0x63)), QColor(Qt::black)) << "3.6 to 1";
}

INSTANTIATE_TEST_SUITE_P(Schemes, ThemeTest,
                         testing::Values(ColourScheme::System, ColourScheme::Light,
                                         ColourScheme::Dark));

}  // namespace
}  // namespace tricklet::ui
