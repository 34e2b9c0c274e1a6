#pragma once

#include <string>
#include <vector>

#include "input/Preferences.h"

namespace tessarin {

/// A list of applications as its tab edits it: the stored identifiers joined with the built-in ones, sorted.
/// Every change is stored at once, as the whole list. Main thread.
class AppList {
 public:
  /// `key`: of the preferences, a list of texts. The preferences outlive the list.
  AppList(UserDefaults& defaults, const char* key, const preferences::AppSet& builtIn);

  /// By the scalar values of their normal form, so that capitals come first.
  const std::vector<std::string>& entries() const { return entries_; }
  bool contains(const std::string& identifier) const;
  /// Does nothing when it is there already.
  void add(const std::string& identifier);
  /// A built-in one comes back when the list is loaded the next time.
  void remove(const std::string& identifier);

 private:
  void store();

  UserDefaults& defaults_;
  const char* key_;
  std::vector<std::string> entries_;
};

}  // namespace tessarin
