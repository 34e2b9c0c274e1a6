#pragma once

#include <QObject>
#include <functional>

namespace tessarin::ui {

/// The keys that the tray menu names, for all windows of ours, dialogs included, while they have the
/// keyboard: Ctrl+Q and Ctrl+comma. Created after the application object. Main thread.
class WindowShortcuts final : public QObject {
  Q_OBJECT

 public:
  struct Actions {
    std::function<void()> quit;
    std::function<void()> openSettings;
  };

  explicit WindowShortcuts(Actions actions);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Actions actions_;
};

}  // namespace tessarin::ui
