#include "ui/style/Form.h"

#include <QVBoxLayout>

#include "ui/style/Card.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int sectionSpacing = 10;
constexpr int titleSpacing = 4;
constexpr int rowSpacing = 6;
constexpr int cardPadding = 10;

}  // namespace

Form::Form(QWidget* parent) : ScrollPane(new QWidget, parent), sections_(new QVBoxLayout) {
  auto* layout = new QVBoxLayout(widget());
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  sections_->setSpacing(sectionSpacing);
  layout->addLayout(sections_);
  layout->addStretch(1);
}

QVBoxLayout* Form::addSection(const QString& title) {
  auto* section = new QVBoxLayout;
  section->setSpacing(titleSpacing);
  if (!title.isEmpty()) section->addWidget(new StyledLabel(title, TextStyle::headline));
  auto* card = new Card;
  card->setAccessibleName(title);
  auto* rows = new QVBoxLayout(card);
  rows->setSpacing(rowSpacing);
  rows->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
  section->addWidget(card);
  sections_->addLayout(section);
  return rows;
}

}  // namespace tessarin::ui
