#pragma once

#include <QString>
#include <filesystem>
#include <functional>

class QWidget;

namespace tessarin::ui {

/// Asks the user for a file, and later calls `chosen` with it; never, when the user cancels or `parent` goes.
/// Returns at once: keys are judged on while the dialog is open.
using ChooseFile =
    std::function<void(QWidget& parent, std::function<void(const std::filesystem::path& file)> chosen)>;

/// How the user is asked for the files of import and export; tests answer themselves.
struct SnippetFileDialogs {
  ChooseFile open;
  ChooseFile save;

  /// The desktop's own dialogs.
  static SnippetFileDialogs native();
};

}  // namespace tessarin::ui
