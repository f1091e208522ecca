#include "composer/reasons.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

#include "composer/outward.h"
#include "composer/search.h"
#include "composer/witness.h"
#include "platform/check.h"

// Slots and wanted words are left out as long as the rest stays impossible. That is monotone: what
// holds an impossible part is impossible, so the shortest impossible beginning of a sequence can be
// halved for, and what was needed once is needed for ever. A search of the region comes first since
// proofs and fills of small parts are cheap and those of the whole are not. A trial is one search
// that never begins anew, since hard ones are proofs. One that its limit of steps ends counts as
// possible: then the set is not known to be minimal, and still impossible.
//
// Sources: U. Junker, QuickXplain (2004) for bites and for what is needed first; J. Marques-Silva,
// Minimal unsatisfiability (2010) for deletion by what the last proof used; witness.h for fills.
namespace telarium {
namespace {

// A trial may take so many times the steps of the last proof, and these besides.
constexpr std::int64_t ProvePerTentativo = 3;
constexpr std::int64_t PassiPerTentativo = 500;
constexpr std::int64_t ProvePerRipresa = 20;  // at the end, for what was not decided
// All trials together, some seconds of them: what is gained later is small.
constexpr std::int64_t PassiInTutto = 250'000;
// Regions that are tried unless one is so small, how exactly they are measured, and how long each
// but the first is tried, by the proof of that.
constexpr int Centri = 8;
constexpr std::size_t RegionePiccola = 16;
constexpr std::size_t GranaDiRegione = 8;
constexpr std::int64_t ProvePerAltraRegione = 1;
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

Elementi Comuni(const Elementi& elementi, const Elementi& altri) {
  return Senza(elementi, Senza(elementi, altri));
}

class Indagine {
 public:
  Indagine(const Problema& problema, const Riempimento& prova, const Limiti& limiti)
      : problema_(problema),
        limiti_(limiti),
        ultimaProva_(prova.passi),
        necessario_(problema.slot.size() + problema.volute.size()),
        reticolo_(problema),
        dubbio_(necessario_.size()) {
    limiti_.passi = std::min(limiti.passi, PassiInTutto);
    for (std::size_t slot = 0; slot < problema.slot.size(); ++slot)
      pesi_.push_back(slot < prova.pesi.size() ? prova.pesi[slot] : 1);
    for (std::size_t k = 0; k < necessario_.size(); ++k)
      insieme_.push_back(static_cast<int>(k));
  }

  Colpevoli Trova() {
    TogliVolute();
    if (Volute(insieme_).empty()) ScegliRegione();
    std::size_t prima = 0;
    do {
      prima = insieme_.size();
      RestringiRegione();
    } while (prima - insieme_.size() >= prima / GuadagnoDiRegione && prima > insieme_.size());
    Sfoltisci(0, problema_.Slot(), MorsoDiSlot);
    Riprova();
    return Risultato();
  }

 private:
  struct Riempito {  // a fill of the set without some elements
    Elementi senza;
    std::string lettere;  // by cell of the whole
  };

  bool Parola(int elemento) const { return elemento >= problema_.Slot(); }
  const std::string& Voluta(int elemento) const {
    return problema_.volute[Indice(elemento - problema_.Slot())];
  }
  bool Finito() const { return passi_ >= limiti_.passi || limiti_.ferma.stop_requested(); }

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
  bool Togli(const Elementi& tolti, std::int64_t prove = ProvePerTentativo) {
    Elementi resto = Senza(insieme_, tolti);
    const Elementi slot = Slot(resto);
    const std::int64_t passi =
        std::min(limiti_.passi - passi_, prove * ultimaProva_ + PassiPerTentativo);
    const Problema parte = ParteDi(problema_, slot, Volute(resto));
    const Partenza partenza(parte);
    Ricerca ricerca(partenza, {.seme = limiti_.seme});
    const Ricerca::Fine fine = ricerca.Continua(passi, limiti_.ferma);
    passi_ += ricerca.Passi();
    switch (fine) {
      case Ricerca::Fine::Impossibile:
        insieme_ = std::move(resto);
        Impara(slot, ricerca);
        break;
      case Ricerca::Fine::Riempito:
        riempiti_.push_back({tolti, NelTutto(problema_, slot, ricerca.LettereTrovate())});
        break;
      case Ricerca::Fine::Sospesa:
        if (tolti.size() == 1) Tieni(tolti.front(), false);
        return false;
    }
    Rileggi();
    return fine == Ricerca::Fine::Impossibile;
  }

  void Impara(const Elementi& slot, const Ricerca& prova) {
    ultimaProva_ = prova.Passi();
    for (std::size_t k = 0; k < slot.size(); ++k)
      pesi_[Indice(slot[k])] = prova.Pesi()[k];
  }

  // What fills now lack one element of the set alone, which therefore is needed.
  void Rileggi() {
    for (Riempito& uno : riempiti_) {
      uno.senza = Comuni(insieme_, uno.senza);
      if (uno.senza.size() != 1) continue;
      const int elemento = uno.senza.front();
      Tieni(elemento, true);
      if (Parola(elemento)) continue;
      for (const int slot :
           AltriNecessari(problema_, Slot(insieme_), Volute(insieme_), elemento, uno.lettere))
        Tieni(slot, true);
    }

    std::erase_if(riempiti_, [](const Riempito& uno) { return uno.senza.size() < 2; });
  }

