#include "ui/settings/SettingsWindow.h"

#include <QCoreApplication>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "ui/settings/SettingsView.h"
#include "ui/style/Windows.h"

namespace tessarin::ui {
namespace {

constexpr QSize contentSize(640, 480);

}  // namespace

SettingsWindow::SettingsWindow(SettingsServices services) : services_(std::move(services)) {}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::open() {
  if (!window_ || !window_->isVisible()) {
    window_ = makeWindow();
    centreOnScreen(*window_);
  }
  bringToFront(*window_);
}

std::unique_ptr<QWidget> SettingsWindow::makeWindow() {
  auto window = std::make_unique<QWidget>();
  window->setWindowTitle(QCoreApplication::translate("tessarin::ui::SettingsWindow", "Tessarin Settings"));
  auto* layout = new QVBoxLayout(window.get());
  auto* view = new SettingsView(services_);
  layout->addWidget(view);
  for (const QKeySequence& keys : {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)}) {
    auto* shortcut = new QShortcut(keys, window.get());
    QObject::connect(shortcut, &QShortcut::activated, window.get(), &QWidget::close);
  }
  // The tall lines of some scripts' fonts need more than that.
  const int around = layout->sizeHint().height() - view->sizeHint().height();
  window->resize(contentSize.expandedTo({0, view->heightOfFirstTab() + around}));
  return window;
}

}  // namespace tessarin::ui
