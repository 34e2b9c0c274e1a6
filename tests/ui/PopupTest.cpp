#include <QAccessible>
#include <QApplication>
#include <cstdlib>

#include "Matchers.h"
#include "platform/qt/QtScreens.h"
#include "support/Eventually.h"
#include "support/desktop/XClient.h"
#include "ui/EmojiGlyphs.h"
#include "ui/PopupLayout.h"
#include "ui/PopupWindow.h"

namespace tessarin::ui {
namespace {

using testing::eventually;

/// Content with that many rows, whose emoji take skin tones.
PopupContent popupWithRows(int count, int selected = 0) {
  PopupContent content;
  content.triggerCharacter = ":";
  content.query = "wa";
  content.selectedIndex = selected;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    content.rows.push_back({number, "👋", "wave" + number, "waving hand " + number, true});
  }
  if (count > 0) content.hints = {{"↑↓", "navigate"}, {"↵", "select"}, {":", "confirm"}, {"esc", "cancel"}};
  return content;
}

/// What a popup with this content needs.
QSizeF sizeOf(const PopupContent& content) {
  return PopupLayout::sizeFor(static_cast<int>(content.rows.size()));
}

PopupContent withPicker(PopupContent content) {
  content.skinToneMode = true;
  content.skinToneVariants = {"👋", "👋🏻", "👋🏼", "👋🏽", "👋🏾", "👋🏿"};
  return content;
}

PopupLayout layoutOf(const PopupContent& content) {
  return {content, sizeOf(content)};
}

TEST(PopupLayout, CentresTheSelectedRowAsFarAsTheListReaches) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  EXPECT_EQ(layout.scrollCentring(0), 0);
  EXPECT_EQ(layout.scrollCentring(7), layout.maxScroll());
  const double scroll = layout.scrollCentring(4);
  EXPECT_EQ(layout.row(4, scroll).center().y(), layout.list().center().y());
}

TEST(PopupLayout, FindsRowsInsideTheListAndVariants) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  const double scroll = 18;
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 17}, scroll), ::testing::Optional(0));
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 18}, scroll), ::testing::Optional(1));
  EXPECT_EQ(layout.rowAt(layout.picker().center(), scroll), std::nullopt);
  EXPECT_EQ(layout.rowAt(layout.footer().center(), scroll), std::nullopt);
  for (int i = 0; i < 6; ++i)
    EXPECT_THAT(layout.variantAt(layout.variant(i).center()), ::testing::Optional(i));
  EXPECT_EQ(layout.variantAt(layout.variant(0).topRight() + QPointF(2, 2)), std::nullopt) << "between cells";
}

TEST(EmojiGlyphs, ATileStandsForWhatNoFontDraws) {
  EmojiGlyphs glyphs;
  for (const char* drawn : {"😀", "1️⃣", "🏴󠁧󠁢󠁥󠁮󠁧󠁿",
                            "👩🏽‍❤️‍💋‍👨🏿", "¯\\_(ツ)_/¯"}) {
    EXPECT_FALSE(glyphs.needsTile(QString::fromUtf8(drawn))) << drawn;
  }
  for (const char* unknown : {"\U0001FAFF", "😀\u200D🎺"}) {
    EXPECT_TRUE(glyphs.needsTile(QString::fromUtf8(unknown))) << unknown;
  }
}

/// A popup whose top left corner is at the pixel (200, 100) of the test program's display.
class PopupWindowTest : public ::testing::Test {
 protected:
  PopupWindowTest() {
    client.movePointer(0, 0);
    window.onRowClicked([this](int index) { rows.push_back(index); });
    window.onVariantClicked([this](int index) { variants.push_back(index); });
  }

  void present(const PopupContent& content) {
    const QSizeF size = sizeOf(content);
    layout = PopupLayout(content, size);
    window.show(content, {200, 1024 - 100 - size.height(), size.width(), size.height()});
  }
  void show(const PopupContent& content) {
    present(content);
    ASSERT_TRUE(becomes([this] { return client.popup() == window.nativeWindow(); }));
  }
  template <class Condition>
  bool becomes(Condition condition) {
    return eventually(condition, [] { QApplication::processEvents(); });
  }
  void clickAt(QPointF point) {
    client.click(200 + static_cast<int>(point.x()), 100 + static_cast<int>(point.y()));
  }

  testing::XClient client{std::getenv("DISPLAY")};
  QtScreens screens;
  PopupWindow window{screens};
  PopupLayout layout;
  std::vector<int> rows;
  std::vector<int> variants;
};

TEST_F(PopupWindowTest, TellsTheRowAndTheVariantThatAreClickedAndMayBeHiddenByIt) {
  const auto focused = client.focusedWindow();
  show(withPicker(popupWithRows(8)));
  EXPECT_EQ(client.frameOf(window.nativeWindow()), (Rect{200, 100, 320, 352}));
  window.onRowClicked([this](int index) {
    rows.push_back(index);
    window.hide();
    window.onRowClicked({});
  });
  for (const QPointF place : {layout.header().center(), layout.footer().center(), layout.variant(4).center(),
                              layout.row(5, 0).center()}) {
    clickAt(place);
  }
  EXPECT_TRUE(becomes([this] { return !client.popup(); }));
  EXPECT_THAT(rows, ElementsAre(5));
  EXPECT_THAT(variants, ElementsAre(4));
  EXPECT_EQ(client.focusedWindow(), focused);
  EXPECT_FALSE(window.isActiveWindow());
}

