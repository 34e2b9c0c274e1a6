#pragma once

#include <QList>
#include <functional>
#include <string>
#include <vector>

#include "ui/settings/RunningAppInfo.h"
#include "ui/style/ScrollPane.h"

namespace tessarin::ui {

class FlowGrid;

/// A button for each application that can be added to a list. As high as they need up to a limit, beyond
/// which it scrolls.
class RunningAppsGrid final : public ScrollPane {
  Q_OBJECT

 public:
  /// `add` may show other applications right away.
  explicit RunningAppsGrid(std::function<void(const std::string& bundleID)> add, QWidget* parent = nullptr);

  /// The keyboard focus stays where it was, on the button that has moved there; without one it goes to
  /// whatever comes next.
  void setApps(const std::vector<RunningAppInfo>& apps);
  const QList<QWidget*>& buttons() const { return buttons_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makeButton(const RunningAppInfo& app);
  void fitHeight();

  std::function<void(const std::string&)> add_;
  FlowGrid* grid_;
  QList<QWidget*> buttons_;
};

}  // namespace tessarin::ui
