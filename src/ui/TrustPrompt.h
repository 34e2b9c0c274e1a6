#pragma once

#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>
#include <functional>

#include "platform/PromptManner.h"

namespace tessarin::ui {

/// Asks the user, in one plain dialog, whether the program may judge keys and write into other applications.
/// The dialog stands above everything else, and beside it: nothing waits for the answer. Asked again while it
/// stands, it comes up as if asked for the first time.
class TrustPrompt {
  Q_DECLARE_TR_FUNCTIONS(tessarin::ui::TrustPrompt)

 public:
  /// `answered` runs when the user says yes or no; a dialog that is only closed is no answer. Whatever it
  /// was, the question may be asked again.
  explicit TrustPrompt(std::function<void(bool isTrusted)> answered) : answered_(std::move(answered)) {}
  ~TrustPrompt();
  TrustPrompt(const TrustPrompt&) = delete;
  TrustPrompt& operator=(const TrustPrompt&) = delete;

  void ask(PromptManner manner);

 private:
  QMessageBox* makeDialog();

  std::function<void(bool isTrusted)> answered_;
  QPointer<QMessageBox> dialog_;
};

}  // namespace tessarin::ui
