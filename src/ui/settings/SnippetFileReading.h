#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <filesystem>
#include <string>

#include "importers/ForeignSnippets.h"

namespace tessarin::ui {

/// Reads what can be imported of a file or folder on another thread, so that no window stands still over a
/// large one. One at a time. When the reader goes away first, nobody is told.
class SnippetFileReading final : public QObject {
  Q_OBJECT

 public:
  struct Result {
    ForeignSnippets read;
    std::string error;  ///< empty when it was read
  };

  explicit SnippetFileReading(QObject* parent = nullptr);

  void start(const std::filesystem::path& path, const ImportTerms& terms);
  bool isRunning() const { return watcher_.isRunning(); }

 Q_SIGNALS:
  void done(const tessarin::ui::SnippetFileReading::Result& result);

 private:
  QFutureWatcher<Result> watcher_;
};

}  // namespace tessarin::ui
