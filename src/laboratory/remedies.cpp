#include "laboratory/remedies.h"

#include <algorithm>
#include <utility>

#include "composer/reasons.h"
#include "laboratory/black_effects.h"
#include "lexicon/composition.h"

namespace telarium {
namespace {

// Steps of a trial: a grid that fills at all mostly does so at once, and there are many cells.
constexpr std::int64_t PassiPerCasella = 1'500;
constexpr std::int64_t PassiPerSlot = 5;  // of it besides, since each is to be decided
constexpr std::int64_t PassiPerScelta = 10'000;
constexpr std::int64_t PassiPerLivello = 3'000;  // where it is known that a lower one will do
// Of all trials of cells of one kind together.
constexpr std::int64_t PassiDelleCaselle = 30'000;
// What may be spent on the reason why a cell is no remedy, which can speak against others too, and
// for how many cells.
constexpr std::int64_t PassiPerNucleo = 500;
constexpr int CelleDaSpiegare = 6;

// The sets of rules from the strictest on.
constexpr std::array<std::string_view, 3> DalSevero = {"severe", "settimanali", "libere"};

bool NellOrdineDiLettura(Casella una, Casella altra) {
  return std::pair(una.riga, una.colonna) < std::pair(altra.riga, altra.colonna);
}

// The cells of some entries in reading order, each once.
std::vector<Casella> CaselleDi(const std::vector<Slot>& voci) {
  std::vector<Casella> caselle;
  for (const Slot& voce : voci) {
    for (int k = 1; k <= voce.lunghezza; ++k)
      caselle.push_back(voce.Cella(k));
  }
  std::ranges::sort(caselle, NellOrdineDiLettura);
  const auto doppie = std::ranges::unique(caselle);
  caselle.erase(doppie.begin(), doppie.end());
  return caselle;
}

bool Attraversa(const Slot& voce, Casella casella) {
  return voce.direzione == Orizzontale
             ? casella.riga == voce.inizio.riga && casella.colonna >= voce.inizio.colonna &&
                   casella.colonna < voce.inizio.colonna + voce.lunghezza
             : casella.colonna == voce.inizio.colonna && casella.riga >= voce.inizio.riga &&
                   casella.riga < voce.inizio.riga + voce.lunghezza;
}

// Entries that are impossible together, whatever stands in the others.
using Nucleo = std::vector<Slot>;

bool Attraversa(const Nucleo& nucleo, Casella casella) {
  return std::ranges::any_of(nucleo, [&](const Slot& voce) { return Attraversa(voce, casella); });
}

class Tentativi {
 public:
  Tentativi(const Composizione& composizione, const SceltaComposizione& scelta,
            const Lessico& lessico, const Copertura* copertura, const Limiti& limiti)
      : composizione_(composizione),
        scelta_(scelta),
        lessico_(lessico),
        copertura_(copertura),
        limiti_(limiti) {
    scelta_.daCapo = false;  // the letters are dropped already
  }

  std::vector<Rimedio> Trova(const std::vector<Slot>& colpevoli, const LuoghiLessico& luoghi) {
    std::vector<Rimedio> generali;
    ProvaLivello(generali);
    ProvaRegole(generali);
    ProvaLessici(luoghi, generali);
    std::vector<Rimedio> rimedi = DiCasella(CaselleDi(colpevoli), MaxRimedi - generali.size());
    rimedi.insert(rimedi.end(), generali.begin(), generali.end());
    return rimedi;
  }

 private:
  bool Fermo() const { return limiti_.ferma.stop_requested() || passi_ >= limiti_.passi; }

  Limiti Entro(std::int64_t passi) const {
    Limiti limiti = limiti_;
    limiti.passi = std::min(passi, limiti_.passi - passi_);
    return limiti;
  }

  Riempimento Prova(const Problema& problema, std::int64_t passi) {
    if (Fermo()) return {};
    Riempimento prova = Componi(problema, Entro(passi));
    passi_ += prova.passi;
    return prova;
  }

  bool SiRiempie(const Problema& problema, std::int64_t passi) {
    return Prova(problema, passi).esito == Esito::Riempito;
  }

  // --- What is demanded of all words ---

