#pragma once

#include "platform/descriptor.h"
#include "platform/files.h"

namespace telarium {

/// Holds a folder for one of our programs, so that only one at a time makes files of told names in
/// it. Another one is waited for, some seconds at most. A file system without locks refuses nobody.
class BloccoCartella {
 public:
  explicit BloccoCartella(const Percorso& cartella);

  /// False when another program has held it for too long.
  bool Preso() const { return preso_; }

 private:
  Descrittore aperta_;
  bool preso_;
};

}  // namespace telarium
