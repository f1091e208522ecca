#pragma once

#include "editor/main_window.h"

class QWidget;

namespace telarium {

/// Opens one of the program's own windows over the main window and waits until it closes.
void MostraFinestraModale(Modale quale, QWidget& principale);

/// The same with the clue editor, which gets a word: what it gives back, if it was accepted.
std::optional<ParolaDefinita> MostraTelarDef(const ParolaInEsame& parola, QWidget& principale);

}  // namespace telarium
