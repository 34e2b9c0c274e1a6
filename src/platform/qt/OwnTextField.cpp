#include "platform/qt/OwnTextField.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QScreen>
#include <algorithm>

#include "text/Graphemes.h"

namespace tessarin::ui {
namespace {

// Qt leaves a screen's origin in pixels and scales from there; our points are scaled from the desktop's
// origin.
Rect toPoints(const QRectF& global, const QScreen* screen) {
  const QPointF origin = screen->geometry().topLeft();
  const QPointF corner = global.topLeft() - origin + origin / screen->devicePixelRatio();
  return {corner.x(), corner.y(), global.width(), global.height()};
}

Rect globalRect(const QWidget& widget, const QRectF& local) {
  return toPoints({widget.mapToGlobal(local.topLeft()), local.size()}, widget.screen());
}

std::string toUtf8(const QString& text) {
  return text.toStdString();
}

/// Where the `count` characters that end at `end` begin.
std::optional<qsizetype> startOf(const QString& text, qsizetype end, std::int64_t count) {
  const auto wanted = static_cast<std::size_t>(std::max<std::int64_t>(count, 0));
  const std::string characters = text::lastCharacters(toUtf8(text.left(end)), wanted);
  if (text::characterCount(characters) < wanted) return std::nullopt;
  return end - QString::fromStdString(characters).size();
}

}  // namespace

QVariant OwnTextField::query(Qt::InputMethodQuery what) const {
  if (!widget_) return {};
  QInputMethodQueryEvent event(what);
  QCoreApplication::sendEvent(widget_, &event);
  return event.value(what);
}

bool OwnTextField::isEditable() const {
  const bool takesText = widget_ && widget_->isEnabled() && widget_->testAttribute(Qt::WA_InputMethodEnabled);
  return takesText && (role() == role::textField || role() == role::textArea);
}

std::string_view OwnTextField::role() const {
  const auto hints = query(Qt::ImHints).value<Qt::InputMethodHints>();
  const bool keepsOut = widget_ && widget_->property(keepsOutProperty).toBool();
  if (keepsOut || hints.testFlag(Qt::ImhHiddenText)) return role::secureTextField;
  if (!query(Qt::ImSurroundingText).isValid()) return role::unknown;
  return hints.testFlag(Qt::ImhMultiLine) ? role::textArea : role::textField;
}

QString OwnTextField::paragraph() const {
  return query(Qt::ImSurroundingText).toString();
}

std::optional<OwnTextField::Span> OwnTextField::selectedSpan() const {
  const QVariant cursor = query(Qt::ImCursorPosition);
  const QVariant anchor = query(Qt::ImAnchorPosition);
  if (!isEditable() || !cursor.isValid() || !anchor.isValid()) return std::nullopt;
  const qsizetype caret = cursor.toLongLong();
  const qsizetype other = anchor.toLongLong();
  return Span{std::min(caret, other), std::max(caret, other)};
}

std::optional<OwnTextField::Span> OwnTextField::spanOf(const TextRange& range) const {
  if (!isEditable() || range.location < 0 || range.length < 0) return std::nullopt;
  const QString text = paragraph();
  const qsizetype end = range.location + range.length;
  if (end > text.size()) return std::nullopt;
  const auto start = startOf(text, end, range.length);
  return start ? std::optional(Span{*start, end}) : std::nullopt;
}

std::optional<TextRange> OwnTextField::selection() const {
  const auto span = selectedSpan();
  if (!span) return std::nullopt;
  const QString selected = paragraph().mid(span->start, span->end - span->start);
  const auto length = static_cast<std::int64_t>(text::characterCount(toUtf8(selected)));
  return TextRange{span->end - length, length};
}

std::optional<std::string> OwnTextField::string(const TextRange& range) const {
  const auto span = spanOf(range);
  if (!span) return std::nullopt;
  return toUtf8(paragraph().mid(span->start, span->end - span->start));
}

std::optional<Rect> OwnTextField::caretRect() const {
  const QVariant local = query(Qt::ImCursorRectangle);
  if (!widget_ || !local.isValid()) return std::nullopt;
  return globalRect(*widget_, local.toRectF());
}

std::optional<Rect> OwnTextField::frame() const {
  if (!widget_) return std::nullopt;
  return globalRect(*widget_, widget_->rect());
}

AccessibilityStatus OwnTextField::replace(const TextRange& range, const std::string& text) {
  const auto span = spanOf(range);
  const auto selected = selectedSpan();
  if (!span || !selected) return AccessibilityStatus::failure;
  // A commit removes the selection first: what it takes must be within what is replaced.
  const bool isCaret = selected->start == selected->end;
  if (!isCaret && (selected->start < span->start || selected->end > span->end)) {
    return AccessibilityStatus::failure;
  }
  const QString before = paragraph();
  const QString inserted = QString::fromStdString(text);
  const qsizetype removed = span->end - span->start - (selected->end - selected->start);
  QInputMethodEvent commit;
  commit.setCommitString(inserted, static_cast<int>(span->start - selected->start),
                         static_cast<int>(removed));
  QCoreApplication::sendEvent(widget_, &commit);

  if (!widget_ || inserted.contains('\n')) return AccessibilityStatus::success;
  const QString after = paragraph();
  if (QStringView(after).mid(span->start).startsWith(inserted)) return AccessibilityStatus::success;
  return after == before ? AccessibilityStatus::failure : AccessibilityStatus::erasedOnly;
}

}  // namespace tessarin::ui
