#include <algorithm>
#include <cstdio>

#include "dictionary/dictionary_writer.h"
#include "dictionary/masked_search.h"
#include "dictionary/word_pattern.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"
#include "telar/command.h"
#include "telar/files.h"
#include "telar/output.h"

namespace telarium::telar {
namespace {

std::string MascheraDa(std::string_view utf8) {
  std::string maschera = Maiuscole(DaUtf8(utf8));
  std::replace(maschera.begin(), maschera.end(), '.', PostoLibero);
  std::replace(maschera.begin(), maschera.end(), '_', PostoLibero);
  return maschera;
}

void StampaParola(std::string_view parola) {
  StampaCampi({parola});
}

Stato Cerca(const Argomenti& argomenti, PiattaformaConsole&) {
  const std::string maschera = MascheraDa(argomenti.liberi[0]);
  if (!LunghezzaAmmessa(static_cast<int>(maschera.size()))) {
    throw ArgomentiErrati("la maschera richiede da 3 a 15 caratteri");
  }
  if (argomenti.liberi[0].find(' ') != std::string::npos) {
    throw ArgomentiErrati("la maschera non ammette spazi: i posti liberi sono \".\" o \"_\"");
  }
  const auto dizionario = ApriDizionario(argomenti.Valore("--dizionario", DizionariDiSistema[0]));
  if (!dizionario) return Stato::Fallito;
  const EsitoRicerca esito = CercaParole(*dizionario, maschera, StampaParola);
  Avvisa(TestoTrovate(esito.trovate));
  return esito.dizionarioLetto ? Stato::Fatto : Stato::Fallito;
}

// A file that ends before its first word is cut off, unless it is the empty one of a private
// dictionary that was just made. The scans take it for empty all the same.
bool Tronco(const Dizionario& dizionario) {
  std::error_code errore;
  const auto byte = std::filesystem::file_size(dizionario.PercorsoDizionario(), errore);
  if (errore || byte == 0 || byte >= PrimaPosizione) return false;
  Avvisa(Unisci("Il dizionario ", TestoPercorso(dizionario.NomeDizionario()), " è troncato: ha "_cp,
                byte, " byte e ne richiede almeno ", PrimaPosizione, '.'));
  return true;
}

Stato DizInfo(const Argomenti& argomenti, PiattaformaConsole&) {
  const auto dizionario = ApriDizionario(argomenti.liberi[0]);
  if (!dizionario || Tronco(*dizionario)) return Stato::Fallito;
  for (int lunghezza = MinLunghezza; lunghezza <= MaxLunghezza; ++lunghezza) {
    StampaCampi({std::to_string(lunghezza),
                 std::to_string(dizionario->OffsetLunghezza(lunghezza - MinLunghezza)),
                 std::to_string(dizionario->ContaLunghezza(lunghezza - MinLunghezza))});
  }
  return Stato::Fatto;
}

Stato DizElenca(const Argomenti& argomenti, PiattaformaConsole&) {
  int prima = MinLunghezza, ultima = MaxLunghezza;
  if (argomenti.liberi.size() == 2) {
    const auto lunghezza = NumeroIntero(argomenti.liberi[1]);
    if (!lunghezza || *lunghezza < MinLunghezza || *lunghezza > MaxLunghezza) {
      throw ArgomentiErrati("LUNGHEZZA va da 3 a 15");
    }
    prima = ultima = static_cast<int>(*lunghezza);
  }
  const auto dizionario = ApriDizionario(argomenti.liberi[0]);
  if (!dizionario) return Stato::Fallito;
  for (int lunghezza = prima; lunghezza <= ultima; ++lunghezza) {
    const std::string tutte(static_cast<std::size_t>(lunghezza), PostoLibero);
    if (!CercaParole(*dizionario, tutte, StampaParola).dizionarioLetto) return Stato::Fallito;
  }
  return Stato::Fatto;
}

constexpr Opzione OpzioneVuoto = {"--vuoto", "",
                                  "ammette liste senza parole: il dizionario sarà vuoto"};

Stato DizCrea(const Argomenti& argomenti, PiattaformaConsole&) {
  if (Percorso(argomenti.liberi[0]).filename().empty()) {
    throw ArgomentiErrati("NOME deve essere il nome di un file");
  }
  ListeDiParole liste;
  for (std::size_t i = 1; i < argomenti.liberi.size(); ++i) {
    const auto contenuto = LeggiLista("lista di parole", argomenti.liberi[i], MaxByteListaDiParole);
    if (!contenuto) return Stato::Fallito;
    AggiungiLista(*contenuto, liste);
  }
  const bool vuote = std::all_of(liste.begin(), liste.end(),
                                 [](const std::vector<std::string>& una) { return una.empty(); });
  if (vuote && !argomenti.Ha(OpzioneVuoto.nome)) {
    Avvisa("Nessuna parola da 3 a 15 lettere nelle liste: il dizionario non è stato scritto."_cp);
    return Stato::Fallito;
  }
  OrdinaListe(liste);
  AscoltaInterruzione();  // a file beside the dictionary must not be left
  const EsitoDizionario esito =
      ScriviDizionario(PercorsoNellaCartella(CartellaProgramma, argomenti.liberi[0]), liste);
  if (!esito.errore.empty()) {
    Avvisa(esito.errore);
    return Stato::Fallito;
  }
  for (int lunghezza = MinLunghezza; lunghezza <= MaxLunghezza; ++lunghezza) {
    const int parole = esito.parole[static_cast<std::size_t>(lunghezza - MinLunghezza)];
    StampaCampi({std::to_string(lunghezza), std::to_string(parole)});
  }
  return Stato::Fatto;
}

}  // namespace

std::vector<Comando> ComandiDizionario() {
  // clang-format off
  return {
      {"cerca", "MASCHERA", "", 1, 1,
       {{"--dizionario", "NOME", "il dizionario (LessicoItaliano.dat)"}},
       "Cerca le parole che si adattano; \".\" e \"_\" sono posti liberi.",
       Cerca},
      {"diz-info", "NOME", "", 1, 1, {},
       "Mostra le sezioni del dizionario: lunghezza, inizio, parole.",
       DizInfo},
      {"diz-elenca", "NOME [LUNGHEZZA]", "", 1, 2, {},
       "Elenca le parole del dizionario.",
       DizElenca},
      {"diz-crea", "NOME LISTA...", "", 2, QuantiSiVuole, {OpzioneVuoto},
       "Scrive il dizionario NOME da liste in UTF-8, una parola per riga.",
       DizCrea},
  };
  // clang-format on
}

}  // namespace telarium::telar
