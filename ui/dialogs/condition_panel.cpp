#include "ui/dialogs/condition_panel.h"

#include <chrono>

#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include "conditions/examples.h"
#include "conditions/rarity.h"
#include "core/fault.h"
#include "library/condition_presets.h"
#include "ui/background/worker.h"
#include "ui/dialogs/condition_editor.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr std::chrono::milliseconds kSample{800};

QToolButton* MenuButton(const char* name, const QString& text, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setText(text);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setMenu(new QMenu(button));
  return button;
}

/// The name as a menu's text, in which "&" stands before the letter of a key.
QString MenuText(const std::string& name) {
  return ToQt(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

ConditionPanel::ConditionPanel(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      txtCondition(new ConditionEditor(this)),
      lblCondition(new QLabel(this)),
      cmdExamples(MenuButton("cmdExamples", tr("E&xamples"), this)),
      cmdPresets(MenuButton("cmdPresets", tr("&Presets"), this)),
      worker_(std::make_unique<Worker>()) {
  lblCondition->setObjectName(QStringLiteral("lblCondition"));
  lblCondition->setWordWrap(true);
  lblCondition->setTextFormat(Qt::PlainText);
  // Two lines from the beginning, so that nothing moves while somebody writes.
  lblCondition->setMinimumHeight(2 * lblCondition->fontMetrics().lineSpacing());
  lblCondition->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdExamples);
  buttons->addWidget(cmdPresets);
  buttons->addStretch(1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(txtCondition, 1);
  column->addWidget(lblCondition);
  column->addLayout(buttons);
  FillExamples(cmdExamples->menu());
  connect(cmdPresets->menu(), &QMenu::aboutToShow, this,
          [this] { FillPresets(cmdPresets->menu()); });
  connect(txtCondition, &ConditionEditor::WasRead, this, &ConditionPanel::ShowOutcome);
}

ConditionPanel::~ConditionPanel() {
  if (stop_) *stop_ = true;
}

std::string ConditionPanel::Text() const {
  return txtCondition->toPlainText().toStdString();
}

void ConditionPanel::SetText(const std::string& text) {
  txtCondition->selectAll();  // so that it can be taken back
  txtCondition->insertPlainText(ToQt(text));
}

QList<QWidget*> ConditionPanel::TabOrder() const {
  return {txtCondition, cmdExamples, cmdPresets};
}

std::shared_ptr<const Script> ConditionPanel::Take() {
  const QString fault = txtCondition->FaultText();
  if (fault.isEmpty()) return txtCondition->Outcome().script;
  session_.host.Tell(fault.toStdString());
  txtCondition->GoToFault();
  return nullptr;
}

void ConditionPanel::DealsChanged() {
  ShowOutcome();
}

/// What is wrong; else how rare the deals are, as soon as a sample of them has been dealt. Of an
/// empty text nothing is said.
void ConditionPanel::ShowOutcome() {
  if (stop_) *stop_ = true;
  if (const QString fault = txtCondition->FaultText(); !fault.isEmpty()) {
    return Say(fault, FaultColour(palette()));
  }
  if (txtCondition->document()->isEmpty()) return Say({});
  std::string why;
  const auto script = deals_ ? deals_(why) : txtCondition->Outcome().script;
  if (!script) return Say(ToQt(why));
  stop_ = std::make_shared<std::atomic<bool>>(false);
  auto rarity = std::make_shared<Rarity>();
  worker_->Post(
      [script, stop = stop_, rarity] {
        if (!*stop) *rarity = EstimateRarity(script, kSample, *stop);
      },
      [this, stop = stop_, rarity] {
        if (!*stop) Say(ToQt(RarityText(*rarity)));
      });
}

void ConditionPanel::Say(const QString& text, const QColor& colour) {
  QPalette palette;  // all but the colour is the window's
  if (colour.isValid()) palette.setColor(QPalette::WindowText, colour);
  lblCondition->setPalette(palette);
  lblCondition->setText(text);
  txtCondition->setAccessibleDescription(text);
}

void ConditionPanel::FillExamples(QMenu* menu) {
  for (const ConditionExample& example : ConditionExamples()) {
    menu->addAction(ToQt(example.name), this, [this, &example] {
      SetText(std::string(example.text));
      txtCondition->setFocus();
    });
  }
}

void ConditionPanel::FillPresets(QMenu* menu) {
  menu->clear();
  std::vector<std::string> names;
  try {
    names = PresetNames(session_);
  } catch (const std::exception& failure) {
    ErrorReport(session_.host, FaultFrom(failure));
  }
  for (const std::string& name : names) {
    menu->addAction(MenuText(name), this, [this, name] { LoadPresetNamed(name); });
  }
  if (!names.empty()) menu->addSeparator();
  menu->addAction(tr("&Keep as preset..."), this, &ConditionPanel::SavePreset);
  if (names.empty()) return;
  QMenu* remove = menu->addMenu(tr("&Remove preset"));
  for (const std::string& name : names) {
    remove->addAction(MenuText(name), this, [this, name] { RecyclePreset(session_, name); });
  }
}

void ConditionPanel::LoadPresetNamed(const std::string& name) {
  try {
    SetText(MendUtf8(LoadPreset(session_, name)));
    txtCondition->setFocus();
  } catch (const std::exception& failure) {
    ErrorReport(session_.host, FaultFrom(failure));
  }
}

void ConditionPanel::SavePreset() {
  const QString name = QInputDialog::getText(this, tr("Keep as preset"), tr("Name of the preset"));
  if (!name.isNull()) StorePreset(session_, name.toStdString(), Text());
}

}  // namespace tricklet::ui
