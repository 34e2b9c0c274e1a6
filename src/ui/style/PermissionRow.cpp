#include "ui/style/PermissionRow.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/style/StyledLabel.h"
#include "ui/style/SymbolLabel.h"

namespace tessarin::ui {

PermissionRow::PermissionRow(const Texts& texts, int symbolSize, QWidget* parent)
    : QWidget(parent),
      texts_(texts),
      symbol_(new SymbolLabel(texts.missingSymbol, symbolSize, texts.missingColor)),
      grant_(new QPushButton(tr("Grant"))) {
  auto* name = new StyledLabel(texts.name, TextStyle::headline);
  auto* description = new StyledLabel(texts.description, TextStyle::caption, ColorRole::secondary);
  description->wrapped();
  auto* lines = new QVBoxLayout;
  lines->setSpacing(2);
  lines->addWidget(&name->wrapped());
  lines->addWidget(description);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(10);
  row->addWidget(symbol_, 0, Qt::AlignVCenter);
  row->addLayout(lines, 1);
  row->addWidget(grant_, 0, Qt::AlignVCenter);
  grant_->setAccessibleDescription(texts.name);
  connect(grant_, &QPushButton::clicked, this, &PermissionRow::grantClicked);
  setGranted(false);
}

void PermissionRow::setGranted(bool granted) {
  if (granted) {
    symbol_->setSymbol("checkmark-circle-fill", ColorRole::green);
  } else {
    symbol_->setSymbol(texts_.missingSymbol, texts_.missingColor);
  }
  const QString state = granted ? tr("%1: granted") : tr("%1: not granted");
  symbol_->setAccessibleName(state.arg(texts_.name));
  grant_->setVisible(!granted);
}

}  // namespace tessarin::ui
