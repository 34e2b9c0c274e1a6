#pragma once

#include <memory>
#include <optional>

#include "ui/onboarding/OnboardingWindow.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/update/UpdateWindows.h"
#include "update/AppcastFetcher.h"
#include "update/SparkleUpdaterService.h"

namespace tessarin {

class Desktop;
class SnippetStore;

/// The windows that the controller and the menu lead to, each made when it is first wanted, and the update
/// service behind two of them. Main thread.
class Windows {
 public:
  /// The desktop outlives the windows, which are to be closed before it shuts down.
  explicit Windows(Desktop& desktop);
  Windows(const Windows&) = delete;
  Windows& operator=(const Windows&) = delete;

  void startUpdateService();
  /// Nothing before the service has started.
  void checkForUpdates();
  void showOnboarding();
  void openSettings(SnippetStore& store);
  /// At the end of the program, while everything that the windows work with is there.
  void close();

 private:
  Desktop& desktop_;
  AppcastFetcher fetcher_;
  ui::UpdateWindows updateWindows_;
  std::optional<SparkleUpdaterService> updateService_;
  std::unique_ptr<ui::OnboardingWindow> onboardingWindow_;
  std::unique_ptr<ui::SettingsWindow> settingsWindow_;
};

}  // namespace tessarin
