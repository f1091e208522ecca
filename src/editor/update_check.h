#pragma once

namespace telarium {

/// Asks the product's web server whether there is a newer version and offers to get it; a Yes opens
/// its page and ends the program. Never longer than two seconds; any failure, and no server being
/// configured, passes in silence.
void ControllaAggiornamento();

}  // namespace telarium
