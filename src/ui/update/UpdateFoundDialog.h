#pragma once

#include "ui/update/UpdateDialog.h"
#include "update/UpdateChoice.h"

namespace tessarin::ui {

/// Offers a newer version. Closing the window means later.
class UpdateFoundDialog final : public UpdateDialog {
  Q_OBJECT

 public:
  /// `notes` may be empty: then they are left out.
  UpdateFoundDialog(const QString& version, const QString& currentVersion, const QString& notes);

  UpdateChoice choice() const { return choice_; }

 Q_SIGNALS:
  void linkFollowed(const QString& address);

 private:
  void addNotes(const QString& notes);
  void addButtons();
  void choose(UpdateChoice choice);

  UpdateChoice choice_ = UpdateChoice::later;
};

}  // namespace tessarin::ui
