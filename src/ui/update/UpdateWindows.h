#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>
#include <memory>
#include <vector>

#include "update/UpdateUserDriver.h"

namespace tessarin {
class Workspace;
}

namespace tessarin::ui {

/// The windows about updates, one at a time. Each exists only while it is shown.
class UpdateWindows final : public UpdateUserDriver {
  Q_DECLARE_TR_FUNCTIONS(tessarin::ui::UpdateWindows)

 public:
  /// `workspace` opens links of the release notes and outlives this object.
  explicit UpdateWindows(Workspace& workspace) : workspace_(workspace) {}
  ~UpdateWindows() override;
  UpdateWindows(const UpdateWindows&) = delete;
  UpdateWindows& operator=(const UpdateWindows&) = delete;

  void showChecking(std::function<void()> cancel) override;
  void showUpdate(const AppcastItem& item, const std::string& currentVersion, Manner manner,
                  std::function<void(UpdateChoice)> chosen) override;
  void showUpToDate(const std::string& currentVersion) override;
  void showFailure(UpdateFailure failure) override;
  void focus() override;
  void dismiss() override;

 private:
  template <class Dialog>
  void show(std::unique_ptr<Dialog> dialog, Manner manner, std::function<void(Dialog&)> closed);

  Workspace& workspace_;
  std::unique_ptr<QDialog> dialog_;
  std::vector<QPointer<QDialog>> leaving_;  ///< go with the next turn of the event loop
};

}  // namespace tessarin::ui
