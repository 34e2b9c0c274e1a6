#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTextBrowser>

#include "Matchers.h"
#include "platform/qt/TestApplication.h"
#include "support/FakeDesktop.h"
#include "ui/update/ReleaseNotesHtml.h"
#include "ui/update/UpdateWindows.h"

namespace tessarin::ui {
namespace {

using testing::eventuallyInLoop;

class WindowsAboutUpdates : public ::testing::Test {
 protected:
  WindowsAboutUpdates() { testing::ensureApplication(); }

  static std::vector<QDialog*> shown() {
    std::vector<QDialog*> dialogs;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* dialog = qobject_cast<QDialog*>(widget);
      if (dialog != nullptr && dialog->isVisible()) dialogs.push_back(dialog);
    }
    return dialogs;
  }
  static QDialog& dialog() {
    const auto dialogs = shown();
    if (dialogs.size() != 1) throw std::runtime_error(std::to_string(dialogs.size()) + " windows");
    return *dialogs[0];
  }
  static std::string texts() {
    QStringList all;
    for (const QLabel* label : dialog().findChildren<QLabel*>()) all << label->text();
    return all.join("|").toStdString();
  }
  static QAbstractButton& button(const QString& text) {
    for (QAbstractButton* button : dialog().findChildren<QAbstractButton*>()) {
      if (button->text().remove('&') == text) return *button;
    }
    throw std::runtime_error("no button " + text.toStdString());
  }
  static void clickButton(const QString& text) { QTest::mouseClick(&button(text), Qt::LeftButton); }
  void offer(const std::string& notes = "New things", const std::string& version = "1.3",
             UpdateUserDriver::Manner manner = UpdateUserDriver::Manner::inFront) {
    AppcastItem item;
    item.version = version;
    item.notes = notes;
    windows.showUpdate(item, "1.2", manner, [this](UpdateChoice choice) { choices.push_back(choice); });
  }
  void check() {
    windows.showChecking([this] { ++cancelled; });
  }

  testing::FakeWorkspace workspace;
  UpdateWindows windows{workspace};
  std::vector<UpdateChoice> choices;
  int cancelled = 0;
};

TEST_F(WindowsAboutUpdates, CancelACheckByButtonEscapeAndClosing) {
  const std::function<void()> ways[] = {[] { clickButton("Cancel"); },
                                        [] { QTest::keyClick(&dialog(), Qt::Key_Escape); },
                                        [] { dialog().close(); }};
  for (const auto& cancel : ways) {
    const int before = cancelled;
    check();
    cancel();
    EXPECT_EQ(cancelled, before + 1) << &cancel - ways;
    EXPECT_THAT(shown(), IsEmpty());
  }
}

TEST_F(WindowsAboutUpdates, ReplaceOneAnotherWithoutACallbackAndPushForwardOnlyWhatWasAskedFor) {
  check();
  offer();
  check();
  windows.showUpToDate("1.2");
  EXPECT_TRUE(eventuallyInLoop([this] { return dialog().isActiveWindow(); }));
  offer("x", "1.3", UpdateUserDriver::Manner::unobtrusive);
  EXPECT_TRUE(dialog().testAttribute(Qt::WA_ShowWithoutActivating));
  windows.dismiss();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(cancelled, 0);
  EXPECT_THAT(choices, IsEmpty());
}

TEST_F(WindowsAboutUpdates, TakeAnAnswerByButtonsAndKeys) {
  for (const char* text : {"Skip This Version", "Remind Me Later", "Download…"}) {
    offer();
    clickButton(text);
    EXPECT_THAT(shown(), IsEmpty());
  }
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    offer();
    QTest::keyClick(&dialog(), key);
  }
  EXPECT_THAT(choices, ElementsAre(UpdateChoice::skip, UpdateChoice::later, UpdateChoice::download,
                                   UpdateChoice::download, UpdateChoice::later));
}

TEST_F(WindowsAboutUpdates, TellTheNotesAndBothVersionsAsPlainTextOfBoundedLength) {
  offer("<h1>New</h1><p>Things</p>");
  EXPECT_THAT(texts(), HasSubstr("Tessarin 1.3 can be downloaded now. This is version 1.2."));
  EXPECT_EQ(dialog().findChild<QTextBrowser*>()->toPlainText(), "New\nThings");
  offer("a < b & c\nd");
  EXPECT_EQ(dialog().findChild<QTextBrowser*>()->toPlainText(), "a < b & c\nd");
  offer("", "<b>2</b>\n" + std::string(5000, '1'));
  EXPECT_THAT(texts(), HasSubstr("Tessarin <b>2</b> 111"));
  EXPECT_LT(texts().size(), 300u);
}

/// Where the text begins, in the coordinates of the widget that draws it.
QPoint placeOf(const QTextBrowser& view, const QString& text) {
  const QTextCursor found = view.document()->find(text);
  QTextCursor start(view.document());
  start.setPosition(found.selectionStart() + 1);
  return view.cursorRect(start).center();
}

TEST_F(WindowsAboutUpdates, OpenNoLinkButAnHttpsOne) {
  offer(
      "<p><a href='https://example.org/a?b=c'>safe</a></p><p><a href='http://example.org/'>plain</a></p>"
      "<p><a href='file:///etc/passwd'>file</a></p><p><a href='javascript:alert(1)'>script</a></p>"
      "<p><a href='relative'>relative</a></p>");
  auto& view = *dialog().findChild<QTextBrowser*>();
  for (const char* link : {"plain", "file", "script", "relative"})
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, placeOf(view, link));
  EXPECT_THAT(workspace.openedUrls, IsEmpty());
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, placeOf(view, "safe"));
  EXPECT_THAT(workspace.openedUrls, ElementsAre("https://example.org/a?b=c"));
  EXPECT_THAT(choices, IsEmpty());
}

TEST(ReleaseNotes, KeepWhatIsHarmless) {
  const std::pair<const char*, const char*> cases[] = {
      {"a < b & \"c\"", "<p>a &lt; b &amp; \"c\"</p>"},
      {"<h2>N</h2><ul><li>a</li><li>b &amp; c</li></ul><p>x<br/>y</p>",
       "<h2>N</h2><ul><li>a</li><li>b &amp; c</li></ul><p>x<br>y</p>"},
      {"<p style='color:black' onclick=\"a>b\">x</p>", "<p>x</p>"},
      {"<p>a</p><script>alert('<p>')</script><style>p{}</style>b", "<p>a</p>b"},
      {"<p>a<!-- <img src=x> -->b<!DOCTYPE x>c", "<p>abc"},
      {"<link rel='stylesheet' href='file:///x.css'><p>a<img src='https://example.org/x.png'>b</p>",
       "<p>ab</p>"},
      {"<a href='https://x/?a=1&amp;b=\"2'>x</a>", "<a href=\"https://x/?a=1&amp;b=&quot;2\">x</a>"},
      {"<b>a</b><a href='&#106;avascript:x'>x</a>", "<b>a</b>x"},
      {"<b><i>x</b></i></ul>y", "<b><i>x</i></b>y"},
      {"<p>a</p> 1 < 2 <3", "<p>a</p> 1 &lt; 2 &lt;3"},
      {"<p>a</p><a href='x", "<p>a</p>&lt;a href='x"},
  };
  for (const auto& [given, kept] : cases) EXPECT_EQ(releaseNotesHtml(given).toStdString(), kept) << given;
}

}  // namespace
}  // namespace tessarin::ui
