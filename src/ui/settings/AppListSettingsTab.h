#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "input/AppList.h"
#include "ui/settings/RunningAppInfo.h"
#include "ui/settings/SettingsServices.h"

class QLineEdit;
class QPushButton;

namespace tessarin::ui {

class AppListView;
class RunningAppsGrid;

/// A tab that edits one of the lists of applications: its entries, buttons for the applications that run and
/// a field for an identifier.
class AppListSettingsTab : public QWidget {
  Q_OBJECT

 public:
  struct Texts {
    QString title;
    QString description;
    QString placeholder;  ///< of the field
  };

  AppListSettingsTab(const SettingsServices& services, AppList list, const Texts& texts,
                     QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* makeManualEntry(const QString& placeholder);

  void add(const std::string& bundleID);
  void addManualEntry();
  void remove(const std::string& bundleID);
  void showList();
  void orderFocus();

  SettingsServices services_;
  AppList list_;
  std::vector<RunningAppInfo> runningApps_;
  AppListView* entries_;
  RunningAppsGrid* grid_;
  QLineEdit* manualBundleID_;
  QPushButton* addButton_;
};

}  // namespace tessarin::ui
