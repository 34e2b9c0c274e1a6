#pragma once

#include <QMessageBox>
#include <QPointer>
#include <string>

namespace tessarin::ui {

/// Says in one plain dialog what the session lacks. Shown again while it stands, it only comes to the front.
class InputMonitoringHelp {
 public:
  InputMonitoringHelp() = default;
  ~InputMonitoringHelp();
  InputMonitoringHelp(const InputMonitoringHelp&) = delete;
  InputMonitoringHelp& operator=(const InputMonitoringHelp&) = delete;

  /// `headline` says what is the matter, `text` why and what helps.
  void show(const std::string& headline, const std::string& text);

 private:
  QPointer<QMessageBox> dialog_;
};

}  // namespace tessarin::ui
