#include "composer/reasons.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "composer/witness.h"
#include "platform/check.h"

// Slots and wanted words are left out as long as the rest stays impossible. That is monotone: what
// holds an impossible part is impossible, so the shortest impossible beginning of a sequence can be
// halved for, and what was needed once is needed for ever. A search of the region comes first since
// proofs and fills of small parts are cheap and those of the whole are not. A trial that its limit
// of steps ends counts as possible: then the set is not known to be minimal, and still impossible.
//
// Sources: U. Junker, QuickXplain (2004) for bites and for what is needed first; J. Marques-Silva,
// Minimal unsatisfiability (2010) for deletion by what the last proof used; witness.h for fills.
namespace telarium {
namespace {

// A trial may take so many times the steps of the last proof, and these besides.
constexpr std::int64_t ProvePerTentativo = 3;
constexpr std::int64_t PassiPerTentativo = 500;
// All trials together, by the proof of the whole.
constexpr std::int64_t ProveInTutto = 10;
constexpr std::int64_t PassiInTutto = 100'000;
// A region is narrowed anew as long as it loses one slot in so many.
constexpr std::size_t GuadagnoDiRegione = 4;
// The first bite of slots to be left out at once: one in so many of the set. Of words the half.
constexpr std::size_t MorsoDiSlot = 6;
constexpr std::size_t MorsoDiVolute = 2;

// What may be left out: a slot by its number, behind them the wanted words.
using Elementi = std::vector<int>;

std::size_t Indice(int numero) {
  return static_cast<std::size_t>(numero);
}

Elementi Senza(const Elementi& elementi, const Elementi& tolti) {
  Elementi resto;
  std::copy_if(elementi.begin(), elementi.end(), std::back_inserter(resto), [&](int elemento) {
    return std::find(tolti.begin(), tolti.end(), elemento) == tolti.end();
  });
  return resto;
}

class Ricerca {
 public:
  Ricerca(const Problema& problema, const Riempimento& prova, const Limiti& limiti)
      : problema_(problema),
        limiti_(limiti),
        ultimaProva_(prova.passi),
        necessario_(problema.slot.size() + problema.volute.size()),
        incroci_(problema.slot.size()) {
    const std::int64_t inTutto = ProveInTutto * prova.passi + PassiInTutto;
    limiti_.passi = std::min(limiti.passi, inTutto);
    Incrocia();
    for (std::size_t slot = 0; slot < problema.slot.size(); ++slot)
      pesi_.push_back(slot < prova.pesi.size() ? prova.pesi[slot] : 1);
    for (std::size_t k = 0; k < necessario_.size(); ++k)
      insieme_.push_back(static_cast<int>(k));
  }

  Colpevoli Trova() {
    TogliVolute();
    std::size_t prima = 0;
    do {
      prima = insieme_.size();
      RestringiRegione();
    } while (prima - insieme_.size() >= prima / GuadagnoDiRegione && prima > insieme_.size());
    Sfoltisci(0, problema_.Slot(), MorsoDiSlot);
    return Risultato();
  }

 private:
  bool Parola(int elemento) const { return elemento >= problema_.Slot(); }
  const std::string& Voluta(int elemento) const {
    return problema_.volute[Indice(elemento - problema_.Slot())];
  }
  bool Finito() const { return passi_ >= limiti_.passi || limiti_.ferma.stop_requested(); }

  void Incrocia() {
    std::vector<Elementi> perCasella(problema_.lettere.size());
    for (int slot = 0; slot < problema_.Slot(); ++slot) {
      for (const int casella : problema_.slot[Indice(slot)].caselle)
        perCasella[Indice(casella)].push_back(slot);
    }
    for (const Elementi& qui : perCasella) {
      if (qui.size() < 2) continue;
      incroci_[Indice(qui[0])].push_back(qui[1]);
      incroci_[Indice(qui[1])].push_back(qui[0]);
    }
  }

