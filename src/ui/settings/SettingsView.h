#pragma once

#include <QTabWidget>

#include "ui/settings/SettingsServices.h"

namespace tessarin::ui {

/// The six tabs of the settings, opened on the first.
class SettingsView final : public QTabWidget {
  Q_OBJECT

 public:
  explicit SettingsView(const SettingsServices& services, QWidget* parent = nullptr);

  /// At which the first tab is seen whole.
  int heightOfFirstTab() const;

 private:
  /// The keys lead that many tabs on, round and round.
  void addShortcut(QKeyCombination keys, int step);
};

}  // namespace tessarin::ui
