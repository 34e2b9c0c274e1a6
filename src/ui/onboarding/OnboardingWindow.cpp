#include "ui/onboarding/OnboardingWindow.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "ui/style/Windows.h"

namespace tessarin::ui {

OnboardingWindow::OnboardingWindow(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue) {
  setWindowTitle(tr("Welcome to Tessarin"));
  setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
  auto* view = new OnboardingView(permissions, defaults, queue);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(view);
  connect(view, &OnboardingView::finished, this, &OnboardingWindow::hide);
}

void OnboardingWindow::open() {
  adjustSize();
  centreOnScreen(*this);
  bringToFront(*this);
}

void OnboardingWindow::closeEvent(QCloseEvent* event) {
  event->accept();
}

}  // namespace tessarin::ui
