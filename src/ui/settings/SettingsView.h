#pragma once

#include <QTabWidget>

#include "ui/settings/SettingsServices.h"

namespace tessarin::ui {

/// The six tabs of the settings, opened on the first.
class SettingsView final : public QTabWidget {
  Q_OBJECT

 public:
  explicit SettingsView(const SettingsServices& services, QWidget* parent = nullptr);
};

}  // namespace tessarin::ui
