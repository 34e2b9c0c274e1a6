#include "SampleDesktop.h"

#include <map>

#include "base/Uuid.h"

namespace tessarin::pictures {
namespace {

const std::map<std::string, ApplicationInfo> installed = {
    {"com.tinyspeck.slackmacgap", {"Slack", "slack.desktop", "slack"}},
    {"org.mozilla.firefox", {"Firefox", "firefox.desktop", "firefox-esr"}},
    {"org.xfce.mousepad", {"Mousepad", "org.xfce.mousepad.desktop", "org.xfce.mousepad"}},
    {"org.gnome.TextEditor", {"Text Editor", "org.gnome.TextEditor.desktop", "org.gnome.TextEditor"}},
    {"debian-xterm", {"XTerm", "debian-xterm.desktop", "xterm"}},
};

Snippet snippet(const char* name, const char* trigger, const char* replacement) {
  return {.id = makeUuid(),
          .name = name,
          .trigger = trigger,
          .replacement = replacement,
          .keywords = {},
          .category = "Custom",
          .isBuiltIn = false};
}

}  // namespace

std::optional<ApplicationInfo> SampleWorkspace::application(const std::string& bundleIdentifier) {
  const auto found = installed.find(bundleIdentifier);
  return found == installed.end() ? std::nullopt : std::optional(found->second);
}

SampleDesktop::SampleDesktop(const std::filesystem::path& resources, bool filled)
    : defaults(path() / "preferences.json"),
      store(std::make_unique<SnippetStore>(SnippetStore::Folders{resources, path()}, clock)) {
  addApplications();
  if (!filled) return;
  addSnippets();
  addUse();
}

ui::SettingsServices SampleDesktop::services() {
  return {*store, defaults, permissions(), loginItem, workspace, pasteboard,
          queue,  clock,    [] {},         "0.1.0",   "1"};
}

void SampleDesktop::addApplications() {
  for (const auto& [identifier, info] : installed) workspace.running.push_back({identifier, info.name});
}

void SampleDesktop::addSnippets() {
  store->addSnippet(snippet("Shrug, with a wink", "shrugwink", "¯\\_(ツ)_/¯ ;)"));
  store->addSnippet(snippet("Signature", "sig", "Kind regards,\nAda Lovelace"));
  store->addSnippet(snippet("Date of today", "today", "{{date}}"));
  store->addSnippet(snippet("Home address", "addr", "12 St James’s Square, London"));
  store->addSnippet(snippet("Ship it", "shipit", "🚢"));
  store->addSnippet(snippet("A name that is much longer than its row will ever be, and goes on after that",
                            "a_trigger_that_is_long_as_well",
                            "What it stands for is longer still: a sentence "
                            "that nobody would like to type twice, let alone every day."));
}

void SampleDesktop::addUse() {
  const std::vector<std::string> triggers = {"smile", "tada", "rocket", "thumbsup", "heart", "shrug",
                                             "sig",   "wave", "joy",    "today",    "eyes",  "fire"};
  const int uses[] = {3, 9, 6, 0, 12, 7, 5};
  for (int day = 0; day < 7; ++day) {
    clock.ago = std::chrono::hours(24 * (6 - day));
    for (int use = 0; use < uses[day]; ++use) {
      store->usageTracker().recordUsage(
          triggers[static_cast<std::size_t>(use * (day + 3) / 4) % triggers.size()]);
    }
  }
  clock.ago = {};
}

}  // namespace tessarin::pictures
