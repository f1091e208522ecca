#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

// The dictionaries that lie beside the program, as a popup menu offers them.
namespace telarium {

/// An entry of the popup. A separator has no file.
struct VoceDiDizionario {
  std::string testo;
  Percorso file;
};

/// The entries of the popup behind its fixed first one, as a folder is now: a separator, the
/// dictionaries of the system, and behind another separator the private ones if there are any.
std::vector<VoceDiDizionario> CaricaVociDizionari(const Percorso& cartella);

}  // namespace telarium
