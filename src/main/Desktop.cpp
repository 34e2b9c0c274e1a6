#include "main/Desktop.h"

#include <clocale>

#include "base/Log.h"
#include "base/SessionKind.h"
#include "base/UserLanguages.h"
#include "main/Resources.h"
#include "platform/atspi/AccessibilityBus.h"
#include "platform/freedesktop/ApplicationMatcher.h"
#include "platform/freedesktop/BaseFolders.h"
#include "platform/freedesktop/DesktopEntries.h"
#include "platform/freedesktop/DesktopEntry.h"

namespace tessarin {
namespace {

/// One sentence, where the session lacks what the program lives on.
void sayWhatIsMissing(KeyTapState state) {
  if (state == KeyTapState::waylandSession) {
    log("Tessarin",
        "This is a Wayland session, in which keys typed in other applications cannot be judged yet: no "
        "shortcode expands, while the tray menu and the command line work.");
  } else if (state != KeyTapState::usable) {
    log("Tessarin",
        "The X server lacks XInput 2.2, XTest or XKB, so keys cannot be judged: no shortcode expands, while "
        "the tray menu and the command line work.");
  }
}

std::shared_ptr<const freedesktop::ApplicationMatcher> applicationMatcher() {
  return std::make_shared<freedesktop::ApplicationMatcher>(std::make_shared<freedesktop::DesktopEntries>(
      freedesktop::applicationFolders(processEnvironment),
      freedesktop::localeCandidates(std::setlocale(LC_MESSAGES, nullptr))));
}

}  // namespace

Desktop::Desktop()
    : defaults_(freedesktop::configFolder(processEnvironment) / "preferences.json"),
      trust_(queue_, freedesktop::configFolder(processEnvironment)),
      loginItem_(std::filesystem::canonical("/proc/self/exe")),
      trustPrompt_([this](bool isTrusted) { recordAnswer(isTrusted); }),
      popupWindow_(screens_),
      selections_(x11::X11Selections::connect(queue_)),
      general_(selections_ ? selections_->general() : noPasteboard_, QClipboard::Clipboard),
      primary_(selections_ ? selections_->primary() : noPasteboard_, QClipboard::Selection),
      x11Workspace_(x11::X11Workspace::connect(queue_, applicationMatcher())),
      workspace_(sessionWorkspace(),
                 {{Permissions::accessibilitySettingsUrl, [this] { askForTrust(PromptManner::inFront); }},
                  {Permissions::inputMonitoringSettingsUrl, [this] { inputMonitoring_.showExplanation(); }}}),
      inputMonitoring_([this] { return keyTapState(); },
                       [this](const Explanation& why) { inputMonitoringHelp_.show(why.headline, why.text); }),
      keyboard_(std::make_shared<x11::X11Keyboard>(queue_, keyboardOptions())),
      x11EventTap_(keyboard_),
      screenLock_(freedesktop::ScreenLock::connect()),
      inputMethodObserver_(workspace_.onContextChanged([this] { inputMethod_.lookAgain(); })),
      eventTap_(x11EventTap_, [this] { return keyGuard(); }),
      keyPoster_(keyboard_),
      otherApplications_(queue_, accessibilityOptions()),
      accessibility_(otherApplications_),
      accessibilityHelper_(accessibility_, workspace_, defaults_),
      pasteHelper_(general_, primary_, keyPoster_, queue_),
      textReplacer_(accessibilityHelper_, pasteHelper_, queue_, clock_),
      autocompletePanel_(popupWindow_, screens_, accessibility_, queue_) {
  defaults_.watch(queue_);
  if (x11Workspace_) x11Workspace_->setOwnPopup(popupWindow_.nativeWindow());
  sayWhatIsMissing(keyTapState());
}

AppDelegate::Services Desktop::services(SnippetStore::Folders folders) {
  return {eventTap_,
          accessibility_,
          inputMonitoring_,
          workspace_,
          defaults_,
          queue_,
          autocompletePanel_,
          textReplacer_,
          statusBar_,
          clock_,
          std::move(folders),
          userLanguages(),
          {},
          {},
          {}};
}

ui::SettingsServices Desktop::settingsServices(SnippetStore& store) {
  return {store, defaults_, permissions(), loginItem_, workspace_, general_, queue_, clock_, {}, {}, {}};
}

UpdaterSeams Desktop::updaterSeams(AppcastSource& source, UpdateUserDriver& driver) {
  return {defaults_, queue_, clock_, workspace_, source, driver};
}

void Desktop::shutdown() {
  pasteHelper_.finish();
  if (selections_) selections_->shutdown("/proc/self/exe");
  saveWhatIsMissing();
}

x11::X11Keyboard::Options Desktop::keyboardOptions() {
  x11::X11Keyboard::Options options;
  options.watcher = helperProgram(std::filesystem::canonical("/proc/self/exe"), "tessarin-keywatch").string();
  options.watcherStarted = [this](pid_t watcher) {
    queue_.async([this, watcher] { controlGroups_.separate(watcher); });
  };
  return options;
}

atspi::AtspiAccessibility::Options Desktop::accessibilityOptions() {
  atspi::AtspiAccessibility::Options options;
  options.isTrusted = [this] { return trust_.isTrusted(); };
  options.prompt = [this](PromptManner manner) { askForTrust(manner); };
  options.coordinateSpace = [this] { return screens_.space(); };
  options.activeProcess = [this] { return activeWindow_.process(); };
  options.isInBackground = [this](std::uint32_t process) { return activeWindow_.isInBackground(process); };
  options.activeWindowFrame = [this] { return activeWindow_.frame(); };
  return options;
}

Workspace& Desktop::sessionWorkspace() {
  return x11Workspace_ ? *x11Workspace_ : static_cast<Workspace&>(noWorkspace_);
}

KeyTapState Desktop::keyTapState() {
  if (isWaylandSession()) return KeyTapState::waylandSession;
  if (!x11Workspace_) return KeyTapState::noServer;
  return x11InputMonitoring_.isGranted() ? KeyTapState::usable : KeyTapState::missingExtensions;
}

KeyGuard Desktop::keyGuard() {
  if (screenLock_ && screenLock_->isLocked()) return KeyGuard::shut;
  // For services that do not tell of changes. The answer will be there before a person's next key.
  inputMethod_.lookAgain();
  switch (inputMethod_.state()) {
    case freedesktop::ComposingInputMethod::State::no:
      return KeyGuard::open;
    case freedesktop::ComposingInputMethod::State::yes:
      return KeyGuard::shut;
    case freedesktop::ComposingInputMethod::State::lastTime:
      break;
  }
  return KeyGuard::unsure;
}

void Desktop::askForTrust(PromptManner manner) {
  if (!trust_.isTrusted()) trustPrompt_.ask(manner);
}

void Desktop::recordAnswer(bool isTrusted) {
  if (!isTrusted) {
    trust_.disallow();
    return;
  }
  trust_.allow();
  atspi::AccessibilityBus::enable();
}

}  // namespace tessarin
