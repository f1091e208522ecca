#pragma once

#include <optional>
#include <string>

#include "platform/files.h"

// Whether files are as they were, told without opening them. No reader of the store may open it on
// its own, or one of its logs, and close it again: the system then takes away all locks that the
// process has on the file, those of its open connections too.
//
// It goes by the time of the last change, which no program can set, besides inode, size and the
// time that one can set. Two changes within one tick of the system's clock have the same time. So a
// stamp is only fixed once a tick has passed since the last change: from then on each change gives
// another one.
namespace telarium {

/// What an index of a store is made from.
struct FontiIndice {
  Percorso archivio;  // the store's file
  Percorso corredo;   // the list of the kit, which may be missing
};

/// The stamp of the store, its write-ahead log and the kit as they are now. Two equal ones mean
/// that none of them was written in between, if the first one is a fixed one. The store's path is
/// its last line.
std::string TimbroDi(const FontiIndice& fonti);

/// The path in a stamp.
Percorso ArchivioDelTimbro(std::string_view timbro);

/// A stamp that no later write leaves as it is, taken while nobody is in the middle of a write to
/// the log: such a one becomes visible without the file being touched once more. Waits some
/// milliseconds for it where needed. None when the store changes all the time, is being written to,
/// or lies on a file system with coarse times and has just changed. Folds a log back that a killed
/// program has left. A store that cannot be opened is thrown as ErroreEnciclopedia.
std::optional<std::string> TimbroFermo(const FontiIndice& fonti);

}  // namespace telarium
