#include "ui/settings/MostUsedList.h"

#include "ui/settings/MostUsedDelegate.h"

namespace tessarin::ui {
namespace {

constexpr int leastListHeight = 100;

}  // namespace

MostUsedList::MostUsedList(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new MostUsedDelegate(this));
  setSelectionMode(QAbstractItemView::NoSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setUniformItemSizes(true);
  setMinimumHeight(leastListHeight);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
}

void MostUsedList::setEntries(const std::vector<Entry>& entries) {
  const int wanted = static_cast<int>(entries.size());
  while (count() > wanted) delete takeItem(count() - 1);
  while (count() < wanted) addItem(new QListWidgetItem);
  for (int row = 0; row < wanted; ++row) {
    const Entry& entry = entries[static_cast<std::size_t>(row)];
    const QString number = QString::number(entry.count);
    item(row)->setText(entry.trigger);
    item(row)->setData(MostUsedDelegate::countRole, number);
    item(row)->setData(Qt::AccessibleTextRole,
                       tr("%1. %2, %3").arg(QString::number(row + 1), entry.trigger, number));
  }
  updateGeometry();
}

QSize MostUsedList::sizeHint() const {
  const int rows = count() == 0 ? 0 : sizeHintForRow(0) * count();
  return {QListWidget::sizeHint().width(), rows + 2 * frameWidth()};
}

}  // namespace tessarin::ui
