#include "ui/InputMonitoringHelp.h"

namespace tessarin::ui {

InputMonitoringHelp::~InputMonitoringHelp() {
  delete dialog_;
}

void InputMonitoringHelp::show(const std::string& headline, const std::string& text) {
  if (!dialog_) {
    dialog_ = new QMessageBox(QMessageBox::Information, "Tessarin", QString::fromStdString(headline),
                              QMessageBox::Ok);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    dialog_->setInformativeText(QString::fromStdString(text));
    dialog_->open();
  }
  dialog_->raise();
  dialog_->activateWindow();
}

}  // namespace tessarin::ui
