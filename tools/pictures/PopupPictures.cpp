#include "PopupPictures.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <cmath>
#include <optional>
#include <vector>

#include "base/Translate.h"
#include "ui/PopupPainter.h"
#include "ui/style/Colors.h"

namespace tessarin::pictures {
namespace {

using ui::PopupLayout;
using ui::PopupPainter;

struct State {
  QString name;
  PopupContent content;
  std::optional<int> hovered;
};

PopupRow row(const char* replacement, const char* trigger, const char* name, bool supportsSkinTones = false) {
  return {trigger, replacement, trigger, name, supportsSkinTones};
}

std::vector<PopupRow> handRows() {
  return {row("👍", "thumbsup", "thumbs up", true),
          row("👋", "wave", "waving hand", true),
          row("😀", "grinning", "grinning face"),
          row("❤️", "heart", "red heart"),
          row("👨‍👩‍👧", "family", "family: man, woman, girl"),
          row("🇪🇺", "eu", "flag: European Union"),
          row("☺️", "relaxed", "smiling face"),
          row("🧑‍🚀", "astronaut", "astronaut")};
}

PopupContent contentOf(std::vector<PopupRow> rows, int selected = 0) {
  PopupContent content;
  content.triggerCharacter = ":";
  content.query = "smile";
  content.rows = std::move(rows);
  content.selectedIndex = selected;
  if (content.rows.empty()) return content;
  content.hints = {{"↑↓", translate("Popup", "navigate")},
                   {"↵", translate("Popup", "select")},
                   {":", translate("Popup", "confirm")},
                   {"esc", translate("Popup", "cancel")}};
  if (content.rows[static_cast<std::size_t>(selected)].supportsSkinTones)
    content.hints.push_back({"→", translate("Popup", "skin tone")});
  return content;
}

PopupContent withPicker(PopupContent content) {
  content.skinToneMode = true;
  content.skinToneVariants = {"👍", "👍🏻", "👍🏼", "👍🏽", "👍🏾", "👍🏿"};
  content.skinToneSelectedIndex = 2;
  content.hints.resize(4);
  return content;
}

std::vector<State> states() {
  auto one = handRows();
  one.resize(1);
  return {
      {"eight-rows", contentOf(handRows()), {}},
      {"one-row", contentOf(one), {}},
      {"no-matches", contentOf({}), {}},
      {"skin-tones", withPicker(contentOf(handRows(), 0)), {}},
      {"skin-tones-one-row", withPicker(contentOf(one)), {}},
      {"selected-in-the-middle", contentOf(handRows(), 4), 5},
      {"kaomoji-and-long-names",
       contentOf({row("¯\\_(ツ)_/¯", "shrug", "shrug kaomoji"),
                  row("(╯°□°)╯︵ ┻━┻", "tableflip", "a table, flipped over in anger and never put back"),
                  row("→", "rightarrow", "rightwards arrow with quite a long name"),
                  row("👩🏽‍❤️‍💋‍👨🏿", "kiss_woman_man_medium_dark", "kiss"),
                  row("Dear {{name}},\nthank you", "thanks", "Thank-you letter"),
                  row("©", "copyright", "copyright"), row("1️⃣", "one", "keycap: 1")},
                 1),
       {}},
      {"unknown-emoji",
       contentOf({row("\U0001FAE9", "bags", "face with bags under eyes"),
                  row("\U0001F9D1\u200D\U0001FAEF\u200D\U0001F9D1", "apart", "sequence that falls apart"),
                  row("\U0001FA8A", "trombone", "trombone"), row("🎺", "trumpet", "trumpet")},
                 2),
       {}},
  };
}

QImage picture(const State& state, PopupPainter& painter, double scale, const QColor& behind) {
  constexpr double margin = 12;
  const QSizeF size = PopupLayout::sizeFor(static_cast<int>(state.content.rows.size()));
  QImage image(static_cast<int>(std::lround((size.width() + 2 * margin) * scale)),
               static_cast<int>(std::lround((size.height() + 2 * margin) * scale)),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  image.fill(behind);
  const PopupLayout layout(state.content, size);
  QPainter device(&image);
  device.translate(margin, margin);
  painter.paint(device, state.content, layout,
                {layout.scrollCentring(state.content.selectedIndex), state.hovered, true});
  return image;
}

}  // namespace

bool savePopups(const QString& prefix, const QPalette& palette, double scale) {
  PopupPainter painter(palette);
  const QColor behind = ui::isDark(palette) ? QColor(0x10, 0x18, 0x20) : QColor(0xc8, 0xd0, 0xd8);
  for (const State& state : states()) {
    if (!picture(state, painter, scale, behind).save(prefix + "popup-" + state.name + ".png")) return false;
  }
  return true;
}

}  // namespace tessarin::pictures
