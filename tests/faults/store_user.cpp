// A stand-in for the desktop in the races of store_races.py: browsers and bulk saves on the store
// of a folder, by the code that the windows use. On standard output, a line each and at once:
//
//   S       a session begins      A WORD  a word has been stored
//   E       it has ended          X TEXT  a clue that is not of its word was read
//   F TEXT  an error of the store was told
//
//   store_user FOLDER PREFIX SESSIONS WORDS
#include <cstdio>
#include <cstdlib>
#include <string>

#include "clues/encyclopedia_rows.h"
#include "clues/merging.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace {

using namespace telarium;

void Say(char what, const std::string& text) {
  std::printf("%c %s\n", what, text.c_str());
  std::fflush(stdout);
}

// Words have letters alone.
std::string Word(const std::string& prefix, int number) {
  std::string word = prefix;
  for (int i = 0; i < 3; ++i, number /= 26)
    word += static_cast<char>('A' + number % 26);
  return word;
}

void CheckRow(RigheEnciclopedia& rows, int position) {
  if (!rows.VaiA(position)) return;
  const std::string word = rows.Testo(CampoParole::Parola);
  const std::string clues = rows.Testo(CampoParole::Facili);
  if (clues.find(word) == std::string::npos) Say('X', Unisci(word, ": ", clues));
}

void Browse(const std::string& word, int position) {
  RigheEnciclopedia rows;
  rows.Apri();
  CheckRow(rows, 1 + position % (rows.NumeroRighe() + 1));
  rows.Nuova();
  rows.Imposta(CampoParole::Parola, word);
  rows.Imposta(CampoParole::Facili, "di " + word);
  rows.Registra();
  Say('A', word);
  rows.Rileggi();
  CheckRow(rows, 1 + 7 * position % (rows.NumeroRighe() + 1));
}

void Save(const std::string& prefix, int from, int count) {
  const EnciclopediaAperta store = ApriEnciclopedia();
  store->IniziaSerie();
  for (int i = from; i < from + count; ++i) {
    ContoFusioni counts;
    const std::string word = Word(prefix, i);
    UnisciDefinizione(*store, word, "di " + word, counts);
    if (counts.parole == 1) Say('A', word);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) return 2;
  CartellaProgramma = argv[1];
  const std::string prefix = argv[2];
  const int sessions = std::atoi(argv[3]), words = std::atoi(argv[4]);
  for (int i = 0; i < sessions; ++i) {
    Say('S', "");
    try {
      if (i % 2 == 0) Browse(Word(prefix, i * words), 31 * i);
      if (i % 2 == 1) Save(prefix, i * words, words);
    } catch (const ErroreEnciclopedia& error) {
      Say('F', AUtf8(error.Descrizione()));
    }
    Say('E', "");
  }
  return 0;
}
