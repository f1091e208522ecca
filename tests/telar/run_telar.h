#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/descriptor.h"
#include "platform/files.h"
#include "platform/temporary.h"

namespace telarium {

struct TelarCall {
  std::vector<std::string> arguments;
  // "NAME=value". What the tests themselves inherited of the variables that name folders is gone.
  std::vector<std::string> environment;
  Percorso folder;  // the working directory

  // What becomes standard output and standard error: a descriptor, or one of these.
  static constexpr int Captured = -1, Closed = -2;
  int output = Captured;
  int errors = Captured;
};

struct TelarResult {
  int status = 0;   // exit status, or minus the number of the signal that ended the process
  std::string out;  // what was captured, whole
  std::string err;
};

/// A running `telar`. One that takes longer than the time limit is killed and fails the test.
class TelarProcess {
 public:
  explicit TelarProcess(const TelarCall& call);
  ~TelarProcess();
  TelarProcess(const TelarProcess&) = delete;
  TelarProcess& operator=(const TelarProcess&) = delete;

  /// Returns when the condition holds. The process may not end before.
  void WaitUntil(const std::function<bool()>& condition);
  /// Whether Ctrl+C does not end it any more.
  bool CatchesInterrupt() const;
  /// Sends what Ctrl+C sends.
  void Interrupt();
  /// Ends it at once, as `kill -9` does.
  void Kill();
  TelarResult WaitForEnd();

 private:
  void Send(int signal);
  bool Ended(int milliseconds) const;

  CartellaTemporanea outputs_;
  pid_t pid_ = -1;
  Descrittore handle_;  // readable when the process has ended
};

inline TelarResult RunTelar(const TelarCall& call) {
  return TelarProcess(call).WaitForEnd();
}

}  // namespace telarium
