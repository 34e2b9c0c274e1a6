#include "ui/update/UpdateDialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "ui/style/StyledLabel.h"
#include "ui/style/SymbolLabel.h"

namespace tessarin::ui {
namespace {

constexpr int margin = 20;
constexpr int applicationSymbolSize = 48;
constexpr int textWidth = 320;

}  // namespace

UpdateDialog::UpdateDialog(const QString& headline, const QString& text)
    : content_(new QVBoxLayout), buttons_(new QDialogButtonBox) {
  setWindowTitle(tr("Tessarin Update"));
  setAccessibleDescription(headline);
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(margin, margin, margin, margin);
  outer->setSpacing(margin);
  auto* row = new QHBoxLayout;
  row->setSpacing(margin);
  row->addWidget(new SymbolLabel("text-cursor", applicationSymbolSize, ColorRole::accent), 0, Qt::AlignTop);
  row->addLayout(content_, 1);
  outer->addLayout(row, 1);
  outer->addWidget(buttons_);

  content_->setSpacing(8);
  auto* title = new StyledLabel(headline, TextStyle::headline);
  title->wrapped().setMinimumWidth(textWidth);
  content_->addWidget(title);
  if (!text.isEmpty()) content_->addWidget(&(new StyledLabel(text))->wrapped());
}

}  // namespace tessarin::ui
