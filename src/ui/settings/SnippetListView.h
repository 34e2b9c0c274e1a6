#pragma once

#include <QListView>

#include "ui/settings/SnippetRow.h"
#include "ui/settings/SnippetRowDelegate.h"

class QPushButton;

namespace tessarin::ui {

/// The list of the user's snippets. Every row has buttons to edit and to delete it; those of the current row
/// are real ones, so that they can be reached by Tab and by a screen reader. Return and F2 edit the current
/// row as well, Delete deletes it.
class SnippetListView final : public QListView {
  Q_OBJECT

 public:
  explicit SnippetListView(QWidget* parent = nullptr);

  void setModel(QAbstractItemModel* model) override;

 Q_SIGNALS:
  void editRequested(const QModelIndex& index);
  void deleteRequested(const QModelIndex& index);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                   const QList<int>& roles) override;

 private:
  QPushButton* makeButton(RowButton button, const QString& text);
  SnippetRow row(const QModelIndex& index) const;
  SnippetRowDelegate::HotButton buttonAt(const QPoint& point) const;
  void setHot(const SnippetRowDelegate::HotButton& hot);
  void request(RowButton button, const QModelIndex& index);
  void placeButtons();
  void describeButtons();

  QPushButton* edit_;
  QPushButton* remove_;
  SnippetRowDelegate* delegate_;
  SnippetRowDelegate::HotButton hot_;
};

}  // namespace tessarin::ui
