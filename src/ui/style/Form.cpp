#include "ui/style/Form.h"

#include <QVBoxLayout>

#include "ui/style/Card.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int sectionSpacing = 16;
constexpr int titleSpacing = 6;
constexpr int rowSpacing = 8;
constexpr int cardPadding = 12;

}  // namespace

Form::Form(QWidget* parent) : QScrollArea(parent) {
  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  sections_ = new QVBoxLayout;
  sections_->setSpacing(sectionSpacing);
  layout->addLayout(sections_);
  layout->addStretch(1);
  setWidget(content);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);
  setFocusPolicy(Qt::NoFocus);
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
