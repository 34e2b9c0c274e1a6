
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>

#include "Matchers.h"
#include "input/Preferences.h"
#include "model/SnippetCoding.h"
#include "ui/settings/SettingsTest.h"
#include "ui/settings/SnippetEditorView.h"
#include "ui/settings/SnippetListModel.h"
#include "ui/settings/SnippetListView.h"
#include "ui/settings/SnippetsSettingsTab.h"

namespace tessarin::ui {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using testing::child;
using testing::eventuallyInLoop;

class SnippetsSettingsTabTest : public testing::SettingsTest {
 protected:
  void open() {
    window = std::make_unique<QWidget>();
    window->resize(600, 450);
    const ChooseFile answer = [this](QWidget&, const auto& chosen) {
      if (!chosenFile.empty()) chosen(chosenFile);
    };
    tab = new SnippetsSettingsTab(services(), {answer, answer}, window.get());
    tab->setGeometry(window->rect());
    list = tab->findChild<SnippetListView*>();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(eventuallyInLoop([this] { return window->isActiveWindow(); }));
  }
  void openWith(const std::vector<std::string>& shown) {
    for (const std::string& trigger : shown) store->addSnippet(mine(trigger));
    open();
  }
  QPushButton* button(const QString& text) const { return child<QPushButton>(*tab, text); }
  void click(const QString& text) const { QTest::mouseClick(button(text), Qt::LeftButton); }
  /// Where a row's button is painted.
  QPoint place(int row, RowButton button) const {
    const auto* delegate = static_cast<SnippetRowDelegate*>(list->itemDelegate());
    const SnippetRow parts(list->visualRect(list->model()->index(row, 0)), delegate->buttonSizes(),
                           list->layoutDirection());
    return (button == RowButton::edit ? parts.edit : parts.remove).center();
  }
  void clickRow(int row, RowButton button) const {
    const QPoint point = place(row, button);
    QWidget* hit = list->viewport()->childAt(point);
    QTest::mouseClick(hit ? hit : list->viewport(), Qt::LeftButton, {}, hit ? QPoint() : point);
  }
  QVariant shown(int row, int role) const { return list->model()->index(row, 0).data(role); }
  QString message() const {
    for (const QLabel* label : tab->findChildren<QLabel*>()) {
      if (label->isVisible() && (label->text().startsWith("Import") || label->text().startsWith("Export")))
        return label->text();
    }
    return {};
  }
  SnippetEditorView* sheet() const { return tab->findChild<SnippetEditorView*>(); }
  void import(const std::string& content) {
    folder.write("import.json", content);
    importFile(folder / "import.json");
  }
  void importFile(const fs::path& file) {
    chosenFile = file;
    click("Import");
    EXPECT_FALSE(button("Import")->isEnabled());
    EXPECT_TRUE(eventuallyInLoop([this] { return button("Import")->isEnabled(); }));
  }
  static std::string json(const std::vector<Snippet>& snippets) {
    return encodeSnippets(snippets, JsonStyle::compact);
  }

  fs::path chosenFile;
  std::unique_ptr<QWidget> window;
  SnippetsSettingsTab* tab = nullptr;
  SnippetListView* list = nullptr;
};

TEST_F(SnippetsSettingsTabTest, RowsFollowStoreAndTriggerCharacterAndAreRead) {
  store->addSnippet(mine("shrug", "one\ntwo\r\n😀"));
  open();
  list->setCurrentIndex(list->model()->index(0, 0));
  const QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(list);
  ASSERT_NE(rows, nullptr);
  EXPECT_EQ(rows->child(0)->text(QAccessible::Name), ":shrug:, Name of shrug, one two 😀");
  EXPECT_EQ(list->findChild<QPushButton*>("editRow")->accessibleName(), "Edit :shrug:");
  EXPECT_EQ(list->findChild<QPushButton*>("deleteRow")->accessibleName(), "Delete :shrug:");
  defaults.set(preferences::key::triggerCharacter, ";");
  Snippet changed = mine("other");
  changed.id = "id-shrug";
  store->updateSnippet(changed);
  EXPECT_EQ(shown(0, SnippetListModel::triggerRole), ";other;");
}

TEST_F(SnippetsSettingsTabTest, EveryRowCanBeEditedByPointerAndKeys) {
  openWith({"a", "b", "c"});
  const auto openByKeys = [this] {
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  };
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"painted button", [this] { clickRow(1, RowButton::edit); }},
      {"real button", [this] { clickRow(1, RowButton::edit); }},
      {"F2", [this] { QTest::keyClick(list, Qt::Key_F2); }},
      {"Tab and Space", openByKeys},
  };
  for (const auto& [way, open] : ways) {
    SCOPED_TRACE(way);
    open();
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(sheet()->findChildren<QLineEdit*>()[1]->text(), "b");
    sheet()->reject();
    ASSERT_TRUE(eventuallyInLoop([this] { return sheet() == nullptr && window->isActiveWindow(); }));
  }
}

