#pragma once

#include <string_view>

namespace telarium {

class Form1;

/// What a menu entry runs. To ask for that of a submenu or of no entry is a programming error.
using ComandoDiForm1 = void (*)(Form1&);
ComandoDiForm1 ComandoDellaVoce(std::string_view nome);

/// What a toolbar button does, by its key: a command of its own, or that of a menu entry, or a menu
/// that pops up below it.
struct AzioneDiPulsante {
  std::string_view chiave;
  ComandoDiForm1 comando = nullptr;
  std::string_view voce = {};
  std::string_view menu = {};
};
AzioneDiPulsante AzioneDelPulsante(std::string_view chiave);

}  // namespace telarium
