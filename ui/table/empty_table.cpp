#include "ui/table/empty_table.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tricklet::ui {
namespace {

// Of the text's size.
constexpr double kWidth = 17;
constexpr double kHeight = 3.2;
constexpr double kTitle = 1.3;

QPushButton* MakeChoice(const char* name, const QString& text, const QString& tip,
                        QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleDescription(tip);
  button->setToolTip(tip);
  button->setAutoDefault(true);
  return button;
}

}  // namespace

EmptyTable::EmptyTable(QWidget* table)
    : QWidget(table),
      title_(new QLabel(tr("This library is empty"), this)),
      open_(MakeChoice("cmdOpenFirst", tr("Open a file..."),
                       tr("Import hand records: PBN, LIN, DLM or USEBIO"), this)),
      generate_(MakeChoice("cmdGenerateFirst", tr("Generate deals..."),
                           tr("Random deals, as many as you like"), this)),
      drop_(new QLabel(tr("or drop a file here"), this)) {
  setObjectName(QStringLiteral("fraEmpty"));
  setAccessibleName(title_->text());
  title_->setAlignment(Qt::AlignCenter);
  drop_->setObjectName(QStringLiteral("lblDropHere"));
  drop_->setAlignment(Qt::AlignCenter);
  connect(open_, &QPushButton::clicked, this, &EmptyTable::OpenAsked);
  connect(generate_, &QPushButton::clicked, this, &EmptyTable::GenerateAsked);
  auto* column = new QVBoxLayout(this);
  column->addStretch();
  for (QWidget* choice : QList<QWidget*>{title_, open_, generate_, drop_}) {
    column->addWidget(choice, 0, Qt::AlignHCenter);
  }
  column->addStretch();
  hide();
}

QList<QWidget*> EmptyTable::TabOrder() const {
  return {open_, generate_};
}

void EmptyTable::SetLook(int pixels, const QColor& colour) {
  QFont font = this->font();
  font.setPixelSize(pixels);
  for (QWidget* choice : QList<QWidget*>{open_, generate_, drop_}) {
    choice->setFont(font);
    choice->setFixedSize(static_cast<int>(kWidth * pixels), static_cast<int>(kHeight * pixels));
  }
  font.setPixelSize(static_cast<int>(kTitle * pixels));
  font.setBold(true);
  title_->setFont(font);
  title_->setStyleSheet(QStringLiteral("color: %1").arg(colour.name()));
  drop_->setStyleSheet(
      QStringLiteral("color: %1; border: 2px dashed %1; border-radius: 8px").arg(colour.name()));
  layout()->setSpacing(pixels);
}

}  // namespace tricklet::ui
