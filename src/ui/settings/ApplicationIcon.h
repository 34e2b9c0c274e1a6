#pragma once

#include <QIcon>
#include <filesystem>
#include <string>
#include <vector>

namespace tessarin::ui {

/// The icon that a desktop entry names, by its name in the icon theme or by its path; null without one.
QIcon applicationIcon(const std::string& nameOrPath);

/// Lets icons be found that lie beside these folders of desktop entries, too: packages that bring their own
/// put both in one place, which the session may have forgot to list. Once, at the start.
void searchIconsBeside(const std::vector<std::filesystem::path>& applicationFolders);

}  // namespace tessarin::ui
