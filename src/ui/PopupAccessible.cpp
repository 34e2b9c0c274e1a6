#include "ui/PopupAccessible.h"

#include <algorithm>

#include "ui/PopupWindow.h"

namespace tessarin::ui {
namespace {

QAccessibleInterface* make(const QString& /*className*/, QObject* object) {
  auto* window = dynamic_cast<PopupWindow*>(object);
  return window != nullptr ? new PopupAccessible(*window) : nullptr;
}

void tell(QAccessibleInterface* accessible, QAccessible::Event what) {
  QAccessibleEvent event(accessible, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

PopupAccessible::PopupAccessible(PopupWindow& window)
    : QAccessibleWidget(&window, QAccessible::Window),
      window_(window),
      rows_(window, PopupList::rows),
      variants_(window, PopupList::variants),
      announcement_(window) {}

void PopupAccessible::install() {
  QAccessible::installFactory(make);
}

PopupAccessible* PopupAccessible::of(PopupWindow& window) {
  return dynamic_cast<PopupAccessible*>(QAccessible::queryAccessibleInterface(&window));
}

std::vector<QAccessibleInterface*> PopupAccessible::children() const {
  if (window_.content().skinToneMode) return {variants_.get(), rows_.get(), announcement_.get()};
  return {rows_.get(), announcement_.get()};
}

QAccessibleInterface* PopupAccessible::child(int index) const {
  const auto all = children();
  const bool isThere = index >= 0 && index < static_cast<int>(all.size());
  return isThere ? all[static_cast<std::size_t>(index)] : nullptr;
}

int PopupAccessible::childCount() const {
  return static_cast<int>(children().size());
}

int PopupAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto all = children();
  const auto found = std::find(all.begin(), all.end(), child);
  return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

QAccessibleInterface* PopupAccessible::childAt(int x, int y) const {
  for (QAccessibleInterface* child : children()) {
    if (child->rect().contains(x, y)) return child;
  }
  return nullptr;
}

PopupListAccessible& PopupAccessible::activeList() const {
  return window_.content().skinToneMode ? *variants_.get() : *rows_.get();
}

void PopupAccessible::tellChanges() {
  const PopupContent previous = std::exchange(told_, window_.content());
  renewItems(previous);
  if (!window_.isVisible()) return announcement_->forget();
  const bool isSameList = previous.rows == told_.rows && previous.skinToneMode == told_.skinToneMode;
  const int before = told_.skinToneMode ? previous.skinToneSelectedIndex : previous.selectedIndex;
  tellSelection(activeList(), isSameList ? before : -1);
}

void PopupAccessible::renewItems(const PopupContent& previous) {
  // No event says so: clients ask for the children anew, and the toolkit's events of this kind are malformed.
  if (previous.rows != told_.rows) rows_->renewItems();
  if (previous.skinToneVariants != told_.skinToneVariants) variants_->renewItems();
}

void PopupAccessible::tellSelection(const PopupListAccessible& list, int previous) {
  QAccessibleInterface* selected = list.child(list.selectedIndex());
  const bool isNew = list.selectedIndex() != previous;
  QAccessibleInterface* former = isNew ? list.child(previous) : nullptr;
  if (former != nullptr) tell(former, QAccessible::SelectionRemove);
  if (selected == nullptr) return announcement_->say(matchCount(told_.rows.size()));
  if (!isNew) return;
  tell(selected, QAccessible::Selection);
  const QString position = QString::number(list.selectedIndex() + 1);
  announcement_->say(
      tr("%1, %2 of %3")
          .arg(selected->text(QAccessible::Name), position, QString::number(list.childCount())));
}

}  // namespace tessarin::ui
