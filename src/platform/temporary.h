#pragma once

#include "platform/commitment.h"
#include "platform/descriptor.h"
#include "platform/files.h"

// What is there for a while only: a folder for a run, and what runs and writes leave that are
// killed.
namespace telarium {

/// A folder under the system's temporary folder, with its contents removed at the end of its life.
/// As long as it lives the system holds a lock on it, by which others know that it is in use.
class CartellaTemporanea {
 public:
  CartellaTemporanea();

  /// Empty when the system gave none.
  const Percorso& Nome() const { return nome_; }

 private:
  Percorso nome_;
  Descrittore blocco_;
  Impegno rimozione_;
};

/// Removes from a folder the hidden files that killed writes of ours left beside their target. One
/// that changed within the last day stays: its writer may live.
void TogliScrittureInterrotte(const Percorso& cartella);

/// Removes the user's temporary folders that no process holds and in which nothing has changed
/// within the last day.
void TogliCartelleAbbandonate();

}  // namespace telarium
