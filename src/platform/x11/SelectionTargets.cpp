#include "platform/x11/SelectionTargets.h"

#include <algorithm>
#include <array>

namespace tessarin::x11 {
namespace {

template <std::size_t n>
bool contains(const std::array<std::string_view, n>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

bool isTextTarget(std::string_view name) {
  static constexpr std::array<std::string_view, 6> names = {
      "UTF8_STRING", "STRING", "TEXT", "COMPOUND_TEXT", "text/plain", "text/plain;charset=utf-8"};
  return contains(names, name);
}

bool isContentTarget(std::string_view name) {
  static constexpr std::array<std::string_view, 12> excluded = {
      "DELETE",    "INSERT_SELECTION", "INSERT_PROPERTY", "SAVE_TARGETS", "TARGETS", "MULTIPLE",
      "TIMESTAMP", "PIXMAP",           "BITMAP",          "DRAWABLE",     "WINDOW",  "COLORMAP"};
  return !name.empty() && !contains(excluded, name);
}

const std::vector<std::string>& textTargets() {
  static const std::vector<std::string> targets = {"UTF8_STRING", "text/plain;charset=utf-8", "text/plain",
                                                   "STRING"};
  return targets;
}

const std::vector<std::string>& commonTargets() {
  static const std::vector<std::string> targets = {"UTF8_STRING",
                                                   "text/plain;charset=utf-8",
                                                   "text/plain",
                                                   "STRING",
                                                   "text/html",
                                                   "text/uri-list",
                                                   "x-special/gnome-copied-files",
                                                   "image/png",
                                                   std::string(secretMark)};
  return targets;
}

}  // namespace tessarin::x11
