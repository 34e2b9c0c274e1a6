#pragma once

#include <gtest/gtest.h>

#include "platform/Pasteboard.h"

namespace tessarin::testing {

/// How a Pasteboard behaves, whoever implements it. `World` offers:
///   Pasteboard& pasteboard();
///   void copyElsewhere(std::vector<PasteboardItem>);          another program copies
///   std::optional<std::string> pasteIntoFocusedApplication(); it reads the plain text to its end
///   bool waitFor(condition);                                  lets the main queue run until it holds
template <class World>
class PasteboardSuite : public ::testing::Test {
 protected:
  std::shared_ptr<const PasteboardSnapshot> snapshot() {
    std::shared_ptr<const PasteboardSnapshot> taken;
    world.pasteboard().snapshot(
        [&taken](std::shared_ptr<const PasteboardSnapshot> ready) { taken = std::move(ready); });
    EXPECT_TRUE(world.waitFor([&taken] { return taken && taken->isComplete; }));
    return taken;
  }

  World world;
};

TYPED_TEST_SUITE_P(PasteboardSuite);

TYPED_TEST_P(PasteboardSuite, GivesWhatAnotherProgramCopied) {
  const std::vector<PasteboardItem> items = {
      {"text/html", "<b>b</b>"}, {"UTF8_STRING", "b"}, {"image/png", std::string("\0\x89PNG\0", 6)}};
  this->world.copyElsewhere(items);
  EXPECT_EQ(this->snapshot()->items, items);
  EXPECT_EQ(this->world.pasteboard().string(), "b");
  this->world.copyElsewhere({{"image/png", "png"}});
  EXPECT_EQ(this->world.pasteboard().string(), std::nullopt);
}

TYPED_TEST_P(PasteboardSuite, PutsItemsBackAsTheyWere) {
  const std::vector<PasteboardItem> items = {{"text/uri-list", "file:///a\r\n"}, {"UTF8_STRING", "/a"}};
  this->world.pasteboard().writeText("for one paste");
  this->world.pasteboard().write(items);
  EXPECT_EQ(this->snapshot()->items, items);
  this->world.pasteboard().write({});
  EXPECT_TRUE(this->snapshot()->items.empty());
  EXPECT_EQ(this->world.pasteboard().string(), std::nullopt);
}

TYPED_TEST_P(PasteboardSuite, CountsEveryChangeByWhomeverItIs) {
  Pasteboard& pasteboard = this->world.pasteboard();
  auto before = pasteboard.changeCount();
  this->world.copyElsewhere({{"UTF8_STRING", "b"}});
  EXPECT_TRUE(this->world.waitFor([&] { return pasteboard.changeCount() > before; }));
  for (const bool isText : {true, false}) {
    before = pasteboard.changeCount();
    isText ? pasteboard.writeText("c") : pasteboard.write({});
    EXPECT_GT(pasteboard.changeCount(), before);
  }
  before = pasteboard.changeCount();
  this->snapshot();
  EXPECT_EQ(pasteboard.changeCount(), before);
}

TYPED_TEST_P(PasteboardSuite, TellsWhenTheTextWasRead) {
  Pasteboard& pasteboard = this->world.pasteboard();
  int told = 0;
  pasteboard.onRead([&told] { ++told; });
  pasteboard.writeText("😀");
  EXPECT_FALSE(pasteboard.hasBeenRead());
  EXPECT_EQ(this->world.pasteIntoFocusedApplication(), "😀");
  EXPECT_TRUE(this->world.waitFor([&] { return told == 1; }));
  EXPECT_TRUE(pasteboard.hasBeenRead());
  pasteboard.onRead({});
  pasteboard.writeText("another");
  EXPECT_FALSE(pasteboard.hasBeenRead());
  this->world.pasteIntoFocusedApplication();
  EXPECT_TRUE(this->world.waitFor([&] { return pasteboard.hasBeenRead(); }));
  EXPECT_EQ(told, 1) << "forgotten meanwhile";
}

REGISTER_TYPED_TEST_SUITE_P(PasteboardSuite, GivesWhatAnotherProgramCopied, PutsItemsBackAsTheyWere,
                            CountsEveryChangeByWhomeverItIs, TellsWhenTheTextWasRead);

}  // namespace tessarin::testing
