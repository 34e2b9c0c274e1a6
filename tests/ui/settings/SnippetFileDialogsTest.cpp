#include <gmock/gmock.h>

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

TEST_F(SnippetFileDialogsTest, ImportAnswersWithTheFile) {
  folder.write("in é.json", "[]");
  QFileDialog& dialog = ask(SnippetFileDialogs::native().open);
  EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
  EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
  Q_EMIT dialog.fileSelected(QString::fromStdString((folder / "in é.json").string()));
  EXPECT_EQ(chosen, folder / "in é.json");
}

TEST_F(SnippetFileDialogsTest, ExportProposesANameAndMayBeCancelled) {
  QFileDialog& dialog = ask(SnippetFileDialogs::native().save);
  EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
  ASSERT_EQ(dialog.selectedFiles().size(), 1);
  EXPECT_EQ(QFileInfo(dialog.selectedFiles()[0]).fileName(), "tessarin-snippets.json");
  dialog.reject();
  EXPECT_EQ(chosen, std::nullopt);
}

}  // namespace
}  // namespace tessarin::ui
