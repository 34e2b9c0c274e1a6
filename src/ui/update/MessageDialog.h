#pragma once

#include "ui/update/UpdateDialog.h"

namespace tessarin::ui {

/// The outcome of a check that asks for nothing but to be read.
class MessageDialog final : public UpdateDialog {
  Q_OBJECT

 public:
  MessageDialog(const QString& headline, const QString& text);
};

}  // namespace tessarin::ui
