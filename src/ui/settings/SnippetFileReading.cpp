#include "ui/settings/SnippetFileReading.h"

#include <QPromise>
#include <QThreadPool>
#include <exception>
#include <memory>

#include "importers/SnippetImport.h"

namespace tessarin::ui {
namespace {

using Result = SnippetFileReading::Result;

Result read(const std::filesystem::path& path, const ImportTerms& terms) {
  try {
    return {readAnySnippets(path, terms), {}};
  } catch (const std::exception& error) {
    return {{}, error.what()};
  }
}

}  // namespace

SnippetFileReading::SnippetFileReading(QObject* parent) : QObject(parent) {
  connect(&watcher_, &QFutureWatcher<Result>::finished, this,
          [this] { Q_EMIT done(watcher_.future().takeResult()); });
}

void SnippetFileReading::start(const std::filesystem::path& path, const ImportTerms& terms) {
  const auto promise = std::make_shared<QPromise<Result>>();
  promise->start();
  watcher_.setFuture(promise->future());
  // The pool is waited for before the application ends.
  QThreadPool::globalInstance()->start([promise, path, terms] {
    promise->addResult(read(path, terms));
    promise->finish();
  });
}

}  // namespace tessarin::ui
