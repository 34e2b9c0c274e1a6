#include "ui/onboarding/OnboardingWindow.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <utility>

#include "ui/onboarding/OnboardingView.h"
#include "ui/style/Windows.h"

namespace tessarin::ui {

OnboardingWindow::OnboardingWindow(const Permissions& permissions, UserDefaults& defaults, MainQueue& queue)
    : QDialog(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint),
      permissions_(permissions),
      defaults_(defaults),
      queue_(queue) {
  setWindowTitle(tr("Welcome to Tessarin"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void OnboardingWindow::present() {
  if (view_ == nullptr) makeView();
  if (!isVisible()) {
    adjustSize();
    centreOnScreen(*this);
  }
  bringToFront(*this);
}

void OnboardingWindow::makeView() {
  view_ = new OnboardingView(permissions_, defaults_, queue_, this);
  layout()->addWidget(view_);
  connect(view_, &OnboardingView::finished, this, &QWidget::close);
}

void OnboardingWindow::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Cancel)) return event->ignore();
  QDialog::keyPressEvent(event);
}

void OnboardingWindow::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  // Minimising hides as well, but from outside.
  if (event->spontaneous() || view_ == nullptr) return;
  layout()->removeWidget(view_);
  view_->hide();
  std::exchange(view_, nullptr)->deleteLater();
}

}  // namespace tessarin::ui
