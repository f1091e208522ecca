#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

// What the dictionary manager does beside its lists.
namespace telarium {

/// LinguaDizionario of a dictionary by its file name, case ignored; none for another than those of
/// the system.
std::optional<std::int16_t> LinguaDelDizionario(const Percorso& nome);

/// The file name of a private dictionary from what the user typed, with one ".priv" at its end.
/// None for what is no plain name of a file, or that of a hidden one.
std::optional<Percorso> NomeDizionarioPrivato(std::string_view testo);

/// Makes an empty dictionary. The error, 0 for none; a file that is there already is one.
[[nodiscard]] std::error_code CreaDizionarioVuoto(const Percorso& nome);

/// Deletes a dictionary. False when it is not there, is write-protected or cannot be deleted.
[[nodiscard]] bool CancellaDizionario(const Percorso& nome);

/// The lines of a word list that are not blank, as they stand, and the number of the last one of
/// them, blank ones counted. A list in UTF-8 is brought into the code page.
struct ListaImportata {
  std::vector<std::string> parole;
  int righe = 0;
};

/// The plain list of the words of a length in a folder, "3.txt" to "15.txt".
Percorso ListaDaImportare(const Percorso& cartella, int lunghezza);

/// Its first 32,200 lines. None when it cannot be read, for which `errore` says why.
std::optional<ListaImportata> LeggiListaDaImportare(const Percorso& lista, std::error_code& errore);

}  // namespace telarium
