#pragma once

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>
#include <functional>

namespace tessarin::ui {

/// Asks the user, in one plain dialog, whether the program may judge keys and write into other applications.
/// The dialog stands beside everything else; asking again while it stands changes nothing.
class TrustPrompt {
  Q_DECLARE_TR_FUNCTIONS(tessarin::ui::TrustPrompt)

 public:
  /// `allowed` runs when the user says yes. A no is not recorded: the question may be asked again later.
  explicit TrustPrompt(std::function<void()> allowed) : allowed_(std::move(allowed)) {}
  ~TrustPrompt();
  TrustPrompt(const TrustPrompt&) = delete;
  TrustPrompt& operator=(const TrustPrompt&) = delete;

  void ask();

 private:
  std::function<void()> allowed_;
  QPointer<QMessageBox> dialog_;
};

}  // namespace tessarin::ui
