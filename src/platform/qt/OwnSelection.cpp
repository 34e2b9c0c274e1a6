#include "platform/qt/OwnSelection.h"

#include <QGuiApplication>

namespace tessarin::ui {
namespace {

bool isOurs(const QClipboard& clipboard, QClipboard::Mode mode) {
  return mode == QClipboard::Selection ? clipboard.ownsSelection() : clipboard.ownsClipboard();
}

}  // namespace

std::optional<std::string> OwnSelection::string() {
  const QClipboard* own = QGuiApplication::clipboard();
  if (isOurs(*own, mode_)) return own->text(mode_).toStdString();
  return pasteboard_.string();
}

}  // namespace tessarin::ui