  bool SiRiempieCon(const SceltaComposizione& scelta, const Lessico& lessico) {
    if (Fermo()) return false;
    std::string contrasto;
    const auto altra =
        PreparaComposizione(composizione_.cruciverba, scelta, lessico, copertura_, contrasto);
    return altra && altra->dueDiTroppo.empty() && SiRiempie(altra->problema, PassiPerScelta);
  }

  bool SiRiempieAlLivello(int livello, std::int64_t passi) {
    Problema problema = composizione_.problema;
    for (SlotDaRiempire& slot : problema.slot)
      slot.minimo = std::min(slot.minimo, livello);
    return composizione_.dueDiTroppo.empty() && SiRiempie(problema, passi);
  }

  // The lower the level the more words there are, so that the highest one is halved for.
  void ProvaLivello(std::vector<Rimedio>& rimedi) {
    int alto = 0;
    for (const SlotDaRiempire& slot : composizione_.problema.slot)
      alto = std::max(alto, slot.minimo);
    int basso = 0;
    if (alto == 0 || !SiRiempieAlLivello(basso, PassiPerScelta)) return;
    while (alto - basso > 1) {
      const int mezzo = basso + (alto - basso) / 2;
      (SiRiempieAlLivello(mezzo, PassiPerLivello) ? basso : alto) = mezzo;
    }
    rimedi.push_back({.genere = GenereRimedio::Livello, .livello = basso});
  }

  // A set of the user's own has no next one but the freest.
  void ProvaRegole(std::vector<Rimedio>& rimedi) {
    const auto presente = std::ranges::find(DalSevero, scelta_.parole.regole.nome);
    auto altra = presente == DalSevero.end() ? std::prev(presente) : std::next(presente);
    for (; altra != DalSevero.end(); ++altra) {
      SceltaComposizione scelta = scelta_;
      scelta.parole.regole = *RegolamentoDiNome(*altra);
      if (!SiRiempieCon(scelta, lessico_)) continue;
      rimedi.push_back({.genere = GenereRimedio::Regole, .nome = std::string(*altra)});
      return;
    }
  }

  void ProvaLessici(const LuoghiLessico& luoghi, std::vector<Rimedio>& rimedi) {
    for (const std::string_view lingua : LingueDeiLessici) {
      SceltaComposizione scelta = scelta_;
      std::vector<Percorso>& lessici = scelta.parole.lessici;
      if (Fermo() || std::ranges::find(lessici, Percorso(lingua)) != lessici.end()) continue;
      lessici.emplace_back(lingua);
      std::string messaggio;
      const auto lessico = LessicoDi(scelta.parole, luoghi, messaggio);
      if (lessico && SiRiempieCon(scelta, *lessico))
        rimedi.push_back({.genere = GenereRimedio::Lessico, .nome = std::string(lingua)});
    }
  }

  // --- Cells ---

  std::vector<Rimedio> DiCasella(const std::vector<Casella>& caselle, std::size_t quanti) {
    if (Fermo()) return {};
    pronto_ = VocabolarioPerVarianti(composizione_, scelta_.parole, lessico_, copertura_);
    auto libere = Tentate(GenereRimedio::Libera, Date(caselle), quanti);
    // Half of the room is for blacks, as far as there are some.
    const std::size_t perNere = quanti - std::min(libere.size(), quanti / 2);
    const auto nere = Tentate(GenereRimedio::Nera, DaAnnerire(caselle), perNere);
    libere.resize(std::min(libere.size(), quanti - nere.size()));
    libere.insert(libere.end(), nere.begin(), nere.end());
    return libere;
  }

  bool Vuota(Casella casella) const {
    return composizione_.griglia.Carattere(casella) == CellaVuota;
  }

  // Those that are to be filled, or might be.
  std::vector<Casella> Nella(const std::vector<Casella>& caselle, bool vuote) const {
    std::vector<Casella> scelte;
    std::ranges::copy_if(caselle, std::back_inserter(scelte), [&](Casella casella) {
      return Vuota(casella) == vuote && (!scelta_.regione || scelta_.regione->Contiene(casella));
    });
    return scelte;
  }

  std::vector<Casella> Date(const std::vector<Casella>& caselle) const {
    return Nella(caselle, false);
  }

