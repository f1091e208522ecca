#pragma once

#include <atomic>
#include <string>
#include <thread>

namespace telarium {

/// A web server on loopback that gives every caller, one at a time, the same bytes.
class LoopbackServer {
 public:
  /// What it does with the line behind its bytes.
  enum class Then { Close, Hold, Repeat };

  explicit LoopbackServer(std::string reply, Then then = Then::Close);
  ~LoopbackServer();
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;

  std::string Address() const { return "http://127.0.0.1:" + std::to_string(port_); }

  /// How many have called so far.
  int Calls() const { return calls_; }

  /// The bytes of an answer to a request; `headers` end each with CR LF.
  static std::string Reply(const std::string& status, const std::string& headers,
                           const std::string& body);

 private:
  void Serve(const std::string& reply, Then then);

  int listener_ = -1;
  int port_ = 0;
  std::atomic<int> calls_ = 0;
  std::atomic<bool> ends_ = false;
  std::thread thread_;
};

}  // namespace telarium
