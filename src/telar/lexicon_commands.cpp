#include <string>

#include "platform/codepage.h"
#include "platform/platform.h"
#include "telar/command.h"
#include "telar/output.h"
#include "telar/watch.h"
#include "telar/word_options.h"

// What the lexicon knows of words.
namespace telarium::telar {
namespace {

constexpr Opzione OpzioneConta = {"--conta", "", "quante voci ha ogni strato, per lunghezza"};

std::string Elenco(std::string nomi, std::string_view altri) {
  if (!nomi.empty() && !altri.empty()) nomi += ',';
  return nomi.append(altri);
}

// Spelled forms are printed in capitals, as words stand in crosswords.
void StampaVoce(const Parola& parola, const ConteggioDefinizioni& definizioni) {
  const auto stampa = [&](std::string_view lemma, const std::string& segni) {
    StampaCampi({"voce", parola.lettere, Maiuscole(parola.grafia), std::to_string(parola.punteggio),
                 Maiuscole(lemma), segni, std::to_string(definizioni.facili),
                 std::to_string(definizioni.difficili), parola.strato});
  };
  const std::string segni = NomiDeiSegni(parola.segni);
  for (const Lettura& lettura : parola.letture)
    stampa(lettura.lemma, Elenco(segni, NomiDelleForme(lettura, parola.grafia)));
  if (parola.letture.empty()) stampa({}, segni);
}

Stato StampaParole(const std::vector<std::string>& parole, const Lessico& lessico,
                   const Sorveglianza& sorveglianza) {
  const auto copertura = PreparaCopertura(sorveglianza.Segnale());
  Stato stato = Stato::Fatto;
  for (const std::string& scritta : parole) {
    if (sorveglianza.Fermata()) return Stato::Interrotto;
    const auto lettere = PiegaGrafiaUtf8(scritta);
    const auto parola = lettere ? lessico.Cerca(*lettere) : std::nullopt;
    if (parola) {
      StampaVoce(*parola, copertura ? copertura->Di(*lettere) : ConteggioDefinizioni());
    } else {
      StampaCampi({"assente", lettere ? *lettere : DaUtf8(scritta)});
      stato = Stato::Negativo;
    }
  }
  return stato;
}

Stato StampaConteggi(const Lessico& lessico) {
  for (const Lessico::Livello& livello : lessico.Livelli()) {
    for (int lunghezza = MinLunghezzaVoce; lunghezza <= MaxLunghezzaVoce; ++lunghezza) {
      const int voci = livello.strato->Conta(lunghezza);
      if (voci == 0) continue;
      StampaCampi(
          {"strato", livello.strato->Nome(), std::to_string(lunghezza), std::to_string(voci)});
    }
  }
  return Stato::Fatto;
}

Stato ComandoLessico(const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  const bool conta = argomenti.Ha(OpzioneConta.nome);
  if (conta && !argomenti.liberi.empty()) throw ArgomentiErrati("--conta non richiede parole");
  if (!conta && argomenti.liberi.empty())
    throw ArgomentiErrati("mancano argomenti, servono: PAROLA...");
  const Sorveglianza sorveglianza(piattaforma.ChiUsa());
  SceltaParole scelta;
  scelta.lessici = LeggiLessici(argomenti);
  const auto lessico = PreparaLessico(scelta);
  if (!lessico) return Stato::Fallito;
  return conta ? StampaConteggi(*lessico) : StampaParole(argomenti.liberi, *lessico, sorveglianza);
}

}  // namespace

std::vector<Comando> ComandiLessico() {
  // clang-format off
  return {
      {"lessico", "PAROLA...", " | --conta", 0, QuantiSiVuole,
       {OpzioneConta, OpzioneLessico},
       "Dice che cosa il lessico sa delle parole, e quante voci ha.",
       ComandoLessico, true, Stato::Interrotto},
  };
  // clang-format on
}

}  // namespace telarium::telar