  // An element stays: the set without it was filled, or not decided.
  void Tieni(int elemento, bool riempito) {
    necessario_[Indice(elemento)] = true;
    dubbio_[Indice(elemento)] = !riempito;
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

  int PiuPesante(const Elementi& slot) const {
    return *std::min_element(slot.begin(), slot.end(),
                             [&](int uno, int altro) { return PiuPesante(uno, altro); });
  }

  // The smallest of the regions round several slots, each of them the heaviest that is in none
  // yet: the first one need not be the hardest.
  void ScegliRegione() {
    const Elementi tutti = insieme_;
    Elementi migliore = insieme_;
    Elementi liberi = Slot(insieme_);
    for (int k = 0; k < Centri && !liberi.empty() && !Finito(); ++k) {
      if (migliore.size() <= RegionePiccola) break;
      const Elementi ordine = VersoFuori(reticolo_, Slot(tutti), {PiuPesante(liberi)});
      Ricomincia(tutti);
      const std::size_t meta = std::min(migliore.size() - 1, ordine.size());
      const bool minore = k == 0 || (meta > 0 && Accorcia(ordine, meta, ProvePerAltraRegione));
      liberi = Senza(liberi, {ordine.begin(), ordine.begin() + static_cast<std::ptrdiff_t>(meta)});
      if (!minore) continue;
      Restringi(ordine, 0, k == 0 ? ordine.size() : meta, GranaDiRegione);
      migliore = insieme_;
      if (k == 0) liberi = Senza(tutti, migliore);
    }
    Ricomincia(migliore);
  }

  // Takes another set, of which nothing is known but that it is impossible.
  void Ricomincia(Elementi insieme) {
    insieme_ = std::move(insieme);
    std::fill(necessario_.begin(), necessario_.end(), false);
    std::fill(dubbio_.begin(), dubbio_.end(), false);
    riempiti_.clear();
  }

  // The region round all slots that are known to be needed, or the heaviest.
  void RestringiRegione() {
    Elementi slot = Slot(insieme_);
    Elementi centro;
    std::copy_if(slot.begin(), slot.end(), std::back_inserter(centro),
                 [&](int uno) { return necessario_[Indice(uno)]; });
    if (centro.size() == slot.size()) return;
    const std::size_t necessari = centro.size();
    if (centro.empty()) centro.push_back(PiuPesante(slot));
    const Elementi ordine = VersoFuori(reticolo_, slot, centro);
    if (necessari == 0 || !Accorcia(ordine, necessari)) Restringi(ordine, necessari, ordine.size());
  }

  // Whether the first slots of a sequence are impossible, which then are all of the set.
  bool Accorcia(const Elementi& ordine, std::size_t quanti,
                std::int64_t prove = ProvePerTentativo) {
    return Togli({ordine.begin() + static_cast<std::ptrdiff_t>(quanti), ordine.end()}, prove);
  }

  // The shortest impossible beginning of a sequence, of which so many slots are possible and so
  // many impossible, with longer and longer steps first: but for one slot in `grana`. Where it is
  // the very shortest its last slot is needed.
  void Restringi(const Elementi& ordine, std::size_t possibile, std::size_t impossibile,
                 std::size_t grana = std::numeric_limits<std::size_t>::max()) {
    const auto abbastanza = [&] { return impossibile - possibile <= 1 + impossibile / grana; };
    for (std::size_t passo = 1; !abbastanza() && !Finito(); passo *= 2) {
      const std::size_t mezzo = possibile + std::min(passo, (impossibile - possibile) / 2);
      (Accorcia(ordine, mezzo) ? impossibile : possibile) = mezzo;
    }
  }

  // Leaves out elements of a range in bites, the lightest first; a bite that is too big is halved.
  void Sfoltisci(int da, int a, std::size_t frazione, std::int64_t prove = ProvePerTentativo) {
    std::size_t morso =
        std::max<std::size_t>(1, insieme_.size() / std::max<std::size_t>(1, frazione));
    for (Elementi incerti = Incerti(da, a); !incerti.empty(); incerti = Incerti(da, a)) {
      if (Finito()) {
        for (const int elemento : incerti)
          Tieni(elemento, false);
        return;
      }
      morso = std::min(morso, incerti.size());
      incerti.resize(morso);
      if (Togli(incerti, prove)) continue;
      morso = (morso + 1) / 2;
    }
  }

  // Slots that were kept undecided get more steps, now that the set is small. Words do not: slots
  // are kept for them.
  void Riprova() {
    for (const int slot : Slot(insieme_)) {
      if (dubbio_[Indice(slot)]) necessario_[Indice(slot)] = false;
      dubbio_[Indice(slot)] = false;
    }
    Sfoltisci(0, problema_.Slot(), insieme_.size(), ProvePerRipresa);
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

  Colpevoli Risultato() const {
    const bool minimo = std::none_of(insieme_.begin(), insieme_.end(),
                                     [&](int elemento) { return dubbio_[Indice(elemento)]; });
    return {Slot(insieme_), Volute(insieme_), minimo, passi_};
  }

  const Problema& problema_;
  Limiti limiti_;
  std::int64_t passi_ = 0;
  std::int64_t ultimaProva_;
  Elementi insieme_;              // impossible, rising
  std::vector<bool> necessario_;  // by element: not to be left out of any part of the set
  Reticolo reticolo_;
  std::vector<std::uint32_t> pesi_;
  std::vector<Riempito> riempiti_;  // those that lack several elements of the set
  std::vector<bool> dubbio_;        // by element: kept undecided
};

}  // namespace

Colpevoli TrovaColpevoli(const Problema& problema, const Riempimento& prova, const Limiti& limiti) {
  Verifica(prova.esito == Esito::Impossibile, "colpevoli di un problema non impossibile");
  return Indagine(problema, prova, limiti).Trova();
}

}  // namespace telarium
