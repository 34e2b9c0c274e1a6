#include <gtest/gtest.h>

#include <QPixmap>
#include <fstream>

#include "platform/qt/TestApplication.h"
#include "support/TemporaryFolder.h"
#include "ui/settings/ApplicationIcon.h"

namespace tessarin::ui {
namespace {

/// A package system's folder, which no session lists: entries beside icons of the theme that all others
/// extend.
TEST(ApplicationIcon, IsFoundBesideTheEntriesOnceTheyAreSearched) {
  testing::ensureApplication();
  const QStringList themes = QIcon::themeSearchPaths();
  const testing::TemporaryFolder folder;
  const std::filesystem::path hicolor = folder / "share/icons/hicolor";
  std::filesystem::create_directories(hicolor / "16x16/apps");
  std::ofstream(hicolor / "index.theme")
      << "[Icon Theme]\nName=Hicolor\nDirectories=16x16/apps\n[16x16/apps]\nSize=16\nType=Fixed\n";
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  pixmap.save(QString::fromStdString(hicolor / "16x16/apps/org.example.Packed.png"));

  const auto isFound = [] { return !applicationIcon("org.example.Packed").pixmap(16, 16).isNull(); };
  EXPECT_FALSE(isFound());
  searchIconsBeside({folder / "share/applications", folder / "nowhere/applications"});
  EXPECT_TRUE(isFound());
  EXPECT_EQ(QIcon::themeSearchPaths().mid(0, themes.size()), themes) << "the session's own come first";
  QIcon::setThemeSearchPaths(themes);
}

}  // namespace
}  // namespace tessarin::ui
