#include "ui/print/svg_page.h"

#include <algorithm>
#include <cmath>

#include <QBuffer>
#include <QFontInfo>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QXmlStreamWriter>

namespace tricklet::ui {
namespace {

constexpr int kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;

/// Short, and never with an exponent, which not every reader knows.
QString Number(double value) {
  QString text = QString::number(value, 'f', 3);
  while (text.endsWith(u'0')) text.chop(1);
  if (text.endsWith(u'.')) text.chop(1);
  return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
}

QString Pair(double x, double y) {
  return Number(x) + u' ' + Number(y);
}

/// The attribute "d" of a path.
QString PathData(const QPainterPath& path) {
  QString data;
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element at = path.elementAt(i);
    switch (at.type) {
      case QPainterPath::MoveToElement:
        data += u'M';
        break;
      case QPainterPath::LineToElement:
        data += u'L';
        break;
      case QPainterPath::CurveToElement:
        data += u'C';
        break;
      case QPainterPath::CurveToDataElement:
        data += u' ';
        break;
    }
    data += Pair(at.x, at.y);
  }
  return data;
}

QString Matrix(const QTransform& transform) {
  return QStringLiteral("matrix(%1 %2 %3)")
      .arg(Pair(transform.m11(), transform.m12()), Pair(transform.m21(), transform.m22()),
           Pair(transform.dx(), transform.dy()));
}

/// "paint" and "paint-opacity" for what is filled or drawn with `colour`.
void WritePaint(QXmlStreamWriter& xml, const QString& paint, const QColor& colour, bool visible) {
  if (!visible || colour.alpha() == 0) {
    xml.writeAttribute(paint, QStringLiteral("none"));
    return;
  }
  xml.writeAttribute(paint, colour.name());
  if (colour.alpha() < 255)
    xml.writeAttribute(paint + QStringLiteral("-opacity"), Number(colour.alphaF()));
}

QString CapName(Qt::PenCapStyle cap) {
  if (cap == Qt::RoundCap) return QStringLiteral("round");
  return cap == Qt::SquareCap ? QStringLiteral("square") : QStringLiteral("butt");
}

QString JoinName(Qt::PenJoinStyle join) {
  if (join == Qt::RoundJoin) return QStringLiteral("round");
  return join == Qt::BevelJoin ? QStringLiteral("bevel") : QStringLiteral("miter");
}

/// The family that is used here, then those that a reader may have instead.
QString FamiliesOf(const QFont& font) {
  QStringList families{QFontInfo(font).family()};
  families += font.families();
  families += QStringLiteral("sans-serif");
  families.removeDuplicates();
  return families.join(QStringLiteral(", "));
}

/// In points: a pixel of this device is one.
double SizeOf(const QFont& font) {
  return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF();
}

}  // namespace

class SvgPage::Engine : public QPaintEngine {
 public:
  Engine(QSizeF size, const QString& title)
      : QPaintEngine(AllFeatures &
                     ~(PerspectiveTransform | PatternBrush | PorterDuff | LinearGradientFill |
                       RadialGradientFill | ConicalGradientFill | RasterOpModes)),
        xml_(&document_) {
    const QString namespaceName = QStringLiteral("http://www.w3.org/2000/svg");
    xml_.writeStartDocument();
    xml_.writeStartElement(QStringLiteral("svg"));
    xml_.writeAttribute(QStringLiteral("xmlns"), namespaceName);
    xml_.writeAttribute(QStringLiteral("version"), QStringLiteral("1.1"));
    xml_.writeAttribute(QStringLiteral("width"), Number(size.width()) + QStringLiteral("pt"));
    xml_.writeAttribute(QStringLiteral("height"), Number(size.height()) + QStringLiteral("pt"));
    xml_.writeAttribute(QStringLiteral("viewBox"),
                        QStringLiteral("0 0 ") + Pair(size.width(), size.height()));
    xml_.writeTextElement(QStringLiteral("title"), title);
  }

