#pragma once

#include <algorithm>
#include <chrono>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lexicon/lexicon.h"
#include "model/laboratory_section.h"
#include "platform/text.h"
#include "telar/arguments.h"

// The values of options. What is none throws ArgomentiErrati, which names the option.
namespace telarium::telar {

template <class Valore>
using Scelte = std::initializer_list<std::pair<std::string_view, Valore>>;

/// The value that a name stands for; `altrimenti` without the option.
template <class Valore>
Valore Scelto(const Argomenti& argomenti, const Opzione& opzione, Valore altrimenti,
              Scelte<Valore> scelte) {
  if (!argomenti.Ha(opzione.nome)) return altrimenti;
  const std::string valore = argomenti.Valore(opzione.nome);
  std::string nomi;
  for (const auto& [nome, scelta] : scelte) {
    if (nome == valore) return scelta;
    nomi += Unisci(nomi.empty() ? "" : ", ", nome);
  }
  throw ArgomentiErrati(Unisci(opzione.nome, " richiede uno di: ", nomi));
}

/// The parts of a text that commas divide; the empty text has one.
std::vector<std::string> DivisiDaVirgole(std::string_view testo);

/// The parts of a value that commas divide, none of which is empty; no part without the option.
std::vector<std::string> Parti(const Argomenti& argomenti, const Opzione& opzione);

/// The folded words of a value that commas divide.
InsiemeDiParole Parole(const Argomenti& argomenti, const Opzione& opzione);

/// A whole number from `minimo` to `massimo`.
int Limitato(std::string_view testo, int minimo, int massimo, std::string_view nome);

/// Where a word starts: column, row, and O or V in any case. `nome` is what a message calls it.
InizioDiParola LeggiInizio(std::string_view colonna, std::string_view riga,
                           std::string_view direzione, std::string_view nome);

/// A number of seconds, whole or decimal with a point, from 0 on. What is longer than a year is a
/// year.
std::chrono::nanoseconds Secondi(const Argomenti& argomenti, const Opzione& opzione,
                                 std::chrono::nanoseconds altrimenti);

}  // namespace telarium::telar
