#include "ui/settings/RunningAppsGrid.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "ui/settings/ShortLabel.h"
#include "ui/style/FlowGrid.h"

namespace tessarin::ui {
namespace {

constexpr int highest = 120;
constexpr int tileIconSize = 16;
constexpr FlowGrid::Spacing gridSpacing{120, 8, 6};

/// What a button shows leaves the pointer to the button.
void addPart(QHBoxLayout* label, QLabel* part, int stretch) {
  part->setAttribute(Qt::WA_TransparentForMouseEvents);
  label->addWidget(part, stretch, Qt::AlignVCenter);
}

}  // namespace

RunningAppsGrid::RunningAppsGrid(std::function<void(const std::string&)> add, QWidget* parent)
    : ScrollPane(new QWidget, parent), add_(std::move(add)), grid_(new FlowGrid(gridSpacing, widget())) {
  fitHeight();
}

void RunningAppsGrid::setApps(const std::vector<RunningAppInfo>& apps) {
  const qsizetype focused = buttons_.indexOf(QApplication::focusWidget());
  grid_->clear();
  buttons_.clear();
  for (const RunningAppInfo& app : apps) {
    buttons_ << makeButton(app);
    grid_->addWidget(buttons_.last());
    buttons_.last()->show();
  }
  fitHeight();
  if (focused >= 0 && !buttons_.isEmpty()) {
    buttons_[std::min(focused, buttons_.size() - 1)]->setFocus(Qt::OtherFocusReason);
  }
}

QWidget* RunningAppsGrid::makeButton(const RunningAppInfo& app) {
  auto* button = new QPushButton;
  button->setAutoDefault(false);
  auto* label = new QHBoxLayout(button);
  label->setContentsMargins(8, 4, 8, 4);
  label->setSpacing(4);
  if (!app.icon.isNull()) {
    auto* icon = new QLabel;
    icon->setPixmap(app.icon.pixmap(tileIconSize, tileIconSize));
    addPart(label, icon, 0);
  }
  auto* name = new ShortLabel(1, TextStyle::caption, ColorRole::primary);
  name->setText(app.name);
  addPart(label, name, 1);
  button->setMinimumHeight(label->sizeHint().height());
  button->setAccessibleName(tr("Add %1").arg(app.name));
  button->setToolTip(app.name);
  // Later: the button itself goes.
  connect(
      button, &QPushButton::clicked, this, [this, bundleID = app.bundleID] { add_(bundleID); },
      Qt::QueuedConnection);
  return button;
}

void RunningAppsGrid::resizeEvent(QResizeEvent* event) {
  ScrollPane::resizeEvent(event);
  fitHeight();
}

void RunningAppsGrid::fitHeight() {
  setFixedHeight(std::min(highest, grid_->heightForWidth(width())));
}

}  // namespace tessarin::ui
