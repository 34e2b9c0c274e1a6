#include "platform/freedesktop/InstanceSocket.h"

#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/Log.h"

namespace tessarin::freedesktop {
namespace {

/// Room for the four arguments of a new snippet, each as long as the system lets one be (128 kB), with three
/// characters for each byte.
constexpr std::size_t longestLine = 2U << 20;

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
  std::array<char, 4096> buffer{};
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

/// Adds what has come. False when the other side is done or broke off.
bool receiveMore(int socket, std::string& said) {
  std::array<char, 4096> buffer{};
  const ssize_t count = recv(socket, buffer.data(), buffer.size(), 0);
  if (count > 0) said.append(buffer.data(), static_cast<std::size_t>(count));
  return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

bool addToNews(int news, int file) {
  epoll_event event{};
  event.events = EPOLLIN;
  event.data.fd = file;
  return epoll_ctl(news, EPOLL_CTL_ADD, file, &event) == 0;
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
  FileDescriptor news(epoll_create1(EPOLL_CLOEXEC));
  ::unlink(path.c_str());  // what an instance that was killed left behind
  if (!place || !socket || !addToNews(news.get(), socket.get()) ||
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
  return InstanceSocket(std::move(socket), std::move(news), path, link);
}

InstanceSocket::~InstanceSocket() {
  if (!socket_) return;
  ::unlink(path_.c_str());
  ::unlink(link_.c_str());
}

void InstanceSocket::serve(const Handler& handler) {
  std::array<epoll_event, 16> events{};
  const int count = epoll_wait(news_.get(), events.data(), events.size(), 0);
  for (int i = 0; i < count; ++i) {
    const int ready = events[static_cast<std::size_t>(i)].data.fd;
    if (ready == socket_.get()) {
      accept();
    } else {
      hear(ready, handler);
    }
  }
}

void InstanceSocket::accept() {
  FileDescriptor client(accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
  if (!client || !addToNews(news_.get(), client.get())) return;
  if (clients_.size() == mostClients) clients_.erase(clients_.begin());
  clients_.push_back({std::move(client), {}});
}

void InstanceSocket::hear(int client, const Handler& handler) {
  const auto found =
      std::ranges::find_if(clients_, [=](const Client& c) { return c.socket.get() == client; });
  if (found == clients_.end()) return;  // dropped meanwhile
  const std::size_t heardBefore = found->said.size();
  const bool isMore = receiveMore(client, found->said) && found->said.size() < longestLine;
  const auto end = found->said.find('\n', heardBefore);
  if (isMore && end == std::string::npos) return;
  // Out of the list before the handler runs, which may come back here.
  const Client heard = std::move(*found);
  clients_.erase(found);
  if (end != std::string::npos) sendLine(heard.socket.get(), handler(heard.said.substr(0, end)));
}

std::optional<std::string> requestOfRunningInstance(const std::string& dataFolder, const std::string& request,
                                                    std::chrono::milliseconds patience) {
  FileDescriptor socket = connected(socketPath(dataFolder), patience);
  if (!socket) socket = connected(linkPath(dataFolder), patience);
  if (!socket || !sendLine(socket.get(), request)) return std::nullopt;
  return receiveLine(socket.get(), patience);
}

}  // namespace tessarin::freedesktop
