#pragma once

#include <QTemporaryDir>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "input/Permissions.h"
#include "model/SnippetStore.h"
#include "platform/Accessibility.h"
#include "platform/InputMonitoring.h"
#include "platform/LoginItem.h"
#include "platform/WallClock.h"
#include "platform/freedesktop/JsonUserDefaults.h"
#include "platform/none/NoPasteboard.h"
#include "platform/none/NoWorkspace.h"
#include "platform/qt/QtMainQueue.h"
#include "ui/settings/SettingsServices.h"

namespace tessarin::pictures {

/// A grant that pictures show given or missing.
struct SampleGrants final : Accessibility, InputMonitoring {
  bool trusted = true;
  bool monitoring = true;

  bool isTrusted() override { return trusted; }
  void prompt(PromptManner) override {}
  ElementRef systemWide() override { return nullptr; }
  std::optional<AttributeValue> attribute(const ElementRef&, std::string_view) override {
    return std::nullopt;
  }
  std::optional<AttributeValue> parameterizedAttribute(const ElementRef&, std::string_view,
                                                       const AttributeValue&) override {
    return std::nullopt;
  }
  AccessibilityStatus setAttribute(const ElementRef&, std::string_view, const AttributeValue&) override {
    return AccessibilityStatus::failure;
  }
  Subscription onFocusMoved(std::function<void()>) override { return {}; }
  void beginBudget(std::chrono::milliseconds) override {}
  bool isBusy(const ElementRef&) override { return false; }
  bool pause(std::chrono::milliseconds) override { return false; }

  bool isGranted() override { return monitoring; }
  void request() override {}
};

struct SampleWorkspace final : Workspace {
  std::vector<Application> running;
  std::optional<Application> frontmostApplication() override { return std::nullopt; }
  std::vector<Application> runningApplications() override { return running; }
  std::optional<ApplicationInfo> application(const std::string& bundleIdentifier) override;
  void openUrl(const std::string&) override {}
  Subscription onContextChanged(std::function<void()>) override { return {}; }
};

struct SampleLoginItem final : LoginItem {
  std::optional<std::string> registerItem() override { return std::nullopt; }
  std::optional<std::string> unregisterItem() override { return std::nullopt; }
  bool isEnabled() override { return true; }
};

/// The real time, or days before it.
struct SampleClock final : WallClock {
  std::chrono::hours ago{0};
  TimePoint now() const override { return std::chrono::system_clock::now() - ago; }
};

/// Everything that the windows work with, filled for a picture or left empty, in a folder that goes with it.
class SampleDesktop {
 public:
  /// `filled`: with snippets of the user's own and weeks of use.
  SampleDesktop(const std::filesystem::path& resources, bool filled);

  ui::SettingsServices services();
  Permissions permissions() { return {grants, grants, workspace}; }

  SampleGrants grants;
  SampleWorkspace workspace;
  SampleLoginItem loginItem;
  none::NoPasteboard pasteboard;
  ui::QtMainQueue queue;
  SampleClock clock;
  QTemporaryDir folder;
  freedesktop::JsonUserDefaults defaults;
  std::unique_ptr<SnippetStore> store;

 private:
  void addSnippets();
  void addUse();
  void addApplications();
  std::filesystem::path path() const { return folder.path().toStdString(); }
};

}  // namespace tessarin::pictures
