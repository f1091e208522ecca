#include "dictionary/dictionary.h"

#include "dictionary/dictionary_file.h"
#include "platform/codepage.h"
#include "platform/platform.h"

namespace telarium {

Percorso NomeDizionario = DizionariDiSistema[0];
std::int16_t LinguaDizionario = 1;
Tabella<std::int32_t, AsseLunghezze> OffsetLunghezza("OffsetLunghezza");
Tabella<std::int32_t, AsseLunghezze> ContaLunghezza("ContaLunghezza");

namespace {

void AzzeraDizionario() {
  NomeDizionario = DizionariDiSistema[0];
  LinguaDizionario = 1;
  OffsetLunghezza.Riempi(0);
  ContaLunghezza.Riempi(0);
}

const AzzeramentoDiSottosistema azzeramento(AzzeraDizionario);

}  // namespace

Percorso PercorsoDizionario() {
  return PercorsoNellaCartella(CartellaProgramma, NomeDizionario);
}

bool ApriDizionario() {
  if (!TrovaFile(CartellaProgramma, NomeDizionario)) {
    Avvisa("Errore fatale! non trovato file di vocabolario: " + TestoPercorso(NomeDizionario));
    TerminaProgramma();
  }
  const FileDizionario file(PercorsoDizionario());
  int indice = 0;
  for (const auto& [inizio, conta] : LeggiSezioni(file)) {
    OffsetLunghezza(indice) = inizio;
    ContaLunghezza(indice) = conta;
    ++indice;
  }
  if (!file.Leggibile()) AvvisaDizionarioIlleggibile();
  return file.Leggibile();
}

std::string LeggiParola(std::int16_t numero, int lunghezza) {
  const FileDizionario file(PercorsoDizionario());
  std::string parola(static_cast<std::size_t>(lunghezza), ' ');
  const std::int64_t inizio = OffsetLunghezza(lunghezza - MinLunghezza);
  file.Leggi(inizio + (std::int64_t{numero} - 1) * lunghezza, parola.data(), parola.size());
  return file.Leggibile() ? parola : std::string();
}

bool DizionarioLeggibile() {
  return FileDizionario(PercorsoDizionario()).Aperto();
}

std::string TestoDizionarioIlleggibile() {
  const Percorso nome = PercorsoDizionario();
  const FileDizionario file(nome);
  return ConCausa(
      "Impossibile leggere il dizionario.", nome,
      file.Aperto() ? "la lettura non è riuscita"_cp : DescrizioneErrore(file.Errore()));
}

void AvvisaDizionarioIlleggibile() {
  Avvisa(TestoDizionarioIlleggibile());
}

}  // namespace telarium
