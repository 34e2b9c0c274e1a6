#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace tessarin {
class Workspace;
}

namespace tessarin::ui {

/// Identifiers of applications, one a row: with icon and name where it is installed, and a button that
/// removes it. The Delete key removes the current one.
class AppListView final : public QListWidget {
  Q_OBJECT

 public:
  /// `remove` may show other entries right away.
  AppListView(Workspace& workspace, std::function<void(const std::string& bundleID)> remove,
              QWidget* parent = nullptr);

  /// Looks all of them up afresh. The keyboard focus stays where it was, on the row that has moved there.
  void setEntries(const std::vector<std::string>& bundleIDs);
  /// The rows' buttons, from top to bottom.
  const QList<QWidget*>& buttons() const { return buttons_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addRow(const std::string& bundleID);
  QWidget* makeButton(const std::string& bundleID, const QString& name);
  void restoreFocus(int focusedButton, int currentRow);

  Workspace& workspace_;
  std::function<void(const std::string&)> remove_;
  std::vector<std::string> bundleIDs_;
  QList<QWidget*> buttons_;
};

}  // namespace tessarin::ui
