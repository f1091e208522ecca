#pragma once

#include "editor/main_window.h"

class QWidget;

namespace telarium {

/// Opens one of the program's own windows over the main window and waits until it closes.
void MostraFinestraModale(Modale quale, QWidget& principale);

}  // namespace telarium
