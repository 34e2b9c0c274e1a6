#include "main/Windows.h"

#include "main/Desktop.h"

namespace tessarin {

Windows::Windows(Desktop& desktop) : desktop_(desktop), updateWindows_(desktop.workspace()) {}

void Windows::startUpdateService() {
  updateService_.emplace(desktop_.updaterSeams(fetcher_, updateWindows_), buildSettings());
}

void Windows::checkForUpdates() {
  if (updateService_) updateService_->checkForUpdates();
}

void Windows::showOnboarding() {
  onboardingWindow_ = std::make_unique<ui::OnboardingWindow>(desktop_.permissions(), desktop_.userDefaults(),
                                                             desktop_.mainQueue());
  onboardingWindow_->present();
}

void Windows::openSettings(SnippetStore& store) {
  if (!settingsWindow_) {
    ui::SettingsServices services = desktop_.settingsServices(store);
    services.checkForUpdates = [this] { checkForUpdates(); };
    if (updateService_) {
      services.version = updateService_->currentVersion();
      services.build = updateService_->currentBuild();
    }
    settingsWindow_ = std::make_unique<ui::SettingsWindow>(std::move(services));
  }
  settingsWindow_->open();
}

void Windows::close() {
  settingsWindow_.reset();
  onboardingWindow_.reset();
  updateService_.reset();
}

}  // namespace tessarin
