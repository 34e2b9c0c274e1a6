#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/FileDescriptor.h"

namespace tessarin::freedesktop {

/// The place where the running instance takes requests of later ones: a socket in the user's runtime folder
/// (else in the data folder), named after the data folder, so that instances with folders of their own stay
/// apart. A link in the data folder leads to it, for those that know the folder under another name or have
/// another runtime folder, or none. A request is one line ("toggle", "quit", …) of less than 2 MB, its
/// answer is one line.
class InstanceSocket {
 public:
  using Handler = std::function<std::string(const std::string& request)>;

  /// Takes over the place; only the instance that holds the data folder's lock may do so. None, with a log
  /// line, where no socket can be made: the program works without.
  static std::optional<InstanceSocket> listen(const std::string& dataFolder);

  InstanceSocket(InstanceSocket&&) noexcept = default;
  InstanceSocket& operator=(InstanceSocket&&) noexcept = default;
  ~InstanceSocket();

  /// Clients that are heard at the same time; of more, the one that came first is dropped.
  static constexpr std::size_t mostClients = 64;

  /// Becomes readable when a client has come or said something.
  int descriptor() const { return news_.get(); }
  /// Takes in what has come, answers the requests that are complete, and never waits for a client.
  void serve(const Handler& handler);

 private:
  struct Client {
    FileDescriptor socket;
    std::string said;
  };

  InstanceSocket(FileDescriptor socket, FileDescriptor news, std::string path, std::string link)
      : socket_(std::move(socket)), news_(std::move(news)), path_(std::move(path)), link_(std::move(link)) {}
  void accept();
  void hear(int client, const Handler& handler);

  FileDescriptor socket_;
  FileDescriptor news_;          ///< of the socket and the clients
  std::vector<Client> clients_;  ///< in the order in which they came
  std::string path_;
  std::string link_;  ///< or the same path
};

/// Hands a request to the running instance. None when there is none, or when it does not answer in time.
std::optional<std::string> requestOfRunningInstance(
    const std::string& dataFolder, const std::string& request,
    std::chrono::milliseconds patience = std::chrono::seconds(2));

}  // namespace tessarin::freedesktop
