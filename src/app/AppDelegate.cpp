#include "app/AppDelegate.h"

#include <algorithm>
#include <utility>

#include "base/Log.h"
#include "input/Doubt.h"
#include "input/Preferences.h"
#include "platform/Accessibility.h"
#include "platform/KeyCodes.h"
#include "platform/MainQueue.h"
#include "platform/PopupPresenter.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

constexpr const char* appComponent = "Tessarin";

bool isNamed(const Snippet& snippet, const std::string& query) {
  return text::equals(text::lowercased(snippet.trigger), query);
}

bool hasKeyword(const Snippet& snippet, const std::string& query) {
  return std::ranges::any_of(snippet.keywords, [&query](const std::string& keyword) {
    return text::equals(text::lowercased(keyword), query);
  });
}

}  // namespace

template <class... Args>
std::function<void(Args...)> AppDelegate::handler(void (AppDelegate::*method)(Args...)) {
  return [this, method, weak = std::weak_ptr<char>(alive_)](Args... args) {
    if (weak.expired()) return;
    ++handlerDepth_;
    (this->*method)(args...);
    if (--handlerDepth_ == 0) settle();
  };
}

AppDelegate::AppDelegate(Services services)
    : services_(std::move(services)),
      permissions_(services_.accessibility, services_.inputMonitoring, services_.workspace),
      secureInput_(services_.accessibility),
      snippetStore_(services_.folders, services_.wallClock),
      keyboardMonitor_(services_.eventTap, services_.accessibility, services_.mainQueue),
      triggerDetector_(services_.userDefaults),
      menuBarManager_(services_.statusBar, services_.userDefaults, services_.mainQueue, permissions_,
                      services_.menu),
      popup_(autocompleteViewModel_, services_.autocompletePanel, keyboardMonitor_, services_.userDefaults) {}

// Launch and shutdown

void AppDelegate::applicationDidFinishLaunching() {
  if (services_.startUpdateService) services_.startUpdateService();
  menuBarManager_.setSnippetStore(snippetStore_);
  showMenuBarIconIfWanted();
  readContextIfWanted();
  menuBarManager_.setupStatusItem();
  installPanelHandlers();
  installHandlers();
  observeDesktop();
  if (!permissions_.isAccessibilityGranted()) {
    permissions_.promptForAccessibility(PromptManner::unobtrusive);
  }
  showOnboardingIfNeeded();
  log(appComponent, "App launched and ready");
}

void AppDelegate::installPanelHandlers() {
  services_.autocompletePanel.onRowClicked(handler(&AppDelegate::handleRowClick));
  services_.autocompletePanel.onVariantClicked(handler(&AppDelegate::handleVariantClick));
}

void AppDelegate::installHandlers() {
  triggerDetector_.onQueryChanged = handler(&AppDelegate::handleQuery);
  triggerDetector_.onConfirm = handler(&AppDelegate::handleConfirm);
  triggerDetector_.onCancel = handler(&AppDelegate::handleCancel);
  keyboardMonitor_.onKeyEvent = handler(&AppDelegate::handleKeyEvent);
  keyboardMonitor_.onInterrupted = handler(&AppDelegate::handleAppSwitch);
  updateAttention();
  services_.mainQueue.after(monitorStartDelay / 2, handler(&AppDelegate::learnLanguages));
  services_.mainQueue.after(monitorStartDelay, handler(&AppDelegate::startKeyboardMonitor));
  autocompleteViewModel_.onItemSelected = handler(&AppDelegate::handleClick);
}

void AppDelegate::observeDesktop() {
  appSwitchObserver_ = services_.workspace.onContextChanged(handler(&AppDelegate::handleContextChange));
  focusObserver_ = services_.accessibility.onFocusMoved(handler(&AppDelegate::handleAppSwitch));
  defaultsObserver_ = services_.userDefaults.onChange(handler(&AppDelegate::handleDefaultsChange));
  services_.statusBar.onMenuOpening(handler(&AppDelegate::handleAppSwitch));
}

