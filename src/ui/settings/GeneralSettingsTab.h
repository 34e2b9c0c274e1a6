#pragma once

#include <QWidget>

#include "base/Subscription.h"
#include "ui/settings/SettingsServices.h"

class QButtonGroup;
class QCheckBox;

namespace tessarin::ui {

class StyledLabel;

/// The first tab: start at login, the trigger character, the tray icon and updates.
class GeneralSettingsTab final : public QWidget {
  Q_OBJECT

 public:
  explicit GeneralSettingsTab(const SettingsServices& services, QWidget* parent = nullptr);

 private:
  QWidget* makeLaunchToggle();
  QWidget* makeTriggerPicker();
  void bind(QCheckBox* box, const char* preference);
  QWidget* makeVersionRow();
  QWidget* makeUpdateButton();

  void changeLaunchAtLogin(bool launchAtLogin);
  /// Shows the preferences as they are now, whoever has changed them.
  void showPreferences();

  SettingsServices services_;
  QCheckBox* launchAtLogin_;
  QCheckBox* showMenuBarIcon_;
  QCheckBox* confirmsOnlyWhatIsMeant_;
  QCheckBox* triggersOnlyAtWordStart_;
  QButtonGroup* triggers_;
  StyledLabel* triggerHint_;
  StyledLabel* updateHint_;
  Subscription preferences_;
};

}  // namespace tessarin::ui
