#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QProgressBar>
#include <QTextBrowser>

#include "platform/qt/TestApplication.h"
#include "support/CaseName.h"
#include "support/FakeWorkspace.h"
#include "support/TemporaryFolder.h"
#include "ui/update/ReleaseNotesView.h"
#include "ui/update/UpdateWindows.h"

namespace tessarin::ui {
namespace {

using testing::CaseName;
using ::testing::ElementsAre;
using testing::eventuallyInLoop;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

void press(QWidget& widget, int key) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
}

void click(QWidget& widget, QPointF place) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
}

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
  static void clickButton(const QString& text) {
    QAbstractButton& found = button(text);
    click(found, QRectF(found.rect()).center());
  }
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

TEST_F(WindowsAboutUpdates, ShowARunningCheckThatCanBeCancelled) {
  check();
  EXPECT_EQ(texts(), "Looking for updates…");
  EXPECT_FALSE(dialog().findChild<QProgressBar*>()->accessibleName().isEmpty());
  clickButton("Cancel");
  EXPECT_EQ(cancelled, 1);
  EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(WindowsAboutUpdates, CancelACheckByEscapeAndByClosing) {
  check();
  press(dialog(), Qt::Key_Escape);
  EXPECT_EQ(cancelled, 1);
  check();
  dialog().close();
  EXPECT_EQ(cancelled, 2);
}

TEST_F(WindowsAboutUpdates, ReplaceOneAnotherWithoutACallback) {
  check();
  offer();
  check();
  windows.showUpToDate("1.2");
  EXPECT_THAT(shown(), ::testing::SizeIs(1));
  windows.dismiss();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(cancelled, 0);
  EXPECT_THAT(choices, IsEmpty());
}

struct Click {
  const char* name;
  const char* button;
  UpdateChoice choice;
};

class UpdateOffer : public WindowsAboutUpdates, public ::testing::WithParamInterface<Click> {};

TEST_P(UpdateOffer, IsAnsweredByItsButtons) {
  offer();
  clickButton(GetParam().button);
  EXPECT_THAT(choices, ElementsAre(GetParam().choice));
  EXPECT_THAT(shown(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, UpdateOffer,
                         ::testing::Values(Click{"Skip", "Skip This Version", UpdateChoice::skip},
                                           Click{"Later", "Remind Me Later", UpdateChoice::later},
                                           Click{"Download", "Download…", UpdateChoice::download}),
                         CaseName());

TEST_F(WindowsAboutUpdates, TakeReturnForDownloadAndEscapeForLater) {
  offer();
  press(dialog(), Qt::Key_Return);
  offer();
  press(dialog(), Qt::Key_Escape);
  EXPECT_THAT(choices, ElementsAre(UpdateChoice::download, UpdateChoice::later));
}

TEST_F(WindowsAboutUpdates, TellBothVersionsAndTheNotes) {
  offer("<h1>New</h1><p>Things</p>");
  EXPECT_THAT(texts(), HasSubstr("Tessarin 1.3 can be downloaded now. This is version 1.2."));
  EXPECT_EQ(dialog().findChild<QTextBrowser*>()->toPlainText(), "New\nThings");
  offer("a < b & c\nd");
  EXPECT_EQ(dialog().findChild<QTextBrowser*>()->toPlainText(), "a < b & c\nd");
  offer(" \n");
  EXPECT_EQ(dialog().findChild<QTextBrowser*>(), nullptr);
}

TEST_F(WindowsAboutUpdates, ShowAVersionAsPlainTextOfBoundedLength) {
  offer("", "<b>2</b>\n" + std::string(5000, '1'));
  EXPECT_THAT(texts(), HasSubstr("Tessarin <b>2</b> 111"));
  EXPECT_LT(texts().size(), 300u);
}

TEST_F(WindowsAboutUpdates, PushForwardOnlyWhatTheUserAskedFor) {
  windows.showUpToDate("1.2");
  EXPECT_TRUE(eventuallyInLoop([this] { return dialog().isActiveWindow(); }));
  EXPECT_FALSE(dialog().testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_FALSE(dialog().isModal());
  offer("x", "1.3", UpdateUserDriver::Manner::unobtrusive);
  EXPECT_TRUE(dialog().testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(WindowsAboutUpdates, SayThatTheProgramIsUpToDate) {
  windows.showUpToDate("1.2");
  EXPECT_EQ(texts(), "Tessarin is up to date|Version 1.2 is the newest one there is.");
  clickButton("OK");
  EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(WindowsAboutUpdates, SayInOneSentenceWhatWentWrong) {
  std::vector<std::string> sentences;
  for (int i = static_cast<int>(UpdateFailure::noConnection); i <= static_cast<int>(UpdateFailure::malformed);
       ++i) {
    windows.showFailure(static_cast<UpdateFailure>(i));
    const std::string text = texts();
    EXPECT_TRUE(text.ends_with(".") || text.ends_with("?")) << text;
    EXPECT_THAT(sentences, ::testing::Not(::testing::Contains(text)));
    sentences.push_back(text);
    press(dialog(), Qt::Key_Return);
    EXPECT_THAT(shown(), IsEmpty());
  }
}

TEST_F(WindowsAboutUpdates, ComeBackToTheFront) {
  check();
  QDialog& progress = dialog();
  progress.showMinimized();
  windows.focus();
  EXPECT_FALSE(progress.isMinimized());
  windows.dismiss();
  windows.focus();
  EXPECT_THAT(shown(), IsEmpty());
}

/// Where the text begins, in the coordinates of the widget that draws it.
QPointF placeOf(const QTextBrowser& view, const QString& text) {
  const QTextCursor found = view.document()->find(text);
  QTextCursor start(view.document());
  start.setPosition(found.selectionStart() + 1);
  return QRectF(view.cursorRect(start)).center();
}

TEST_F(WindowsAboutUpdates, OpenNoLinkButAnHttpsOne) {
  offer(
      "<p><a href='https://example.org/a?b=c'>safe</a></p><p><a href='http://example.org/'>plain</a></p>"
      "<p><a href='file:///etc/passwd'>file</a></p><p><a href='javascript:alert(1)'>script</a></p>"
      "<p><a href='relative'>relative</a></p>");
  auto& view = *dialog().findChild<QTextBrowser*>();
  for (const char* link : {"plain", "file", "script", "relative"})
    click(*view.viewport(), placeOf(view, link));
  EXPECT_THAT(workspace.openedUrls, IsEmpty());
  click(*view.viewport(), placeOf(view, "safe"));
  EXPECT_THAT(workspace.openedUrls, ElementsAre("https://example.org/a?b=c"));
  EXPECT_THAT(choices, IsEmpty());
}

TEST_F(WindowsAboutUpdates, LoadNothingForTheNotes) {
  testing::TemporaryFolder folder;
  QImage image(7, 7, QImage::Format_RGB32);
  image.fill(Qt::red);
  const QString picture = QString::fromStdString(folder / "picture.png");
  ASSERT_TRUE(image.save(picture));
  folder.write("style.css", "p { color: #ff0000 }");
  const QUrl style = QUrl::fromLocalFile(QString::fromStdString(folder / "style.css"));
  ReleaseNotesView view(QString("<html><head><link rel='stylesheet' href='%1'></head><body><p>text</p>"
                                "<img src='%2'><img src='file://%2'></body></html>")
                            .arg(style.toString(), picture));
  view.resize(300, 200);
  view.show();
  const QImage drawn = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x) ASSERT_NE(drawn.pixelColor(x, y), QColor(Qt::red));
  }
  EXPECT_TRUE(view.document()->resource(QTextDocument::StyleSheetResource, style).toByteArray().isEmpty());
  EXPECT_TRUE(view.toPlainText().startsWith("text"));
}

}  // namespace
}  // namespace tessarin::ui
