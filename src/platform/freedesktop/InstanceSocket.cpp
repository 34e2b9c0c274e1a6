#include "platform/freedesktop/InstanceSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/Log.h"

namespace tessarin::freedesktop {
namespace {

/// Room for the longest path that the system knows, with three characters for each of its bytes.
constexpr std::size_t longestLine = 16384;

/// FNV-1a: the same folder gives the same name in every build.
std::uint64_t fingerprint(const std::string& text) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return hash;
}

std::string linkPath(const std::string& dataFolder) {
  return dataFolder + "/instance.socket";
}

std::string socketPath(const std::string& dataFolder) {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime == nullptr || runtime[0] != '/') return linkPath(dataFolder);
  std::array<char, 40> name{};
  std::snprintf(name.data(), name.size(), "/tessarin-%016llx",
                static_cast<unsigned long long>(fingerprint(dataFolder)));
  return runtime + std::string(name.data());
}

std::optional<sockaddr_un> address(const std::string& path) {
  sockaddr_un result{};
  result.sun_family = AF_UNIX;
  if (path.size() >= sizeof result.sun_path) return std::nullopt;
  std::memcpy(result.sun_path, path.data(), path.size());
  return result;
}

void limitWaiting(int socket, std::chrono::milliseconds time) {
  const timeval limit{time.count() / 1000, (time.count() % 1000) * 1000};
  setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

/// One line without its line feed; none when the other side broke off or took too long.
std::optional<std::string> receiveLine(int socket, std::chrono::milliseconds patience) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  std::string line;
  std::array<char, 512> buffer{};
  while (line.size() < longestLine) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return std::nullopt;
    limitWaiting(socket, left);
    const ssize_t count = recv(socket, buffer.data(), buffer.size(), 0);
    if (count <= 0) return std::nullopt;
    line.append(buffer.data(), static_cast<std::size_t>(count));
    if (const auto end = line.find('\n'); end != std::string::npos) return line.substr(0, end);
  }
  return std::nullopt;
}

FileDescriptor connected(const std::string& path, std::chrono::milliseconds patience) {
  const auto place = address(path);
  FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!place || !socket) return {};
  limitWaiting(socket.get(), patience);
  if (connect(socket.get(), reinterpret_cast<const sockaddr*>(&*place), sizeof *place) != 0) return {};
  return socket;
}

bool sendLine(int socket, const std::string& text) {
  const std::string line = text + "\n";
  return send(socket, line.data(), line.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(line.size());
}

}  // namespace

std::optional<InstanceSocket> InstanceSocket::listen(const std::string& dataFolder) {
  const std::string path = socketPath(dataFolder);
  const auto place = address(path);
  FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  ::unlink(path.c_str());  // what an instance that was killed left behind
  if (!place || !socket ||
      bind(socket.get(), reinterpret_cast<const sockaddr*>(&*place), sizeof *place) != 0 ||
      chmod(path.c_str(), 0600) != 0 || ::listen(socket.get(), 8) != 0) {
    log("Tessarin", "No socket for requests of later instances: " + std::string(std::strerror(errno)));
    return std::nullopt;
  }
  const std::string link = linkPath(dataFolder);
  if (link != path) {
    ::unlink(link.c_str());
    if (::symlink(path.c_str(), link.c_str()) != 0) errno = 0;  // a folder that cannot be written to
  }
  return InstanceSocket(std::move(socket), path, link);
}

InstanceSocket::~InstanceSocket() {
  if (!socket_) return;
  ::unlink(path_.c_str());
  ::unlink(link_.c_str());
}

void InstanceSocket::serve(const Handler& handler) const {
  const FileDescriptor client(accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (!client) return;
  constexpr std::chrono::milliseconds patience{200};
  limitWaiting(client.get(), patience);
  if (const auto request = receiveLine(client.get(), patience)) sendLine(client.get(), handler(*request));
}

std::optional<std::string> requestOfRunningInstance(const std::string& dataFolder, const std::string& request,
                                                    std::chrono::milliseconds patience) {
  FileDescriptor socket = connected(socketPath(dataFolder), patience);
  if (!socket) socket = connected(linkPath(dataFolder), patience);
  if (!socket || !sendLine(socket.get(), request)) return std::nullopt;
  return receiveLine(socket.get(), patience);
}

}  // namespace tessarin::freedesktop
