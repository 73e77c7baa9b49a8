#include "ui/dialogs/frmStart.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "library/start_up.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"
#include "ui/updates/updates.h"

namespace tricklet::ui {
namespace {

/// However long the words are.
constexpr int kTextWidth = 360;

QLabel* AddText(QWidget* parent, const char* name, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignHCenter);
  label->setFixedWidth(kTextWidth);
  return label;
}

}  // namespace

frmStart::frmStart(Session& session, Updates& updates, std::chrono::milliseconds patience)
    : updates_(updates),
      lblUpdate(AddText(this, "lblUpdate", updates.StartText())),
      lblNotes(AddText(this, "lblNotes", updates.StartNotes())),
      cmdLaunch(new QPushButton(tr("&Launch"), this)) {
  setObjectName(QStringLiteral("frmStart"));
  setWindowTitle(ToQt(kProgramName));

  auto* name = new QLabel(ToQt(kProgramName), this);
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 2.4);
  large.setBold(true);
  name->setFont(large);
  auto* lblVersion = new QLabel(ToQt(VersionText()), this);
  lblVersion->setObjectName(QStringLiteral("lblVersion"));
  MakeQuiet(lblVersion);
  MakeQuiet(lblNotes);
  lblNotes->setVisible(!lblNotes->text().isEmpty());

  auto* chkAutoLaunch = new QCheckBox(tr("&Open the main window at once next time"), this);
  chkAutoLaunch->setObjectName(QStringLiteral("chkAutoLaunch"));
  chkAutoLaunch->setChecked(session.settings.autoLaunch);
  connect(chkAutoLaunch, &QCheckBox::clicked, this, [&session](bool checked) {
    session.settings.autoLaunch = checked;
    SaveSetting(session, &Settings::autoLaunch);
  });
  cmdLaunch->setObjectName(QStringLiteral("cmdLaunch"));
  cmdLaunch->setDefault(true);
  connect(cmdLaunch, &QPushButton::clicked, this, &frmStart::Launch);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(36, 28, 36, 24);
  column->setSpacing(10);
  column->addWidget(name, 0, Qt::AlignHCenter);
  column->addWidget(lblVersion, 0, Qt::AlignHCenter);
  column->addWidget(lblUpdate, 0, Qt::AlignHCenter);
  column->addWidget(lblNotes, 0, Qt::AlignHCenter);
  column->addSpacing(12);
  column->addWidget(chkAutoLaunch);
  column->addWidget(cmdLaunch);
  cmdLaunch->setFocus();
  LookForUpdate(patience);
}

void frmStart::LookForUpdate(std::chrono::milliseconds patience) {
  if (!updates_.WantedAtStart()) return;
  waiting_ = true;
  connect(&updates_, &Updates::Settled, this, [this] {
    const UpdateAnswer* newer = updates_.JustFound();
    lblUpdate->setText(newer == nullptr ? QString() : updates_.OutcomeText());
    lblNotes->setText(newer == nullptr ? QString() : ToQt(newer->notes));
    lblNotes->setVisible(!lblNotes->text().isEmpty());
    adjustSize();
    GoOn();
  });
  auto* timer = new QTimer(this);
  timer->setSingleShot(true);
  connect(timer, &QTimer::timeout, this, &frmStart::GoOn);
  timer->start(patience);
  updates_.Ask();
}

void frmStart::Launch() {
  if (!waiting_) {
    accept();
    return;
  }
  launched_ = true;
  cmdLaunch->setEnabled(false);
}

/// The answer is there, or has been waited for long enough.
void frmStart::GoOn() {
  waiting_ = false;
  if (launched_) accept();
}

}  // namespace tricklet::ui
