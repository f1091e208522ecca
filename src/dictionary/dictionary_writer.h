#pragma once

#include <array>
#include <functional>
#include <string>

#include "dictionary/word_list.h"
#include "platform/files.h"

namespace telarium {

/// What became of a dictionary to be written.
struct EsitoDizionario {
  /// Why nothing was replaced, for the user; empty when the file is written.
  std::string errore;
  /// Words written, by length less 3.
  std::array<int, MaxLunghezza - MinLunghezza + 1> parole{};
};

/// Writes a dictionary from its lists, each in its order; a word that equals the one before it, or
/// that has another length than its list, is skipped. The file is written as LESSICO.new beside
/// `nome` and renamed over it when it is complete. More than 32,767 words of one length, or a file
/// past position 9,999,999, are refused before anything is written. `avanzamento`, which may be
/// empty, gets the length less 3 and how many words of its list are done, now and then and at the
/// beginning and end of each list; the lists must stay as they are meanwhile.
/// Another writer of the same folder is waited for, some seconds at most.
EsitoDizionario ScriviDizionario(
    const Percorso& nome, const ListeDiParole& liste,
    const std::function<void(std::size_t lista, std::size_t fatte)>& avanzamento = {});

}  // namespace telarium