TEST_F(PopupWindowTest, TheWheelMovesTheListAndClicksFollowIt) {
  show(withPicker(popupWithRows(8)));
  client.movePointer(300, 100 + static_cast<int>(layout.list().center().y()));
  client.press(XCB_BUTTON_INDEX_5);
  EXPECT_TRUE(becomes([this] { return window.scroll() == 36; })) << window.scroll();
  clickAt(layout.row(1, 36).center());
  EXPECT_TRUE(becomes([this] { return !rows.empty(); }));
  EXPECT_THAT(rows, ElementsAre(1));
}

TEST_F(PopupWindowTest, PaintedAheadShowsTheSame) {
  const auto picture = [this] { return window.grab().toImage(); };
  const PopupContent before = popupWithRows(3, 1);
  const PopupContent after = popupWithRows(3, 2);
  show(before);
  const QImage first = picture();
  show(after);
  const QImage second = picture();
  ASSERT_NE(first, second);
  window.prepare(before);
  EXPECT_EQ(picture(), second) << "not shown yet";
  show(before);
  EXPECT_EQ(picture(), first);
  show(after);
  EXPECT_EQ(picture(), second) << "something else was shown than was painted";
}

/// "event role name" of each event.
std::vector<std::string>& heard() {
  static std::vector<std::string> events;
  return events;
}

void hear(QAccessibleEvent* event) {
  const std::pair<QAccessible::Event, const char*> wanted[] = {{QAccessible::Selection, "selected"},
                                                               {QAccessible::SelectionRemove, "unselected"},
                                                               {QAccessible::ObjectShow, "said"},
                                                               {QAccessible::Focus, "focused"},
                                                               {QAccessible::ForegroundChanged, "activated"}};
  for (const auto& [type, word] : wanted) {
    if (event->type() != type) continue;
    heard().push_back(word + (" " + event->accessibleInterface()->text(QAccessible::Name).toStdString()));
  }
}

/// A popup with assistive technologies at work.
class PopupAccessibleTest : public PopupWindowTest {
 protected:
  PopupAccessibleTest() {
    QAccessible::installUpdateHandler(hear);
    heard().clear();
  }
  ~PopupAccessibleTest() override { QAccessible::installUpdateHandler(nullptr); }

  void SetUp() override {
    ASSERT_TRUE(becomes([] { return QAccessible::isActive(); }));
  }
  /// What is heard after the picture stands.
  std::vector<std::string> events(std::size_t count) {
    becomes([count] { return heard().size() >= count; });
    return std::exchange(heard(), {});
  }
  QAccessibleInterface* popup() { return QAccessible::queryAccessibleInterface(&window); }
};

TEST_F(PopupAccessibleTest, ShowsItsRowsAsAListInWhichAPressIsAClick) {
  present(popupWithRows(2, 1));
  QAccessibleInterface* list = popup()->child(0);
  EXPECT_EQ(list->role(), QAccessible::List);
  EXPECT_EQ(list->childCount(), 2);
  EXPECT_EQ(list->child(0)->text(QAccessible::Name), "wave0, waving hand 0");
  QAccessibleInterface* row = list->child(1);
  EXPECT_EQ(row->role(), QAccessible::ListItem);
  EXPECT_EQ(row->text(QAccessible::Description), "👋");
  EXPECT_TRUE(row->state().selected);
  EXPECT_FALSE(list->child(0)->state().selected);
  EXPECT_EQ(list->childAt(row->rect().center().x(), row->rect().center().y()), row);
  ASSERT_NE(row->actionInterface(), nullptr);
  row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_THAT(rows, ElementsAre(1));
}

TEST_F(PopupAccessibleTest, SaysWhatIsSelectedAndNeverTakesTheFocus) {
  present(popupWithRows(8));
  EXPECT_THAT(heard(), IsEmpty()) << "the picture comes first";
  EXPECT_THAT(events(2), ElementsAre("selected wave0, waving hand 0", "said wave0, waving hand 0, 1 of 8"));
  present(popupWithRows(8, 1));
  EXPECT_THAT(events(3), ElementsAre("unselected wave0, waving hand 0", "selected wave1, waving hand 1",
                                     "said wave1, waving hand 1, 2 of 8"));
  present(popupWithRows(8, -1));
  EXPECT_THAT(events(2), ElementsAre("unselected wave1, waving hand 1", "said 8 matches"));
  auto content = withPicker(popupWithRows(8, 1));
  content.skinToneSelectedIndex = 1;
  present(content);
  EXPECT_THAT(events(2), ElementsAre("selected light skin tone", "said light skin tone, 2 of 6"));
}

TEST_F(PopupAccessibleTest, ItemsOfAnEarlierListAreGone) {
  present(popupWithRows(8));
  events(2);
  const auto former = QAccessible::uniqueId(popup()->child(0)->child(0));
  present(popupWithRows(3));
  events(2);
  EXPECT_EQ(QAccessible::accessibleInterface(former), nullptr);
  EXPECT_EQ(popup()->child(0)->childCount(), 3);
}

}  // namespace
}  // namespace tessarin::ui
