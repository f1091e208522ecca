#include "dictionary/dictionary_writer.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/folder_lock.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::size_t ByteBanner = 199;
// The zero blocks that are laid down before the words end here, so that no file is shorter.
constexpr std::size_t MinByteFile = 455;
constexpr std::size_t ParolePerAvanzamento = 200;

std::string Intestazione() {
  std::string immagine =
      "Vocabolario della lingua italiana per parole crociate e giochi di lettere"
      " Zanotti Graziella";
  immagine.resize(ByteBanner, ' ');
  immagine.resize(PrimaPosizione - 1, '\0');
  return immagine;
}

// Puts the position of the next byte of the image into a field of the table.
void MettiCampo(std::string& immagine, int posizione) {
  const std::string numero = Unisci(' ', immagine.size() + 1);
  immagine.replace(static_cast<std::size_t>(posizione) - 1, ByteCampo,
                   std::string(ByteCampo - numero.size(), ' ') + numero);
}

bool DaScrivere(const std::vector<std::string>& lista, std::size_t i, int lunghezza) {
  const bool ripetuta = i > 0 && lista[i] == lista[i - 1];
  return !ripetuta && lista[i].size() == static_cast<std::size_t>(lunghezza);
}

void ContaParole(const ListeDiParole& liste, EsitoDizionario& esito) {
  for (std::size_t l = 0; l < liste.size(); ++l) {
    for (std::size_t i = 0; i < liste[l].size(); ++i) {
      if (DaScrivere(liste[l], i, MinLunghezza + static_cast<int>(l))) ++esito.parole[l];
    }
  }
}

// Why the format has no room for that many words; empty when it has.
std::string Eccesso(const EsitoDizionario& esito) {
  std::int64_t posizione = PrimaPosizione;
  for (std::size_t l = 0; l < esito.parole.size(); ++l) {
    const int lunghezza = MinLunghezza + static_cast<int>(l);
    if (esito.parole[l] > MaxParole) {
      return Unisci(ConMigliaia(esito.parole[l]), " parole di ", lunghezza,
                    " lettere, e ne sono ammesse al massimo ", ConMigliaia(MaxParole));
    }
    posizione += std::int64_t{esito.parole[l]} * lunghezza;
  }
  if (posizione <= MaxPosizione) return {};
  return Unisci("il file supererebbe la posizione ", MaxPosizione);
}

void AggiungiParole(std::string& immagine, const std::vector<std::string>& lista, int lunghezza,
                    const std::function<void(std::size_t)>& avanzamento) {
  for (std::size_t i = 0; i < lista.size(); ++i) {
    if (i % ParolePerAvanzamento == 0) avanzamento(i);
    if (DaScrivere(lista, i, lunghezza)) immagine += lista[i];
  }
  avanzamento(lista.size());
}

std::string Immagine(const ListeDiParole& liste, const EsitoDizionario& esito,
                     const std::function<void(std::size_t, std::size_t)>& avanzamento) {
  std::string immagine = Intestazione();
  for (std::size_t l = 0; l < liste.size(); ++l) {
    const int lunghezza = MinLunghezza + static_cast<int>(l);
    const bool scritta = esito.parole[l] > 0;
    if (scritta) MettiCampo(immagine, PosizioneVoce(lunghezza));
    AggiungiParole(immagine, liste[l], lunghezza, [&](std::size_t fatte) {
      if (avanzamento) avanzamento(l, fatte);
    });
    if (scritta) MettiCampo(immagine, PosizioneVoce(lunghezza) + ByteCampo);
  }
  immagine.resize(std::max(immagine.size(), MinByteFile), '\0');
  return immagine;
}

}  // namespace

EsitoDizionario ScriviDizionario(
    const Percorso& nome, const ListeDiParole& liste,
    const std::function<void(std::size_t lista, std::size_t fatte)>& avanzamento) {
  EsitoDizionario esito;
  const auto nonScritto = [&](std::string_view perche) {
    esito.errore = Unisci("Impossibile scrivere il dizionario ", TestoPercorso(nome.filename()),
                          ": ", perche, '.');
    return esito;
  };
  ContaParole(liste, esito);
  if (const std::string eccesso = Eccesso(esito); !eccesso.empty()) return nonScritto(eccesso);
  const std::string immagine = Immagine(liste, esito, avanzamento);
  // Every writer of a folder uses the one name LESSICO.new.
  const BloccoCartella blocco(nome.parent_path());
  if (!blocco.Preso()) return nonScritto("un altro programma sta scrivendo nella stessa cartella");
  const auto errore = ScriviFile(nome, immagine, Permanenza::SulDisco, "LESSICO.new");
  if (errore) return nonScritto(DescrizioneErrore(errore));
  return esito;
}

}  // namespace telarium
