#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "base/Subscription.h"
#include "update/AppcastSource.h"
#include "update/UpdateJudge.h"
#include "update/UpdateSchedule.h"
#include "update/UpdateUserDriver.h"
#include "update/UpdaterDelegate.h"

namespace tessarin {

class Workspace;

/// What an updater works with. All of it outlives the updater.
struct UpdaterSeams {
  UserDefaults& defaults;
  MainQueue& queue;
  const WallClock& clock;
  Workspace& workspace;
  AppcastSource& source;
  UpdateUserDriver& userDriver;
};

/// Looks for updates, when the user asks and, if wanted, once an interval by itself, and shows the user what
/// came of it. It never downloads one: the user is led to its address. Main thread.
class Updater {
 public:
  /// The delegate outlives the updater.
  Updater(UpdaterSeams seams, UpdaterDelegate& delegate, Installation installation);
  Updater(const Updater&) = delete;
  Updater& operator=(const Updater&) = delete;
  /// Ends a running check; nobody is told of it.
  ~Updater();

  /// Shows that it is looking, then the outcome, whatever that is. While a check runs, shows that one.
  void checkForUpdates();
  /// The same unasked: shows nothing but an update, and not one that the user has skipped.
  void checkForUpdatesInBackground();

  /// Off at first.
  bool automaticallyChecksForUpdates() const { return schedule_.isEnabled(); }
  void setAutomaticallyChecksForUpdates(bool automatically) { schedule_.setEnabled(automatically); }
  /// Off at first. A desktop has nothing that an updater may fetch and install by itself, so an update that
  /// was found is only offered where this is on, too.
  bool automaticallyDownloadsUpdates() const { return automaticallyDownloadsUpdates_; }
  void setAutomaticallyDownloadsUpdates(bool automatically) {
    automaticallyDownloadsUpdates_ = automatically;
  }
  std::chrono::seconds updateCheckInterval() const { return schedule_.interval(); }
  void setUpdateCheckInterval(std::chrono::seconds interval) { schedule_.setInterval(interval); }
  /// Discards an address that is stored in the preferences, and returns it. Only the delegate's counts.
  std::optional<std::string> clearFeedUrlFromUserDefaults();

 private:
  enum class Asked { byNobody, byUser };

  void begin(Asked asked);
  void cancel();
  void finish(const AppcastSource::Result& result);
  void judge(const std::string& feed);
  void found(const AppcastItem& item);
  void foundNone();
  void failed(UpdateFailure failure);
  void chosen(const AppcastItem& item, UpdateChoice choice);
  bool isSkipped(const AppcastItem& item) const;
  bool isOnUserDemand() const { return asked_ == Asked::byUser; }

  UpdaterSeams seams_;
  UpdaterDelegate& delegate_;
  Installation installation_;
  UpdateSchedule schedule_;
  bool automaticallyDownloadsUpdates_ = false;
  Asked asked_ = Asked::byNobody;
  bool isOffering_ = false;  ///< an update is shown and the user has not chosen yet
  Subscription check_;       ///< while one runs
};

}  // namespace tessarin
