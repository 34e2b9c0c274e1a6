#pragma once

#include <QLayout>
#include <vector>

namespace tessarin::ui {

/// A grid of equal columns, as many as fit, which share the width; filled row by row in reading direction.
class FlowGrid final : public QLayout {
  Q_OBJECT

 public:
  struct Spacing {
    int narrowest;  ///< width that a column has at least
    int columns;    ///< between two columns
    int rows;       ///< between two rows
  };

  explicit FlowGrid(const Spacing& spacing, QWidget* parent = nullptr);
  ~FlowGrid() override;

  /// Removes and deletes everything in it.
  void clear();

  void addItem(QLayoutItem* item) override { items_.push_back(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override { return minimumSize(); }
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  int columnsIn(int width) const;
  int rowHeight() const;

  Spacing spacing_;
  std::vector<QLayoutItem*> items_;
};

}  // namespace tessarin::ui
