#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "update/AppcastSource.h"
#include "update/UpdateUserDriver.h"
#include "update/UpdaterDelegate.h"

namespace tessarin::testing {

/// A server that answers when the test says so.
class FakeAppcastSource final : public AppcastSource {
 public:
  Subscription fetch(const std::string& address, std::function<void(Result)> done) override {
    addresses.push_back(address);
    done_ = std::move(done);
    return Subscription([this] { done_ = nullptr; });
  }
  bool isRunning() const { return static_cast<bool>(done_); }
  void answer(Result result) {
    const auto done = done_;
    ASSERT_TRUE(done) << "nobody asks";
    done(std::move(result));
  }

  std::vector<std::string> addresses;

 private:
  std::function<void(Result)> done_;
};

/// Writes down what the user is shown and answers for the user.
class FakeUpdateUserDriver final : public UpdateUserDriver {
 public:
  void showChecking(std::function<void()> cancelled) override {
    shown.emplace_back("checking");
    cancel = std::move(cancelled);
  }
  void showUpdate(const AppcastItem& item, const std::string& currentVersion, Manner manner,
                  std::function<void(UpdateChoice)> chosen) override {
    shown.push_back("update " + item.displayVersion() + " for " + currentVersion +
                    (manner == Manner::unobtrusive ? " unobtrusively" : ""));
    choose = std::move(chosen);
  }
  void showUpToDate(const std::string& currentVersion) override {
    shown.push_back("up to date at " + currentVersion);
  }
  void showFailure(UpdateFailure failure) override {
    shown.push_back("failure " + std::to_string(static_cast<int>(failure)));
  }
  void focus() override { shown.emplace_back("focus"); }
  void dismiss() override { shown.emplace_back("nothing"); }

  std::vector<std::string> shown;
  std::function<void()> cancel;
  std::function<void(UpdateChoice)> choose;
};

/// A feed of one release a version, each with an address to download it from.
inline std::string feedOf(const std::vector<std::string>& versions) {
  std::string items;
  for (const std::string& version : versions) {
    items += "<item><x:version>" + version + "</x:version><enclosure url='https://example.org/" + version +
             ".tar'/></item>";
  }
  return "<rss xmlns:x='urn:example'><channel>" + items + "</channel></rss>";
}

}  // namespace tessarin::testing
