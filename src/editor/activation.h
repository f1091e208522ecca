#pragma once

#include <functional>

// When the main window counts as active again: once after each command in which one of the
// program's own windows was shown, and after the load. A window system tells it neither reliably
// nor in order, so it is an explicit call.
namespace telarium {

/// Runs a command of the main window, and when it has ended the activation that a window shown in
/// it has queued. A command that runs inside another one leaves the activation to the outer one. An
/// exception, which is how the program ends in tests, drops it.
void EseguiComandoDiFinestra(const std::function<void()>& comando);

/// Whether a command, or an activation, is running.
bool ComandoInCorso();

/// Queues one activation for the end of the running command, however often it is called; outside of
/// a command it runs at once; inside of an activation, behind it. Called after each of the
/// program's own windows that was shown modally, never for message boxes, input boxes and dialogs
/// of the system.
void AccodaAttivazione();

}  // namespace telarium
