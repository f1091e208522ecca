#pragma once

#include <memory>
#include <string_view>

#include "clues/coverage_index.h"
#include "clues/store_state.h"
#include "platform/files.h"

// The files of the cache folder that hold indexes, one for each store.
namespace telarium {

/// The name of the index of a store.
Percorso NomeIndice(const FontiIndice& fonti);

/// The index that a file holds if it is sound and has that stamp; else none.
std::shared_ptr<const IndiceCopertura> LeggiIndice(const Percorso& file, std::string_view timbro);

/// Writes an index, making its folder for the user alone where it is missing, and removes what has
/// no use any more from there: indexes of stores that are gone, when they are old, and what killed
/// writes left. False when it cannot be written; then all stays as it was.
bool ScriviIndice(const Percorso& file, std::string_view byte);

}  // namespace telarium
