#include "ui/settings/PreviewClipboard.h"

#include <QString>

#include "platform/Pasteboard.h"

namespace tessarin::ui {
namespace {

constexpr qsizetype charactersRead = 4000;

std::string cut(const QString& text) {
  return text.left(charactersRead).toStdString();
}

}  // namespace

std::string PreviewClipboard::text() {
  const std::int64_t now = pasteboard_.changeCount();
  if (readAt_ != now) {
    text_ = cut(QString::fromStdString(pasteboard_.string().value_or("")));
    readAt_ = now;
  }
  return text_;
}

}  // namespace tessarin::ui
