#include "ui/settings/StatCard.h"

#include <QVBoxLayout>

#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int valueSize = 28;
constexpr int padding = 12;

}  // namespace

StatCard::StatCard(const QString& title, QWidget* parent) : Card(parent), value_(new QLabel) {
  QFont font = value_->font();
  font.setPixelSize(valueSize);
  font.setBold(true);
  value_->setFont(font);
  value_->setAlignment(Qt::AlignCenter);
  value_->setTextFormat(Qt::PlainText);
  auto* caption = new StyledLabel(title, TextStyle::caption, ColorRole::secondary);
  caption->centred();
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, padding, 0, padding);
  lines->setSpacing(4);
  lines->addWidget(value_);
  lines->addWidget(caption);
  setAccessibleName(title);
}

void StatCard::setValue(const QString& value) {
  value_->setText(value);
  setAccessibleDescription(value);
}

}  // namespace tessarin::ui
