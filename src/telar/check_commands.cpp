#include <cstdio>

#include "clues/hard_clues.h"
#include "laboratory/checks.h"
#include "model/documento.h"
#include "platform/platform.h"
#include "telar/command.h"
#include "telar/files.h"
#include "telar/json.h"
#include "telar/output.h"
#include "telar/watch.h"
#include "telar/word_options.h"

// The check that a crossword is fit for print.
namespace telarium::telar {
namespace {

constexpr Opzione OpzioneJson = {"--json", "", "un solo oggetto JSON al posto delle righe"};

void StampaRilievi(std::string_view specie, const std::vector<Rilievo>& rilievi) {
  for (const Rilievo& rilievo : rilievi) {
    StampaCampi({specie, NomeDi(rilievo.codice), std::to_string(rilievo.inizio.colonna),
                 std::to_string(rilievo.inizio.riga), Sigla(rilievo.direzione), rilievo.testo});
  }
}

void StampaRighe(const Verdetto& verdetto) {
  StampaRilievi("errore", verdetto.errori);
  StampaRilievi("avviso", verdetto.avvisi);
  for (const auto& [nome, valore] : verdetto.cifre)
    StampaCampi({"cifra", nome, valore});
}

void AggiungiRilievi(Json& json, std::string_view nome, const std::vector<Rilievo>& rilievi) {
  json.Nome(nome);
  json.Apri('[');
  for (const Rilievo& rilievo : rilievi) {
    json.Apri('{');
    json.Nome("codice");
    json.Testo(NomeDi(rilievo.codice));
    json.Nome("colonna");
    json.Numero(rilievo.inizio.colonna);
    json.Nome("riga");
    json.Numero(rilievo.inizio.riga);
    json.Nome("direzione");
    json.Testo(Sigla(rilievo.direzione));
    json.Nome("testo");
    json.Testo(rilievo.testo);
    json.Chiudi();
  }
  json.Chiudi();
}

void AggiungiCifra(Json& json, const Cifra& cifra) {
  json.Nome(cifra.nome);
  const bool numero = cifra.valore.find_first_not_of("0123456789.") == std::string::npos;
  if (cifra.valore.empty()) {
    json.Crudo("null");
  } else if (numero) {
    json.Crudo(cifra.valore);
  } else {
    json.Testo(cifra.valore);
  }
}

void StampaJson(const Verdetto& verdetto) {
  Json json;
  json.Apri('{');
  AggiungiRilievi(json, "errori", verdetto.errori);
  AggiungiRilievi(json, "avvisi", verdetto.avvisi);
  json.Nome("cifre");
  json.Apri('{');
  for (const Cifra& cifra : verdetto.cifre)
    AggiungiCifra(json, cifra);
  json.Chiudi();
  json.Chiudi();
  std::puts(json.Tutto().c_str());
}

Stato Controlla(const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  const Sorveglianza sorveglianza(piattaforma.ChiUsa());
  const auto scelta = LeggiSceltaParole(argomenti);
  if (!scelta || !Apri(argomenti.liberi[0])) return Stato::Fallito;
  const auto lessico = PreparaLessico(*scelta);
  if (!lessico) return Stato::Fallito;
  const auto copertura = PreparaCopertura(sorveglianza.Segnale());
  if (sorveglianza.Fermata()) return Stato::Interrotto;
  if (!copertura && scelta->definizioni == UsoDefinizioni::Obbligatorie) return Stato::Fallito;
  DefinizioniDifficili difficili;
  Criteri criteri = CriteriDi(*scelta, *lessico, copertura.get());
  criteri.grado = [&](std::string_view parola, std::string_view definizione) {
    return GradoDefinizione{.difficile = copertura && difficili.Ha(parola, definizione)};
  };
  const Verdetto verdetto = telarium::Controlla(IlDocumento().Valore(), criteri);
  if (sorveglianza.Fermata()) return Stato::Interrotto;
  if (argomenti.Ha(OpzioneJson.nome)) {
    StampaJson(verdetto);
  } else {
    StampaRighe(verdetto);
  }
  return verdetto.Stampabile() ? Stato::Fatto : Stato::Negativo;
}

}  // namespace

std::vector<Comando> ComandiControllo() {
  return {
      {"controlla", "FILE", "", 1, 1, ConOpzioniParole({OpzioneJson}),
       "Controlla se il cruciverba è pronto per la stampa: errori, avvisi, cifre.", Controlla, true,
       Stato::Interrotto},
  };
}

}  // namespace telarium::telar
