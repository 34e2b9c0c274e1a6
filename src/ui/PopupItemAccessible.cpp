#include "ui/PopupItemAccessible.h"

#include "ui/PopupListAccessible.h"
#include "ui/PopupWindow.h"

namespace tessarin::ui {
namespace {

constexpr char32_t lightModifier = 0x1F3FB;

/// 0 for a text without skin tone, then 1 to 5 from light to dark.
int toneOf(const QString& variant) {
  for (const char32_t character : variant.toStdU32String()) {
    if (character >= lightModifier && character < lightModifier + 5) {
      return static_cast<int>(character - lightModifier) + 1;
    }
  }
  return 0;
}

}  // namespace

bool PopupItemAccessible::isValid() const {
  return index_ < owner_.childCount();
}

QAccessibleInterface* PopupItemAccessible::parent() const {
  return const_cast<PopupListAccessible*>(&owner_);
}

QString PopupItemAccessible::text(QAccessible::Text which) const {
  if (!isValid()) return {};
  if (which == QAccessible::Name) return name();
  return which == QAccessible::Description ? description() : QString();
}

QString PopupItemAccessible::name() const {
  const auto index = static_cast<std::size_t>(index_);
  const PopupContent& content = popup().content();
  if (list_ == PopupList::rows) {
    const PopupRow& row = content.rows[index];
    const QString trigger = QString::fromStdString(row.trigger);
    return row.name.empty() ? trigger : tr("%1, %2").arg(trigger, QString::fromStdString(row.name));
  }
  const QString tones[] = {tr("no skin tone"),     tr("light skin tone"),       tr("medium-light skin tone"),
                           tr("medium skin tone"), tr("medium-dark skin tone"), tr("dark skin tone")};
  return tones[toneOf(QString::fromStdString(content.skinToneVariants[index]))];
}

QString PopupItemAccessible::description() const {
  const auto index = static_cast<std::size_t>(index_);
  const PopupContent& content = popup().content();
  return QString::fromStdString(list_ == PopupList::rows ? content.rows[index].replacement
                                                         : content.skinToneVariants[index]);
}

QRect PopupItemAccessible::rect() const {
  const PopupLayout& layout = popup().contentLayout();
  return onScreen(list_ == PopupList::rows ? layout.row(index_, popup().scroll()) : layout.variant(index_));
}

QAccessible::State PopupItemAccessible::state() const {
  QAccessible::State state = owner_.state();
  state.selectable = true;
  state.selected = isValid() && index_ == owner_.selectedIndex();
  state.offscreen = !owner_.rect().intersects(rect());
  state.invalid = !isValid();
  return state;
}

void* PopupItemAccessible::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

void PopupItemAccessible::doAction(const QString& name) {
  if (name == pressAction() && isValid()) popup().choose(list_, index_);
}

}  // namespace tessarin::ui
