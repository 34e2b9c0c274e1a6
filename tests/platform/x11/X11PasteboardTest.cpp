#include <cstdlib>
#include <thread>

#include "SelectionPeer.h"
#include "platform/x11/SelectionTargets.h"
#include "platform/x11/X11Selections.h"
#include "support/Eventually.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/desktop/PrivateDisplay.h"

namespace tessarin::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Not;
using Manner = SelectionPeer::Manner;
using Items = std::vector<PasteboardItem>;
using SnapshotRef = std::shared_ptr<const PasteboardSnapshot>;

const PrivateDisplay& display() {
  static const PrivateDisplay shared;
  return shared;
}

/// Bytes of every value, so that nothing that treats some of them in its own way goes unnoticed.
std::string blob(std::size_t size) {
  std::string bytes(size, '\0');
  std::uint32_t state = 1;
  for (char& byte : bytes) {
    state = state * 1664525 + 1013904223;
    byte = static_cast<char>(state >> 24);
  }
  return bytes;
}

struct X11PasteboardWorld {
  Pasteboard& pasteboard() { return selections->general(); }
  void copyElsewhere(Items items) {
    peer.own("CLIPBOARD", std::move(items));
    pasteboard().string();  // the news of it, which travels by itself, has come before this answer
  }
  bool waitFor(auto condition) {
    return eventually(condition, [this] { queue.runReady(); });
  }
  SnapshotRef startSnapshot() {
    SnapshotRef ready;
    selections->general().snapshot([&ready](SnapshotRef taken) { ready = std::move(taken); });
    waitFor([&ready] { return ready != nullptr; });
    return ready;
  }
  SnapshotRef wholeSnapshot() {
    auto taken = startSnapshot();
    waitFor([&taken] { return taken->isComplete; });
    return taken;
  }

  ManualMainQueue queue;
  std::unique_ptr<x11::X11Selections> selections = x11::X11Selections::connect(queue, display().name());
  SelectionPeer peer{display().name()};
};

class X11PasteboardTest : public ::testing::Test {
 protected:
  Pasteboard& pasteboard() { return world.pasteboard(); }
  SelectionPeer& peer() { return world.peer; }
  /// By now, as everything that has happened so far has been dealt with.
  bool hasBeenRead() {
    pasteboard().string();
    world.queue.runReady();
    return pasteboard().hasBeenRead();
  }
  bool becomesRead() {
    return world.waitFor([this] { return pasteboard().hasBeenRead(); });
  }

  X11PasteboardWorld world;
};

Items fortyTypes() {
  Items items;
  for (std::size_t i = 0; i < 40; ++i) {
    items.push_back({"application/x-type-" + std::to_string(i), blob(i * 1000)});
  }
  return items;
}

