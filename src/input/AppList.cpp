#include "input/AppList.h"

#include <algorithm>

#include "platform/UserDefaults.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

/// The order of UTF-8 bytes is that of the scalar values.
void sort(std::vector<std::string>& entries) {
  std::sort(entries.begin(), entries.end(), [](const std::string& a, const std::string& b) {
    return text::normalized(a) < text::normalized(b);
  });
}

}  // namespace

AppList::AppList(UserDefaults& defaults, const char* key, const preferences::AppSet& builtIn)
    : defaults_(defaults), key_(key) {
  preferences::AppSet joined = builtIn;
  for (std::string& stored : defaults.stringArray(key).value_or(std::vector<std::string>())) {
    joined.insert(std::move(stored));
  }
  entries_.assign(joined.begin(), joined.end());
  sort(entries_);
}

bool AppList::contains(const std::string& identifier) const {
  return std::find(entries_.begin(), entries_.end(), identifier) != entries_.end();
}

void AppList::add(const std::string& identifier) {
  if (contains(identifier)) return;
  entries_.push_back(identifier);
  sort(entries_);
  store();
}

void AppList::remove(const std::string& identifier) {
  std::erase(entries_, identifier);
  store();
}

void AppList::store() {
  defaults_.set(key_, entries_);
}

}  // namespace tessarin
