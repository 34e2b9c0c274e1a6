#pragma once

#include <chrono>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/x11/KeyGrabs.h"
#include "platform/x11/KeyJudge.h"
#include "platform/x11/KeyTranslator.h"
#include "platform/x11/KeyWatch.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/ServerEvents.h"
#include "platform/x11/SyntheticKeys.h"
#include "platform/x11/TapControl.h"
#include "platform/x11/WholeKeyboard.h"

namespace tessarin::x11 {

/// The keyboard thread's work: takes held keys, has them judged, answers them, keeps those that are held
/// back, and types what is to be typed. Everything but the constructor runs on that thread.
class KeyFilter {
 public:
  /// Keys are held back for this long at most; then something has gone wrong, and the user gets the keyboard
  /// back. An insertion by pasting takes two seconds in the worst case.
  static constexpr std::chrono::seconds holdBackTime{5};

  /// What a lost connection to the server leaves behind.
  struct Loss {
    bool wasStandingStill = false;  ///< the connection was closed because we answered nobody
    std::size_t keptKeys = 0;       ///< that nobody gets
    KeySet pressed;                 ///< by us, perhaps still
  };

  KeyFilter(const SessionKeyboard& keyboard, TapControl& control, KeyJudge& judge, KeyWatch& watch);

  /// Lets go of what an earlier connection left pressed.
  void letGoOf(const KeySet& keys) { synthetic_.letGoOf(keys); }
  /// Returns when the control says stop, with nothing, or when the connection to the server is lost. The
  /// tap counts as switched off then, and what was to be typed has not been.
  std::optional<Loss> run();

 private:
  using Clock = std::chrono::steady_clock;
  enum class Holding { nothing, trigger, everything };

  void takeKeys();
  bool isLost();
  // Each answers whether there was anything to do.
  bool takeNews();
  bool settle();
  bool carryOutPosts();

  void typeChord(const KeyPress& press);
  void followFocus();
  void refreshLayout();
  bool holdBy(const TapSettings& settings);
  Holding wantedHolding(const TapSettings& settings) const;
  void handle(const TypedKey& key);
  void answer(KeyVerdict verdict);
  void answerJudged(KeyVerdict verdict);
  bool passesUnjudged(const TypedKey& key) const;
  void keep(const TypedKey& key);
  void keepUnlessModifier(const TypedKey& key);
  KeyVerdict decide(const TypedKey& key);
  KeyVerdict ask(const KeyEvent& event);
  void judgeFirstKept();
  bool keptTooLong() const;
  void timeOut();
  void rest();
  void wait();
  void leave();
  Loss abandon();
  void note(const char* line) { notes_.push_back(line); }

  SessionKeyboard keyboard_;
  TapControl& control_;
  KeyJudge& judge_;
  KeyWatch& watch_;
  ServerEvents events_;
  KeyGrabs grabs_;
  WholeKeyboard whole_;
  SyntheticKeys synthetic_;
  KeyTranslator translator_;
  std::unique_ptr<KeyboardLayout> layout_;
  std::string fingerprint_;
  std::string grabbedTrigger_;
  std::u16string triggerText_;
  Holding holding_ = Holding::nothing;
  std::deque<TypedKey> kept_;
  Clock::time_point keptSince_;
  std::vector<const char*> notes_;  ///< for the log, which has to wait until no key does
};

}  // namespace tessarin::x11