TEST_F(X11PasteboardTest, PutsBackEveryByteInOrder) {
  const struct {
    const char* name;
    Items items;
    std::size_t pieceSize = 0;
  } cases[] = {
      {"text", {{"UTF8_STRING", "Grüße 👋🏽\n"}, {"STRING", "Gr\xfc\xdf"}}},
      {"empty text", {{"UTF8_STRING", ""}}},
      {"HTML and text", {{"text/html", std::string("<p>a\0b</p>", 10)}, {"text/plain;charset=utf-8", "ab"}}},
      {"picture", {{"image/png", blob(5'000'000)}}},
      {"picture in pieces", {{"image/png", blob(5'000'000)}, {"text/html", blob(70'000)}}, 65'536},
      {"files",
       {{"x-special/gnome-copied-files", "copy\nfile:///a%20b"}, {"text/uri-list", "file:///a%20b\r\n"}}},
      {"forty types", fortyTypes()},
      {"forty types in pieces", fortyTypes(), 10'000},
      {"secret", {{"UTF8_STRING", "pass"}, {"x-kde-passwordManagerHint", "secret"}}},
  };
  for (const auto& [name, items, pieceSize] : cases) {
    SCOPED_TRACE(name);
    X11PasteboardWorld fresh;
    fresh.peer.setPieceSize(pieceSize);
    fresh.peer.own("CLIPBOARD", items);
    const auto saved = fresh.wholeSnapshot();
    ASSERT_EQ(saved->items, items);
    fresh.pasteboard().writeText("for one paste");
    fresh.pasteboard().write(saved->items);
    auto offered = fresh.peer.targets("CLIPBOARD");
    std::erase_if(offered, [](const std::string& type) { return !x11::isContentTarget(type); });
    ASSERT_EQ(offered.size(), items.size());
    for (std::size_t i = 0; i < offered.size(); ++i) {
      EXPECT_EQ(offered[i], items[i].type);
      EXPECT_TRUE(fresh.peer.read("CLIPBOARD", offered[i]) == items[i].data) << offered[i];
    }
  }
}

TEST_F(X11PasteboardTest, PutsBackTextUnderTheTypeThatItHad) {
  ManualMainQueue otherQueue;
  const auto other = x11::X11Selections::connect(otherQueue, display().name());
  other->general().writeText("é");  // its TEXT says that it is UTF-8
  const auto saved = world.wholeSnapshot();
  pasteboard().writeText("for one paste");
  pasteboard().write(saved->items);
  EXPECT_EQ(peer().read("CLIPBOARD", "TEXT"), "é");
  EXPECT_EQ(peer().lastReadType(), "UTF8_STRING");
}

TEST_F(X11PasteboardTest, KeepsTheTwoSelectionsApartAndForgetsWhatAnotherProgramTakes) {
  world.selections->primary().writeText("selected");
  pasteboard().writeText("copied");
  EXPECT_EQ(peer().read("PRIMARY", "UTF8_STRING"), "selected");
  EXPECT_EQ(peer().read("CLIPBOARD", "UTF8_STRING"), "copied");
  world.copyElsewhere({{"UTF8_STRING", "theirs"}});
  EXPECT_EQ(pasteboard().string(), "theirs");
  EXPECT_EQ(world.selections->primary().string(), "selected");
}

TEST_F(X11PasteboardTest, OffersTextInEveryUsualForm) {
  pasteboard().writeText("é");
  EXPECT_THAT(peer().targets("CLIPBOARD"),
              IsSupersetOf({"TARGETS", "TIMESTAMP", "MULTIPLE", "UTF8_STRING", "text/plain;charset=utf-8",
                            "text/plain", "TEXT", "STRING", "x-kde-passwordManagerHint"}));
  EXPECT_EQ(peer().read("CLIPBOARD", "STRING"), "\xe9");
  EXPECT_EQ(peer().read("CLIPBOARD", "TEXT"), "é");
  EXPECT_EQ(peer().read("CLIPBOARD", "x-kde-passwordManagerHint"), "secret");
  EXPECT_EQ(peer().read("CLIPBOARD", "image/png"), std::nullopt);
  const std::map<std::string, std::string> several = {{"UTF8_STRING", "é"}, {"STRING", "\xe9"}};
  EXPECT_EQ(peer().readMultiple("CLIPBOARD", {"UTF8_STRING", "image/png", "STRING"}), several);
  pasteboard().writeText("😀");
  EXPECT_THAT(peer().targets("CLIPBOARD"), Not(Contains("STRING")));
}

TEST_F(X11PasteboardTest, ReadsOlderForms) {
  const PasteboardItem forms[] = {{"STRING", "caf\xe9"},
                                  {"text/plain;charset=utf-8", "café"},
                                  {"text/plain", "café"},
                                  {"text/plain", "caf\xe9"}};
  for (const PasteboardItem& form : forms) {
    peer().own("CLIPBOARD", {form});
    EXPECT_EQ(pasteboard().string(), "café") << form.type;
  }
  peer().setPieceSize(1000);
  peer().own("CLIPBOARD", {{"UTF8_STRING", std::string(9999, 'x')}});
  EXPECT_EQ(pasteboard().string(), std::string(9999, 'x'));
}

TEST_F(X11PasteboardTest, AsksForNothingThatHasEffects) {
  peer().own("CLIPBOARD", {{"UTF8_STRING", "b"}});
  world.wholeSnapshot();
  EXPECT_THAT(peer().requestedTargets(), ElementsAre("TARGETS", "UTF8_STRING"));
}

TEST_F(X11PasteboardTest, AsksBlindlyAnOwnerThatDoesNotSayWhatItHas) {
  peer().own("CLIPBOARD", {{"UTF8_STRING", "b"}, {"text/html", "<b>"}}, Manner::noTargets);
  EXPECT_THAT(world.wholeSnapshot()->items,
              ElementsAre(PasteboardItem{"UTF8_STRING", "b"}, PasteboardItem{"text/html", "<b>"}));
}

TEST_F(X11PasteboardTest, LosesPatienceWithAHungOwner) {
  LogRecorder log;
  peer().own("CLIPBOARD", {{"UTF8_STRING", "secret words"}}, Manner::silent);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(pasteboard().string(), std::nullopt);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 190ms);
  const auto taken = world.startSnapshot();
  EXPECT_FALSE(taken->isComplete);
  EXPECT_THAT(taken->items, IsEmpty());
  EXPECT_TRUE(world.waitFor([&] { return taken->isComplete; }));
  EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("were not delivered in time")));
  EXPECT_THAT(log.lines().front(), Not(HasSubstr("secret")));
}

TEST_F(X11PasteboardTest, FillsTheSnapshotAfterTheSelectionHasChangedHands) {
  const Items items = {{"UTF8_STRING", "b"}, {"text/html", blob(100'000)}, {"image/png", blob(1000)}};
  for (const Manner manner : {Manner::silent, Manner::onlyTargets}) {
    SCOPED_TRACE(static_cast<int>(manner));
    X11PasteboardWorld fresh;
    fresh.peer.own("CLIPBOARD", items, manner);
    const auto taken = fresh.startSnapshot();
    ASSERT_FALSE(taken->isComplete);
    fresh.pasteboard().writeText("ours");
    fresh.peer.becomePrompt();
    EXPECT_TRUE(fresh.waitFor([&] { return taken->isComplete; }));
    EXPECT_EQ(taken->items, items);
    EXPECT_EQ(fresh.pasteboard().string(), "ours");
  }
}

TEST_F(X11PasteboardTest, KeepsWhatAnOwnerDeliveredBeforeItEnded) {
  auto leaving = std::make_unique<SelectionPeer>(display().name());
  leaving->own("CLIPBOARD", {{"UTF8_STRING", "first"}, {"text/html", "second"}}, Manner::leavesMidway);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_THAT(world.wholeSnapshot()->items, ElementsAre(PasteboardItem{"UTF8_STRING", "first"}));
  EXPECT_LT(std::chrono::steady_clock::now() - start, 900ms);
}

TEST_F(X11PasteboardTest, CountsOneChangeForEachWrite) {
  for (int i = 0; i < 20; ++i) {
    const auto before = pasteboard().changeCount();
    i % 3 == 0 ? pasteboard().write({}) : pasteboard().writeText("text");
    pasteboard().string();  // later news of our own writing would have come by now
    EXPECT_EQ(pasteboard().changeCount(), before + 1);
  }
  const auto before = pasteboard().changeCount();
  world.copyElsewhere({{"image/png", "png"}});
  EXPECT_TRUE(world.waitFor([&] { return pasteboard().changeCount() > before; }));
  EXPECT_EQ(pasteboard().string(), std::nullopt);
  pasteboard().write({});
  EXPECT_TRUE(world.wholeSnapshot()->items.empty());
}

TEST_F(X11PasteboardTest, CountsOnlyTheFocusedProgramReadingTheText) {
  SelectionPeer other(display().name());
  int told = 0;
  pasteboard().onRead([&told] { ++told; });
  peer().takeFocus();
  pasteboard().writeText("the text before, whose read does not count for the next");
  peer().read("CLIPBOARD", "UTF8_STRING");
  pasteboard().writeText("text");
  other.read("CLIPBOARD", "UTF8_STRING");
  peer().targets("CLIPBOARD");
  peer().read("CLIPBOARD", "x-kde-passwordManagerHint");
  EXPECT_FALSE(hasBeenRead());
  EXPECT_EQ(pasteboard().textRequestCount(), 1) << "the other's, of the text";
  peer().read("CLIPBOARD", "text/plain");
  EXPECT_TRUE(becomesRead());
  EXPECT_EQ(told, 1) << "of the latest text";
  pasteboard().onRead({});
  pasteboard().writeText("next");
  other.takeFocus();
  peer().read("CLIPBOARD", "UTF8_STRING");
  EXPECT_TRUE(becomesRead()) << "it had the focus when the text was written";
}

TEST_F(X11PasteboardTest, TellsHowChromiumReads) {
  using enum ReadManner;
  pasteboard().writeText("text");
  const auto listed = [this] {
    peer().read("CLIPBOARD", "TARGETS", -1, "CHROME_SELECTION");
    return pasteboard().readManner();
  };
  const auto asked = [&](int lists) {
    for (int i = 0; i < lists; ++i) listed();
    peer().read("CLIPBOARD", "UTF8_STRING", -1, "CHROME_SELECTION");
    return pasteboard().readManner();
  };
  EXPECT_EQ(asked(1), ahead) << "its own process";
  EXPECT_EQ(asked(9), checking) << "the page's";
  pasteboard().writeText("text");
  EXPECT_EQ(asked(9), checking) << "where nobody reads ahead";
  for (const auto manner : {checking, checking, checking, checked}) EXPECT_EQ(listed(), manner);
  pasteboard().writeText("text");
  peer().read("CLIPBOARD", "TARGETS");
  EXPECT_EQ(asked(3), ahead) << "somebody else has asked before";
  EXPECT_EQ(listed(), likely) << "an address bar asks once more";
  EXPECT_EQ(listed(), ahead) << "a page goes on";
}

TEST_F(X11PasteboardTest, CountsLargeTextOnlyWhenItWasReadToTheEnd) {
  const std::string text(2'000'000, 'x');
  peer().takeFocus();
  pasteboard().writeText(text);
  peer().read("CLIPBOARD", "UTF8_STRING", 2);
  EXPECT_FALSE(hasBeenRead());
  {
    SelectionPeer leaving(display().name());
    leaving.takeFocus();
    leaving.read("CLIPBOARD", "UTF8_STRING", 2);
  }
  EXPECT_FALSE(hasBeenRead()) << "nor by one that ended on the way";
  EXPECT_TRUE(peer().read("CLIPBOARD", "UTF8_STRING") == text);
  EXPECT_TRUE(becomesRead());
}

TEST_F(X11PasteboardTest, HandsOverToTheClipboardManagerAtTheEnd) {
  SelectionPeer manager(display().name());
  manager.own("CLIPBOARD_MANAGER", {{"SAVE_TARGETS", ""}}, Manner::silent);
  pasteboard().write({{"UTF8_STRING", "kept"}});
  std::thread ending([&] { world.selections->shutdown(); });
  EXPECT_TRUE(eventually([&] { return manager.requests() == 1; }));
  EXPECT_EQ(manager.read("CLIPBOARD", "UTF8_STRING"), "kept");
  manager.becomePrompt();
  ending.join();
  EXPECT_THAT(manager.requestedTargets(), ElementsAre("SAVE_TARGETS"));
}

TEST_F(X11PasteboardTest, OffersNoSecretToAClipboardManagerAndWaitsForNoneThatHangs) {
  for (const bool isSecret : {true, false}) {
    LogRecorder log;
    X11PasteboardWorld ending;
    SelectionPeer manager(display().name());
    manager.own("CLIPBOARD_MANAGER", {}, Manner::silent);
    isSecret ? ending.pasteboard().writeText("for one paste")
             : ending.pasteboard().write({{"UTF8_STRING", "kept"}});
    ending.selections->shutdown();
    EXPECT_EQ(manager.requests(), isSecret ? 0U : 1U);
    if (isSecret) continue;
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("did not take over")));
  }
}

TEST(X11Selections, AnswersThatThereIsNoServer) {
  ManualMainQueue queue;
  EXPECT_EQ(x11::X11Selections::connect(queue, ":99999"), nullptr);
}

}  // namespace
}  // namespace tessarin::testing
