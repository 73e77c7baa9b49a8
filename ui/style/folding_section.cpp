#include "ui/style/folding_section.h"

#include <utility>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/style/drawn_button.h"

namespace tricklet::ui {

FoldingSection::FoldingSection(const QString& name, const QString& button, Texts texts,
                               QWidget* parent)
    : Section(name, parent),
      texts_(std::move(texts)),
      button_(new DrawnButton(button, this)),
      content_(new QWidget(this)),
      column_(new QVBoxLayout(content_)) {
  column_->setContentsMargins(0, 0, 0, 0);
  button_->setAccessibleName(texts_.name);
  button_->setCheckable(true);
  TitleRow()->addWidget(button_);
  Body()->addWidget(content_, 1);
  connect(button_, &QToolButton::toggled, this, &FoldingSection::ShowFold);
  connect(button_, &QToolButton::clicked, this, &FoldingSection::Folded);
  button_->setChecked(true);
}

bool FoldingSection::Unfolded() const {
  return button_->isChecked();
}

void FoldingSection::SetUnfolded(bool unfolded) {
  button_->setChecked(unfolded);
}

void FoldingSection::Toggle() {
  button_->click();
}

void FoldingSection::ShowFold(bool unfolded) {
  button_->setText(unfolded ? QStringLiteral("v") : QStringLiteral("^"));
  button_->setToolTip(unfolded ? texts_.hide : texts_.show);
  content_->setVisible(unfolded);
}

}  // namespace tricklet::ui
