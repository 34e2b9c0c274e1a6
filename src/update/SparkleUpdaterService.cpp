#include "update/SparkleUpdaterService.h"

#include <chrono>
#include <utility>

#include "base/Translate.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"

namespace tessarin {
namespace {

constexpr const char* automaticChecksKey = "automaticallyChecksForUpdates";
constexpr std::chrono::seconds checkInterval{86400};

std::string orUnknown(const std::string& text) {
  return text.empty() ? translate("SparkleUpdaterService", "Unknown") : text;
}

}  // namespace

SparkleUpdaterService::SparkleUpdaterService(UpdaterSeams seams, BuildSettings settings)
    : defaults_(seams.defaults), queue_(seams.queue), settings_(std::move(settings)) {
  if (settings_.feedUrl.empty()) return;
  updaterController_ = std::make_unique<Updater>(
      seams, *this, Installation{settings_.version, settings_.build, kernelVersion()});
  applyPolicy();
}

void SparkleUpdaterService::applyPolicy() {
  updaterController_->clearFeedUrlFromUserDefaults();
  updaterController_->setAutomaticallyChecksForUpdates(defaults_.boolean(automaticChecksKey).value_or(false));
  updaterController_->setAutomaticallyDownloadsUpdates(false);
  updaterController_->setUpdateCheckInterval(checkInterval);
}

void SparkleUpdaterService::checkForUpdates() {
  if (!updaterController_) return;
  setIsCheckingForUpdates(true);
  updaterController_->checkForUpdates();
}

std::string SparkleUpdaterService::currentVersion() const {
  return orUnknown(settings_.version);
}

std::string SparkleUpdaterService::currentBuild() const {
  return orUnknown(settings_.build);
}

void SparkleUpdaterService::didFindValidUpdate(const AppcastItem& item) {
  publishLater([item](SparkleUpdaterService& self) {
    self.setUpdateAvailable(true);
    self.setUpdateInfo(item);
    self.setIsCheckingForUpdates(false);
  });
}

void SparkleUpdaterService::didNotFindUpdate(std::optional<UpdateFailure>) {
  publishLater([](SparkleUpdaterService& self) {
    self.setUpdateAvailable(false);
    self.setUpdateInfo(std::nullopt);
    self.setIsCheckingForUpdates(false);
  });
}

void SparkleUpdaterService::didFinishLoadingAppcast(const Appcast&) {
  publishLater([](SparkleUpdaterService& self) { self.setIsCheckingForUpdates(false); });
}

void SparkleUpdaterService::publishLater(std::function<void(SparkleUpdaterService&)> changes) {
  queue_.async([weak = std::weak_ptr(self_), changes = std::move(changes)] {
    if (const auto self = weak.lock()) changes(**self);
  });
}

void SparkleUpdaterService::setIsCheckingForUpdates(bool isChecking) {
  isCheckingForUpdates_ = isChecking;
  changed_.emit(Property::isCheckingForUpdates);
}

void SparkleUpdaterService::setUpdateAvailable(bool isAvailable) {
  updateAvailable_ = isAvailable;
  changed_.emit(Property::updateAvailable);
}

void SparkleUpdaterService::setUpdateInfo(std::optional<AppcastItem> info) {
  updateInfo_ = std::move(info);
  changed_.emit(Property::updateInfo);
}

}  // namespace tessarin
