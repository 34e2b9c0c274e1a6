#include "ui/TrustPrompt.h"

#include <QPushButton>

#include "ui/style/Windows.h"

namespace tessarin::ui {

TrustPrompt::~TrustPrompt() {
  delete dialog_;
}

void TrustPrompt::ask(PromptManner manner) {
  const bool isNew = !dialog_;
  if (isNew) dialog_ = makeDialog();
  if (manner == PromptManner::inFront) return bringToFront(*dialog_);
  if (isNew) putInCorner(*dialog_);
  showWithoutKeyboard(*dialog_);
}

QMessageBox* TrustPrompt::makeDialog() {
  auto* dialog =
      new QMessageBox(QMessageBox::Question, "Tessarin", tr("Allow Tessarin to expand shortcodes?"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  // Before the flag, which it would take away.
  dialog->setWindowModality(Qt::NonModal);
  // Without the keyboard it would go below the window that has it.
  dialog->setWindowFlag(Qt::WindowStaysOnTopHint);
  dialog->setInformativeText(tr(
      "After you type the trigger character, Tessarin judges the keys that follow, shows matches beside the "
      "caret and replaces the shortcode in the application you are typing in. While idle it sees no key but "
      "the trigger. Of what you type, nothing is kept but how often each entry was used.\n\n"
      "Saying yes also switches the session's accessibility on, for later sessions too. Qt applications and "
      "browsers that are open "
      "now "
      "notice it when they are started again; until then, text is pasted there."));
  QPushButton* yes = dialog->addButton(tr("Allow"), QMessageBox::AcceptRole);
  QPushButton* no = dialog->addButton(tr("Not Now"), QMessageBox::RejectRole);
  // The yes lasts, and a Return may have been meant for another window.
  dialog->setDefaultButton(no);
  QObject::connect(dialog, &QMessageBox::buttonClicked, dialog,
                   [this, yes](QAbstractButton* button) { answered_(button == yes); });
  dialog->ensurePolished();
  dialog->adjustSize();
  return dialog;
}

}  // namespace tessarin::ui
