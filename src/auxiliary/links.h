#pragma once

#include "auxiliary/addresses.h"

namespace telarium {

/// Opens an address with the program that the user has for it, or says that it cannot be opened.
void ApriIndirizzo(const std::string& indirizzo);

/// Opens a page in the user's browser.
void ApriPagina(Indirizzo quale);

/// Opens a new mail to the address in the user's mail program.
void ScriviMail(Indirizzo quale);

}  // namespace telarium
