#include "process_cost.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace telarium {
namespace {

struct Run {
  double milliseconds;
  double mebibytes;
  bool succeeded;
};

Run RunOnce(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& word : command)
    arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);

  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  const int error =
      ::posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  rusage usage{};
  if (error == 0) ::wait4(child, &status, 0, &usage);
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  return {took.count(), static_cast<double>(usage.ru_maxrss) / 1024,
          error == 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0};
}

}  // namespace

ProcessCost MeasureProcess(const std::vector<std::string>& command, int runs) {
  ProcessCost cost;
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) {
    const Run run = RunOnce(command);
    times.push_back(run.milliseconds);
    cost.peakMebibytes = std::max(cost.peakMebibytes, run.mebibytes);
    cost.succeeded = cost.succeeded && run.succeeded;
  }
  std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
  cost.milliseconds = times[static_cast<std::size_t>(runs) / 2];
  return cost;
}

}  // namespace telarium
