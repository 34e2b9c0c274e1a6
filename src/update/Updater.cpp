#include "update/Updater.h"

#include <utility>

#include "base/DataError.h"
#include "base/Log.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "update/AppcastParser.h"

namespace tessarin {
namespace {

constexpr const char* feedUrlKey = "feedUrl";
constexpr const char* skippedVersionKey = "skippedVersion";

}  // namespace

Updater::Updater(UpdaterSeams seams, UpdaterDelegate& delegate, Installation installation)
    : seams_(seams),
      delegate_(delegate),
      installation_(std::move(installation)),
      schedule_(seams.defaults, seams.queue, seams.clock, [this] { checkForUpdatesInBackground(); }) {}

Updater::~Updater() {
  if (check_ || isOffering_) seams_.userDriver.dismiss();
}

void Updater::checkForUpdates() {
  if (check_ && isOnUserDemand()) return seams_.userDriver.focus();
  seams_.userDriver.showChecking([this] { cancel(); });
  isOffering_ = false;
  asked_ = Asked::byUser;
  if (!check_) begin(Asked::byUser);
}

void Updater::checkForUpdatesInBackground() {
  if (!check_ && !isOffering_) begin(Asked::byNobody);
}

std::optional<std::string> Updater::clearFeedUrlFromUserDefaults() {
  auto stored = seams_.defaults.string(feedUrlKey);
  if (!stored || stored->empty()) return std::nullopt;
  seams_.defaults.set(feedUrlKey, "");
  return stored;
}

void Updater::begin(Asked asked) {
  asked_ = asked;
  schedule_.recordCheck();
  check_ = seams_.source.fetch(delegate_.feedUrl(),
                               [this](const AppcastSource::Result& result) { finish(result); });
}

void Updater::cancel() {
  check_.reset();
  seams_.userDriver.dismiss();
  delegate_.didNotFindUpdate(UpdateFailure::cancelled);
}

void Updater::finish(const AppcastSource::Result& result) {
  check_.reset();
  if (const auto* feed = std::get_if<std::string>(&result)) return judge(*feed);
  failed(std::get<UpdateFailure>(result));
}

void Updater::judge(const std::string& feed) {
  Appcast appcast;
  try {
    appcast = parseAppcast(feed);
  } catch (const DataError& error) {
    log("Updater", std::string("The list of updates is damaged: ") + error.what());
    return failed(UpdateFailure::malformed);
  }
  const auto update = bestUpdate(appcast, installation_);
  if (update && (isOnUserDemand() || !isSkipped(*update))) {
    found(*update);
  } else {
    foundNone();
  }
  delegate_.didFinishLoadingAppcast(appcast);
}

void Updater::found(const AppcastItem& item) {
  delegate_.didFindValidUpdate(item);
  isOffering_ = true;
  const auto manner =
      isOnUserDemand() ? UpdateUserDriver::Manner::inFront : UpdateUserDriver::Manner::unobtrusive;
  seams_.userDriver.showUpdate(item, installation_.version, manner,
                               [this, item](UpdateChoice choice) { chosen(item, choice); });
}

void Updater::foundNone() {
  delegate_.didNotFindUpdate(std::nullopt);
  if (isOnUserDemand()) seams_.userDriver.showUpToDate(installation_.version);
}

void Updater::failed(UpdateFailure failure) {
  delegate_.didNotFindUpdate(failure);
  if (isOnUserDemand()) seams_.userDriver.showFailure(failure);
}

void Updater::chosen(const AppcastItem& item, UpdateChoice choice) {
  isOffering_ = false;
  if (choice == UpdateChoice::skip) seams_.defaults.set(skippedVersionKey, item.identity());
  if (choice != UpdateChoice::download) return;
  if (const auto address = downloadAddress(item)) seams_.workspace.openUrl(*address);
}

bool Updater::isSkipped(const AppcastItem& item) const {
  return seams_.defaults.string(skippedVersionKey) == item.identity();
}

}  // namespace tessarin
