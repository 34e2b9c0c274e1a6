#include "ui/update/CheckingDialog.h"

#include <QDialogButtonBox>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessarin::ui {

CheckingDialog::CheckingDialog() : UpdateDialog(tr("Looking for updates…"), {}) {
  auto* progress = new QProgressBar;
  progress->setRange(0, 0);
  progress->setTextVisible(false);
  progress->setAccessibleName(tr("Looking for updates…"));
  content().addWidget(progress);
  content().addStretch();
  buttons().addButton(tr("Cancel"), QDialogButtonBox::RejectRole)->setDefault(true);
  connect(&buttons(), &QDialogButtonBox::rejected, this, &QDialog::reject);
}

}  // namespace tessarin::ui
