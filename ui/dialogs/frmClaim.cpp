#include "ui/dialogs/frmClaim.h"

#include <optional>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "core/scoring.h"
#include "library/tables.h"
#include "play/claim_check.h"
#include "review/play_review.h"
#include "ui/background/worker.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// The first entry of the sides is the declarer's.
constexpr int kDeclarersEntry = 0;

QLabel* MakeLine(const QString& name, int lines, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setMinimumHeight(lines * label->fontMetrics().lineSpacing());
  return label;
}

}  // namespace

frmClaim::frmClaim(Session& session, const CardPlay& play, QWidget* parent)
    : QDialog(parent),
      session_(session),
      state_(play.Now()),
      played_(play.Played()),
      cmbClaimSide(new QComboBox(this)),
      spnClaim(new QSpinBox(this)),
      lblClaimResult(MakeLine(QStringLiteral("lblClaimResult"), 1, this)),
      lblClaimCheck(MakeLine(QStringLiteral("lblClaimCheck"), 3, this)),
      cmdCheckClaim(new QPushButton(tr("Chec&k double-dummy"), this)) {
  setObjectName(QStringLiteral("frmClaim"));
  setWindowTitle(tr("Claim"));
  Build();
  Connect();
  const bool declaring =
      SideOf(state_.onPlay.value_or(played_.declarer)) == SideOf(played_.declarer);
  cmbClaimSide->setCurrentIndex(declaring ? kDeclarersEntry : 1 - kDeclarersEntry);
  ShowLimits();
  spnClaim->setFocus();
  spnClaim->selectAll();
}

frmClaim::~frmClaim() = default;

void frmClaim::Build() {
  const bool northSouth = SideOf(played_.declarer) == Side::NorthSouth;
  cmbClaimSide->setObjectName(QStringLiteral("cmbClaimSide"));
  cmbClaimSide->addItem(tr("%1, declarer").arg(ToQt(SeatName[played_.declarer])));
  cmbClaimSide->addItem(northSouth ? tr("East-West, the defenders")
                                   : tr("North-South, the defenders"));
  spnClaim->setObjectName(QStringLiteral("spnClaim"));
  cmdCheckClaim->setObjectName(QStringLiteral("cmdCheckClaim"));
  cmdCheckClaim->setToolTip(
      tr("What the claim is worth against the best play, with all cards seen"));
  cmdCheckClaim->setAutoDefault(false);

  auto* form = new QFormLayout;
  form->addRow(tr("Claim &by"), cmbClaimSide);
  form->addRow(tr("&Tricks in all"), spnClaim);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  auto* cmdOK = buttons->addButton(tr("&Claim"), QDialogButtonBox::AcceptRole);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(lblClaimResult);
  column->addWidget(cmdCheckClaim, 0, Qt::AlignLeft);
  column->addWidget(lblClaimCheck, 1);
  column->addWidget(buttons);
  setMinimumWidth(fontMetrics().averageCharWidth() * 44);
}

void frmClaim::Connect() {
  connect(cmbClaimSide, &QComboBox::currentIndexChanged, this, &frmClaim::ShowLimits);
  connect(spnClaim, &QSpinBox::valueChanged, this, &frmClaim::ShowResult);
  connect(cmdCheckClaim, &QPushButton::clicked, this, &frmClaim::Check);
}

Side frmClaim::ClaimingSide() const {
  const Side declaring = SideOf(played_.declarer);
  if (cmbClaimSide->currentIndex() == kDeclarersEntry) return declaring;
  return declaring == Side::NorthSouth ? Side::EastWest : Side::NorthSouth;
}

int frmClaim::Tricks() const {
  return spnClaim->value();
}

void frmClaim::ShowLimits() {
  const int won = state_.tricksWon[ClaimingSide()];
  spnClaim->setRange(won, won + kTricks - state_.tricksPlayed);
  spnClaim->setValue(spnClaim->maximum());
  ShowResult();
}

/// What the play would end with. What was checked for another number does not hold for this one.
void frmClaim::ShowResult() {
  const bool declaring = ClaimingSide() == SideOf(played_.declarer);
  lblClaimResult->setText(ToQt(ResultLine(played_, declaring ? Tricks() : kTricks - Tricks())));
  ++asked_;
  lblClaimCheck->clear();
}

void frmClaim::Check() {
  if (!RequireSolver(session_)) return;
  if (!worker_) worker_ = std::make_unique<Worker>();
  lblClaimCheck->setText(tr("Checking..."));
  const auto check = std::make_shared<std::optional<ClaimCheck>>();
  worker_->Post(
      [check, state = state_, played = played_, side = ClaimingSide(), tricks = Tricks(),
       solver = session_.getSolver] { *check = CheckClaim(solver(), state, played, side, tricks); },
      [this, check, number = ++asked_] {
        if (number != asked_) return;
        Tell(*check ? ClaimCheckText(**check) + "\n" + kDoubleDummyLabel
                    : FromQt(tr("The solver cannot tell what the claim is worth.")));
      });
}

void frmClaim::Tell(const std::string& text) {
  lblClaimCheck->setText(ToQt(text));
}

}  // namespace tricklet::ui
