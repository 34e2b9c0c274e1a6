#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

#include "DocumentWindow.h"
#include "Typist.h"
#include "platform/MainQueue.h"
#include "platform/x11/X11EventTap.h"
#include "platform/x11/X11KeyPoster.h"
#include "support/desktop/PrivateDisplay.h"

namespace tessarin::testing {

/// A main queue in real time for tests with a real server: the test's thread runs it while it waits.
class LiveMainQueue final : public MainQueue {
 public:
  void async(Work work) override { after(std::chrono::milliseconds(0), std::move(work)); }
  void after(std::chrono::milliseconds delay, Work work) override {
    const std::lock_guard lock(mutex_);
    due_.emplace_back(now() + delay, std::move(work));
    changed_.notify_all();
  }
  Subscription repeat(std::chrono::milliseconds, Work) override { return {}; }
  std::chrono::steady_clock::time_point now() const override { return std::chrono::steady_clock::now(); }

  /// Runs what is due until the condition holds; false when it does not within the time.
  bool runUntil(const std::function<bool()>& condition,
                std::chrono::milliseconds time = std::chrono::seconds(20)) {
    const auto deadline = now() + time;
    while (!condition()) {
      if (now() > deadline) return false;
      runOne();
    }
    return true;
  }

 private:
  void runOne() {
    std::unique_lock lock(mutex_);
    if (due_.empty()) changed_.wait_for(lock, std::chrono::milliseconds(1));
    const auto next = std::ranges::find_if(due_, [this](const auto& job) { return job.first <= now(); });
    if (next == due_.end()) return;
    const Work work = std::move(next->second);
    due_.erase(next);
    lock.unlock();
    work();
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::pair<std::chrono::steady_clock::time_point, Work>> due_;
};

inline std::string repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

/// A display with a document, a typist, and a tap whose owner collects after ":" like the program does:
/// letters pass, Return is swallowed and starts an insertion, anything else ends the collecting.
class TapFixture : public ::testing::Test {
 protected:
  enum class Insertion { direct, paste };

  /// Sets the layout (arguments of setxkbmap) before anybody looks at it.
  void start(const std::vector<std::string>& layout = {"us"}, bool withManager = false);
  void typeAs(Typist::Keyboard device) { typist = std::make_unique<Typist>(display.name(), device); }

  /// Waits until the document is as expected and everything typed has been dealt with.
  void expectDocument(const std::string& expected);
  /// Everything typed has arrived, and what follows it at once has happened.
  void settle(std::chrono::milliseconds time = std::chrono::milliseconds(20));
  KeyVerdict judge(const KeyEvent& event);
  /// Types triggers until one is seen, and leaves an empty document.
  void waitUntilWatching();
  void attend(KeyAttention attention);
  /// Types a trigger and answers it with holding back, so that every key typed after this is kept.
  void holdBack();

  PrivateDisplay display;
  LiveMainQueue queue;
  std::unique_ptr<DocumentWindow> document;
  std::unique_ptr<Typist> typist;
  std::shared_ptr<x11::X11Keyboard> keyboard;
  std::unique_ptr<x11::X11EventTap> tap;
  std::unique_ptr<x11::X11KeyPoster> poster;

  /// Of each key. Longer than the user's, so that a busy machine does not spoil what is not about time.
  std::chrono::milliseconds answerTime = std::chrono::seconds(20);
  std::string watcher = TESSARIN_BINARY_DIR "/tessarin-keywatch";
  Insertion insertion = Insertion::direct;
  std::string trigger = ":";
  std::vector<KeyEvent> seen;
  std::function<void(const KeyEvent&)> onKey;
  int insertions = 0;
  int timeOuts = 0;
  int focusMoves = 0;

 private:
  void insert();
  void finishWhenPasted(int pastes);

  bool isProbing_ = false;
  bool holdNext_ = false;
  bool collecting_ = false;
  int typed_ = 0;
};

}  // namespace tessarin::testing
