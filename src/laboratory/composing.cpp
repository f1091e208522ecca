#include "laboratory/composing.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "composer/floor.h"
#include "composer/improvement.h"
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
    const Riempimento trovato = Cerca();
    if (trovato.esito == Esito::Riempito) {
      MiglioraRiempimento(richiesta_.soglia ? AllaSoglia(trovato) : composizione_.problema);
    } else if (trovato.esito == Esito::Impossibile) {
      Incolpa(trovato);
      CercaRimedi();
    }
    return std::move(risultato_);
  }

 private:
  bool Fermato() const { return limiti_.ferma.stop_requested(); }

  // What is left of the limits.
  Limiti Resto() const {
    Limiti resto = limiti_;
    resto.passi = std::max<std::int64_t>(0, limiti_.passi - risultato_.passi);
    return resto;
  }

  void Segui(FaseComposizione fase, std::int64_t finestre, const std::string& lettere) const {
    if (segui_) segui_({.fase = fase, .finestre = finestre, .lettere = &lettere});
  }

  Riempimento Cerca() {
    Segui(FaseComposizione::Ricerca, 0, risultato_.lettere);
    Riempimento trovato = CercaConDefinizioni();
    if (trovato.esito != Esito::Riempito) {
      trovato = Componi(composizione_.problema, Resto());
      risultato_.passi += trovato.passi;
    }
    risultato_.primo = std::chrono::steady_clock::now();
    risultato_.esito = trovato.esito;
    risultato_.lettere = trovato.lettere;
    return trovato;
  }

  // Where clues are preferred a fill of words that all have one is looked for first, but not for
  // long: most grids have one.
  Riempimento CercaConDefinizioni() {
    constexpr std::int64_t bastano = 3'000;  // steps
    const bool preferite = fonti_.scelta.parole.definizioni == UsoDefinizioni::Preferite;
    if (!preferite || !fonti_.copertura) return {};
    Problema problema = composizione_.problema;
    problema.soloDefinite = true;
    Limiti limiti = Resto();
    limiti.passi = std::min(limiti.passi, bastano);
    Riempimento trovato = Componi(problema, limiti);
    risultato_.passi += trovato.passi;
    return trovato;
  }

  // The problem with the floor that was found as its least score.
  Problema AllaSoglia(const Riempimento& trovato) {
    Segui(FaseComposizione::Soglia, 0, risultato_.lettere);
    Soglia soglia = TrovaSoglia(composizione_.problema, trovato, Resto());
    risultato_.passi += soglia.riempimento.passi;
    risultato_.lettere = std::move(soglia.riempimento.lettere);
    risultato_.soglia = {.fino = soglia.fino, .oltre = soglia.oltre};
    // No word has a higher score.
    if (soglia.provata && !soglia.oltre) risultato_.soglia->oltre = soglia.fino + 1;
    return ConMinimo(composizione_.problema, soglia.fino);
  }

  void MiglioraRiempimento(const Problema& problema) {
    if (richiesta_.finestre == 0) return;
    Segui(FaseComposizione::Miglioramento, 0, risultato_.lettere);
    Riempimento migliore = Migliora(problema, risultato_.lettere, richiesta_.finestre, Resto(),
                                    [this](std::int64_t finestre, const std::string& lettere) {
                                      Segui(FaseComposizione::Miglioramento, finestre, lettere);
                                    });
    risultato_.lettere = std::move(migliore.lettere);
    risultato_.passi += migliore.passi;
    risultato_.interrotta = Fermato() && migliore.esito == Esito::Tempo;
  }

  void Incolpa(const Riempimento& prova) {
    Segui(FaseComposizione::Colpevoli, 0, risultato_.lettere);
    Colpevoli colpevoli = TrovaColpevoli(composizione_.problema, prova, Resto());
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
    risultato_.rimedi = TrovaRimedi(composizione_, fonti_.scelta, risultato_.colpevoli,
                                    fonti_.lessico, fonti_.copertura, fonti_.luoghi, Resto());
  }

  const Composizione& composizione_;
  const FontiComposizione& fonti_;
  const RichiestaComposizione& richiesta_;
  const Limiti& limiti_;
  const SegueComposizione& segui_;
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
