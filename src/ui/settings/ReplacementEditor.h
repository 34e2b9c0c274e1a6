#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace tessarin::ui {

/// The editor of a replacement: several lines, as high as its text within limits. Return makes a line, Tab
/// leaves.
class ReplacementEditor final : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit ReplacementEditor(const QString& placeholder, QWidget* parent = nullptr);

  /// The text as it was set or typed, special spaces included.
  void setReplacement(const QString& text);
  QString replacement() const;

 Q_SIGNALS:
  void replacementChanged();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintFrame();
  void paintPlaceholder();
  void restyle();
  void fitHeight();

  QString placeholder_;
  QString loaded_;
  bool isRestyling_ = false;
};

}  // namespace tessarin::ui
