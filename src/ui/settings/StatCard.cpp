#include "ui/settings/StatCard.h"

#include <QVBoxLayout>

#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int lineSpacing = 4;
constexpr int statCardPadding = 12;

}  // namespace

StatCard::StatCard(const QString& title, QWidget* parent)
    : Card(parent), title_(title), value_(new StyledLabel({}, TextStyle::figure)) {
  auto* caption = new StyledLabel(title, TextStyle::caption, ColorRole::secondary);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, statCardPadding, 0, statCardPadding);
  lines->setSpacing(lineSpacing);
  lines->addWidget(&value_->centred());
  lines->addWidget(&caption->centred());
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StatCard::setValue(const QString& value) {
  value_->setText(value);
  setAccessibleName(tr("%1: %2").arg(title_, value));
}

}  // namespace tessarin::ui
