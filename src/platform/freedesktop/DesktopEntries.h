#pragma once

#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/freedesktop/DesktopEntry.h"

namespace tessarin::freedesktop {

/// The applications that are installed. Read when first asked, and anew when an application was installed or
/// removed. Any thread.
class DesktopEntries {
 public:
  /// `folders`: where entries lie, the most important first. `locales` as given by `localeCandidates`.
  DesktopEntries(std::vector<std::filesystem::path> folders, std::vector<std::string> locales);

  /// All that ask for a name overlook the case, as the classes of windows and the names of files seldom agree
  /// in it.
  std::optional<DesktopEntry> withId(const std::string& id);
  std::optional<DesktopEntry> withStartupWmClass(const std::string& windowClass);
  /// The one entry whose id ends in "." and the name, as org.example.Editor does in "editor".
  std::optional<DesktopEntry> withLastIdPart(const std::string& name);
  /// The one entry that starts the program.
  std::optional<DesktopEntry> withProgram(const std::string& program);

 private:
  using Index = std::multimap<std::string, std::size_t>;
  using FolderTimes = std::map<std::filesystem::path, std::filesystem::file_time_type>;

  void reloadIfChanged();
  void reload();
  void readFolder(const std::filesystem::path& folder);
  void readEntry(const std::filesystem::path& file, const std::filesystem::path& folder);
  void addToIndices(std::size_t number);
  FolderTimes folderTimes() const;
  std::optional<DesktopEntry> first(const Index& index, const std::string& name);
  std::optional<DesktopEntry> only(const Index& index, const std::string& name);

  const std::vector<std::filesystem::path> folders_;
  const std::vector<std::string> locales_;
  std::mutex mutex_;
  FolderTimes times_;
  std::vector<DesktopEntry> entries_;
  Index ids_;
  Index classes_;
  Index lastParts_;
  Index programs_;
};

}  // namespace tessarin::freedesktop
