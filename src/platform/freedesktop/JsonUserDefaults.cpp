#include "platform/freedesktop/JsonUserDefaults.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include "base/AtomicFile.h"
#include "base/DataError.h"
#include "base/Files.h"
#include "base/Log.h"
#include "platform/freedesktop/Json.h"

namespace tessarin::freedesktop {
namespace {

namespace fs = std::filesystem;

JsonOwner toJson(const std::string& value) {
  return makeJsonString(value);
}

JsonOwner toJson(bool value) {
  return JsonOwner(json_boolean(value));
}

JsonOwner toJson(const std::vector<std::string>& values) {
  JsonOwner array(json_array());
  for (const auto& value : values) json_array_append_new(array.get(), makeJsonString(value).release());
  return array;
}

/// False when JSON cannot hold the key or the value.
template <class Value>
bool store(json_t& object, const std::string& key, const Value& value) {
  try {
    JsonOwner json = std::visit([](const auto& typed) { return toJson(typed); }, value);
    return json_object_set_new(&object, key.c_str(), json.release()) == 0;
  } catch (const DataError&) {
    return false;
  }
}

std::optional<std::string> textOf(const json_t* value) {
  if (!json_is_string(value)) return std::nullopt;
  return std::string(json_string_value(value), json_string_length(value));
}

std::shared_ptr<json_t> shared(JsonOwner owner) {
  return {owner.release(), JsonRelease()};
}

}  // namespace

JsonUserDefaults::JsonUserDefaults(fs::path file)
    : file_(std::move(file)), root_(shared(JsonOwner(json_object()))) {
  load();
}

void JsonUserDefaults::saveWhatIsMissing() {
  if (!hasSaveFailed_) return;
  if (currentStamp() != stamp_) load();
  save();
}

void JsonUserDefaults::watch(MainQueue& queue) {
  watcher_ = std::make_unique<FileWatcher>(queue, file_, [this] { reloadIfChanged(); });
  reloadIfChanged();
}

JsonUserDefaults::Stamp JsonUserDefaults::currentStamp() const {
  struct stat status {};
  if (::stat(file_.c_str(), &status) != 0) return {};
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void JsonUserDefaults::reloadIfChanged() {
  if (currentStamp() == stamp_) return;
  const auto before = root_;
  load();
  if (json_equal(before.get(), root_.get()) == 0) changed_.emit();
}

void JsonUserDefaults::load() {
  stamp_ = currentStamp();
  isUnreadable_ = false;
  try {
    const auto content = readFileIfPresent(file_);
    if (!content && wasThere_) log("UserDefaults", "The preferences have been removed; the defaults apply");
    wasThere_ = content.has_value();
    auto root = shared(content ? parseJson(*content) : JsonOwner(json_object()));
    if (!json_is_object(root.get())) throw DataError("the top level is not an object");
    root_ = std::move(root);
  } catch (const std::exception& error) {
    isUnreadable_ = true;
    log("UserDefaults", std::string("Failed to load preferences: ") + error.what());
  }
}

template <class T>
const T* JsonUserDefaults::unsaved(const std::string& key, bool& isUnsaved) const {
  const auto found = unsaved_.find(key);
  isUnsaved = found != unsaved_.end();
  return isUnsaved ? std::get_if<T>(&found->second) : nullptr;
}

std::optional<std::string> JsonUserDefaults::string(const std::string& key) const {
  bool isUnsaved = false;
  if (const auto* value = unsaved<std::string>(key, isUnsaved)) return *value;
  if (isUnsaved) return std::nullopt;
  return textOf(json_object_get(root_.get(), key.c_str()));
}

std::optional<bool> JsonUserDefaults::boolean(const std::string& key) const {
  bool isUnsaved = false;
  if (const auto* value = unsaved<bool>(key, isUnsaved)) return *value;
  const json_t* value = json_object_get(root_.get(), key.c_str());
  if (isUnsaved || !json_is_boolean(value)) return std::nullopt;
  return json_is_true(value);
}

std::optional<std::vector<std::string>> JsonUserDefaults::stringArray(const std::string& key) const {
  bool isUnsaved = false;
  if (const auto* values = unsaved<std::vector<std::string>>(key, isUnsaved)) return *values;
  const json_t* array = json_object_get(root_.get(), key.c_str());
  if (isUnsaved || !json_is_array(array)) return std::nullopt;
  std::vector<std::string> values;
  for (std::size_t i = 0; i < json_array_size(array); ++i) {
    auto text = textOf(json_array_get(array, i));
    if (!text) return std::nullopt;
    values.push_back(std::move(*text));
  }
  return values;
}

void JsonUserDefaults::set(const std::string& key, const std::string& value) {
  write(key, value);
}
void JsonUserDefaults::set(const std::string& key, bool value) {
  write(key, value);
}
void JsonUserDefaults::set(const std::string& key, const std::vector<std::string>& value) {
  write(key, value);
}

Subscription JsonUserDefaults::onChange(std::function<void()> callback) {
  return changed_.subscribe(std::move(callback));
}

void JsonUserDefaults::write(const std::string& key, Value value) {
  if (currentStamp() != stamp_) load();
  unsaved_[key] = std::move(value);
  save();
  if (unsaved_.contains(key)) log("UserDefaults", "A preference is kept in memory only: " + key);
  changed_.emit();
}

void JsonUserDefaults::save() {
  const auto root = shared(JsonOwner(json_copy(root_.get())));
  std::map<std::string, Value> left;
  for (const auto& [key, value] : unsaved_) {
    if (!store(*root, key, value)) left.emplace(key, value);
  }
  try {
    createFolders(file_.parent_path());
    const std::string content = dumpJson(*root, JSON_INDENT(2) | JSON_SORT_KEYS) + "\n";
    if (isUnreadable_) moveAside();
    replaceFile(file_, content, Durability::powerCut);
    stamp_ = currentStamp();
    wasThere_ = true;
    root_ = root;
    unsaved_ = std::move(left);
    hasSaveFailed_ = false;
  } catch (const std::exception& error) {
    hasSaveFailed_ = true;
    log("UserDefaults", std::string("Failed to save preferences: ") + error.what());
  }
}

void JsonUserDefaults::moveAside() {
  const std::string name = file_.string() + ".unreadable";
  std::string aside = name;
  std::error_code ignored;
  for (int n = 2; fs::exists(fs::symlink_status(aside, ignored)); ++n) aside = name + "-" + std::to_string(n);
  if (std::rename(file_.c_str(), aside.c_str()) != 0 && errno != ENOENT) {
    throw std::system_error(errno, std::generic_category(), "cannot move " + file_.string() + " aside");
  }
  isUnreadable_ = false;
  log("UserDefaults", "Moved the unreadable preferences to " + aside);
}

}  // namespace tessarin::freedesktop
