#include <QAccessible>
#include <QApplication>

#include "Matchers.h"
#include "platform/qt/QtScreens.h"
#include "support/Eventually.h"
#include "ui/PopupContents.h"
#include "ui/PopupWindow.h"

namespace tessarin::ui {
namespace {

using testing::eventually;
using testing::popupWithRows;
using testing::withPicker;

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
class PopupAccessibleTest : public ::testing::Test {
 protected:
  PopupAccessibleTest() {
    QAccessible::installUpdateHandler(hear);
    heard().clear();
  }
  ~PopupAccessibleTest() override { QAccessible::installUpdateHandler(nullptr); }
  void SetUp() override {
    ASSERT_TRUE(eventually([] { return QAccessible::isActive(); }, [] { QApplication::processEvents(); }));
  }
  void show(const PopupContent& content) {
    const QSizeF size = testing::sizeOf(content);
    window.show(content, {200, 400, size.width(), size.height()});
  }
  /// What is heard after the picture stands.
  std::vector<std::string> events(std::size_t count) {
    eventually([count] { return heard().size() >= count; }, [] { QApplication::processEvents(); });
    return std::exchange(heard(), {});
  }
  QAccessibleInterface* popup() { return QAccessible::queryAccessibleInterface(&window); }
  static std::vector<std::string> names(QAccessibleInterface* parent) {
    std::vector<std::string> result;
    for (int i = 0; i < parent->childCount(); ++i) {
      result.push_back(parent->child(i)->text(QAccessible::Name).toStdString());
    }
    return result;
  }

  QtScreens screens;
  PopupWindow window{screens};
};

TEST_F(PopupAccessibleTest, ShowsItsRowsAsAListInWhichAPressIsAClick) {
  std::vector<int> clicked;
  window.onRowClicked([&](int index) { clicked.push_back(index); });
  show(popupWithRows(2, 1));
  QAccessibleInterface* list = popup()->child(0);
  EXPECT_EQ(list->role(), QAccessible::List);
  EXPECT_THAT(names(list), ElementsAre("wave0, waving hand 0", "wave1, waving hand 1"));
  QAccessibleInterface* row = list->child(1);
  EXPECT_EQ(row->role(), QAccessible::ListItem);
  EXPECT_EQ(row->text(QAccessible::Description), "👋");
  EXPECT_TRUE(row->state().selected);
  EXPECT_FALSE(list->child(0)->state().selected);
  EXPECT_EQ(list->childAt(row->rect().center().x(), row->rect().center().y()), row);
  ASSERT_NE(row->actionInterface(), nullptr);
  row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_THAT(clicked, ElementsAre(1));
}

TEST_F(PopupAccessibleTest, SaysWhatIsSelectedAndNeverTakesTheFocus) {
  show(popupWithRows(8));
  EXPECT_THAT(heard(), IsEmpty()) << "the picture comes first";
  EXPECT_THAT(events(2), ElementsAre("selected wave0, waving hand 0", "said wave0, waving hand 0, 1 of 8"));
  show(popupWithRows(8, 1));
  EXPECT_THAT(events(3), ElementsAre("unselected wave0, waving hand 0", "selected wave1, waving hand 1",
                                     "said wave1, waving hand 1, 2 of 8"));
  auto content = withPicker(popupWithRows(8, 1));
  content.skinToneSelectedIndex = 1;
  show(content);
  EXPECT_THAT(events(2), ElementsAre("selected light skin tone", "said light skin tone, 2 of 6"));
}

TEST_F(PopupAccessibleTest, ItemsOfAnEarlierListAreGone) {
  show(popupWithRows(8));
  events(2);
  const auto former = QAccessible::uniqueId(popup()->child(0)->child(0));
  show(popupWithRows(3));
  events(2);
  EXPECT_EQ(QAccessible::accessibleInterface(former), nullptr);
  EXPECT_EQ(popup()->child(0)->childCount(), 3);
}

}  // namespace
}  // namespace tessarin::ui
