#pragma once

#include <string>

#include "platform/PopupPresenter.h"

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

inline PopupContent withPicker(PopupContent content) {
  content.skinToneMode = true;
  content.skinToneVariants = {"👋", "👋🏻", "👋🏼", "👋🏽", "👋🏾", "👋🏿"};
  return content;
}

}  // namespace tessarin::testing
