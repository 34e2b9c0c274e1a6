#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/Signal.h"
#include "update/BuildSettings.h"
#include "update/Updater.h"

namespace tessarin {

/// Connects the program with its updater: sets the policy once at the start, starts the checks that the user
/// asks for, and mirrors the outcome of each check in three values that can be observed. The program has one.
/// Main thread, but for the delegate's operations, which any thread may call.
class SparkleUpdaterService final : public UpdaterDelegate {
 public:
  enum class Property { isCheckingForUpdates, updateAvailable, updateInfo };

  /// Starts the updater, which costs nothing until its first check. Where the settings name no feed there is
  /// no updater, and everything about checks does nothing.
  SparkleUpdaterService(UpdaterSeams seams, BuildSettings settings);
  SparkleUpdaterService(const SparkleUpdaterService&) = delete;
  SparkleUpdaterService& operator=(const SparkleUpdaterService&) = delete;

  /// A check that the user asked for: shows its own windows.
  void checkForUpdates();

  /// A check that the user asked for runs.
  bool isCheckingForUpdates() const { return isCheckingForUpdates_; }
  /// The last finished check found an update.
  bool updateAvailable() const { return updateAvailable_; }
  /// What it found.
  const std::optional<AppcastItem>& updateInfo() const { return updateInfo_; }
  /// Runs after each assignment of one of the three, on the main thread; also when the value stayed the same.
  Subscription onChange(std::function<void(Property)> callback) {
    return changed_.subscribe(std::move(callback));
  }

  /// "Unknown" where the build did not say.
  std::string currentVersion() const;
  std::string currentBuild() const;

  std::string feedUrl() const override { return settings_.feedUrl; }
  /// Absent where there is no feed.
  const Updater* updaterController() const { return updaterController_.get(); }

  // What the updater tells. The values change a little later, when the main queue comes to it.
  void didFindValidUpdate(const AppcastItem& item) override;
  void didNotFindUpdate(std::optional<UpdateFailure> failure) override;
  void didFinishLoadingAppcast(const Appcast& appcast) override;

 private:
  void applyPolicy();
  void publishLater(std::function<void(SparkleUpdaterService&)> changes);
  void setIsCheckingForUpdates(bool isChecking);
  void setUpdateAvailable(bool isAvailable);
  void setUpdateInfo(std::optional<AppcastItem> info);

  UserDefaults& defaults_;
  MainQueue& queue_;
  BuildSettings settings_;
  bool isCheckingForUpdates_ = false;
  bool updateAvailable_ = false;
  std::optional<AppcastItem> updateInfo_;
  Signal<Property> changed_;
  std::shared_ptr<SparkleUpdaterService*> self_ = std::make_shared<SparkleUpdaterService*>(this);
  std::unique_ptr<Updater> updaterController_;
};

}  // namespace tessarin
