#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <filesystem>
#include <string>
#include <vector>

#include "model/Snippet.h"

namespace tessarin::ui {

/// Reads a file of snippets on another thread, so that no window stands still over a large one. One file at a
/// time. When the reader goes away first, nobody is told.
class SnippetFileReading final : public QObject {
  Q_OBJECT

 public:
  struct Result {
    std::vector<Snippet> snippets;
    std::string error;  ///< empty when the file was read
  };

  explicit SnippetFileReading(QObject* parent = nullptr);

  void start(const std::filesystem::path& file);
  bool isRunning() const { return watcher_.isRunning(); }

 Q_SIGNALS:
  void done(const tessarin::ui::SnippetFileReading::Result& result);

 private:
  QFutureWatcher<Result> watcher_;
};

}  // namespace tessarin::ui
