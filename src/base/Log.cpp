#include "base/Log.h"

#include <cstdio>
#include <mutex>
#include <utility>

namespace tessarin {
namespace {

std::mutex mutex;
std::function<void(const std::string&)>& currentSink() {
  static std::function<void(const std::string&)> sink;
  return sink;
}

std::string oneLine(std::string_view component, std::string_view message) {
  std::string line = "[";
  line.append(component).append("] ").append(message);
  for (char& c : line) {
    if (c == '\n' || c == '\r') c = ' ';
  }
  return line;
}

}  // namespace

void log(std::string_view component, std::string_view message) {
  const std::string line = oneLine(component, message);
  const std::lock_guard lock(mutex);
  if (currentSink()) {
    currentSink()(line);
    return;
  }
  std::fprintf(stdout, "%s\n", line.c_str());
  std::fflush(stdout);
}

LogCapture::LogCapture(std::function<void(const std::string&)> sink) {
  const std::lock_guard lock(mutex);
  previous_ = std::exchange(currentSink(), std::move(sink));
}

LogCapture::~LogCapture() {
  const std::lock_guard lock(mutex);
  currentSink() = std::move(previous_);
}

}  // namespace tessarin
