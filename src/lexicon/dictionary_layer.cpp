#include "lexicon/dictionary_layer.h"

#include <algorithm>

#include "dictionary/dictionary_file.h"
#include "platform/codepage.h"

namespace telarium {
namespace {

// The words of a section one behind the other, as many as the file has.
std::string LeggiSezione(const FileDizionario& file, const SezioneDizionario& sezione,
                         std::size_t lunghezza) {
  const int ultimo = std::max(sezione.UltimoNumero(), 0);
  std::string parole(static_cast<std::size_t>(ultimo) * lunghezza, '\0');
  parole.resize(file.Leggi(sezione.inizio, parole.data(), parole.size()) / lunghezza * lunghezza);
  return parole;
}

void PrendiSezione(std::string_view parole, std::size_t lunghezza, ElencoParole& elenco) {
  for (std::size_t i = 0; i < parole.size(); i += lunghezza) {
    const std::string_view grafia = parole.substr(i, lunghezza);
    if (const auto parola = PiegaGrafia(grafia)) elenco.Metti(*parola, grafia);
  }
}

}  // namespace

std::shared_ptr<const StratoElenco> StratoDizionario(const Percorso& nomeFile, std::string nome,
                                                     std::string& causa) {
  const FileDizionario file(nomeFile);
  ElencoParole elenco;
  std::size_t lunghezza = MinLunghezza;
  for (const SezioneDizionario& sezione : LeggiSezioni(file)) {
    PrendiSezione(LeggiSezione(file, sezione, lunghezza), lunghezza, elenco);
    ++lunghezza;
  }
  if (file.Leggibile()) return std::make_shared<StratoElenco>(std::move(nome), elenco);
  causa = file.Aperto() ? "la lettura non è riuscita"_cp : DescrizioneErrore(file.Errore());
  return nullptr;
}

}  // namespace telarium
