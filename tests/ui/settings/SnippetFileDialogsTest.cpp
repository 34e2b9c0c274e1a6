#include <gmock/gmock.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <optional>

#include "platform/qt/TestApplication.h"
#include "support/TemporaryFolder.h"
#include "ui/settings/SnippetFileDialogs.h"

namespace tessarin::ui {
namespace {

namespace fs = std::filesystem;
using testing::ensureApplication;
using testing::eventuallyInLoop;
using testing::TemporaryFolder;

class SnippetFileDialogsTest : public ::testing::Test {
 protected:
  SnippetFileDialogsTest() {
    ensureApplication();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    window = std::make_unique<QWidget>();
    window->show();
  }
  QFileDialog& ask(const ChooseFile& choose) {
    choose(*window, [this](const fs::path& file) { chosen = file; });
    return *window->findChild<QFileDialog*>();
  }

  TemporaryFolder folder;
  std::unique_ptr<QWidget> window;
  std::optional<fs::path> chosen;
};

TEST_F(SnippetFileDialogsTest, ImportAsksForOneExistingFile) {
  folder.write("in é.json", "[]");
  QFileDialog& dialog = ask(SnippetFileDialogs::native().open);
  EXPECT_EQ(dialog.windowTitle(), "Import Snippets");
  EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
  EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
  EXPECT_EQ(dialog.mimeTypeFilters(), QStringList("application/json"));
  EXPECT_TRUE(dialog.isModal());
  Q_EMIT dialog.fileSelected(QString::fromStdString((folder / "in é.json").string()));
  EXPECT_EQ(chosen, folder / "in é.json");
}

TEST_F(SnippetFileDialogsTest, ExportProposesAName) {
  QFileDialog& dialog = ask(SnippetFileDialogs::native().save);
  EXPECT_EQ(dialog.windowTitle(), "Export Snippets");
  EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
  ASSERT_EQ(dialog.selectedFiles().size(), 1);
  EXPECT_EQ(QFileInfo(dialog.selectedFiles()[0]).fileName(), "tessarin-snippets.json");
  EXPECT_EQ(dialog.defaultSuffix(), "json");
  dialog.reject();
  EXPECT_TRUE(eventuallyInLoop([this] { return window->findChild<QFileDialog*>() == nullptr; }));
  EXPECT_EQ(chosen, std::nullopt);
}

}  // namespace
}  // namespace tessarin::ui
