#include "ui/onboarding/PermissionsStep.h"

#include <QVBoxLayout>

#include "ui/style/Card.h"
#include "ui/style/PermissionRow.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int permissionSymbolSize = 22;
constexpr int rowPadding = 16;
constexpr int permissionRowSpacing = 16;
constexpr int sidePadding = 40;

QWidget* inCard(PermissionRow* row) {
  auto* card = new Card;
  auto* layout = new QVBoxLayout(card);
  layout->setContentsMargins(rowPadding, rowPadding, rowPadding, rowPadding);
  layout->addWidget(row);
  return card;
}

}  // namespace

PermissionsStep::PermissionsStep(QWidget* parent) : StepPage(parent) {
  auto* title = new StyledLabel(tr("Grant Permissions"), TextStyle::title);
  auto* body =
      new StyledLabel(tr("Tessarin needs two permissions to work:"), TextStyle::body, ColorRole::secondary);
  inputMonitoring_ = new PermissionRow(
      {tr("Input Monitoring"), tr("Detects when you type shortcodes"), "xmark-circle-fill", ColorRole::red},
      permissionSymbolSize);
  accessibility_ = new PermissionRow({tr("Accessibility"), tr("Positions the popup and inserts text"),
                                      "minus-circle-fill", ColorRole::yellow},
                                     permissionSymbolSize);
  auto* rows = new QWidget;
  auto* column = new QVBoxLayout(rows);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(permissionRowSpacing);
  column->addWidget(inCard(inputMonitoring_));
  column->addWidget(inCard(accessibility_));
  add(&title->wrapped().centred());
  add(&body->wrapped().centred());
  add(rows, sidePadding);
  connect(inputMonitoring_, &PermissionRow::grantClicked, this, &PermissionsStep::inputMonitoringWanted);
  connect(accessibility_, &PermissionRow::grantClicked, this, &PermissionsStep::accessibilityWanted);
}

void PermissionsStep::setInputMonitoringGranted(bool granted) {
  inputMonitoring_->setGranted(granted);
}

void PermissionsStep::setAccessibilityGranted(bool granted) {
  accessibility_->setGranted(granted);
}

}  // namespace tessarin::ui
