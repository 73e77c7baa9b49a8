// Makes the document that a help command opens: make_document IN.md OUT.pdf
//
// The same text gives the same file, byte for byte, where SOURCE_DATE_EPOCH has the time that the
// document is to bear (https://reproducible-builds.org/specs/source-date-epoch/).
#include <algorithm>
#include <cstdio>

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHashSeed>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QUrl>

namespace {

constexpr int kPoints = 10;  // of the letters
constexpr double kCellPadding = 3;
constexpr int kTextWidth = 620;  // of a page, at the 96 dots per inch of the document

/// A document whose pictures lie in a folder. The copy that is printed asks this one for them.
class Document : public QTextDocument {
 public:
  explicit Document(const QDir& folder) : folder_(folder) {}

  QVariant loadResource(int /*type*/, const QUrl& name) override {
    return QImage(folder_.filePath(name.path()));
  }

 private:
  QDir folder_;
};

void StyleTables(const QTextDocument& document) {
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setBorderCollapse(true);
    format.setCellPadding(kCellPadding);
    table->setFormat(format);
  }
}

/// Pictures are as wide as the text, or as they are.
void FitPictures(Document& document) {
  QTextCursor cursor(&document);
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
      if (!picture.isValid()) continue;
      const QSize size = document.loadResource(QTextDocument::ImageResource, picture.name())
                             .value<QImage>()
                             .size();
      if (size.isEmpty()) continue;
      picture.setWidth(std::min(size.width(), kTextWidth));
      picture.setHeight(picture.width() * size.height() / size.width());
      cursor.setPosition(part.fragment().position());
      cursor.setPosition(part.fragment().position() + 1, QTextCursor::KeepAnchor);
      cursor.setCharFormat(picture);
      break;  // the block has changed
    }
  }
}

/// Puts the time of SOURCE_DATE_EPOCH, when there is one, in the place of the time of writing. The
/// length stays, and with it the places of the objects that follow.
void SetCreationDate(QByteArray& pdf) {
  bool isNumber = false;
  const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isNumber);
  const QByteArray key = QByteArrayLiteral("/CreationDate (D:");
  const auto place = pdf.indexOf(key);
  if (!isNumber || place < 0) return;
  const QString date = QDateTime::fromSecsSinceEpoch(seconds).toString(u"yyyyMMddHHmmss");
  pdf.replace(place + key.size(), date.size(), date.toLatin1());
}

/// `folder` is where the pictures are looked for.
QByteArray ToPdf(const QString& markdown, const QDir& folder) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&buffer);
  pdf.setCreator(QStringLiteral("Tricklet"));
  pdf.setTitle(QStringLiteral("Tricklet"));
  pdf.setPageSize(QPageSize(QPageSize::A4));
  pdf.setPageMargins(QMarginsF());  // the document has its own
  Document document(folder);
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSize(kPoints);
  document.setDefaultFont(font);
  document.setMarkdown(markdown);
  FitPictures(document);
  StyleTables(document);
  document.print(&pdf);
  SetCreationDate(bytes);
  return bytes;
}

bool Write(const QString& file, const QByteArray& bytes) {
  QFile output(file);
  return !bytes.isEmpty() && output.open(QIODevice::WriteOnly) &&
         output.write(bytes) == bytes.size() && output.flush();
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // it may be made where there is no screen
  qputenv("TZ", "UTC0");
  QHashSeed::setDeterministicGlobalSeed();  // by which the writer orders fonts and pictures
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) return 2;
  QFile source(arguments.at(1));
  if (!source.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "%s cannot be read\n", argv[1]);
    return 1;
  }
  const QByteArray pdf = ToPdf(QString::fromUtf8(source.readAll()), QFileInfo(source).dir());
  if (Write(arguments.at(2), pdf)) return 0;
  std::fprintf(stderr, "%s cannot be written\n", argv[2]);
  return 1;
}
