#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "platform/console/console_platform.h"
#include "telar/arguments.h"

namespace telarium::telar {

/// Exit status of a command.
enum class Stato {
  Fatto = 0,
  Fallito = 1,
  ArgomentiErrati = 2,
  Negativo = 3,    // answered with no: impossible, not fit for print, not in the lexicon
  Interrotto = 4,  // broken off before there was an answer
};

inline constexpr std::size_t QuantiSiVuole = std::numeric_limits<std::size_t>::max();

/// A command of `telar`. All texts are UTF-8.
struct Comando {
  std::string_view nome;
  std::string_view argomenti;  // as the usage text shows them, and behind them the options of which
  std::string_view uso;        // one is needed
  std::size_t minArgomenti;
  std::size_t maxArgomenti;
  std::vector<Opzione> opzioni;
  std::string_view aiuto;
  std::function<Stato(const Argomenti&, PiattaformaConsole&)> esegui;
  bool usaEnciclopedia = false;       // the user's own one is made first when it is missing
  Stato interrotto = Stato::Fallito;  // when Ctrl+C breaks that off
};

/// All commands, in the order of the help text.
const std::vector<Comando>& Comandi();

std::vector<Comando> ComandiCruciverba();
std::vector<Comando> ComandiDizionario();
std::vector<Comando> ComandiDefinizioni();
std::vector<Comando> ComandiUscita();
std::vector<Comando> ComandiLessico();
std::vector<Comando> ComandiControllo();
std::vector<Comando> ComandiComposizione();
std::vector<Comando> ComandiCandidati();

}  // namespace telarium::telar
