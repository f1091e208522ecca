#pragma once

#include <map>
#include <random>
#include <string>
#include <vector>

#include "history/difference.h"
#include "history/history_session.h"

namespace telarium {

/// A random walk of commands over a document, always the same one for a seed, and beside it the
/// plain way to undo: whole copies of all states, which share nothing.
class HistoryWalk {
 public:
  HistoryWalk(const Percorso& files, const Percorso& steps, unsigned seed);

  /// One more command. Where undo, redo or a new start give something else than the plain way, it
  /// is a failure of the test.
  void Step();
  /// Whether it starts anew now and then.
  bool restarts = true;

  HistorySession& Session() { return session_; }
  /// Which crossword is open and what it holds, as bytes.
  std::string State() const;
  /// Whether a program that ended now would have to offer it.
  bool Unsaved() const;

 private:
  // A state of one of the crosswords, which are counted as they are opened.
  struct Shot {
    int crossword;
    std::string value;
    bool operator==(const Shot&) const = default;
  };

  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(chance_); }
  std::string FileName() { return "file" + std::to_string(Below(4)); }
  Casella AnyCell();
  Shot Take() const { return {crossword_, DifferenzaTra({}, session_.Value())}; }
  void Check(const Shot& expected, const char* after);
  template <class Command>
  void Change(Command command);
  void Opened(const Shot& before, bool wasOpen);

  void ChangeCell();
  void ChangeClue();
  void ChangeMuch();
  void ChangeRest();
  void Open();
  void New();
  void Save();
  void WriteFromOutside();
  void Undo();
  void Redo();
  void GoTo();
  void Restart();

  HistorySession session_;
  std::mt19937 chance_;
  int crossword_ = 0;
  std::map<int, std::string> names_;
  std::vector<Shot> undo_, redo_;
};

}  // namespace telarium