  QByteArray Document() const {
    return isActive() ? QByteArray() : document_ + QByteArrayLiteral("</svg>\n");
  }

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override {
    xml_.writeCharacters(QString());  // ends the tag of the last element
    return !xml_.hasError();
  }
  Type type() const override { return User; }

  void updateState(const QPaintEngineState& now) override {
    const DirtyFlags dirty = now.state();
    if (dirty & DirtyPen) pen_ = now.pen();
    if (dirty & DirtyBrush) brush_ = now.brush();
    if (dirty & DirtyTransform) transform_ = now.transform();
    if (dirty & DirtyOpacity) opacity_ = now.opacity();
    if (dirty & (DirtyClipPath | DirtyClipRegion | DirtyClipEnabled | DirtyTransform)) FindClip();
  }

  void drawPath(const QPainterPath& path) override { WritePath(path, brush_); }

  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
    if (mode != PolylineMode) path.closeSubpath();
    path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    WritePath(path, mode == PolylineMode ? QBrush(Qt::NoBrush) : brush_);
  }

  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QString text = item.text();
    if (text.trimmed().isEmpty()) return;
    const QFont font = item.font();
    Begin(QStringLiteral("text"));
    xml_.writeAttribute(QStringLiteral("x"), Number(at.x()));
    xml_.writeAttribute(QStringLiteral("y"), Number(at.y()));
    xml_.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    xml_.writeAttribute(QStringLiteral("font-family"), FamiliesOf(font));
    xml_.writeAttribute(QStringLiteral("font-size"), Number(SizeOf(font)));
    if (font.weight() != QFont::Normal)
      xml_.writeAttribute(QStringLiteral("font-weight"), QString::number(font.weight()));
    if (font.italic()) xml_.writeAttribute(QStringLiteral("font-style"), QStringLiteral("italic"));
    if (text.size() > 1) xml_.writeAttribute(QStringLiteral("textLength"), Number(item.width()));
    WritePaint(xml_, QStringLiteral("fill"), pen_.color(), true);
    xml_.writeCharacters(text);
    End();
  }

  void drawPixmap(const QRectF& to, const QPixmap& pixmap, const QRectF& from) override {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!pixmap.copy(from.toAlignedRect()).save(&buffer, "PNG")) return;
    Begin(QStringLiteral("image"));
    xml_.writeAttribute(QStringLiteral("x"), Number(to.x()));
    xml_.writeAttribute(QStringLiteral("y"), Number(to.y()));
    xml_.writeAttribute(QStringLiteral("width"), Number(to.width()));
    xml_.writeAttribute(QStringLiteral("height"), Number(to.height()));
    xml_.writeAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    xml_.writeAttribute(QStringLiteral("xmlns:xlink"),
                        QStringLiteral("http://www.w3.org/1999/xlink"));
    xml_.writeAttribute(QStringLiteral("xlink:href"), QStringLiteral("data:image/png;base64,") +
                                                          QString::fromLatin1(bytes.toBase64()));
    End();
  }

 private:
  /// A clip is written when it is new, and named by the elements that it holds for.
  void FindClip() {
    const QPainterPath clip =
        painter()->hasClipping() ? transform_.map(painter()->clipPath()) : QPainterPath();
    clipped_ = painter()->hasClipping();
    if (!clipped_ || (clips_ > 0 && clip == clip_)) return;
    clip_ = clip;
    xml_.writeStartElement(QStringLiteral("clipPath"));
    xml_.writeAttribute(QStringLiteral("id"), ClipName(++clips_));
    xml_.writeStartElement(QStringLiteral("path"));
    xml_.writeAttribute(QStringLiteral("d"), PathData(clip_));
    xml_.writeEndElement();
    xml_.writeEndElement();
  }

  static QString ClipName(int number) { return QStringLiteral("clip") + QString::number(number); }

  /// What is clipped in the page's units stands in a group of its own, around the transform.
  void Begin(const QString& element) {
    if (clipped_) {
      xml_.writeStartElement(QStringLiteral("g"));
      xml_.writeAttribute(QStringLiteral("clip-path"),
                          QStringLiteral("url(#%1)").arg(ClipName(clips_)));
    }
    xml_.writeStartElement(element);
    if (!transform_.isIdentity())
      xml_.writeAttribute(QStringLiteral("transform"), Matrix(transform_));
    if (opacity_ < 1) xml_.writeAttribute(QStringLiteral("opacity"), Number(opacity_));
  }

  void End() {
    xml_.writeEndElement();
    if (clipped_) xml_.writeEndElement();
  }

  void WritePath(const QPainterPath& path, const QBrush& brush) {
    if (path.isEmpty()) return;
    Begin(QStringLiteral("path"));
    xml_.writeAttribute(QStringLiteral("d"), PathData(path));
    WritePaint(xml_, QStringLiteral("fill"), brush.color(), brush.style() != Qt::NoBrush);
    if (brush.style() != Qt::NoBrush && path.fillRule() == Qt::OddEvenFill)
      xml_.writeAttribute(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
    WritePen();
    End();
  }

  void WritePen() {
    const bool drawn = pen_.style() != Qt::NoPen;
    WritePaint(xml_, QStringLiteral("stroke"), pen_.color(), drawn);
    if (!drawn) return;
    // The thinnest line of a screen is a pixel, and here a point would be coarse.
    constexpr double kHairline = 0.5;
    const double width = pen_.widthF() > 0 ? pen_.widthF() : kHairline;
    xml_.writeAttribute(QStringLiteral("stroke-width"), Number(width));
    xml_.writeAttribute(QStringLiteral("stroke-linecap"), CapName(pen_.capStyle()));
    xml_.writeAttribute(QStringLiteral("stroke-linejoin"), JoinName(pen_.joinStyle()));
    if (pen_.isCosmetic())
      xml_.writeAttribute(QStringLiteral("vector-effect"), QStringLiteral("non-scaling-stroke"));
    QStringList dashes;
    for (const qreal dash : pen_.dashPattern()) dashes += Number(dash * width);
    if (!dashes.isEmpty())
      xml_.writeAttribute(QStringLiteral("stroke-dasharray"), dashes.join(u' '));
  }

  QByteArray document_;
  QXmlStreamWriter xml_;
  QPen pen_;
  QBrush brush_;
  QTransform transform_;
  double opacity_ = 1;
  bool clipped_ = false;
  QPainterPath clip_;  // the last one written, in the page's units
  int clips_ = 0;
};

SvgPage::SvgPage(QSizeF size, const QString& title)
    : size_(size.expandedTo({1, 1})), engine_(std::make_unique<Engine>(size_, title)) {}

SvgPage::~SvgPage() = default;

QByteArray SvgPage::Document() const {
  return engine_->Document();
}

QPaintEngine* SvgPage::paintEngine() const {
  return engine_.get();
}

int SvgPage::metric(PaintDeviceMetric metric) const {
  const auto millimetres = [](double points) {
    return static_cast<int>(std::lround(points * kMillimetresPerInch / kPointsPerInch));
  };
  switch (metric) {
    case PdmWidth:
      return static_cast<int>(std::ceil(size_.width()));
    case PdmHeight:
      return static_cast<int>(std::ceil(size_.height()));
    case PdmWidthMM:
      return millimetres(size_.width());
    case PdmHeightMM:
      return millimetres(size_.height());
    case PdmNumColors:
      return 1 << 24;
    case PdmDepth:
      return 24;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return kPointsPerInch;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return static_cast<int>(devicePixelRatioFScale());
    default:
      return QPaintDevice::metric(metric);
  }
}

}  // namespace tricklet::ui
