#include "app/TestApp.h"

#include <fstream>

namespace tessarin::testing {
namespace {

std::string record(const std::string& trigger, const std::string& replacement) {
  return R"({"name":"name of )" + trigger + R"(","trigger":")" + trigger + R"(","replacement":")" +
         replacement + R"(","keywords":[],"category":"Test"})";
}

void writeList(const std::filesystem::path& path, const std::vector<std::string>& records) {
  std::ofstream file(path);
  const char* separator = "[";
  for (const std::string& one : records) {
    file << separator << one;
    separator = ",";
  }
  file << "]";
}

}  // namespace

TestApp::TestApp() {
  writeList(folder / "emoji-data.json", {record("smile", "😄"), record("smirk", "😏"), record("small", "tiny"),
                                         record("wave", "👋"), record(std::string(64, 'z'), "long")});
  workspace.frontmost.emplace();
  workspace.frontmost->bundleIdentifier = "org.example.Editor";
  tap.onReachedDocument = [this](const KeyEvent& event) { document.type(event); };
  insertion.onInserted = [this](const Replacement& replacement) { document.apply(replacement); };
}

TestApp::~TestApp() = default;

AppDelegate::Services TestApp::services() {
  return {.eventTap = tap,
          .accessibility = accessibility,
          .inputMonitoring = monitoring,
          .workspace = workspace,
          .userDefaults = defaults,
          .mainQueue = queue,
          .autocompletePanel = popup,
          .textReplacer = insertion,
          .statusBar = statusBar,
          .wallClock = clock,
          .folders = {.resources = folder.path(), .storage = folder / "storage"},
          .menu = {},
          .startUpdateService = {},
          .showOnboardingWindow = {}};
}

AppDelegate& TestApp::create() {
  if (!app) app = std::make_unique<AppDelegate>(services());
  return *app;
}

void TestApp::launch() {
  create().applicationDidFinishLaunching();
  queue.advance(AppDelegate::monitorStartDelay);
}

std::optional<std::string> TestApp::query() {
  const auto* state = std::get_if<TriggerDetector::Accumulating>(&app->triggerDetector().state());
  return state ? std::optional(state->query) : std::nullopt;
}

std::optional<std::vector<std::string>> TestApp::shownTriggers() const {
  if (!popup.visible) return std::nullopt;
  std::vector<std::string> triggers;
  for (const PopupRow& row : popup.presented.back().rows) triggers.push_back(row.trigger);
  return triggers;
}

std::int64_t TestApp::timesUsed(const std::string& trigger) {
  std::int64_t times = 0;
  for (const auto& used : app->snippetStore().usageTracker().topUsed(100)) {
    if (used.trigger == trigger) times = used.count;
  }
  return times;
}

}  // namespace tessarin::testing
