#pragma once

#include <functional>
#include <memory>

#include "app/AppDelegate.h"
#include "insertion/AccessibilityHelper.h"
#include "insertion/PasteHelper.h"
#include "insertion/TextReplacer.h"
#include "main/SessionInputMonitoring.h"
#include "platform/GuardedEventTap.h"
#include "platform/OwnAddresses.h"
#include "platform/atspi/AtspiAccessibility.h"
#include "platform/freedesktop/AutostartLoginItem.h"
#include "platform/freedesktop/ComposingInputMethod.h"
#include "platform/freedesktop/JsonUserDefaults.h"
#include "platform/freedesktop/ScreenLock.h"
#include "platform/freedesktop/TrustRecord.h"
#include "platform/none/NoPasteboard.h"
#include "platform/none/NoWorkspace.h"
#include "platform/qt/ControlGroups.h"
#include "platform/qt/OwnSelection.h"
#include "platform/qt/OwnWindowsAccessibility.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtScreens.h"
#include "platform/qt/QtStatusBar.h"
#include "platform/x11/ActiveWindowProbe.h"
#include "platform/x11/X11EventTap.h"
#include "platform/x11/X11InputMonitoring.h"
#include "platform/x11/X11KeyPoster.h"
#include "platform/x11/X11Keyboard.h"
#include "platform/x11/X11Selections.h"
#include "platform/x11/X11Workspace.h"
#include "popup/AutocompletePanel.h"
#include "ui/InputMonitoringHelp.h"
#include "ui/PopupWindow.h"
#include "ui/TrustPrompt.h"
#include "ui/settings/SettingsServices.h"
#include "update/Updater.h"

namespace tessarin {

/// The backends of this session and what the core puts on top of them, in the order in which they need one
/// another.
class Desktop {
 public:
  Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  AppDelegate::Services services(SnippetStore::Folders folders);
  /// All but the updates, of which the desktop knows nothing.
  ui::SettingsServices settingsServices(SnippetStore& store);
  UpdaterSeams updaterSeams(AppcastSource& source, UpdateUserDriver& driver);
  Permissions permissions() { return {accessibility_, inputMonitoring_, workspace_}; }
  UserDefaults& userDefaults() { return defaults_; }
  freedesktop::WatchedTrust& trust() { return trust_; }
  MainQueue& mainQueue() { return queue_; }
  Workspace& workspace() { return workspace_; }
  /// Lets go of the keyboard while the work is done, which may stop the whole process.
  void withoutKeyboard(const std::function<void()>& work) { keyboard_->withoutKeyboard(work); }
  /// The preferences, where that failed before.
  void saveWhatIsMissing() { defaults_.saveWhatIsMissing(); }
  /// Gives the clipboard back and hands it over, while the connections still stand.
  void shutdown();

 private:
  x11::X11Keyboard::Options keyboardOptions();
  atspi::AtspiAccessibility::Options accessibilityOptions();
  Workspace& sessionWorkspace();
  KeyTapState keyTapState();
  KeyGuard keyGuard();
  void askForTrust(PromptManner manner);
  void recordAnswer(bool isTrusted);

  ui::QtMainQueue queue_;
  SystemWallClock clock_;
  freedesktop::JsonUserDefaults defaults_;
  freedesktop::WatchedTrust trust_;
  freedesktop::AutostartLoginItem loginItem_;
  ui::TrustPrompt trustPrompt_;
  ui::InputMonitoringHelp inputMonitoringHelp_;
  ui::QtStatusBar statusBar_;
  ui::QtScreens screens_;
  ui::PopupWindow popupWindow_;

  none::NoPasteboard noPasteboard_;
  none::NoWorkspace noWorkspace_;
  std::unique_ptr<x11::X11Selections> selections_;
  ui::OwnSelection general_;
  ui::OwnSelection primary_;
  std::unique_ptr<x11::X11Workspace> x11Workspace_;
  x11::ActiveWindowProbe activeWindow_;
  OwnAddresses workspace_;
  x11::X11InputMonitoring x11InputMonitoring_;
  SessionInputMonitoring inputMonitoring_;
  ui::ControlGroups controlGroups_;
  std::shared_ptr<x11::X11Keyboard> keyboard_;
  x11::X11EventTap x11EventTap_;
  std::unique_ptr<freedesktop::ScreenLock> screenLock_;
  freedesktop::ComposingInputMethod inputMethod_;
  Subscription inputMethodObserver_;
  GuardedEventTap eventTap_;
  x11::X11KeyPoster keyPoster_;
  atspi::AtspiAccessibility otherApplications_;
  ui::OwnWindowsAccessibility accessibility_;

  AccessibilityHelper accessibilityHelper_;
  PasteHelper pasteHelper_;
  TextReplacer textReplacer_;
  AutocompletePanel autocompletePanel_;
};

}  // namespace tessarin
