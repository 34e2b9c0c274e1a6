#pragma once

#include <QListWidget>
#include <cstdint>
#include <vector>

namespace tessarin::ui {

/// Triggers as the user types them, each with its rank and its count. As high as its rows where there is
/// room; scrolls where there is not.
class MostUsedList final : public QListWidget {
  Q_OBJECT

 public:
  struct Entry {
    QString trigger;
    std::int64_t count = 0;
  };

  explicit MostUsedList(QWidget* parent = nullptr);

  /// In the order in which they are shown.
  void setEntries(const std::vector<Entry>& entries);

  QSize sizeHint() const override;
};

}  // namespace tessarin::ui
