#pragma once

#include <QWidget>
#include <memory>

#include "ui/settings/SettingsServices.h"

namespace tessarin::ui {

/// The window that holds the settings. Asking for it again brings it to the front; once it was closed, a new
/// one is built, which reads everything afresh.
class SettingsWindow {
 public:
  explicit SettingsWindow(SettingsServices services);
  ~SettingsWindow();
  SettingsWindow(const SettingsWindow&) = delete;
  SettingsWindow& operator=(const SettingsWindow&) = delete;

  void open();
  /// Null until it has been opened.
  QWidget* window() const { return window_.get(); }

 private:
  std::unique_ptr<QWidget> makeWindow();

  SettingsServices services_;
  std::unique_ptr<QWidget> window_;
};

}  // namespace tessarin::ui
