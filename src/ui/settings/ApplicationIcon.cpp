#include "ui/settings/ApplicationIcon.h"

#include <QString>
#include <QStringList>

namespace tessarin::ui {
namespace {

void addPath(QStringList& paths, const std::filesystem::path& path) {
  const QString added = QString::fromStdString(path.string());
  if (!paths.contains(added)) paths << added;
}

/// Some entries give the file's name, which is no name in a theme.
QString withoutExtension(const QString& name) {
  for (const char* extension : {".png", ".svg", ".xpm"}) {
    if (name.endsWith(extension)) return name.chopped(4);
  }
  return name;
}

}  // namespace

QIcon applicationIcon(const std::string& nameOrPath) {
  const QString name = QString::fromStdString(nameOrPath);
  if (name.startsWith('/')) return QIcon(name);
  return QIcon::fromTheme(withoutExtension(name));
}

void searchIconsBeside(const std::vector<std::filesystem::path>& applicationFolders) {
  QStringList themes = QIcon::themeSearchPaths();
  QStringList loose = QIcon::fallbackSearchPaths();
  for (const auto& folder : applicationFolders) {
    addPath(themes, folder.parent_path() / "icons");
    addPath(loose, folder.parent_path() / "pixmaps");
  }
  QIcon::setThemeSearchPaths(themes);
  QIcon::setFallbackSearchPaths(loose);
}

}  // namespace tessarin::ui
