#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "base/FileDescriptor.h"

namespace tessarin::freedesktop {

/// The place where the running instance takes requests of later ones: a socket in the user's runtime folder
/// (else in the data folder), named after the data folder, so that instances with folders of their own stay
/// apart. A request is one line ("toggle", "quit", …) of less than 16 kB, its answer is one line.
class InstanceSocket {
 public:
  using Handler = std::function<std::string(const std::string& request)>;

  /// Takes over the place; only the instance that holds the data folder's lock may do so. None, with a log
  /// line, where no socket can be made: the program works without.
  static std::optional<InstanceSocket> listen(const std::string& dataFolder);

  InstanceSocket(InstanceSocket&&) noexcept = default;
  InstanceSocket& operator=(InstanceSocket&&) noexcept = default;
  ~InstanceSocket();

  /// Becomes readable when a request is waiting.
  int descriptor() const { return socket_.get(); }
  /// Answers one waiting request. Waits 200 ms at most for a client that connected and says nothing.
  void serve(const Handler& handler) const;

 private:
  InstanceSocket(FileDescriptor socket, std::string path)
      : socket_(std::move(socket)), path_(std::move(path)) {}

  FileDescriptor socket_;
  std::string path_;
};

/// Hands a request to the running instance. None when there is none, or when it does not answer in time.
std::optional<std::string> requestOfRunningInstance(
    const std::string& dataFolder, const std::string& request,
    std::chrono::milliseconds patience = std::chrono::seconds(2));

}  // namespace tessarin::freedesktop
