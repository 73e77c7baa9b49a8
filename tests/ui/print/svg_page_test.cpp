#include "ui/print/svg_page.h"

#include <QMultiMap>
#include <QPainter>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace tricklet::ui {
namespace {

/// The attributes of the elements of a document by their names; empty when it is not well-formed.
QMultiMap<QString, QXmlStreamAttributes> Elements(const QByteArray& document,
                                                  QStringList* texts = nullptr) {
  QMultiMap<QString, QXmlStreamAttributes> elements;
  QXmlStreamReader xml(document);
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement()) elements.insert(xml.name().toString(), xml.attributes());
    if (xml.isCharacters() && texts != nullptr) texts->append(xml.text().toString());
  }
  return xml.hasError() ? decltype(elements)() : elements;
}

TEST(SvgPage, KeepsTextAndEscapesIt) {
  SvgPage page({200, 100}, QStringLiteral("A & <B>"));
  {
    QPainter painter(&page);
    QFont font = painter.font();
    font.setPointSizeF(12);
    painter.setFont(font);
    painter.drawText(QPointF(10, 20), QStringLiteral("\u2660 AKQ7 </svg> &amp;"));
  }
  QStringList texts;
  const auto elements = Elements(page.Document(), &texts);
  EXPECT_EQ(elements.value(QStringLiteral("svg")).value(QStringLiteral("viewBox")),
            QStringLiteral("0 0 200 100"));
  EXPECT_TRUE(texts.contains(QStringLiteral("A & <B>")));
  EXPECT_EQ(elements.value(QStringLiteral("text")).value(QStringLiteral("font-size")),
            QStringLiteral("12"));
  EXPECT_EQ(texts.mid(1).join(QString()).remove(u'\n'), QStringLiteral("\u2660 AKQ7 </svg> &amp;"));
}

TEST(SvgPage, TheSizeOfAFontIsInPointsHoweverItWasSet) {
  for (const bool pixels : {false, true}) {
    SvgPage page({200, 100}, QString());
    {
      QPainter painter(&page);
      QFont font(QStringLiteral("DejaVu Sans"));
      if (pixels) font.setPixelSize(40);
      if (!pixels) font.setPointSizeF(40);
      painter.setFont(font);
      painter.drawText(QPointF(10, 50), QStringLiteral("A"));
    }
    const auto text = Elements(page.Document()).value(QStringLiteral("text"));
    EXPECT_EQ(text.value(QStringLiteral("font-size")), QStringLiteral("40"));
    EXPECT_TRUE(text.value(QStringLiteral("font-family")).endsWith(QStringLiteral(", sans-serif")));
  }
}

TEST(SvgPage, PlacesClipsAndTransforms) {
  SvgPage page({200, 100}, QString());
  {
    QPainter painter(&page);
    painter.translate(50, 0);
    painter.setClipRect(QRectF(0, 0, 10, 10));
    painter.fillRect(QRectF(0, 0, 30, 30), Qt::red);
    painter.setClipping(false);
    painter.setPen(QPen(Qt::blue, 2, Qt::DashLine));
    painter.drawLine(QPointF(1, 2), QPointF(3, 4));
  }
  const QByteArray document = page.Document();
  const auto elements = Elements(document);
  ASSERT_EQ(elements.count(QStringLiteral("clipPath")), 1);
  ASSERT_EQ(elements.count(QStringLiteral("g")), 1) << document.toStdString();
  EXPECT_TRUE(document.contains("M50 0L60 0")) << document.toStdString();
  EXPECT_TRUE(document.contains("matrix(1 0 0 1 50 0)"));
  EXPECT_TRUE(document.contains("fill=\"#ff0000\""));
  EXPECT_TRUE(document.contains("stroke-dasharray"));
}

}  // namespace
}  // namespace tricklet::ui
