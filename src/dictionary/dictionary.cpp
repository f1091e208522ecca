#include "dictionary/dictionary.h"

#include "platform/check.h"
#include "platform/codepage.h"

namespace telarium {

void Dizionario::Nomina(Percorso nome, std::int16_t lingua) {
  nome_ = std::move(nome);
  lingua_ = lingua;
}

Dizionario::Apertura Dizionario::Apri() {
  if (!TrovaFile(cartella_, nome_)) return Apertura::Assente;
  const FileDizionario file(PercorsoDizionario());
  sezioni_ = LeggiSezioni(file);
  return file.Leggibile() ? Apertura::Riuscita : Apertura::Illeggibile;
}

const SezioneDizionario& Dizionario::Sezione(int indice) const {
  const auto posto = static_cast<std::size_t>(indice);
  Verifica(posto < sezioni_.size(), "Dizionario: lunghezza fuori da 3 a 15");
  return sezioni_[posto];
}

std::string Dizionario::LeggiParola(std::int16_t numero, int lunghezza) const {
  const FileDizionario file(PercorsoDizionario());
  std::string parola(static_cast<std::size_t>(lunghezza), ' ');
  const std::int64_t inizio = OffsetLunghezza(lunghezza - MinLunghezza);
  file.Leggi(inizio + (std::int64_t{numero} - 1) * lunghezza, parola.data(), parola.size());
  return file.Leggibile() ? parola : std::string();
}

bool Dizionario::Leggibile() const {
  return FileDizionario(PercorsoDizionario()).Aperto();
}

std::string Dizionario::TestoIlleggibile() const {
  const Percorso nome = PercorsoDizionario();
  const FileDizionario file(nome);
  return ConCausa(
      "Impossibile leggere il dizionario.", nome,
      file.Aperto() ? "la lettura non è riuscita"_cp : DescrizioneErrore(file.Errore()));
}

}  // namespace telarium
