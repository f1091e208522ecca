#include "support/loopback_server.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace telarium {
namespace {

// So that a send to a caller who no longer reads comes back now and then.
void LimitSends(int caller) {
  const timeval limit{.tv_sec = 0, .tv_usec = 50'000};
  ::setsockopt(caller, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

bool Send(int caller, const std::string& bytes, const std::atomic<bool>& ends) {
  for (std::size_t sent = 0; sent < bytes.size();) {
    const ssize_t n = ::send(caller, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (n > 0) sent += static_cast<std::size_t>(n);
    if (ends || (n < 0 && errno != EAGAIN)) return false;
  }
  return true;
}

}  // namespace

LoopbackServer::LoopbackServer(std::string reply, Then then) {
  listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size);
  ::listen(listener_, 8);
  ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this, reply = std::move(reply), then] { Serve(reply, then); });
}

LoopbackServer::~LoopbackServer() {
  ends_ = true;
  ::shutdown(listener_, SHUT_RDWR);
  thread_.join();
  ::close(listener_);
}

std::string LoopbackServer::Reply(const std::string& status, const std::string& headers,
                                  const std::string& body) {
  return "HTTP/1.1 " + status + "\r\n" + headers + "Connection: close\r\n\r\n" + body;
}

void LoopbackServer::Serve(const std::string& reply, Then then) {
  std::vector<int> held;
  for (int caller; (caller = ::accept(listener_, nullptr, nullptr)) >= 0;) {
    ++calls_;
    LimitSends(caller);
    char request[4096];
    bool listens = ::recv(caller, request, sizeof request, 0) > 0 && Send(caller, reply, ends_);
    while (listens && then == Then::Repeat)
      listens = Send(caller, std::string(1u << 16, 'x'), ends_);
    if (then == Then::Hold) {
      held.push_back(caller);
    } else {
      ::close(caller);
    }
  }
  for (const int caller : held)
    ::close(caller);
}

}  // namespace telarium
