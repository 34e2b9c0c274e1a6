#pragma once

#include "ui/PopupLayout.h"

namespace tessarin::testing {

/// Content with that many rows, whose emoji take skin tones.
inline PopupContent popupWithRows(int count, int selected = 0) {
  PopupContent content;
  content.triggerCharacter = ":";
  content.query = "wa";
  content.selectedIndex = selected;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    content.rows.push_back({number, "👋", "wave" + number, "waving hand " + number, true});
  }
  if (count > 0) content.hints = {{"↑↓", "navigate"}, {"↵", "select"}, {":", "confirm"}, {"esc", "cancel"}};
  return content;
}

/// What a popup with this content needs.
inline QSizeF sizeOf(const PopupContent& content) {
  return ui::PopupLayout::sizeFor(static_cast<int>(content.rows.size()));
}

inline PopupContent withPicker(PopupContent content) {
  content.skinToneMode = true;
  content.skinToneVariants = {"👋", "👋🏻", "👋🏼", "👋🏽", "👋🏾", "👋🏿"};
  return content;
}

}  // namespace tessarin::testing
