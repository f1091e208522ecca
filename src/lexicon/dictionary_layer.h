#pragma once

#include <memory>
#include <string>

#include "lexicon/list_layer.h"
#include "platform/files.h"

namespace telarium {

/// The words of a dictionary, .dat or .priv, as a layer without scores: those that the program
/// itself finds in it. What cannot be folded to a word is left out. None, with the cause in Italian
/// as the end of a sentence, when the file cannot be read.
std::shared_ptr<const StratoElenco> StratoDizionario(const Percorso& file, std::string nome,
                                                     std::string& causa);

}  // namespace telarium
