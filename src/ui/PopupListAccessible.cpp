#include "ui/PopupListAccessible.h"

#include "ui/PopupWindow.h"

namespace tessarin::ui {

QAccessibleInterface* PopupListAccessible::parent() const {
  return QAccessible::queryAccessibleInterface(&popup());
}

int PopupListAccessible::childCount() const {
  const PopupContent& content = popup().content();
  return static_cast<int>(list_ == PopupList::rows ? content.rows.size() : content.skinToneVariants.size());
}

QAccessibleInterface* PopupListAccessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  while (static_cast<int>(items_.size()) <= index) {
    items_.emplace_back(popup(), *this, list_, static_cast<int>(items_.size()));
  }
  return items_[static_cast<std::size_t>(index)].get();
}

int PopupListAccessible::indexOfChild(const QAccessibleInterface* child) const {
  for (std::size_t index = 0; index < items_.size(); ++index) {
    if (items_[index].get() == child) return static_cast<int>(index);
  }
  return -1;
}

QString PopupListAccessible::text(QAccessible::Text which) const {
  if (which != QAccessible::Name) return {};
  return list_ == PopupList::rows ? tr("Emoji and snippets") : tr("Skin tones");
}

QRect PopupListAccessible::rect() const {
  const PopupLayout& layout = popup().contentLayout();
  return onScreen(list_ == PopupList::rows ? layout.list() : layout.picker());
}

QAccessible::State PopupListAccessible::state() const {
  QAccessible::State state;
  state.focusable = true;
  state.invisible = !popup().isVisible();
  return state;
}

int PopupListAccessible::selectedIndex() const {
  const PopupContent& content = popup().content();
  return list_ == PopupList::rows ? content.selectedIndex : content.skinToneSelectedIndex;
}

}  // namespace tessarin::ui