void AppDelegate::showMenuBarIconIfWanted() {
  services_.statusBar.setVisible(services_.userDefaults.boolean(preferences::key::showMenuBarIcon)
                                     .value_or(preferences::showMenuBarIconWhenAbsent));
}

void AppDelegate::readContextIfWanted() {
  const bool isWanted = preferences::confirmsOnlyWhatIsMeant(services_.userDefaults) ||
                        preferences::triggersOnlyAtWordStart(services_.userDefaults);
  if (!isWanted) return services_.autocompletePanel.onContextRead(nullptr);
  services_.autocompletePanel.onContextRead(
      [this, weak = std::weak_ptr<char>(alive_),
       tell = handler(&AppDelegate::handleContextRead)](const CaretContext& context) {
        tell(context);
        return weak.expired() || typed_.preceding() != Preceding::unknown;
      });
}

void AppDelegate::showOnboardingIfNeeded() {
  const bool isDone = services_.userDefaults.boolean(preferences::key::hasCompletedOnboarding)
                          .value_or(preferences::hasCompletedOnboardingWhenAbsent);
  if (!isDone && services_.showOnboardingWindow) services_.showOnboardingWindow();
}

// Between the start, which it must not make slower, and the first key, which it must not keep waiting.
void AppDelegate::learnLanguages() {
  snippetStore_.learnLanguages(services_.languages);
}

void AppDelegate::startKeyboardMonitor() {
  if (isTerminated_) return;
  if (!keyboardMonitor_.start()) {
    log(appComponent, "Keyboard monitor failed to start — will retry when permission is granted");
    startPermissionRetryTimer();
    return;
  }
  permissionRetryTimer_.reset();
  log(appComponent, "Keyboard monitor started successfully");
}

void AppDelegate::startPermissionRetryTimer() {
  if (permissionRetryTimer_) return;
  permissionRetryTimer_ =
      services_.mainQueue.repeat(permissionRetryInterval, handler(&AppDelegate::retryStart));
}

void AppDelegate::retryStart() {
  if (permissions_.isAccessibilityGranted()) startKeyboardMonitor();
}

void AppDelegate::followTrust() {
  menuBarManager_.rebuildMenu();
  if (permissions_.isAccessibilityGranted()) {
    if (permissionRetryTimer_) startKeyboardMonitor();
    return;
  }
  endCollecting();
  if (insertionsUnderWay_ > 0) {
    services_.mainQueue.after(insertionGrace, handler(&AppDelegate::stopUntrusted));
  } else {
    stopUntrusted();
  }
}

bool AppDelegate::hasFollowedTrust() const {
  return permissions_.isAccessibilityGranted() || !keyboardMonitor_.isRunning();
}

void AppDelegate::stopUntrusted() {
  if (hasFollowedTrust()) return;
  if (insertionsUnderWay_ > 0) services_.textReplacer.stopWaiting();
  keyboardMonitor_.stop();
  log(appComponent, "The trust was taken back; no key is judged until it is given again");
  startPermissionRetryTimer();
}

void AppDelegate::applicationWillTerminate() {
  isTerminated_ = true;
  keyboardMonitor_.stop();
  permissionRetryTimer_.reset();
  appSwitchObserver_.reset();
  focusObserver_.reset();
  defaultsObserver_.reset();
  services_.statusBar.onMenuOpening({});
  snippetStore_.saveWhatIsMissing();
}

void AppDelegate::endCollecting() {
  const auto end = handler(&AppDelegate::handleAppSwitch);
  end();
}

bool AppDelegate::toggleEnabled() {
  endCollecting();
  menuBarManager_.toggleEnabled();
  return menuBarManager_.isEnabled();
}

// Keys

