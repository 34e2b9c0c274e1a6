#pragma once

#include <QDialog>

class QDialogButtonBox;
class QVBoxLayout;

namespace tessarin::ui {

/// The look that all windows about updates share: our symbol, a headline with a text below it, what else a
/// window has, and a row of buttons. Escape closes it. A window of its own that blocks no other.
class UpdateDialog : public QDialog {
  Q_OBJECT

 public:
  /// An empty text leaves no room.
  UpdateDialog(const QString& headline, const QString& text);

 protected:
  /// What stands between text and buttons.
  QVBoxLayout& content() { return *content_; }
  QDialogButtonBox& buttons() { return *buttons_; }

 private:
  QVBoxLayout* content_;
  QDialogButtonBox* buttons_;
};

}  // namespace tessarin::ui
