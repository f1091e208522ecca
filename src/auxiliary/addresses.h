#pragma once

#include <string>
#include <string_view>

// Addresses of the product and of what its menus open, configured in indirizzi.txt of the program
// folder: one "name=value" to a line. A value that the file does not name has its default, which is
// under a reserved example domain.
namespace telarium {

enum class Indirizzo {
  SitoProdotto,  // as it is printed: without a scheme in front
  PaginaProdotto,
  PaginaDizionario,
  PaginaAmici,
  MailAutore,
  MailSchemi,
  PaginaEsempio,        // holds a crossword, for a first try at opening one
  ServerAggiornamenti,  // empty: no update check
  Menui0,
  MenuI1,
  Menui2,
  Menui3,
  Menui4,
  TitoloMenui2,  // the captions of two of the online dictionaries are names of services
  TitoloMenui4,
  PaginaAccessoDati,   // as Form6 shows it
  ScaricoAccessoDati,  // as Form6 opens it
};

/// Takes the addresses from indirizzi.txt. Without a readable file the defaults hold.
void LeggiIndirizzi();

/// The value of an address as configured; it may be empty.
const std::string& ValoreIndirizzo(Indirizzo quale);

/// An address of the web for a program that wants a scheme: "https://" in front when there is none.
std::string ConSchema(std::string_view indirizzo);

}  // namespace telarium
