#include "ui/settings/ReplacementEditor.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

#include "ui/style/Colors.h"
#include "ui/style/TextStyle.h"

namespace tessarin::ui {
namespace {

constexpr int leastEditorHeight = 60;
constexpr int mostHeight = 160;
constexpr int frameRadius = 4;
constexpr double frameOpacity = 0.15;
constexpr double placeholderOpacity = 0.5;
/// Text and placeholder stand this far from the edges.
constexpr int horizontalInset = 5;
constexpr int verticalInset = 8;

}  // namespace

ReplacementEditor::ReplacementEditor(const QString& placeholder, QWidget* parent)
    : QPlainTextEdit(parent), placeholder_(placeholder) {
  setFrameStyle(Box | Plain);
  setLineWidth(1);
  setTabChangesFocus(true);
  const int margin = horizontalInset - frameWidth();
  document()->setDocumentMargin(margin);
  const int above = verticalInset - margin - frameWidth();
  setViewportMargins(0, above, 0, above);
  setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  restyle();
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    fitHeight();
    Q_EMIT replacementChanged();
  });
}

void ReplacementEditor::setReplacement(const QString& text) {
  loaded_ = text;
  setPlainText(text);
  document()->setModified(false);
  Q_EMIT replacementChanged();
}

QString ReplacementEditor::replacement() const {
  // What was not touched stays as it was, whatever the document makes of its line ends.
  if (!document()->isModified()) return loaded_;
  return document()->toRawText().replace(QChar::ParagraphSeparator, '\n');
}

void ReplacementEditor::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && event->modifiers().testFlag(Qt::ShiftModifier)) {
    textCursor().insertBlock();  // rather than a line separator, which few applications take for a line end
    ensureCursorVisible();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void ReplacementEditor::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  const bool isStyle = event->type() == QEvent::ApplicationFontChange ||
                       event->type() == QEvent::ApplicationPaletteChange ||
                       event->type() == QEvent::PaletteChange;
  if (isStyle && !isRestyling_) restyle();
}

void ReplacementEditor::restyle() {
  isRestyling_ = true;
  setFont(fontOf(TextStyle::monospacedBody, QApplication::font()));
  QPalette colors = QApplication::palette(this);
  const QColor secondary = colorOf(ColorRole::secondary, colors);
  colors.setColor(QPalette::PlaceholderText, withOpacity(secondary, secondary.alphaF() * placeholderOpacity));
  setPalette(colors);
  isRestyling_ = false;
  fitHeight();
}

void ReplacementEditor::fitHeight() {
  // Blocks are laid out when they come into sight; more lines than fit need not be counted.
  const int lineHeight = fontMetrics().lineSpacing();
  int lines = 0;
  for (QTextBlock block = document()->begin(); block.isValid() && lines * lineHeight < mostHeight;
       block = block.next()) {
    blockBoundingRect(block);
    lines += std::max(1, block.layout()->lineCount());
  }
  const int height = std::clamp(lines * lineHeight + 2 * verticalInset, leastEditorHeight, mostHeight);
  if (height == minimumHeight()) return;
  setFixedHeight(height);
}

void ReplacementEditor::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  fitHeight();
}

bool ReplacementEditor::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return QPlainTextEdit::event(event);
  paintFrame();
  return true;
}

void ReplacementEditor::paintEvent(QPaintEvent* event) {
  QPlainTextEdit::paintEvent(event);
  const bool isEmpty =
      document()->isEmpty() && document()->firstBlock().layout()->preeditAreaText().isEmpty();
  if (isEmpty) paintPlaceholder();
}

/// The toolkit's own keeps clear of the left border alone.
void ReplacementEditor::paintPlaceholder() {
  QPainter painter(viewport());
  painter.setLayoutDirection(layoutDirection());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  const int margin = static_cast<int>(document()->documentMargin());
  painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, 0), Qt::TextWordWrap, placeholder_);
}

void ReplacementEditor::paintFrame() {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(withOpacity(colorOf(ColorRole::primary, palette()), frameOpacity), frameWidth()));
  painter.setBrush(palette().color(QPalette::Base));
  const double inset = frameWidth() / 2.0;
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), frameRadius, frameRadius);
}

}  // namespace tessarin::ui
