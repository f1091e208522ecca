#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "platform/files.h"

// Programs that meet an error, a kill or a stop at one of their system calls: see fault_shim.cpp.
namespace telarium {

struct Fault {
  long at = 0;             // the number of the call, from 1; 0: none, the calls are counted
  const char* what = "";   // "ENOSPC", "EIO", ..., "SHORT", "KILL", "STOP"
  bool onward = false;     // the later calls fail likewise
  const char* calls = "";  // "write" (also when empty), "lock", "read", joined by ","
  Percorso under = {};     // only calls about files below
  Percorso report = {};
};

/// The words "NAME=value" that a program needs in its environment for a fault.
inline std::vector<std::string> Environment(const Fault& fault) {
  return {"LD_PRELOAD=" TELARIUM_FAULT_SHIM,
          // A build with sanitizers wants to be loaded first, and its search for leaks at the end
          // would be told of a thread that was ended by a fault.
          "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0",
          "FAULT_AT=" + std::to_string(fault.at), std::string("FAULT_DO=") + fault.what,
          std::string("FAULT_ONWARD=") + (fault.onward ? "1" : ""),
          std::string("FAULT_CALLS=") + fault.calls, "FAULT_UNDER=" + fault.under.string(),
          "FAULT_REPORT=" + fault.report.string()};
}

/// How many calls a run has made, and the name of the last one that was hit.
struct FaultReport {
  long calls = 0;
  std::string hit;
};

inline FaultReport ReadFaultReport(const Percorso& report) {
  FaultReport read;
  std::ifstream(report) >> read.calls >> read.hit;
  return read;
}

}  // namespace telarium
