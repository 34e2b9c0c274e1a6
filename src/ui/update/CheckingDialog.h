#pragma once

#include "ui/update/UpdateDialog.h"

namespace tessarin::ui {

/// A check runs; closing the window cancels it.
class CheckingDialog final : public UpdateDialog {
  Q_OBJECT

 public:
  CheckingDialog();
};

}  // namespace tessarin::ui