void AppDelegate::handleKeyEvent(const std::optional<std::string>& characters, std::int64_t keyCode,
                                 std::uint64_t flags) {
  if (!menuBarManager_.isEnabled() || isBlockedAppActive()) return;
  const bool isNavigation = popup_.isVisible() && popup_.handleArrow(keyCode);
  if (isNavigation && !keyboardMonitor_.isCurrentKeySwallowed()) typed_.noteCaretMove();
  if (isNavigation) return;
  if (opensInSecret(characters)) return;
  lastConfirmWasTriggerChar_ =
      characters && triggerDetector_.isAccumulating() && text::equals(*characters, triggerCharacter());
  if (lastConfirmWasTriggerChar_) confirmingCharacters_ = *characters;
  feedDetector(characters, keyCode, flags);
}

// Only a trigger can begin anything, and a move of the focus ends what has begun: so this is enough, and the
// other keys are spared the question to the application.
bool AppDelegate::opensInSecret(const std::optional<std::string>& characters) {
  const bool opensCollecting =
      !triggerDetector_.isAccumulating() && characters && text::equals(*characters, triggerCharacter());
  return opensCollecting && secureInput_.isActive();
}

bool AppDelegate::isBlockedAppActive() {
  const auto application = services_.workspace.frontmostApplication();
  return application && !application->bundleIdentifier.empty() &&
         preferences::isBlockedApp(services_.userDefaults, application->bundleIdentifier);
}

void AppDelegate::feedDetector(const std::optional<std::string>& characters, std::int64_t keyCode,
                               std::uint64_t flags) {
  const bool wasCollecting = triggerDetector_.isAccumulating();
  triggerDetector_.handleKey(characters, keyCode, flags);
  if (!triggerDetector_.isAccumulating()) return;
  // Still collecting, so the key was one that reaches the document: keep account of it, dropped or not.
  if (!wasCollecting) {
    typed_.begin(*characters, triggerDetector_.preceding());
    const auto application = services_.workspace.frontmostApplication();
    isInTerminal_ = application && application->isTerminal;
    popup_.anticipate();
  } else if (keyCode == keycode::deleteBackward) {
    typed_.deleteLast();
  } else if (keyCode == keycode::up || keyCode == keycode::down) {
    typed_.noteCaretMove();
  } else {
    typed_.append(*characters);
  }
}

// The detector's notifications

void AppDelegate::handleQuery(const std::string& query) {
  if (query.empty()) return popup_.close();
  auto results = snippetStore_.search(query, maximumResults);
  const bool inDoubt = isDoubtful(query, results);
  popup_.showResults(std::move(results), query, inDoubt);
}

bool AppDelegate::isDoubtful(const std::string& query, const std::vector<Snippet>& results) const {
  if (!preferences::confirmsOnlyWhatIsMeant(services_.userDefaults)) return false;
  const std::string folded = text::lowercased(query);
  const auto is = [&](bool (*property)(const Snippet&, const std::string&)) {
    return std::ranges::any_of(results, [&](const Snippet& snippet) { return property(snippet, folded); });
  };
  return tessarin::isDoubtful({.query = query,
                               .isTrigger = is(isNamed),
                               .isKeyword = is(hasKeyword),
                               .preceding = typed_.preceding(),
                               .isInTerminal = isInTerminal_});
}

void AppDelegate::handleCancel() {
  popup_.close();
}

void AppDelegate::handleConfirm(const std::string&) {
  const auto snippet = snippetToConfirm();
  if (!snippet || !beginInsertionByKey()) return popup_.close();
  Replacement replacement = replacementBy(*snippet);
  if (lastConfirmWasTriggerChar_ && keyboardMonitor_.isCurrentKeyInDocument()) {
    replacement.includeTriggerChar = true;
    replacement.typed += confirmingCharacters_;
  }
  expand(*snippet, replacement);
}

// The trigger confirms where no row is highlighted, too.
std::optional<Snippet> AppDelegate::snippetToConfirm() const {
  const auto& results = autocompleteViewModel_.results();
  const bool takesFirst = lastConfirmWasTriggerChar_ && !autocompleteViewModel_.hasSelection();
  return takesFirst && !results.empty() ? results.front() : autocompleteViewModel_.selectedSnippet();
}

