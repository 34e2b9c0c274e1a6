#include "ui/update/MessageDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessarin::ui {

MessageDialog::MessageDialog(const QString& headline, const QString& text) : UpdateDialog(headline, text) {
  content().addStretch();
  buttons().addButton(tr("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
  connect(&buttons(), &QDialogButtonBox::accepted, this, &QDialog::accept);
}

}  // namespace tessarin::ui
