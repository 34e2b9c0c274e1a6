#pragma once

#include <QWidget>

#include "ui/style/Colors.h"

class QPushButton;

namespace tessarin::ui {

class SymbolLabel;

/// A permission, whether it is granted, and a button that leads the user to grant it while it is not.
class PermissionRow final : public QWidget {
  Q_OBJECT

 public:
  struct Texts {
    QString name;
    QString description;
    QString missingSymbol;  ///< shown while the permission is not granted
    ColorRole missingColor;
  };

  PermissionRow(const Texts& texts, int symbolSize, QWidget* parent = nullptr);

  void setGranted(bool granted);

 Q_SIGNALS:
  void grantClicked();

 private:
  Texts texts_;
  SymbolLabel* symbol_;
  QPushButton* grant_;
};

}  // namespace tessarin::ui