// A key that is still held never needs to reach the document to be erased there. One that has been let by,
// because we were too slow, stands behind the shortcode: both stay.
bool AppDelegate::beginInsertionByKey() {
  beginInsertion();
  if (keyboardMonitor_.isCurrentKeyInDocument() || keyboardMonitor_.swallowCurrentKey()) return true;
  --insertionsUnderWay_;
  log(appComponent, "The confirming key was answered too late and confirms nothing");
  return false;
}

void AppDelegate::beginInsertion() {
  ++insertionsUnderWay_;
  updateAttention();
}

void AppDelegate::handleClick(const Snippet& snippet) {
  // Without a collecting there is no letter, and the trigger alone counts.
  if (!triggerDetector_.isAccumulating()) typed_.begin(triggerCharacter());
  const Replacement replacement = replacementBy(snippet);
  triggerDetector_.setState(TriggerDetector::Idle{});
  beginInsertion();
  expand(snippet, replacement);
}

Replacement AppDelegate::replacementBy(const Snippet& snippet) const {
  return {.deleteCount = typed_.length(),
          .text = textToInsert(snippet),
          .typed = typed_.text(),
          .caretMayHaveMoved = typed_.caretMayHaveMoved()};
}

std::string AppDelegate::textToInsert(const Snippet& snippet) const {
  return autocompleteViewModel_.selectedSkinToneVariant().value_or(snippet.replacement);
}

void AppDelegate::expand(const Snippet& snippet, const Replacement& replacement) {
  // The text first: writing the usage files takes as long as a tenth of the whole.
  const std::string trigger = snippet.trigger;
  popup_.close();
  services_.textReplacer.replace(replacement, handler(&AppDelegate::handleInsertionDone));
  snippetStore_.usageTracker().recordUsage(trigger);
}

void AppDelegate::handleInsertionDone(InsertionOutcome) {
  --insertionsUnderWay_;
}

// The desktop's notifications

void AppDelegate::handleContextChange() {
  services_.textReplacer.stopWaiting();
  handleAppSwitch();
}

void AppDelegate::handleAppSwitch() {
  triggerDetector_.setState(TriggerDetector::Idle{});
  popup_.close();
}

void AppDelegate::handleRowClick(int index) {
  autocompleteViewModel_.selectItem(index);
}

void AppDelegate::handleVariantClick(int index) {
  popup_.selectVariant(index);
}

void AppDelegate::handleDefaultsChange() {
  showMenuBarIconIfWanted();
  readContextIfWanted();
  popup_.invalidate();
}

void AppDelegate::handleContextRead(const CaretContext& context) {
  if (!triggerDetector_.isAccumulating()) return;
  isInTerminal_ |= context.isTerminal;
  if (context.before) typed_.noteTextBeforeCaret(*context.before);
  const bool beginsNothing =
      typed_.preceding() == Preceding::word && preferences::triggersOnlyAtWordStart(services_.userDefaults);
  if (beginsNothing) return handleAppSwitch();
  popup_.setDoubtful(isDoubtful(autocompleteViewModel_.query(), autocompleteViewModel_.results()));
}

// After every event

void AppDelegate::settle() {
  popup_.refresh();
  updateAttention();
}

void AppDelegate::updateAttention() {
  KeyAttention attention = KeyAttention::triggerOnly;
  if (insertionsUnderWay_ > 0) {
    attention = KeyAttention::holdBack;
  } else if (triggerDetector_.isAccumulating()) {
    attention = KeyAttention::everyKey;
  }
  keyboardMonitor_.setAttention(attention, triggerCharacter());
}

std::string AppDelegate::triggerCharacter() const {
  return preferences::currentTriggerCharacter(services_.userDefaults);
}

}  // namespace tessarin
