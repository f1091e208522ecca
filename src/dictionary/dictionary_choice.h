#pragma once

#include <cstdint>
#include <functional>
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

/// Index of the popup's last entry that its last opening has loaded; entry 0 is fixed.
extern std::int16_t NumVociDizionari;

/// The entries of the popup from index 1 on, as the program folder is now: a separator, the
/// dictionaries of the system, and behind another separator the private ones if there are any. Sets
/// NumVociDizionari.
std::vector<VoceDiDizionario> CaricaVociDizionari();

/// Runs an operation while another dictionary is the open one, then opens the earlier one again. A
/// dictionary whose file is gone ends the program; one that cannot be read is told, and nothing is
/// run.
void ConDizionario(const Percorso& nome, const std::function<void()>& operazione);

}  // namespace telarium
