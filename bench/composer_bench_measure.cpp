#include "composer_bench_measure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <time.h>

namespace telarium {
namespace {

double Now(clockid_t clock) {
  timespec time{};
  ::clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace

Deadline::Deadline(double seconds)
    : thread_([this, seconds](const std::stop_token& gone) {
        std::unique_lock lock(mutex_);
        never_.wait_for(lock, gone, std::chrono::duration<double>(seconds), [] { return false; });
        if (!gone.stop_requested()) source_.request_stop();
      }) {}

Stopwatch::Stopwatch() : thread_(Now(CLOCK_THREAD_CPUTIME_ID)), wall_(Now(CLOCK_MONOTONIC)) {}

double Stopwatch::ThreadMs() const {
  return Now(CLOCK_THREAD_CPUTIME_ID) - thread_;
}

double Stopwatch::WallMs() const {
  return Now(CLOCK_MONOTONIC) - wall_;
}

void Demand(bool condition, const std::string& what) {
  if (condition) return;
  std::fprintf(stderr, "composer_bench: %s\n", what.c_str());
  std::exit(1);
}

void DemandSound(const Problema& problem, const std::string& letters) {
  const auto faults = Difetti(problem, letters);
  Demand(faults.empty(), "a faulty fill: " + (faults.empty() ? "" : faults.front()));
}

TimedFill FillTimed(const Problema& problem, const Limiti& limits, double seconds) {
  std::optional<Deadline> deadline;
  Limiti bounded = limits;
  if (seconds > 0) bounded.ferma = deadline.emplace(seconds).Token();
  const Stopwatch watch;
  TimedFill timed{.fill = Componi(problem, bounded)};
  timed.threadMs = watch.ThreadMs();
  timed.wallMs = watch.WallMs();
  if (timed.fill.esito == Esito::Riempito) DemandSound(problem, timed.fill.lettere);
  return timed;
}

double Times::Median() const {
  std::vector<double> sorted = all_;
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::nth_element(sorted.begin(), middle, sorted.end());
  return *middle;
}

double Times::Least() const {
  return *std::min_element(all_.begin(), all_.end());
}

double Times::Worst() const {
  return *std::max_element(all_.begin(), all_.end());
}

std::string Told(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*f", number < 10 ? 1 : 0, number);
  std::string told = text;
  if (number < 10) return told;
  for (std::size_t place = told.size(); place > 3; place -= 3)
    if (place - 3 > 0) told.insert(place - 3, 1, ',');
  return told;
}

std::string Spread(const std::vector<Times>& grids) {
  Times medians, all;
  for (const Times& grid : grids) {
    if (grid.Empty()) continue;
    medians.Add(grid.Median());
    all.Add(grid);
  }
  if (all.Empty()) return "none";
  const std::string least = Told(medians.Least()), greatest = Told(medians.Worst());
  return (least == greatest ? least : least + "-" + greatest) + " / " + Told(all.Worst());
}

void Note(const std::string& line) {
  std::fprintf(stderr, "    %s\n", line.c_str());
}

const char* NameOf(Esito outcome) {
  switch (outcome) {
    case Esito::Riempito:
      return "filled";
    case Esito::Impossibile:
      return "impossible";
    case Esito::Tempo:
      return "no answer";
  }
  return "";
}

}  // namespace telarium
