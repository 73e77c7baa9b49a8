#include "ui/dialogs/frmStart.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "library/start_up.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {

frmStart::frmStart(Session& session, QWidget* parent) : QDialog(parent) {
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
  const QString update = ToQt(UpdateText(session.settings));
  auto* lblUpdate = new QLabel(update, this);
  lblUpdate->setObjectName(QStringLiteral("lblUpdate"));
  lblUpdate->setWordWrap(true);
  lblUpdate->setVisible(!update.isEmpty());

  auto* chkAutoLaunch = new QCheckBox(tr("&Open the main window at once next time"), this);
  chkAutoLaunch->setObjectName(QStringLiteral("chkAutoLaunch"));
  chkAutoLaunch->setChecked(session.settings.autoLaunch);
  connect(chkAutoLaunch, &QCheckBox::clicked, this, [&session](bool checked) {
    session.settings.autoLaunch = checked;
    SaveSetting(session, &Settings::autoLaunch);
  });
  auto* cmdLaunch = new QPushButton(tr("&Launch"), this);
  cmdLaunch->setObjectName(QStringLiteral("cmdLaunch"));
  cmdLaunch->setDefault(true);
  connect(cmdLaunch, &QPushButton::clicked, this, &QDialog::accept);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(36, 28, 36, 24);
  column->setSpacing(10);
  column->addWidget(name, 0, Qt::AlignHCenter);
  column->addWidget(lblVersion, 0, Qt::AlignHCenter);
  column->addWidget(lblUpdate, 0, Qt::AlignHCenter);
  column->addSpacing(12);
  column->addWidget(chkAutoLaunch);
  column->addWidget(cmdLaunch);
  cmdLaunch->setFocus();
}

}  // namespace tricklet::ui