TEST_F(SnippetsSettingsTabTest, EveryRowCanBeDeletedByPointerAndKeys) {
  openWith({"a", "b", "c", "d", "e"});
  clickRow(1, RowButton::remove);
  EXPECT_THAT(triggers(), ElementsAre("a", "c", "d", "e"));
  QCoreApplication::processEvents();
  clickRow(list->currentIndex().row(), RowButton::remove);
  EXPECT_EQ(triggers().size(), 3U);
  list->setFocus();
  list->setCurrentIndex(list->model()->index(0, 0));
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_EQ(triggers().size(), 2U);
  QTest::keyClick(list, Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_EQ(triggers().size(), 1U);
  EXPECT_EQ(decodeSnippets(folder.read("user-snippets.json")), store->userSnippets());
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_THAT(triggers(), IsEmpty());
  EXPECT_TRUE(button("Add")->hasFocus());
}

TEST_F(SnippetsSettingsTabTest, ImportSaysHowManyItAdded) {
  open();
  import(json({mine("a")}));
  EXPECT_EQ(message(), "Imported 1 snippet");
  import(json({mine("a"), mine("smile"), mine("x"), mine("y")}));
  EXPECT_EQ(message(), "Imported 2 snippets");
  EXPECT_THAT(triggers(), ElementsAre("a", "x", "y"));
  queue.advance(milliseconds(3000));
  EXPECT_EQ(message(), "");
  import(json({mine("z")}));
  window.reset();
  queue.advance(milliseconds(3000));
}

TEST_F(SnippetsSettingsTabTest, AFolderIsDroppedAndTheNotesOnItAreShown) {
  open();
  fs::create_directory(folder / "match");
  folder.write("match/base.yml", "matches: [{trigger: ':a', replace: A}, {regex: b, replace: B}]");
  const QUrl match = QUrl::fromLocalFile(QString::fromStdString((folder / "match").string()));
  for (const auto& [urls, isTaken] : {std::pair{QList<QUrl>{match, match}, false}, {{match}, true}}) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* event : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&drop)}) {
      event->ignore();
      QCoreApplication::sendEvent(tab, event);
      EXPECT_EQ(event->isAccepted(), isTaken);
    }
  }
  ASSERT_TRUE(eventuallyInLoop([this] { return tab->findChild<QMessageBox*>() != nullptr; }));
  EXPECT_THAT(triggers(), ElementsAre("a"));
  const auto* notes = tab->findChild<QMessageBox*>();
  EXPECT_EQ(notes->text(), "Imported 1 snippet");
  EXPECT_EQ(notes->informativeText(), "Left out: 1. Changed: 0.");
  EXPECT_EQ(notes->detailedText(), "Left out: 1\n  base.yml:1: it has a regular expression\n");
}

TEST_F(SnippetsSettingsTabTest, AFailedImportChangesNothing) {
  openWith({"a"});
  folder.write("half.json", json({mine("x"), mine("y")}).substr(0, 150));
  for (const fs::path& file : {folder / "missing.json", folder / "half.json"}) {
    importFile(file);
    EXPECT_THAT(message().toStdString(), StartsWith("Import failed: ")) << file;
    EXPECT_THAT(triggers(), ElementsAre("a")) << file;
  }
}

TEST_F(SnippetsSettingsTabTest, ClosingTheWindowEndsAnImport) {
  openWith({});
  folder.write("many.json", json(std::vector<Snippet>(2000, mine("x"))));
  chosenFile = folder / "many.json";
  click("Import");
  window.reset();
  QThreadPool::globalInstance()->waitForDone();
  QCoreApplication::processEvents();
  EXPECT_THAT(triggers(), IsEmpty());
}

TEST_F(SnippetsSettingsTabTest, ExportWritesTheFileOrLogsWhyNot) {
  openWith({"a"});
  chosenFile = folder / "out.json";
  click("Export");
  EXPECT_EQ(decodeSnippets(folder.read("out.json")), store->userSnippets());
  EXPECT_THAT(log.lines(), IsEmpty());
  chosenFile = folder / "missing/out.json";
  click("Export");
  EXPECT_THAT(log.lines(), ElementsAre(StartsWith("[Settings] Export failed: ")));
}

TEST_F(SnippetsSettingsTabTest, WhereTheSnippetsCouldNotBeReadExportSaysSoAndAsksForNoFile) {
  folder.write("user-snippets.json", "[");
  store = std::make_unique<SnippetStore>(SnippetStore::Folders{folder.path(), folder.path()}, clock);
  openWith({"a"});
  chosenFile = folder / "out.json";
  click("Export");
  EXPECT_THAT(message().toStdString(), StartsWith("Export failed: your snippets could not be read"));
  EXPECT_FALSE(fs::exists(chosenFile));
}

}  // namespace
}  // namespace tessarin::ui