  Elementi Slot(const Elementi& elementi) const {
    Elementi slot;
    std::copy_if(elementi.begin(), elementi.end(), std::back_inserter(slot),
                 [&](int elemento) { return !Parola(elemento); });
    return slot;
  }
  std::vector<std::string> Volute(const Elementi& elementi) const {
    std::vector<std::string> volute;
    for (const int elemento : elementi) {
      if (Parola(elemento)) volute.push_back(Voluta(elemento));
    }
    return volute;
  }

  // Whether the set is still impossible without some of its elements, which then are left out.
  bool Togli(const Elementi& tolti) {
    Elementi resto = Senza(insieme_, tolti);
    const Elementi slot = Slot(resto);
    Limiti limiti = limiti_;
    limiti.passi =
        std::min(limiti_.passi - passi_, ProvePerTentativo * ultimaProva_ + PassiPerTentativo);
    Riempimento prova = Componi(ParteDi(problema_, slot, Volute(resto)), limiti);
    passi_ += prova.passi;
    if (prova.esito != Esito::Impossibile) {
      const bool deciso = prova.esito == Esito::Riempito;
      senza_ = deciso ? NelTutto(problema_, slot, prova.lettere) : std::string();
      return false;
    }
    insieme_ = std::move(resto);
    Impara(slot, prova);
    return true;
  }

  void Impara(const Elementi& slot, const Riempimento& prova) {
    ultimaProva_ = prova.passi;
    for (std::size_t k = 0; k < slot.size(); ++k)
      pesi_[Indice(slot[k])] = prova.pesi[k];
  }

  // An element stays: the last trial was that of the set without it.
  void Tieni(int elemento) {
    necessario_[Indice(elemento)] = true;
    if (senza_.empty()) {
      dubbio_ = true;
    } else if (!Parola(elemento)) {
      for (const int slot :
           AltriNecessari(problema_, Slot(insieme_), Volute(insieme_), elemento, senza_))
        necessario_[Indice(slot)] = true;
    }
  }

  // Which wanted words are to blame, if any. All slots that may hold one of those stay: one that is
  // left out could hold it.
  void TogliVolute() {
    if (problema_.volute.empty()) return;
    Elementi parole;
    for (std::size_t k = 0; k < problema_.volute.size(); ++k)
      parole.push_back(problema_.Slot() + static_cast<int>(k));
    if (!Togli(parole))
      Sfoltisci(problema_.Slot(), static_cast<int>(necessario_.size()), MorsoDiVolute);
    for (const std::string& parola : Volute(insieme_))
      TieniOspiti(parola);
  }

  // Where the letters alone keep a word out everywhere, they are the reason in all slots.
  void TieniOspiti(const std::string& parola) {
    Elementi lunghi;
    for (int slot = 0; slot < problema_.Slot(); ++slot) {
      if (problema_.slot[Indice(slot)].caselle.size() == parola.size()) lunghi.push_back(slot);
    }
    Elementi ospiti;
    std::copy_if(lunghi.begin(), lunghi.end(), std::back_inserter(ospiti),
                 [&](int slot) { return PuoOspitare(problema_.slot[Indice(slot)], parola); });
    for (const int slot : ospiti.empty() ? lunghi : ospiti)
      necessario_[Indice(slot)] = true;
  }

  bool PuoOspitare(const SlotDaRiempire& slot, const std::string& parola) const {
    for (std::size_t k = 0; k < parola.size(); ++k) {
      if ((problema_.lettere[Indice(slot.caselle[k])] & SolaLettera(parola[k])) == 0) return false;
    }
    return true;
  }

  bool PiuPesante(int uno, int altro) const {
    const auto peso = pesi_[Indice(uno)];
    const auto altroPeso = pesi_[Indice(altro)];
    return peso != altroPeso ? peso > altroPeso : uno < altro;
  }

