#include "ui/dialogs/frmOptions.h"

#include <utility>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ui/dialogs/design_thumbnail.h"
#include "ui/dialogs/font_editor.h"
#include "ui/style/section.h"
#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

constexpr QSize kThumbnail(76, 50);
constexpr int kBelowCheck = 24;  // where the text of a check box begins, about

/// A caption with its control to the right of it.
void AddRow(QVBoxLayout* page, const QString& caption, QWidget* control) {
  auto* row = new QHBoxLayout;
  auto* label = new QLabel(caption);
  label->setBuddy(control);
  row->addWidget(label);
  row->addWidget(control);
  row->addStretch(1);
  page->addLayout(row);
}

QVBoxLayout* MakePage(QWidget* page) {
  auto* column = new QVBoxLayout(page);
  column->setSpacing(8);
  return column;
}

}  // namespace

frmOptions::frmOptions(const Session& session, const QString& updateObstacle, QWidget* parent)
    : QDialog(parent),
      board_(session.board),
      before_(session.settings),
      preview_(new TableView(this)) {
  setObjectName(QStringLiteral("frmOptions"));
  setWindowTitle(tr("Options"));
  auto* tabs = new QTabWidget(this);
  tabs->setAccessibleName(tr("Options by subject"));
  tabs->addTab(CardsPage(), tr("&Cards"));
  tabs->addTab(WindowPage(), tr("&Window"));
  tabs->addTab(CaptionsPage(), tr("Ca&ptions"));
  tabs->addTab(FontsPage(), tr("&Fonts"));
  tabs->addTab(StartPage(updateObstacle), tr("&Start and analysis"));
  tabs->addTab(FilesPage(), tr("F&iles"));
  tabs->setMinimumWidth(tabs->tabBar()->sizeHint().width() + 8);
  preview_->setAccessibleName(tr("Preview"));
  preview_->setMinimumSize(380, 320);

  auto* buttons = new QDialogButtonBox(
      QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::RestoreDefaults, this);
  QPushButton* defaults = buttons->button(QDialogButtonBox::RestoreDefaults);
  defaults->setText(tr("&Defaults"));
  defaults->setObjectName(QStringLiteral("cmdDefaults"));
  buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(defaults, &QPushButton::clicked, this, [this] { Fill(Settings()); });

  auto* row = new QHBoxLayout;
  row->addWidget(tabs);
  row->addWidget(preview_, 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(row, 1);
  column->addWidget(buttons);
  Fill(before_);
  TurnPagesByKey(tabs);
  tabs->setFocus();
}

/// From wherever the focus is: the tabs themselves know the keys only while it is within them.
void frmOptions::TurnPagesByKey(QTabWidget* tabs) {
  for (const auto& [key, step] : {std::pair("Ctrl+Tab", 1), std::pair("Ctrl+Shift+Tab", -1)}) {
    connect(new QShortcut(QKeySequence(QString::fromLatin1(key)), this), &QShortcut::activated,
            tabs, [tabs, step = step] {
              tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
            });
  }
}

QWidget* frmOptions::CardsPage() {
  auto* page = new QWidget(this);
  QVBoxLayout* column = MakePage(page);
  AddCheck(column, "CardsFaces", tr("Show hands as card faces"), &Settings::cardsFaces);
  QComboBox* designs = AddChoice(column, "CardDesign", tr("Card design"),
                                 {tr("Plain"), tr("Traditional"), tr("Large index")},
                                 &Settings::cardDesign, CardDesign::IndexAndSymbol);
  designs->setIconSize(kThumbnail);
  for (int entry = 0; entry < designs->count(); ++entry) {
    const int design = entry + IndexOf(CardDesign::IndexAndSymbol);
    designs->setItemIcon(
        entry, DesignThumbnail(static_cast<CardDesign>(design), kThumbnail, devicePixelRatioF()));
  }
  AddCheck(column, "SuitColour", tr("Four suit colours"), &Settings::suitColour);
  suitFontSize_ = new QDoubleSpinBox(page);
  suitFontSize_->setObjectName(QStringLiteral("SuitFontSize"));
  suitFontSize_->setDecimals(1);
  if (const SettingEntry* limits = FindSetting("SuitFontSize")) {
    suitFontSize_->setRange(limits->lowest, limits->highest);
  }
  connect(suitFontSize_, &QDoubleSpinBox::valueChanged, this, &frmOptions::Preview);
  AddRow(column, tr("Size of suit symbols (points)"), suitFontSize_);
  AddChoice(column, "EditMethod", tr("Edit hands by"),
            {tr("Drag and drop"), tr("Click a seat"), tr("Type the holding")},
            &Settings::editMethod, EditMethod::Dragging);
  column->addStretch(1);
  return page;
}

QWidget* frmOptions::WindowPage() {
  auto* page = new QWidget(this);
  QVBoxLayout* column = MakePage(page);
  AddChoice(column, "ColourScheme", tr("Colour scheme"),
            {tr("As the system"), tr("Light"), tr("Dark")}, &Settings::colourScheme,
            ColourScheme::System);
  AddChoice(column, "ToolbarStyle", tr("Toolbar"),
            {tr("Text under the icons"), tr("Text beside the icons"), tr("Icons alone")},
            &Settings::toolbarStyle, ToolbarStyle::TextUnderIcon);
  AddCheck(column, "ShowStats", tr("Show the statistics"), &Settings::showStats);
  AddCheck(column, "ShowMakeable", tr("Show the makeable table"), &Settings::showMakeable);
  AddCheck(column, "MakeableContract", tr("Makeable table as contracts, not tricks"),
           &Settings::makeableContract);
  AddCheck(column, "ShowBestCards", tr("In play, the tricks that each card leads to"),
           &Settings::showBestCards);
  column->addStretch(1);
  return page;
}

QWidget* frmOptions::CaptionsPage() {
  auto* page = new QWidget(this);
  QVBoxLayout* column = MakePage(page);
  AddChoice(column, "CaptionStyle", tr("Wording"), {tr("In full"), tr("Short")},
            &Settings::captionStyle, CaptionStyle::Full);
  AddCheck(column, "CaptionPlayer", tr("Name of the seat"), &Settings::captionPlayer);
  AddCheck(column, "CaptionnCards", tr("Number of cards"), &Settings::captionnCards);
  AddCheck(column, "CaptionHCP", tr("High-card points"), &Settings::captionHcp);
  AddCheck(column, "CaptionLTC", tr("Losing-trick count"), &Settings::captionLtc);
  AddCheck(column, "CaptionDeclarer", tr("Declarer"), &Settings::captionDeclarer);
  AddCheck(column, "CaptionDummy", tr("Dummy"), &Settings::captionDummy);
  column->addStretch(1);
  return page;
}

QWidget* frmOptions::FontsPage() {
  auto* page = new QWidget(this);
  QVBoxLayout* column = MakePage(page);
  fonts_ = {new FontEditor(tr("Hands as text"), page),
            new FontEditor(tr("Captions and auction"), page)};
  int index = 0;
  for (FontEditor* editor : fonts_) {
    editor->setObjectName(QStringLiteral("HGFont%1").arg(index++));
    connect(editor, &FontEditor::Changed, this, &frmOptions::Preview);
    column->addWidget(editor);
  }
  column->addStretch(1);
  return page;
}

QWidget* frmOptions::StartPage(const QString& updateObstacle) {
  auto* page = new QWidget(this);
  QVBoxLayout* column = MakePage(page);
  AddCheck(column, "AutoLaunch", tr("Open the main window at once"), &Settings::autoLaunch);
  QCheckBox* update =
      AddCheck(column, "AutoUpdate", tr("Check for updates at start"), &Settings::autoUpdate);
  if (!updateObstacle.isEmpty()) {
    update->setEnabled(false);
    update->setAccessibleDescription(updateObstacle);
    auto* lblAutoUpdate = new QLabel(updateObstacle);
    lblAutoUpdate->setObjectName(QStringLiteral("lblAutoUpdate"));
    lblAutoUpdate->setTextFormat(Qt::PlainText);
    lblAutoUpdate->setWordWrap(true);
    lblAutoUpdate->setIndent(kBelowCheck);
    lblAutoUpdate->setMinimumWidth(kBelowCheck);  // however long its words are
    MakeQuiet(lblAutoUpdate);
    column->addWidget(lblAutoUpdate);
  }
  AddCheck(column, "AutoMakeable", tr("Compute a missing makeable table"), &Settings::autoMakeable);
  column->addStretch(1);
  return page;
}

QWidget* frmOptions::FilesPage() {
  auto* page = new QWidget(this);
  QVBoxLayout* column = MakePage(page);
  AddCheck(column, "RecycleReplaced", tr("Boards that are replaced go to the recycle bin first"),
           &Settings::recycleReplaced);
  AddCheck(column, "PBNBids", tr("PBN: write the auction"), &Settings::pbnBids);
  AddCheck(column, "PBNShark", tr("PBN: write a result tag and a board comment"),
           &Settings::pbnShark);
  column->addStretch(1);
  return page;
}

QCheckBox* frmOptions::AddCheck(QVBoxLayout* page, const char* key, const QString& text,
                                bool Settings::*setting) {
  auto* box = new QCheckBox(text);
  box->setObjectName(QString::fromLatin1(key));
  connect(box, &QCheckBox::toggled, this, &frmOptions::Preview);
  checks_.push_back({box, setting});
  page->addWidget(box);
  return box;
}

template <class Value>
QComboBox* frmOptions::AddChoice(QVBoxLayout* page, const char* key, const QString& caption,
                                 const QStringList& texts, Value Settings::*setting, Value first) {
  auto* combo = new QComboBox;
  combo->setObjectName(QString::fromLatin1(key));
  combo->setAccessibleName(caption);
  combo->addItems(texts);
  connect(combo, &QComboBox::currentIndexChanged, this, &frmOptions::Preview);
  choices_.push_back(
      {combo, [=](const Settings& from) { return IndexOf(from.*setting) - IndexOf(first); },
       [=](Settings& to, int entry) { to.*setting = static_cast<Value>(entry + IndexOf(first)); }});
  AddRow(page, caption, combo);
  return combo;
}

void frmOptions::Fill(const Settings& settings) {
  filling_ = true;
  for (const Check& check : checks_) check.box->setChecked(settings.*check.setting);
  for (const Choice& choice : choices_) {
    choice.combo->setCurrentIndex(choice.get(settings));
  }
  suitFontSize_->setValue(settings.suitFontSize);
  for (std::size_t i = 0; i < fonts_.size(); ++i) fonts_.at(i)->SetValue(settings.hgFont.at(i));
  filling_ = false;
  Preview();
}

Settings frmOptions::Chosen() const {
  Settings settings = before_;
  for (const Check& check : checks_) settings.*check.setting = check.box->isChecked();
  for (const Choice& choice : choices_) {
    choice.set(settings, choice.combo->currentIndex());
  }
  settings.suitFontSize = suitFontSize_->value();
  for (std::size_t i = 0; i < fonts_.size(); ++i) settings.hgFont.at(i) = fonts_.at(i)->Value();
  return settings;
}

void frmOptions::Preview() {
  if (!filling_) preview_->Show(board_, Chosen());
}

}  // namespace tricklet::ui
