#pragma once

#include <QObject>
#include <functional>

namespace tessarin::ui {

/// Tells when the desktop's colours have changed, for what is no widget and so is told by nobody. Created
/// after the application object. Main thread.
class PaletteWatch final : public QObject {
  Q_OBJECT

 public:
  explicit PaletteWatch(std::function<void()> changed);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> changed_;
};

}  // namespace tessarin::ui