  // The slots of the set by their distance in crossings from those that are known to be needed and
  // from the heaviest one; `quante` says how many of the former there are.
  Elementi PerDistanza(std::size_t& quante) const {
    const auto piuPesante = [&](int uno, int altro) { return PiuPesante(uno, altro); };
    Elementi rimasti = Slot(insieme_);
    std::sort(rimasti.begin(), rimasti.end(), piuPesante);
    Elementi strato;
    std::copy_if(rimasti.begin(), rimasti.end(), std::back_inserter(strato),
                 [&](int slot) { return necessario_[Indice(slot)]; });
    quante = strato.size();
    Elementi ordine;
    while (!rimasti.empty()) {
      if (strato.empty()) strato.push_back(rimasti.front());
      ordine.insert(ordine.end(), strato.begin(), strato.end());
      rimasti = Senza(rimasti, strato);
      strato = Vicini(rimasti, strato);
    }
    return ordine;
  }

  // Those of some slots that cross one of others.
  Elementi Vicini(const Elementi& slot, const Elementi& altri) const {
    std::vector<bool> vicino(incroci_.size());
    for (const int altro : altri) {
      for (const int incrocio : incroci_[Indice(altro)])
        vicino[Indice(incrocio)] = true;
    }
    Elementi vicini;
    std::copy_if(slot.begin(), slot.end(), std::back_inserter(vicini),
                 [&](int uno) { return vicino[Indice(uno)]; });
    return vicini;
  }

  // The shortest impossible beginning of the slots by their distance, with longer and longer steps
  // first; its last slot is needed.
  void RestringiRegione() {
    std::size_t possibile = 0;
    const Elementi ordine = PerDistanza(possibile);
    std::size_t impossibile = ordine.size();
    const auto accorcia = [&](std::size_t quanti) {
      return Togli({ordine.begin() + static_cast<std::ptrdiff_t>(quanti), ordine.end()});
    };
    if (possibile == impossibile || (possibile > 0 && accorcia(possibile))) return;
    for (std::size_t passo = 1; impossibile - possibile > 1; passo *= 2) {
      if (Finito()) return;
      const std::size_t mezzo = possibile + std::min(passo, (impossibile - possibile) / 2);
      (accorcia(mezzo) ? impossibile : possibile) = mezzo;
    }
    if (possibile > 0 && !senza_.empty()) Tieni(ordine[possibile]);
  }

  // Leaves out elements of a range in bites, the lightest first; a bite that is too big is halved.
  void Sfoltisci(int da, int a, std::size_t frazione) {
    std::size_t morso = std::max<std::size_t>(1, insieme_.size() / frazione);
    for (Elementi incerti = Incerti(da, a); !incerti.empty(); incerti = Incerti(da, a)) {
      if (Finito()) {
        dubbio_ = true;
        return;
      }
      morso = std::min(morso, incerti.size());
      incerti.resize(morso);
      if (Togli(incerti)) continue;
      if (morso == 1) Tieni(incerti.front());
      morso = (morso + 1) / 2;
    }
  }

  Elementi Incerti(int da, int a) const {
    Elementi incerti;
    std::copy_if(insieme_.begin(), insieme_.end(), std::back_inserter(incerti), [&](int elemento) {
      return elemento >= da && elemento < a && !necessario_[Indice(elemento)];
    });
    if (da == 0) {
      std::sort(incerti.begin(), incerti.end(),
                [&](int uno, int altro) { return PiuPesante(altro, uno); });
    }
    return incerti;
  }

  Colpevoli Risultato() const { return {Slot(insieme_), Volute(insieme_), !dubbio_, passi_}; }

  const Problema& problema_;
  Limiti limiti_;
  std::int64_t passi_ = 0;
  std::int64_t ultimaProva_;
  Elementi insieme_;               // impossible, rising
  std::vector<bool> necessario_;   // by element: not to be left out of any part of the set
  std::vector<Elementi> incroci_;  // by slot
  std::vector<std::uint32_t> pesi_;
  std::string senza_;    // the fill that the last trial met; empty when it was broken off
  bool dubbio_ = false;  // some element was kept undecided
};

}  // namespace

Colpevoli TrovaColpevoli(const Problema& problema, const Riempimento& prova, const Limiti& limiti) {
  Verifica(prova.esito == Esito::Impossibile, "colpevoli di un problema non impossibile");
  return Ricerca(problema, prova, limiti).Trova();
}

}  // namespace telarium
