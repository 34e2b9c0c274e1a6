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

TEST(SnippetFileDialogsTest, AskForAFileOrProposeANameAndMayBeCancelled) {
  ensureApplication();
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QWidget window;
  window.show();
  std::optional<fs::path> chosen;
  const auto ask = [&](const ChooseFile& choose) -> QFileDialog& {
    choose(window, [&](const fs::path& file) { chosen = file; });
    return *window.findChildren<QFileDialog*>().last();
  };

  QFileDialog& saving = ask(SnippetFileDialogs::native().save);
  EXPECT_EQ(saving.acceptMode(), QFileDialog::AcceptSave);
  ASSERT_EQ(saving.selectedFiles().size(), 1);
  EXPECT_EQ(QFileInfo(saving.selectedFiles()[0]).fileName(), "tessarin-snippets.json");
  saving.reject();
  EXPECT_EQ(chosen, std::nullopt);

  const TemporaryFolder folder;
  folder.write("in é.json", "[]");
  QFileDialog& opening = ask(SnippetFileDialogs::native().open);
  EXPECT_EQ(opening.acceptMode(), QFileDialog::AcceptOpen);
  EXPECT_EQ(opening.fileMode(), QFileDialog::ExistingFile);
  Q_EMIT opening.fileSelected(QString::fromStdString((folder / "in é.json").string()));
  EXPECT_EQ(chosen, folder / "in é.json");
}

}  // namespace
}  // namespace tessarin::ui
