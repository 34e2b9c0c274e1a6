#include <gtest/gtest.h>

#include <QPixmap>
#include <fstream>

#include "platform/qt/TestApplication.h"
#include "support/TemporaryFolder.h"
#include "ui/settings/ApplicationIcon.h"

namespace tessarin::ui {
namespace {

namespace fs = std::filesystem;

/// A package system's folder, which no session lists: entries beside icons of the theme that all others
/// extend.
class ApplicationIconTest : public ::testing::Test {
 protected:
  ApplicationIconTest() {
    testing::ensureApplication();
    themes = QIcon::themeSearchPaths();
    loose = QIcon::fallbackSearchPaths();
    save("share/icons/hicolor/16x16/apps/org.example.Packed.png");
    save("share/pixmaps/loose.png");
    save("own.png");
    std::ofstream(folder / "share/icons/hicolor/index.theme")
        << "[Icon Theme]\nName=Hicolor\nDirectories=16x16/apps\n[16x16/apps]\nSize=16\nType=Fixed\n";
  }
  ~ApplicationIconTest() override {
    QIcon::setThemeSearchPaths(themes);
    QIcon::setFallbackSearchPaths(loose);
  }

  void save(const char* name) const {
    fs::create_directories((folder / name).parent_path());
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    pixmap.save(QString::fromStdString((folder / name).string()));
  }
  static bool isFound(const std::string& name) { return !applicationIcon(name).pixmap(16, 16).isNull(); }

  testing::TemporaryFolder folder;
  QStringList themes;
  QStringList loose;
};

TEST_F(ApplicationIconTest, isFoundBesideTheEntriesOnceTheyAreSearched) {
  const char* names[] = {"org.example.Packed", "org.example.Packed.png", "loose"};
  for (const char* name : names) EXPECT_FALSE(isFound(name)) << name;
  searchIconsBeside({folder / "share/applications", folder / "nowhere/applications"});
  for (const char* name : names) EXPECT_TRUE(isFound(name)) << name;
  EXPECT_EQ(QIcon::themeSearchPaths().mid(0, themes.size()), themes) << "the session's own come first";
}

TEST_F(ApplicationIconTest, mayBeAFileOrMissing) {
  EXPECT_TRUE(isFound((folder / "own.png").string()));
  EXPECT_TRUE(applicationIcon("").isNull());
  EXPECT_TRUE(applicationIcon("org.example.not-there").isNull());
  EXPECT_FALSE(isFound((folder / "missing.png").string()));
}

}  // namespace
}  // namespace tessarin::ui
