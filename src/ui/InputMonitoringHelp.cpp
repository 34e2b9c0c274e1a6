#include "ui/InputMonitoringHelp.h"

#include "ui/style/Windows.h"

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
    dialog_->setWindowModality(Qt::NonModal);
  }
  bringToFront(*dialog_);
}

}  // namespace tessarin::ui
