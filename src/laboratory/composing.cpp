#include "laboratory/composing.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "composer/floor.h"
#include "composer/improvement.h"
#include "composer/proposals.h"
#include "composer/reasons.h"
#include "laboratory/checks.h"
#include "laboratory/figures.h"

namespace telarium {
namespace {

// One run through the phases.
class Lavoro {
 public:
  Lavoro(const Composizione& composizione, const FontiComposizione& fonti,
         const RichiestaComposizione& richiesta, const Limiti& limiti,
         const SegueComposizione& segui)
      : composizione_(composizione),
        fonti_(fonti),
        richiesta_(richiesta),
        limiti_(limiti),
        segui_(segui) {}

  RisultatoComposizione Esegui() {
    if (!composizione_.dueDiTroppo.empty() && !Fermato()) {
      risultato_.esito = Esito::Impossibile;
      risultato_.lettere = std::string(composizione_.caselle.size(), SenzaLettera);
      risultato_.colpevoli = composizione_.dueDiTroppo;
      CercaRimedi();
      return std::move(risultato_);
    }
    std::vector<Riempimento> fatti =
        Proponi(composizione_.problema, richiesta_.proposte, limiti_,
                [this](const Problema& problema, const Limiti& limiti) {
                  return FaProposta(problema, limiti);
                });
    risultato_.esito = fatti.front().esito;
    if (risultato_.esito == Esito::Riempito) {
      for (const Riempimento& fatto : fatti)
        risultato_.proposte.push_back(std::move(fatte_[fatto.lettere]));
    } else {
      risultato_.lettere = fatti.front().lettere;
    }
    if (risultato_.esito == Esito::Impossibile) {
      Incolpa();
      CercaRimedi();
    }
    return std::move(risultato_);
  }

 private:
  bool Fermato() const { return limiti_.ferma.stop_requested(); }

  // What is left of limits.
  static Limiti Resto(Limiti limiti, std::int64_t passi) {
    limiti.passi = std::max<std::int64_t>(0, limiti.passi - passi);
    return limiti;
  }

  void Segui(FaseComposizione fase, std::int64_t finestre, const std::string& lettere) const {
    if (segui_) segui_({.fase = fase, .finestre = finestre, .lettere = &lettere});
  }

  // A fill of the problem, or of one that asks more, as good as is wanted. All are kept with what
  // is told of them: whoever asked for it takes some of them.
  Riempimento FaProposta(const Problema& problema, const Limiti& limiti) {
    Segui(FaseComposizione::Ricerca, 0, {});
    const bool conSoglia = risultato_.soglia.has_value();
    Riempimento fatto =
        Cerca(conSoglia ? ConMinimo(problema, risultato_.soglia->fino) : problema, limiti);
    if (fatto.esito == Esito::Riempito) {
      Proposta proposta = {.primo = std::chrono::steady_clock::now()};
      if (richiesta_.soglia && !conSoglia) PortaAllaSoglia(problema, fatto, limiti);
      proposta.interrotta = MiglioraRiempimento(problema, fatto, limiti);
      proposta.lettere = fatto.lettere;
      proposta.passi = fatto.passi;
      fatte_[fatto.lettere] = std::move(proposta);
    }
    risultato_.passi += fatto.passi;
    return fatto;
  }

  // What is better than demanded is looked for first, but not for long: most grids have it.
  Riempimento Cerca(const Problema& problema, const Limiti& limiti) {
    // Steps. Around many wanted words it takes more, and what else stands there is worth it.
    const std::int64_t bastano = problema.volute.empty() ? 2'000 : 20'000;
    std::int64_t invano = 0;
    for (const Pretesa& pretesa : Pretese()) {
      Limiti pochi = Resto(limiti, invano);
      pochi.passi = std::min(pochi.passi, bastano);
      Riempimento trovato = Componi(Con(problema, pretesa), pochi);
      invano += trovato.passi;
      if (trovato.esito != Esito::Riempito) continue;
      trovato.passi = invano;
      pretesa_ = pretesa;
      return trovato;
    }
    pretesa_ = {};
    Riempimento trovato = Componi(problema, Resto(limiti, invano));
    if (trovato.esito == Esito::Impossibile) prova_ = trovato;
    trovato.passi += invano;
    return trovato;
  }

  // What is asked of a fill beyond what is demanded.
  struct Pretesa {
    int minimo = 0;
    bool definite = false;
  };

  // A grid is judged by its worst word, and where clues are preferred each word shall have one:
  // from the best that may be had to what is hardly worth a try.
  std::vector<Pretesa> Pretese() const {
    const bool preferite =
        fonti_.scelta.parole.definizioni == UsoDefinizioni::Preferite && fonti_.copertura;
    std::vector<Pretesa> pretese = {{PunteggioNoto, preferite}, {PunteggioRaro, preferite}};
    if (preferite) pretese.push_back({0, true});
    return pretese;
  }

