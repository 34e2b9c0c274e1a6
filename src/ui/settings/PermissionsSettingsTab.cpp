#include "ui/settings/PermissionsSettingsTab.h"

#include <QVBoxLayout>
#include <chrono>

#include "platform/MainQueue.h"
#include "ui/style/Form.h"
#include "ui/style/PermissionRow.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr std::chrono::milliseconds permissionsRefreshInterval{2000};
constexpr int noticeSymbolSize = 20;

}  // namespace

PermissionsSettingsTab::PermissionsSettingsTab(const SettingsServices& services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      inputMonitoring_(new PermissionRow(
          {tr("Input Monitoring"), tr("Required — captures keystrokes to detect :shortcodes:"),
           "xmark-circle-fill", ColorRole::red},
          noticeSymbolSize)),
      accessibility_(new PermissionRow(
          {tr("Accessibility"), tr("Optional — enables cursor positioning and direct text insertion"),
           "minus-circle-fill", ColorRole::yellow},
          noticeSymbolSize)) {
  auto* note =
      new StyledLabel(tr("Without Accessibility, Tessarin uses clipboard paste as a fallback. The popup will "
                         "appear near the mouse cursor instead of the text caret."),
                      TextStyle::caption, ColorRole::secondary);
  note->wrapped();
  auto* form = new Form;
  form->addSection({})->addWidget(inputMonitoring_);
  form->addSection({})->addWidget(accessibility_);
  form->addSection({})->addWidget(note);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(tabPadding, tabPadding, tabPadding, tabPadding);
  layout->addWidget(form);
  connect(inputMonitoring_, &PermissionRow::grantClicked, this,
          [this] { services_.permissions.openInputMonitoringSettings(); });
  connect(accessibility_, &PermissionRow::grantClicked, this,
          [this] { services_.permissions.openAccessibilitySettings(); });
  refresh();
}

void PermissionsSettingsTab::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  refresh();
  timer_ = services_.mainQueue.repeat(permissionsRefreshInterval, [this] { refresh(); });
}

void PermissionsSettingsTab::hideEvent(QHideEvent* event) {
  timer_.reset();
  QWidget::hideEvent(event);
}

void PermissionsSettingsTab::refresh() {
  inputMonitoring_->setGranted(services_.permissions.isInputMonitoringGranted());
  accessibility_->setGranted(services_.permissions.isAccessibilityGranted());
}

}  // namespace tessarin::ui
