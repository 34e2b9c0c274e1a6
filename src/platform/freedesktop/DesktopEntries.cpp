#include "platform/freedesktop/DesktopEntries.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "platform/freedesktop/AsciiCase.h"

namespace tessarin::freedesktop {
namespace {

namespace fs = std::filesystem;

std::string idOf(const fs::path& file, const fs::path& folder) {
  std::string id = file.lexically_relative(folder).replace_extension().string();
  std::replace(id.begin(), id.end(), '/', '-');
  return id;
}

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

DesktopEntries::DesktopEntries(std::vector<fs::path> folders, std::vector<std::string> locales)
    : folders_(std::move(folders)), locales_(std::move(locales)) {}

std::optional<DesktopEntry> DesktopEntries::withId(const std::string& id) {
  const std::lock_guard lock(mutex_);
  reloadIfChanged();
  const auto [begin, end] = ids_.equal_range(lowerCase(id));
  const auto exact =
      std::find_if(begin, end, [&](const auto& indexed) { return entries_[indexed.second].id == id; });
  auto found = exact != end ? entries_[exact->second] : first(ids_, id);
  if (found && found->isHidden) return std::nullopt;
  return found;
}

std::optional<DesktopEntry> DesktopEntries::withStartupWmClass(const std::string& windowClass) {
  const std::lock_guard lock(mutex_);
  reloadIfChanged();
  return first(classes_, windowClass);
}

std::optional<DesktopEntry> DesktopEntries::withLastIdPart(const std::string& name) {
  const std::lock_guard lock(mutex_);
  reloadIfChanged();
  return only(lastParts_, name);
}

std::optional<DesktopEntry> DesktopEntries::withProgram(const std::string& program) {
  const std::lock_guard lock(mutex_);
  reloadIfChanged();
  return only(programs_, program);
}

std::optional<DesktopEntry> DesktopEntries::first(const Index& index, const std::string& name) {
  const auto found = index.lower_bound(lowerCase(name));
  if (name.empty() || found == index.end() || found->first != lowerCase(name)) return std::nullopt;
  return entries_[found->second];
}

std::optional<DesktopEntry> DesktopEntries::only(const Index& index, const std::string& name) {
  if (index.count(lowerCase(name)) != 1) return std::nullopt;
  return first(index, name);
}

void DesktopEntries::reloadIfChanged() {
  auto times = folderTimes();
  if (times == times_) return;
  times_ = std::move(times);
  reload();
}

DesktopEntries::FolderTimes DesktopEntries::folderTimes() const {
  FolderTimes times;
  std::error_code ignored;
  for (const auto& folder : folders_) {
    const auto time = fs::last_write_time(folder, ignored);
    times[folder] = ignored ? fs::file_time_type() : time;
  }
  // Folders within them were found while reading.
  for (const auto& [folder, known] : times_) {
    const auto time = fs::last_write_time(folder, ignored);
    times[folder] = ignored ? fs::file_time_type() : time;
  }
  if (times_.empty()) times[{}] = {};  // tells "never read" from "no folder is there"
  return times;
}

void DesktopEntries::reload() {
  entries_.clear();
  for (Index* index : {&ids_, &classes_, &lastParts_, &programs_}) index->clear();
  for (const auto& folder : folders_) readFolder(folder);
}

void DesktopEntries::readFolder(const fs::path& folder) {
  std::error_code error;
  fs::recursive_directory_iterator files(folder, fs::directory_options::skip_permission_denied, error);
  for (; !error && files != fs::recursive_directory_iterator(); files.increment(error)) {
    std::error_code ignored;
    if (files->is_directory(ignored)) {
      times_[files->path()] = fs::last_write_time(files->path(), ignored);
    } else if (files->path().extension() == ".desktop") {
      readEntry(files->path(), folder);
    }
  }
}

void DesktopEntries::readEntry(const fs::path& file, const fs::path& folder) {
  std::string id = idOf(file, folder);
  const auto [begin, end] = ids_.equal_range(lowerCase(id));
  const bool isOverridden =
      std::any_of(begin, end, [&](const auto& indexed) { return entries_[indexed.second].id == id; });
  if (isOverridden) return;
  auto entry = parseDesktopEntry(contentOf(file), locales_);
  if (!entry) return;
  entry->id = std::move(id);
  entry->path = file.string();
  entries_.push_back(std::move(*entry));
  addToIndices(entries_.size() - 1);
}

void DesktopEntries::addToIndices(std::size_t number) {
  const DesktopEntry& entry = entries_[number];
  const std::string id = lowerCase(entry.id);
  ids_.emplace(id, number);
  if (entry.isHidden) return;
  if (const auto dot = id.rfind('.'); dot != std::string::npos)
    lastParts_.emplace(id.substr(dot + 1), number);
  if (!entry.startupWmClass.empty()) classes_.emplace(lowerCase(entry.startupWmClass), number);
  if (!entry.program.empty()) programs_.emplace(lowerCase(entry.program), number);
}

}  // namespace tessarin::freedesktop
