#pragma once

// The two commands that hand a mail with a file to the user's mail program, which shows it and
// sends it. What cannot be handed on is told, and the command ends.
namespace telarium {

/// mandaschema: a mail with the current crossword as its file lies on the disk. One that was never
/// saved, or whose file is gone, is told before any mail program is started.
void MandaSchema();

/// menuconsiglia: asks for a name and for the address of a friend, then a mail that recommends the
/// program, with the help file. No name, or a cancelled question, ends the command.
void ConsigliaTelarium();

}  // namespace telarium
