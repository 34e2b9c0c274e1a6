#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <optional>

#include "base/Geometry.h"
#include "platform/Accessibility.h"

namespace tessarin::ui {

/// A widget of our own program in which text is edited, read and written as an input method does it.
/// Positions are UTF-16 units within the paragraph that has the caret. Everything fails once the widget has
/// gone.
class OwnTextField {
 public:
  /// A widget with this property set to true is treated as a password field: nothing is expanded in it.
  static constexpr const char* keepsOutProperty = "tessarinKeepsOut";

  explicit OwnTextField(QWidget* widget) : widget_(widget) {}

  /// Takes text and is no password field.
  bool isEditable() const;
  std::string_view role() const;
  std::optional<TextRange> selection() const;
  /// None for what is outside the paragraph.
  std::optional<std::string> string(const TextRange& range) const;
  /// Where the caret is drawn; points, accessibility coordinates.
  std::optional<Rect> caretRect() const;
  /// The whole widget; points, accessibility coordinates.
  std::optional<Rect> frame() const;
  /// One step of the widget's undo history. Fails while a selection stands that reaches beyond the range.
  AccessibilityStatus replace(const TextRange& range, const std::string& text);

 private:
  struct Span {
    qsizetype start = 0;
    qsizetype end = 0;
  };

  QVariant query(Qt::InputMethodQuery what) const;
  QString paragraph() const;
  std::optional<Span> selectedSpan() const;
  std::optional<Span> spanOf(const TextRange& range) const;

  QPointer<QWidget> widget_;
};

}  // namespace tessarin::ui