  static Problema Con(Problema problema, const Pretesa& pretesa) {
    problema.soloDefinite |= pretesa.definite;
    // Wanted words are wanted whatever their score.
    int minimo = pretesa.minimo;
    for (const std::string& parola : problema.volute) {
      const auto voluta = problema.vocabolario->Cerca(parola);
      if (voluta && !problema.vocabolario->Propria(*voluta))
        minimo = std::min(minimo, problema.vocabolario->Punteggio(*voluta));
    }
    return ConMinimo(std::move(problema), minimo);
  }

  void PortaAllaSoglia(const Problema& problema, Riempimento& fatto, const Limiti& limiti) {
    Segui(FaseComposizione::Soglia, 0, fatto.lettere);
    Soglia soglia = TrovaSoglia(problema, fatto, Resto(limiti, fatto.passi));
    fatto.passi += soglia.riempimento.passi;
    fatto.lettere = std::move(soglia.riempimento.lettere);
    risultato_.soglia = {.fino = soglia.fino, .oltre = soglia.oltre};
    // No word has a higher score.
    if (soglia.provata && !soglia.oltre) risultato_.soglia->oltre = soglia.fino + 1;
  }

  // Whether a stop has cut it.
  bool MiglioraRiempimento(const Problema& problema, Riempimento& fatto, const Limiti& limiti) {
    if (richiesta_.finestre == 0) return false;
    Segui(FaseComposizione::Miglioramento, 0, fatto.lettere);
    const Problema conSoglia =
        risultato_.soglia ? ConMinimo(problema, risultato_.soglia->fino) : Con(problema, pretesa_);
    Riempimento migliore =
        Migliora(conSoglia, fatto.lettere, richiesta_.finestre, Resto(limiti, fatto.passi),
                 [this](std::int64_t finestre, const std::string& lettere) {
                   Segui(FaseComposizione::Miglioramento, finestre, lettere);
                 });
    fatto.lettere = std::move(migliore.lettere);
    fatto.passi += migliore.passi;
    return migliore.esito == Esito::Tempo;
  }

  void Incolpa() {
    Segui(FaseComposizione::Colpevoli, 0, risultato_.lettere);
    Colpevoli colpevoli =
        TrovaColpevoli(composizione_.problema, prova_, Resto(limiti_, risultato_.passi));
    risultato_.passi += colpevoli.passi;
    risultato_.volute = std::move(colpevoli.volute);
    for (const int slot : colpevoli.slot)
      risultato_.colpevoli.push_back(composizione_.slot[static_cast<std::size_t>(slot)]);
    std::ranges::sort(risultato_.colpevoli, {}, [](const Slot& slot) {
      return std::tuple(slot.inizio.riga, slot.inizio.colonna, slot.direzione);
    });
  }

  void CercaRimedi() {
    Segui(FaseComposizione::Rimedi, 0, risultato_.lettere);
    risultato_.rimedi =
        TrovaRimedi(composizione_, fonti_.scelta, risultato_.colpevoli, fonti_.lessico,
                    fonti_.copertura, fonti_.luoghi, Resto(limiti_, risultato_.passi));
  }

  const Composizione& composizione_;
  const FontiComposizione& fonti_;
  const RichiestaComposizione& richiesta_;
  const Limiti& limiti_;
  const SegueComposizione& segui_;
  Pretesa pretesa_ = {};                   // that the last fill has kept
  Riempimento prova_;                      // when it is Impossibile
  std::map<std::string, Proposta> fatte_;  // by their letters
  RisultatoComposizione risultato_;
};

bool TuttaData(const Derivati& griglia, const Slot& slot) {
  return griglia.Lettere(slot).find(CellaVuota) == std::string::npos;
}

}  // namespace

RisultatoComposizione ComponiCruciverba(const Composizione& composizione,
                                        const FontiComposizione& fonti,
                                        const RichiestaComposizione& richiesta,
                                        const Limiti& limiti, const SegueComposizione& segui) {
  return Lavoro(composizione, fonti, richiesta, limiti, segui).Esegui();
}

CifreRiempimento CifreDi(const Composizione& composizione, const Cruciverba& riempito,
                         const FontiComposizione& fonti) {
  const auto& [scelta, lessico, copertura, luoghi] = fonti;
  CifreRiempimento cifre;
  std::vector<int> punteggi;
  for (const VoceDiGriglia& voce :
       VociDi(riempito, Deriva(riempito), CriteriDi(scelta.parole, lessico, copertura))) {
    const bool nelloStore =
        copertura && voce.Intera() && copertura->Ha(voce.lettere, scelta.parole.quali);
    ++cifre.voci;
    cifre.definite += nelloStore || !voce.definizione.empty() ? 1 : 0;
    const auto punteggio = voce.Punteggio();
    if (punteggio && !TuttaData(composizione.griglia, voce.slot)) punteggi.push_back(*punteggio);
  }
  cifre.media = MediaConDecimale(punteggi);
  if (!punteggi.empty()) cifre.minimo = std::to_string(*std::ranges::min_element(punteggi));
  return cifre;
}

}  // namespace telarium
