#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "Check.h"
#include "base/Log.h"
#include "input/AppList.h"
#include "input/Preferences.h"
#include "platform/freedesktop/Json.h"
#include "platform/freedesktop/JsonUserDefaults.h"
#include "support/TemporaryFolder.h"
#include "text/Graphemes.h"

namespace tessarin::fuzz {
namespace {

namespace key = preferences::key;
using freedesktop::JsonOwner;
using freedesktop::JsonUserDefaults;

constexpr const char* fileName = "preferences.json";

const testing::TemporaryFolder& folder() {
  static const testing::TemporaryFolder made;
  return made;
}

/// What the file holds, if it is one of ours.
std::optional<JsonOwner> objectIn(std::string_view text) {
  auto value = unlessRefused([&] { return freedesktop::parseJson(text); });
  if (value && !json_is_object(value->get())) return std::nullopt;
  return value;
}

void checkReaders(JsonUserDefaults& defaults) {
  check(text::characterCount(preferences::currentTriggerCharacter(defaults)) == 1,
        "the trigger is one character");
  const auto blocked = preferences::effectiveBlockedApps(defaults);
  for (const std::string& app : blocked) {
    check(preferences::isBlockedApp(defaults, app), "what is on the list is blocked");
  }
  check(preferences::isBlockedApp(defaults, "com.example.Other") == blocked.contains("com.example.Other"),
        "what is not on the list is not");
  const AppList list(defaults, key::blacklistedApps, preferences::defaultBlockedApps());
  check(preferences::AppSet(list.entries().begin(), list.entries().end()) == blocked,
        "the tab shows what is blocked");
  for (const char* name : {key::showMenuBarIcon, key::triggerCharacter, key::pasteFallbackApps}) {
    const int kinds = (defaults.boolean(name) ? 1 : 0) + (defaults.string(name) ? 1 : 0) +
                      (defaults.stringArray(name) ? 1 : 0);
    check(kinds <= 1, "a value has one type");
  }
}

/// Writes one preference; everything else in the file stays, and the next start reads what was written.
void checkWriting(JsonUserDefaults& defaults, std::string_view content) {
  auto before = objectIn(content);
  const std::string value(content);
  defaults.set("note", value);
  defaults.set(key::showMenuBarIcon, false);
  check(defaults.string("note") == value, "a value set is the value read");

  const JsonUserDefaults next(folder() / fileName);
  check(next.boolean(key::showMenuBarIcon) == false, "a value outlives the program");
  if (text::isValidUtf8(value)) check(next.string("note") == value, "a text outlives the program");

  auto after = objectIn(folder().read(fileName));
  check(after.has_value(), "what is written can be read");
  if (!before)
    return check(folder().read("preferences.json.unreadable") == value, "nothing unreadable is lost");
  for (json_t* object : {before->get(), after->get()}) {
    for (const char* ours : {"note", key::showMenuBarIcon}) json_object_del(object, ours);
  }
  check(json_equal(before->get(), after->get()) != 0, "what else the file holds stays");
}

}  // namespace
}  // namespace tessarin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  static const LogCapture silence([](const std::string&) {});
  const std::string_view content = fuzz::asText(data, size);
  fuzz::folder().write(fuzz::fileName, std::string(content));
  freedesktop::JsonUserDefaults defaults(fuzz::folder() / fuzz::fileName);
  fuzz::checkReaders(defaults);
  fuzz::checkWriting(defaults, content);
  for (const std::string& name : fuzz::folder().names()) std::filesystem::remove(fuzz::folder() / name);
  return 0;
}
