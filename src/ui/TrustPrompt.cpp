#include "ui/TrustPrompt.h"

#include <QPushButton>

namespace tessarin::ui {

TrustPrompt::~TrustPrompt() {
  delete dialog_;
}

void TrustPrompt::ask() {
  if (dialog_) {
    dialog_->raise();
    return;
  }
  dialog_ = new QMessageBox(QMessageBox::Question, "Tessarin", tr("Allow Tessarin to expand shortcodes?"));
  dialog_->setAttribute(Qt::WA_DeleteOnClose);
  dialog_->setInformativeText(tr(
      "After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the "
      "caret and replaces the shortcode in the application you are typing in. While idle it sees no key but "
      "the trigger. Of what you type, nothing is kept but how often each entry was used.\n\n"
      "Saying yes also switches the session's accessibility on, for later sessions too. Qt applications and "
      "browsers that are open "
      "now "
      "notice it when they are started again; until then, text is pasted there."));
  QPushButton* yes = dialog_->addButton(tr("Allow"), QMessageBox::AcceptRole);
  dialog_->addButton(tr("Not Now"), QMessageBox::RejectRole);
  dialog_->setDefaultButton(yes);
  QObject::connect(dialog_, &QMessageBox::buttonClicked, dialog_, [this, yes](QAbstractButton* button) {
    if (button == yes) allowed_();
  });
  dialog_->open();
}

}  // namespace tessarin::ui
