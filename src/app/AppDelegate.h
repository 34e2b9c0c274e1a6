#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/PopupController.h"
#include "base/Subscription.h"
#include "input/KeyboardMonitor.h"
#include "input/Permissions.h"
#include "input/SecureInput.h"
#include "input/TriggerDetector.h"
#include "input/TypedShortcode.h"
#include "menu/MenuBarManager.h"
#include "model/SnippetStore.h"
#include "platform/PopupPresenter.h"
#include "platform/TextInsertion.h"
#include "popup/AutocompleteViewModel.h"

namespace tessarin {

class Workspace;

/// Owns the long-lived components and wires them: keys become popup navigation or detector input, the
/// detector's notifications become search, popup and insertion. Main thread; every callback that it hands out
/// does nothing once it is gone.
class AppDelegate {
 public:
  static constexpr std::chrono::milliseconds monitorStartDelay{1000};
  static constexpr std::chrono::milliseconds permissionRetryInterval{3000};
  /// How long an insertion under way may go on when the trust is taken back.
  static constexpr std::chrono::milliseconds insertionGrace{800};
  static constexpr std::size_t maximumResults = 8;

  /// The desktop, seam by seam, and what the rest of the program adds. All references outlive the controller.
  struct Services {
    EventTap& eventTap;
    Accessibility& accessibility;
    InputMonitoring& inputMonitoring;
    Workspace& workspace;
    UserDefaults& userDefaults;
    MainQueue& mainQueue;
    PopupPresenter& autocompletePanel;
    TextInsertion& textReplacer;
    StatusBar& statusBar;
    const WallClock& wallClock;
    SnippetStore::Folders folders;
    std::vector<std::string> languages = {};  ///< the user's, see `userLanguages`; English alone where empty

    MenuBarManager::Hooks menu;
    std::function<void()> startUpdateService;    ///< first act of the launch; may be absent
    std::function<void()> showOnboardingWindow;  ///< when the user has not finished it; may be absent
  };

  /// Loads all snippet and usage files.
  explicit AppDelegate(Services services);
  AppDelegate(const AppDelegate&) = delete;
  AppDelegate& operator=(const AppDelegate&) = delete;

  /// Start-up, once. Keys are judged from about a second later on, or from when the user allows it.
  void applicationDidFinishLaunching();
  /// Shutdown, once: no key and no timer reaches the controller afterwards.
  void applicationWillTerminate();

  /// Forgets what has been typed after the trigger and closes the popup, as a switch of application does: for
  /// whatever is about to need the keys itself.
  void endCollecting();
  /// To be called when the user's trust has changed: without it no key is judged and none is held; given
  /// again, it holds at once.
  void followTrust();
  /// False while trust has been taken back and an insertion under way is still given its time.
  bool hasFollowedTrust() const;
  /// Switches expansion off or on from outside of the menu, and answers whether it is on now.
  bool toggleEnabled();

  /// Whether the frontmost application is on the effective blocked list; an unknown one is not.
  bool isBlockedAppActive();

  SnippetStore& snippetStore() { return snippetStore_; }
  KeyboardMonitor& keyboardMonitor() { return keyboardMonitor_; }
  TriggerDetector& triggerDetector() { return triggerDetector_; }
  MenuBarManager& menuBarManager() { return menuBarManager_; }
  AutocompleteViewModel& autocompleteViewModel() { return autocompleteViewModel_; }

 private:
  void installHandlers();
  void installPanelHandlers();
  void observeDesktop();
  void showMenuBarIconIfWanted();
  void readContextIfWanted();
  void showOnboardingIfNeeded();
  void learnLanguages();
  void startKeyboardMonitor();
  void startPermissionRetryTimer();
  void retryStart();
  void stopUntrusted();

  void handleKeyEvent(const std::optional<std::string>& characters, std::int64_t keyCode,
                      std::uint64_t flags);
  bool opensInSecret(const std::optional<std::string>& characters);
  void feedDetector(const std::optional<std::string>& characters, std::int64_t keyCode, std::uint64_t flags);
  void handleQuery(const std::string& query);
  bool isDoubtful(const std::string& query, const std::vector<Snippet>& results) const;
  std::optional<Snippet> snippetToConfirm() const;
  void handleCancel();
  void handleConfirm(const std::string& query);
  void handleClick(const Snippet& snippet);
  void handleContextChange();
  void handleAppSwitch();
  void handleRowClick(int index);
  void handleVariantClick(int index);
  void handleDefaultsChange();
  void handleContextRead(const CaretContext& context);
  void handleInsertionDone(InsertionOutcome outcome);

  Replacement replacementBy(const Snippet& snippet) const;
  std::string textToInsert(const Snippet& snippet) const;
  void expand(const Snippet& snippet, const Replacement& replacement);
  bool beginInsertionByKey();
  void beginInsertion();
  void settle();
  void updateAttention();
  std::string triggerCharacter() const;

  /// Makes a callback of a handler: weakly owned, and followed by `settle` when it is the outermost one.
  template <class... Args>
  std::function<void(Args...)> handler(void (AppDelegate::*method)(Args...));

  Services services_;
  Permissions permissions_;
  SecureInput secureInput_;
  SnippetStore snippetStore_;
  KeyboardMonitor keyboardMonitor_;
  TriggerDetector triggerDetector_;
  MenuBarManager menuBarManager_;
  AutocompleteViewModel autocompleteViewModel_;
  PopupController popup_;

  Subscription appSwitchObserver_;
  Subscription focusObserver_;
  Subscription defaultsObserver_;
  Subscription permissionRetryTimer_;
  bool isTerminated_ = false;

  TypedShortcode typed_;
  bool lastConfirmWasTriggerChar_ = false;
  bool isInTerminal_ = false;
  std::string confirmingCharacters_;  ///< as typed; meant only while the flag above is set
  int insertionsUnderWay_ = 0;
  int handlerDepth_ = 0;
  std::shared_ptr<char> alive_ = std::make_shared<char>();  ///< last, so that it goes first
};

}  // namespace tessarin
