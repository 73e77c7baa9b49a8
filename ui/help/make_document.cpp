// Makes the document that a help command opens: make_document IN.md OUT.pdf
#include <cstdio>

#include <QFile>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace {

constexpr int kPoints = 10;  // of the letters
constexpr double kCellPadding = 3;

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

bool Write(const QString& markdown, const QString& file) {
  QPdfWriter pdf(file);
  pdf.setCreator(QStringLiteral("Tricklet"));
  pdf.setTitle(QStringLiteral("Tricklet"));
  pdf.setPageSize(QPageSize(QPageSize::A4));
  pdf.setPageMargins(QMarginsF());  // the document has its own
  QTextDocument document;
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSize(kPoints);
  document.setDefaultFont(font);
  document.setMarkdown(markdown);
  StyleTables(document);
  document.print(&pdf);
  return QFile(file).size() > 0;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // it may be made where there is no screen
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) return 2;
  QFile source(arguments.at(1));
  if (!source.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "%s cannot be read\n", argv[1]);
    return 1;
  }
  return Write(QString::fromUtf8(source.readAll()), arguments.at(2)) ? 0 : 1;
}
