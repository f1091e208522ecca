#include "telar/word_options.h"

#include <algorithm>

#include "clues/encyclopedia.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/program_folder.h"
#include "platform/text.h"
#include "telar/option_values.h"

namespace telarium::telar {

const Opzione OpzioneLessico = {"--lessico", "NOME[,NOME...]",
                                "lingue, dizionari, liste di parole (italiano)"};

namespace {

constexpr Opzione OpzioneRegole = {"--regole", "NOME",
                                   "severe, settimanali, libere o un file (severe)"};
constexpr Opzione OpzioneLivello = {"--livello", "N", "il punteggio minimo, da 0 a 100 (0)"};
constexpr Opzione OpzioneLivelli = {"--livello-lunghezza", "L:N[,...]",
                                    "il punteggio minimo delle parole di L lettere"};
constexpr Opzione OpzioneDefinizioni = {"--definizioni", "VALORE",
                                        "no, preferite, obbligatorie (preferite)"};
constexpr Opzione OpzioneFamiglia = {"--famiglia", "VALORE", "tutte, facili, difficili (tutte)"};
constexpr Opzione OpzioneVieta = {"--vieta", "PAROLA[,...]", "parole da non usare"};
constexpr Opzione OpzioneVietaDa = {"--vieta-da", "FILE", "le parole da non usare, una per riga"};
constexpr Opzione OpzioneAmmetti = {"--ammetti", "PAROLA[,...]",
                                    "parole vietate da ammettere lo stesso"};
constexpr Opzione OpzioneForme = {"--forme", "si|no", "due forme della stessa parola (no)"};

void LeggiLivelli(const Argomenti& argomenti, SceltaParole& scelta) {
  if (argomenti.Ha(OpzioneLivello.nome)) {
    scelta.livelli.fill(
        Limitato(argomenti.Valore(OpzioneLivello.nome), 0, MaxPunteggio, OpzioneLivello.nome));
  }
  for (const std::string& parte : Parti(argomenti, OpzioneLivelli)) {
    const std::size_t duePunti = parte.find(':');
    if (duePunti == std::string::npos)
      throw ArgomentiErrati(Unisci(OpzioneLivelli.nome, " richiede L:N[,L:N...]"));
    const std::string_view tutto = parte;
    const int lunghezza = Limitato(tutto.substr(0, duePunti), MinLunghezzaVoce, MaxLunghezzaVoce,
                                   OpzioneLivelli.nome);
    scelta.livelli[static_cast<std::size_t>(lunghezza)] =
        Limitato(tutto.substr(duePunti + 1), 0, MaxPunteggio, OpzioneLivelli.nome);
  }
}

void AvvisaSeServe(const std::string& messaggio) {
  if (!messaggio.empty()) Avvisa(messaggio);
}

// False, told, for a word that is banned and admitted by name. One of a file of bans may be lifted.
bool LeggiDivieti(const Argomenti& argomenti, SceltaParole& scelta) {
  scelta.vietate = Parole(argomenti, OpzioneVieta);
  scelta.ammesse = Parole(argomenti, OpzioneAmmetti);
  const auto insieme = std::ranges::find_if(
      scelta.vietate, [&](const std::string& parola) { return scelta.ammesse.contains(parola); });
  if (insieme != scelta.vietate.end()) {
    Avvisa(Unisci("La parola ", *insieme, " è insieme vietata e ammessa."_cp));
    return false;
  }
  if (!argomenti.Ha(OpzioneVietaDa.nome)) return true;
  std::string messaggio;
  auto altre = LeggiParole(argomenti.Valore(OpzioneVietaDa.nome), messaggio);
  AvvisaSeServe(messaggio);
  if (altre) scelta.vietate.merge(*altre);
  return altre.has_value();
}

bool LeggiRegole(const Argomenti& argomenti, SceltaParole& scelta) {
  if (!argomenti.Ha(OpzioneRegole.nome)) return true;
  std::string messaggio;
  auto regole = TrovaRegolamento(argomenti.Valore(OpzioneRegole.nome), messaggio);
  AvvisaSeServe(messaggio);
  if (regole) scelta.regole = std::move(*regole);
  return regole.has_value();
}

}  // namespace

std::vector<Opzione> ConOpzioniParole(std::vector<Opzione> opzioni) {
  opzioni.insert(opzioni.begin(),
                 {OpzioneLessico, OpzioneRegole, OpzioneLivello, OpzioneLivelli, OpzioneDefinizioni,
                  OpzioneFamiglia, OpzioneVieta, OpzioneVietaDa, OpzioneAmmetti, OpzioneForme});
  return opzioni;
}

std::optional<SceltaParole> LeggiSceltaParole(const Argomenti& argomenti) {
  SceltaParole scelta;
  scelta.lessici = LeggiLessici(argomenti);
  LeggiLivelli(argomenti, scelta);
  scelta.definizioni = Scelto(argomenti, OpzioneDefinizioni, scelta.definizioni,
                              {{"no", UsoDefinizioni::No},
                               {"preferite", UsoDefinizioni::Preferite},
                               {"obbligatorie", UsoDefinizioni::Obbligatorie}});
  scelta.quali = Scelto(argomenti, OpzioneFamiglia, scelta.quali,
                        {{"tutte", QualiDefinizioni::Tutte},
                         {"facili", QualiDefinizioni::Facili},
                         {"difficili", QualiDefinizioni::Difficili}});
  scelta.ammetteForme =
      Scelto(argomenti, OpzioneForme, scelta.ammetteForme, {{"si", true}, {"no", false}});
  if (!LeggiDivieti(argomenti, scelta) || !LeggiRegole(argomenti, scelta)) return std::nullopt;
  return scelta;
}

std::vector<Percorso> LeggiLessici(const Argomenti& argomenti) {
  const std::vector<std::string> nomi = Parti(argomenti, OpzioneLessico);
  if (nomi.empty()) return {LessicoIniziale};
  return {nomi.begin(), nomi.end()};
}

LuoghiLessico LuoghiDeiLessici() {
  return {.lessici = CartellaLessici(), .programma = CartellaProgramma};
}

std::shared_ptr<const Copertura> PreparaCopertura(const std::stop_token& ferma) {
  std::string causa;
  auto copertura =
      CoperturaDi(PercorsoNellaCartella(CartellaProgramma, NomeEnciclopedia), causa, ferma);
  AvvisaSeServe(causa);
  return copertura;
}

std::optional<Lessico> PreparaLessico(const SceltaParole& scelta) {
  std::string messaggio;
  auto lessico = LessicoDi(scelta, LuoghiDeiLessici(), messaggio);
  AvvisaSeServe(messaggio);
  return lessico;
}

}  // namespace telarium::telar
