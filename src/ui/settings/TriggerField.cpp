#include "ui/settings/TriggerField.h"

#include <QValidator>

#include "model/SnippetDraft.h"
#include "platform/qt/OwnTextField.h"

namespace tessarin::ui {
namespace {

QString filtered(const QString& text) {
  return QString::fromStdString(filteredTrigger(text.toStdString()));
}

/// Accepts every text, without the characters that do not belong in it. Text that an input method has not
/// committed yet is none.
class TriggerFilter final : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& caret) const override {
    const QString kept = filtered(text);
    if (kept != text) {
      caret = static_cast<int>(filtered(text.left(caret)).size());
      text = kept;
    }
    return Acceptable;
  }
};

}  // namespace

TriggerField::TriggerField(QWidget* parent) : QLineEdit(parent) {
  setValidator(new TriggerFilter(this));
  setProperty(OwnTextField::keepsOutProperty, true);
}

}  // namespace tessarin::ui
