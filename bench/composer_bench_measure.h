#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

#include "composer/composer.h"

// How the composer's work is timed and told: by the processor time of the thread that does it,
// which other work on the machine disturbs little.
namespace telarium {

/// Milliseconds of processor time of the calling thread, or of the wall clock, since it was made.
class Stopwatch {
 public:
  Stopwatch();
  double ThreadMs() const;
  double WallMs() const;

 private:
  double thread_, wall_;
};

/// Asks for a stop when its seconds of the wall clock are up, unless it is gone before.
class Deadline {
 public:
  explicit Deadline(double seconds);
  std::stop_token Token() const { return source_.get_token(); }

 private:
  std::stop_source source_;
  std::mutex mutex_;
  std::condition_variable_any never_;
  std::jthread thread_;
};

/// Fails the whole run, with what was wrong.
void Demand(bool condition, const std::string& what);

/// A fill and what it took.
struct TimedFill {
  Riempimento fill;
  double threadMs = 0;
  double wallMs = 0;
};

/// Composes, broken off after so many seconds of the wall clock (0: never). A fill with a fault
/// ends the run.
TimedFill FillTimed(const Problema& problem, const Limiti& limits, double seconds = 0);

/// Demands that an answer has no fault.
void DemandSound(const Problema& problem, const std::string& letters);

/// Times of one kind of work, in milliseconds.
class Times {
 public:
  void Add(double milliseconds) { all_.push_back(milliseconds); }
  void Add(const Times& other) { all_.insert(all_.end(), other.all_.begin(), other.all_.end()); }
  bool Empty() const { return all_.empty(); }
  std::size_t Count() const { return all_.size(); }
  double Last() const { return all_.back(); }
  double Median() const;
  double Least() const;
  double Worst() const;

 private:
  std::vector<double> all_;
};

/// A number with as many digits as it bears: "0.4", "12", "1,240".
std::string Told(double number);

/// Medians of each grid by itself, their least and greatest, and the worst of all: "1.2-3 / 15".
std::string Spread(const std::vector<Times>& grids);

/// A line of what lies behind a cell of the table, to standard error.
void Note(const std::string& line);

const char* NameOf(Esito outcome);

}  // namespace telarium
