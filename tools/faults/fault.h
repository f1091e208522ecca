// Included into every source of a tree with faults: which of them is switched on.
//
// TELARIUM_FAULT is the number of the one fault that is; children inherit it. TELARIUM_FAULT_TRACE
// names a file that takes the number of each fault whose place is reached, a line each.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace faults {

inline int Active() {
  static const int active = [] {
    const char* number = std::getenv("TELARIUM_FAULT");
    return number ? std::atoi(number) : 0;
  }();
  return active;
}

inline const char* TraceFile() {
  static const char* const file = std::getenv("TELARIUM_FAULT_TRACE");
  return file;
}

inline void Note(int number) {
  static std::atomic<bool> noted[10000];
  if (noted[number].exchange(true)) return;
  char line[16];
  const int length = std::snprintf(line, sizeof line, "%d\n", number);
  const int file = ::open(TraceFile(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
  if (file < 0) return;
  [[maybe_unused]] const auto written = ::write(file, line, static_cast<size_t>(length));
  ::close(file);
}

}  // namespace faults

inline bool FaultIsOn(int number) {
  if (faults::TraceFile()) faults::Note(number);
  return faults::Active() == number;
}