  std::vector<Casella> DaAnnerire(const std::vector<Casella>& caselle) const {
    std::vector<std::pair<EffettoDiNera, Casella>> conEffetto;
    for (const Casella casella : Nella(caselle, true))
      conEffetto.emplace_back(EffettoDi(composizione_.griglia, casella), casella);
    std::ranges::stable_sort(conEffetto, {}, &std::pair<EffettoDiNera, Casella>::first);
    std::vector<Casella> ordinate;
    for (const auto& [effetto, casella] : conEffetto)
      ordinate.push_back(casella);
    return ordinate;
  }

  // A cell that some impossible entries do not run through leaves them impossible.
  bool PuoServire(Casella casella) const {
    return std::ranges::all_of(nuclei_,
                               [&](const Nucleo& nucleo) { return Attraversa(nucleo, casella); });
  }

  std::vector<Rimedio> Tentate(GenereRimedio genere, const std::vector<Casella>& caselle,
                               std::size_t quanti) {
    const char carattere = genere == GenereRimedio::Nera ? CellaNera : CellaVuota;
    const std::int64_t fino = passi_ + PassiDelleCaselle;
    std::vector<Rimedio> rimedi;
    for (const Casella casella : caselle) {
      if (rimedi.size() == quanti || Fermo() || passi_ >= fino) break;
      if (PuoServire(casella) && SiRiempieCon(casella, carattere))
        rimedi.push_back({genere, casella});
    }
    return rimedi;
  }

  bool SiRiempieCon(Casella casella, char carattere) {
    Cruciverba cruciverba = composizione_.cruciverba;
    ScriviCarattere(cruciverba, casella, carattere);
    std::string contrasto;
    const auto altra =
        PreparaComposizione(cruciverba, scelta_, lessico_, copertura_, contrasto, &pronto_);
    if (!altra || !altra->dueDiTroppo.empty() || altra->griglia.Parole().empty()) return false;
    const Riempimento prova =
        Prova(altra->problema, PassiPerCasella + PassiPerSlot * altra->problema.Slot());
    if (prova.esito == Esito::Impossibile) ImparaNucleo(*altra, prova, casella);
    return prova.esito == Esito::Riempito;
  }

  // The reason why a grid with another cell is impossible is one of this grid too, if all of it is
  // there.
  void ImparaNucleo(const Composizione& altra, const Riempimento& prova, Casella casella) {
    const Problema& problema = composizione_.problema;
    if (altra.problema.alMassimo != problema.alMassimo ||
        altra.problema.altrove != problema.altrove || spiegate_ == CelleDaSpiegare || Fermo())
      return;
    ++spiegate_;
    const Colpevoli colpevoli = TrovaColpevoli(altra.problema, prova, Entro(PassiPerNucleo));
    passi_ += colpevoli.passi;
    Nucleo nucleo;
    for (const int slot : colpevoli.slot)
      nucleo.push_back(altra.slot[static_cast<std::size_t>(slot)]);
    const bool tuttoQui = std::ranges::all_of(nucleo, [&](const Slot& voce) {
      return std::ranges::find(composizione_.slot, voce) != composizione_.slot.end();
    });
    if (tuttoQui && colpevoli.volute.empty() && !Attraversa(nucleo, casella))
      nuclei_.push_back(std::move(nucleo));
  }

  const Composizione& composizione_;
  SceltaComposizione scelta_;
  const Lessico& lessico_;
  const Copertura* copertura_;
  const Limiti& limiti_;
  VocabolarioPronto pronto_;
  std::int64_t passi_ = 0;
  std::vector<Nucleo> nuclei_;  // beside the guilty set
  int spiegate_ = 0;            // cells for which such a one was looked for
};

}  // namespace

std::vector<Rimedio> TrovaRimedi(const Composizione& composizione, const SceltaComposizione& scelta,
                                 const std::vector<Slot>& colpevoli, const Lessico& lessico,
                                 const Copertura* copertura, const LuoghiLessico& luoghi,
                                 const Limiti& limiti) {
  return Tentativi(composizione, scelta, lessico, copertura, limiti).Trova(colpevoli, luoghi);
}

}  // namespace telarium
