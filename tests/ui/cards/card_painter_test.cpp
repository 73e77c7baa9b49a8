#include "ui/cards/card_painter.h"

#include <array>
#include <cstdlib>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace tricklet::ui {
namespace {

constexpr std::array kDesigns{CardDesign::IndexAndSymbol, CardDesign::PipsAndCourts,
                              CardDesign::LargeIndex};

QImage Thumbnail(CardDesign design, bool fourColours, QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  PaintThumbnail(painter, picture.rect(), design, fourColours);
  return picture;
}

/// The share of pixels that anybody sees to be others.
double Difference(const QImage& a, const QImage& b) {
  constexpr int kPlain = 64;  // of 255
  int others = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      others += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > kPlain ? 1 : 0;
    }
  }
  return others / static_cast<double>(a.width() * a.height());
}

TEST(CardPainterTest, ShowsDesignsThatArePlainlyDifferent) {
  constexpr double kPlainly = 0.05;
  for (const bool fourColours : {false, true}) {
    for (const CardDesign design : kDesigns) {
      const QImage picture = Thumbnail(design, fourColours, {140, 70});
      for (const CardDesign other : kDesigns) {
        if (other == design) continue;
        EXPECT_GT(Difference(picture, Thumbnail(other, fourColours, {140, 70})), kPlainly)
            << IndexOf(design) << " " << IndexOf(other);
      }
    }
  }
}

TEST(CardPainterTest, PaintsNothingWhereThereIsNoRoom) {
  EXPECT_EQ(Difference(Thumbnail(CardDesign::LargeIndex, true, {4, 4}),
                       Thumbnail(CardDesign::PipsAndCourts, true, {4, 4})),
            0);
}

}  // namespace
}  // namespace tricklet::ui
