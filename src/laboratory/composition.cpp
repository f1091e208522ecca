#include "laboratory/composition.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <limits>
#include <map>
#include <utility>

#include "laboratory/checks.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr int NessunaCasella = -1;

std::string Luogo(const InizioDiParola& inizio) {
  return Unisci(inizio.casella.colonna, ',', inizio.casella.riga,
                inizio.direzione == Orizzontale ? " orizzontale" : " verticale");
}

void TogliDefinizione(Cruciverba& cruciverba, const Slot& slot) {
  cruciverba.definizioni.Imposta({}, slot.inizio.colonna, slot.inizio.riga, slot.direzione);
}

// Whether a word has the same cell characters in two grids.
bool Resta(const Derivati& prima, const Derivati& dopo, const Slot& slot) {
  return prima.Lettere(slot) == dopo.Lettere(slot);
}

// The cells of a grid as a table of anything.
template <class Valore>
class PerCasella {
 public:
  PerCasella(const Derivati& griglia, Valore valore)
      : colonne_(griglia.Colonne()),
        valori_(static_cast<std::size_t>(griglia.Colonne() * griglia.Righe()), valore) {}

  Valore& operator[](Casella casella) {
    return valori_[static_cast<std::size_t>((casella.riga - 1) * colonne_ + casella.colonna - 1)];
  }

 private:
  int colonne_;
  std::vector<Valore> valori_;
};

// Drops the letters that are to be found anew, all but those of locked words, and with them the
// clues of the words that lose letters. `Riempibile` tells the cells that may be filled.
template <class Riempibile>
void TogliLettere(Cruciverba& cruciverba, Riempibile riempibile) {
  const Derivati prima = Deriva(cruciverba);
  PerCasella<char> bloccate(prima, false);
  for (const auto& [casella, direzione] : cruciverba.laboratorio->bloccate) {
    if (!prima.Dentro(casella) || !prima.Inizia(casella, direzione)) continue;
    const auto quale = static_cast<std::size_t>(prima.ParolaPer(casella, direzione));
    const Slot& slot = prima.Parole()[quale];
    for (int k = 1; k <= slot.lunghezza; ++k)
      bloccate[slot.Cella(k)] = true;
  }
  for (const Slot& slot : prima.Parole()) {
    for (int k = 1; k <= slot.lunghezza; ++k) {
      const Casella casella = slot.Cella(k);
      if (!bloccate[casella] && riempibile(casella))
        ScriviCarattere(cruciverba, casella, CellaVuota);
    }
  }
  const Derivati dopo = Deriva(cruciverba);
  for (const Slot& slot : prima.Parole()) {
    if (!Resta(prima, dopo, slot)) TogliDefinizione(cruciverba, slot);
  }
}

// The slots that a wanted word of a length may stand in.
int PostiDi(const Problema& problema, std::size_t lunghezza) {
  return static_cast<int>(std::ranges::count_if(problema.slot, [&](const SlotDaRiempire& slot) {
    return !slot.aperto && slot.caselle.size() == lunghezza;
  }));
}

// With the wanted words that no layer has, which are the author's own.
ParoleDiCruciverba ConVolute(ParoleDiCruciverba parole, const Problema& problema,
                             const Lessico& lessico) {
  for (const std::string& parola : problema.volute) {
    if (!lessico.Contiene(parola)) parole.proprie.insert(parola);
  }
  return parole;
}

// Makes a problem of a crossword. Each step gives what contradicts itself, as a sentence; empty for
// nothing.
class Preparazione {
 public:
  Preparazione(const Cruciverba& cruciverba, const SceltaComposizione& scelta,
               const Lessico& lessico, const Copertura* copertura, const VocabolarioPronto* pronto)
      : scelta_(scelta),
        lessico_(lessico),
        copertura_(copertura),
        pronto_(pronto),
        delCruciverba_(ParoleDi(cruciverba.laboratorio)),
        vietate_(lessico, delCruciverba_.vietate) {
    composizione_.cruciverba = cruciverba;
  }

  std::string Esegui() {
    if (auto contrasto = ContrastoDellaRegione(); !contrasto.empty()) return contrasto;
    PrendiGriglia();
    for (const MascheraDiParola& maschera : scelta_.maschere) {
      if (auto contrasto = PrendiMaschera(maschera); !contrasto.empty()) return contrasto;
    }
    if (auto contrasto = PrendiVolute(); !contrasto.empty()) return contrasto;
    Limita();
    PrendiVocabolario();
    return {};
  }

  Composizione Composta() && { return std::move(composizione_); }

 private:
  bool DaRiempire(Casella casella) const {
    return !scelta_.regione || scelta_.regione->Contiene(casella);
  }

  std::string ContrastoDellaRegione() const {
    if (!scelta_.regione) return {};
    const auto& [prima, ultima] = *scelta_.regione;
    const Cruciverba& cruciverba = composizione_.cruciverba;
    const std::string nome = Unisci("La regione ", prima.colonna, ',', prima.riga, ',',
                                    ultima.colonna, ',', ultima.riga);
    if (prima.colonna > ultima.colonna || prima.riga > ultima.riga)
      return nome + " finisce prima di dove comincia.";
    if (NelloSchema(cruciverba, prima) && NelloSchema(cruciverba, ultima)) return {};
    return Unisci(nome, " esce dallo schema, che ha ", cruciverba.colonne, " colonne e ",
                  cruciverba.righe, " righe.");
  }

  // --- The grid ---

  void PrendiGriglia() {
    if (scelta_.daCapo) {
      TogliLettere(composizione_.cruciverba,
                   [this](Casella casella) { return DaRiempire(casella); });
    }
    composizione_.griglia = Deriva(composizione_.cruciverba);
    numeri_.emplace(griglia_, NessunaCasella);
    voci_ =
        VociDi(composizione_.cruciverba, griglia_, CriteriDi(scelta_.parole, lessico_, copertura_));
    for (const VoceDiGriglia& voce : voci_) {
      if (!voce.HaVuote()) {
        PrendiIntera(voce);
      } else if (HaDaRiempire(voce.slot)) {
        PrendiSlot(voce.slot);
      }
    }
    if (std::ranges::find(problema_.lasciate, true) == problema_.lasciate.end())
      problema_.lasciate.clear();
  }

  void PrendiIntera(const VoceDiGriglia& voce) {
    if (!voce.Intera()) return;
    problema_.altrove.push_back(voce.lettere);
    if (!voce.libera && !voce.parola) AggiungiPropria(voce.lettere);
  }

  void AggiungiPropria(const std::string& parola) {
    const bool nuova =
        !delCruciverba_.proprie.contains(parola) &&
        std::ranges::find(composizione_.proprie, parola) == composizione_.proprie.end();
    if (nuova) composizione_.proprie.push_back(parola);
  }

  bool Vuota(Casella casella) const { return griglia_.Carattere(casella) == CellaVuota; }

  bool HaDaRiempire(const Slot& slot) const {
    for (int k = 1; k <= slot.lunghezza; ++k) {
      if (Vuota(slot.Cella(k)) && DaRiempire(slot.Cella(k))) return true;
    }
    return false;
  }

  void PrendiSlot(const Slot& slot) {
    SlotDaRiempire& daRiempire = problema_.slot.emplace_back();
    daRiempire.minimo = scelta_.parole.livelli[static_cast<std::size_t>(slot.lunghezza)];
    for (int k = 1; k <= slot.lunghezza; ++k) {
      const int casella = NumeroDi(slot.Cella(k));
      daRiempire.caselle.push_back(casella);
      daRiempire.aperto |= problema_.lasciate[static_cast<std::size_t>(casella)];
    }
    composizione_.slot.push_back(slot);
    lunghezze_.set(static_cast<std::size_t>(slot.lunghezza));
  }

  // The number of a cell in the problem, which it gets when it has none.
  int NumeroDi(Casella casella) {
    int& numero = (*numeri_)[casella];
    if (numero != NessunaCasella) return numero;
    numero = problema_.Caselle();
    const bool vuota = Vuota(casella);
    const auto data = LetteraDiCella(griglia_.Carattere(casella));
    composizione_.caselle.push_back(casella);
    problema_.lettere.push_back(vuota ? TutteLeLettere : data ? SolaLettera(*data) : 0);
    problema_.lasciate.push_back(vuota && !DaRiempire(casella));
    return numero;
  }

  // --- Masks ---

  std::string PrendiMaschera(const MascheraDiParola& voluta) {
    const auto& [inizio, maschera] = voluta;
    const std::string nome = Unisci("La maschera ", maschera, " in ", Luogo(inizio));
    const bool comincia =
        griglia_.Dentro(inizio.casella) && griglia_.Inizia(inizio.casella, inizio.direzione);
    if (!comincia) return nome + std::string(": lì non comincia nessuna parola."_cp);
    const auto quale = griglia_.ParolaPer(inizio.casella, inizio.direzione);
    const Slot& slot = griglia_.Parole()[static_cast<std::size_t>(quale)];
    if (maschera.size() != static_cast<std::size_t>(slot.lunghezza))
      return Unisci(nome, " è lunga "_cp, maschera.size(), ", la parola ", slot.lunghezza, '.');
    for (int k = 1; k <= slot.lunghezza; ++k) {
      const char carattere = maschera[static_cast<std::size_t>(k) - 1];
      if (carattere == CellaVuota) continue;
      if (auto contrasto = ChiediLettera(slot.Cella(k), carattere); !contrasto.empty())
        return Unisci(nome, ": ", contrasto);
    }
    return {};
  }

  std::string ChiediLettera(Casella casella, char carattere) {
    const auto chiesta = LetteraDiCella(carattere);
    if (!chiesta) return Unisci("il segno ", carattere, " non è una lettera."_cp);
    const std::string dove = Unisci("la casella ", casella.colonna, ',', casella.riga);
    if (!Vuota(casella)) {
      if (LetteraDiCella(griglia_.Carattere(casella)) == chiesta) return {};
      return Unisci(dove, " ha già un'altra lettera, "_cp, griglia_.Carattere(casella), '.');
    }
    const int numero = (*numeri_)[casella];
    if (numero == NessunaCasella) return dove + " non si riempie: sta fuori della regione.";
    Lettere& ammesse = problema_.lettere[static_cast<std::size_t>(numero)];
    ammesse &= SolaLettera(*chiesta);
    return ammesse != 0 ? std::string() : dove + " ne ha un'altra da un'altra maschera.";
  }

  // --- Wanted words ---

  std::string PrendiVolute() {
    const auto& altrove = problema_.altrove;
    std::ranges::copy_if(scelta_.volute, std::back_inserter(problema_.volute),
                         [&](const std::string& parola) {
                           return std::ranges::find(altrove, parola) == altrove.end();
                         });
    if (auto contrasto = ContrastoDelleLunghezze(); !contrasto.empty()) return contrasto;
    for (const std::string& parola : problema_.volute) {
      if (auto contrasto = ContrastoDellaVoluta(parola); !contrasto.empty()) return contrasto;
    }
    return {};
  }

  // All wanted words that no slot is as long as.
  std::string ContrastoDelleLunghezze() const {
    int quante = 0;
    std::string elenco;
    for (const std::string& parola : problema_.volute) {
      if (PostiDi(problema_, parola.size()) > 0) continue;
      elenco += Unisci(quante++ > 0 ? ", " : "", parola, " (", parola.size(), ')');
    }
    if (quante == 0) return {};
    return quante == 1 ? Unisci("La parola voluta ", elenco,
                                " non ha posto: nessuna parola da completare ha tante lettere.")
                       : Unisci("Le parole volute ", elenco,
                                " non hanno posto: nessuna parola da completare ha tante lettere.");
  }

  std::string ContrastoDellaVoluta(const std::string& parola) {
    const std::string nome = Unisci("La parola voluta ", parola);
    if (vietate_.Ha(parola)) return nome + std::string(" è vietata."_cp);
    const bool libera =
        parola.size() == MinLunghezzaVoce && scelta_.parole.regole.due == DueLettere::Tutte;
    if (libera || delCruciverba_.proprie.contains(parola)) return {};
    const auto nelLessico = lessico_.Cerca(parola);
    if (nelLessico) return ContrastoDellaNota(*nelLessico, nome);
    AggiungiPropria(parola);
    return {};
  }

  // Of a wanted word that some layer has.
  std::string ContrastoDellaNota(const Parola& parola, const std::string& nome) const {
    if (auto divieto = Divieto(parola, scelta_.parole.regole, nome)) return *divieto;
    const int minimo = scelta_.parole.livelli[parola.lettere.size()];
    if (parola.punteggio < minimo) {
      return Unisci(nome, " ha punteggio ", parola.punteggio, ": il minimo chiesto è "_cp, minimo,
                    '.');
    }
    const bool senza = scelta_.parole.definizioni == UsoDefinizioni::Obbligatorie &&
                       !(copertura_ && copertura_->Ha(parola.lettere, scelta_.parole.quali));
    return senza ? nome + " non ha una definizione, che qui ci vuole." : std::string();
  }

  // --- Numbers and words ---

  // The entries that stand and that the rules count.
  int Presenti(Genia genia) const {
    return static_cast<int>(std::ranges::count_if(voci_, [genia](const VoceDiGriglia& voce) {
      return voce.Giudicata() && Appartiene(*voce.parola, genia);
    }));
  }

  void Limita() {
    problema_.soloDefinite = scelta_.parole.definizioni == UsoDefinizioni::Obbligatorie;
    problema_.ammetteForme = scelta_.parole.ammetteForme;
    for (int i = 0; i < NumGenie; ++i) {
      const auto genia = static_cast<Genia>(i);
      constexpr int tante = std::numeric_limits<int>::max();
      const Quota& quota = scelta_.parole.regole.Di(genia);
      // What rules refuse altogether is no word of the vocabulary.
      const bool condivisa = quota.unaSu != Quota::Libera && quota.unaSu != Quota::Nessuna;
      int ammesse = condivisa ? quota.Ammesse(static_cast<int>(voci_.size())) : tante;
      if (genia == Genia::Straniera) ammesse = std::min(ammesse, scelta_.straniere.value_or(tante));
      if (ammesse != tante)
        problema_.alMassimo[static_cast<std::size_t>(i)] = std::max(0, ammesse - Presenti(genia));
    }
    if (scelta_.due) LimitaDue(static_cast<std::size_t>(std::max(0, *scelta_.due)));
  }

  void LimitaDue(std::size_t ammesse) {
    std::vector<Slot>& due = composizione_.dueDiTroppo;
    for (const Slot& slot : griglia_.Parole()) {
      if (slot.lunghezza == MinLunghezzaVoce && due.size() <= ammesse) due.push_back(slot);
    }
    if (due.size() <= ammesse) due.clear();
  }

  void PrendiVocabolario() {
    const ParoleDiCruciverba delCruciverba = ConVolute(delCruciverba_, problema_, lessico_);
    const bool basta = pronto_ && (lunghezze_ & ~pronto_->lunghezze).none() &&
                       pronto_->delCruciverba == delCruciverba;
    problema_.vocabolario =
        basta ? pronto_->vocabolario
              : VocabolarioDi(scelta_.parole, lessico_, copertura_, lunghezze_, delCruciverba);
  }

  const SceltaComposizione& scelta_;
  const Lessico& lessico_;
  const Copertura* copertura_;
  const VocabolarioPronto* pronto_;
  const ParoleDiCruciverba delCruciverba_;
  const ParoleVietate vietate_;
  Composizione composizione_;
  Problema& problema_ = composizione_.problema;
  const Derivati& griglia_ = composizione_.griglia;
  std::vector<VoceDiGriglia> voci_;
  std::optional<PerCasella<int>> numeri_;  // of the cells in the problem
  Lunghezze lunghezze_;                    // of the slots
};

// The own words that stand in a grid, and its crossword has not among its own yet.
void AggiungiProprie(Cruciverba& cruciverba, const Derivati& griglia,
                     const std::vector<std::string>& proprie) {
  InsiemeDiParole presenti;
  for (const Slot& slot : griglia.Parole())
    presenti.insert(LettereDiCaselle(griglia.Lettere(slot)));
  for (const std::string& parola : proprie) {
    if (presenti.contains(parola)) cruciverba.laboratorio.Proprio().proprie.push_back(parola);
  }
}

}  // namespace

std::optional<Composizione> PreparaComposizione(const Cruciverba& cruciverba,
                                                const SceltaComposizione& scelta,
                                                const Lessico& lessico, const Copertura* copertura,
                                                std::string& messaggio,
                                                const VocabolarioPronto* pronto) {
  Preparazione preparazione(cruciverba, scelta, lessico, copertura, pronto);
  messaggio = preparazione.Esegui();
  if (!messaggio.empty()) return std::nullopt;
  return std::move(preparazione).Composta();
}

std::string LettereChieste(const Composizione& composizione, const Slot& slot) {
  std::string lettere = composizione.griglia.Lettere(slot);
  for (int k = 1; k <= slot.lunghezza; ++k) {
    const auto dove = std::ranges::find(composizione.caselle, slot.Cella(k));
    char& lettera = lettere[static_cast<std::size_t>(k) - 1];
    if (lettera != CellaVuota || dove == composizione.caselle.end()) continue;
    const Lettere ammesse =
        composizione.problema
            .lettere[static_cast<std::size_t>(dove - composizione.caselle.begin())];
    if (UnaSola(ammesse)) lettera = static_cast<char>('A' + std::countr_zero(ammesse));
  }
  return lettere;
}

std::string TroppeVolute(const Composizione& composizione) {
  struct Chieste {
    int quante = 0;
    std::string elenco;
  };
  std::map<std::size_t, Chieste> perLunghezza;
  for (const std::string& parola : composizione.problema.volute) {
    auto& [quante, elenco] = perLunghezza[parola.size()];
    elenco += Unisci(quante++ > 0 ? ", " : "", parola);
  }
  for (const auto& [lunghezza, chieste] : perLunghezza) {
    const int posti = PostiDi(composizione.problema, lunghezza);
    if (chieste.quante <= posti) continue;
    return Unisci("Parole volute di ", lunghezza, " lettere: ", chieste.quante, " (",
                  chieste.elenco, "); posti di questa lunghezza: ", posti, '.');
  }
  return {};
}

VocabolarioPronto VocabolarioPerVarianti(const Composizione& composizione,
                                         const SceltaParole& scelta, const Lessico& lessico,
                                         const Copertura* copertura) {
  int massima = 0;
  for (const Slot& slot : composizione.griglia.Parole())
    massima = std::max(massima, slot.lunghezza);
  VocabolarioPronto pronto;
  for (int lunghezza = MinLunghezzaVoce; lunghezza <= massima; ++lunghezza)
    pronto.lunghezze.set(static_cast<std::size_t>(lunghezza));
  pronto.delCruciverba =
      ConVolute(ParoleDi(composizione.cruciverba.laboratorio), composizione.problema, lessico);
  pronto.vocabolario =
      VocabolarioDi(scelta, lessico, copertura, pronto.lunghezze, pronto.delCruciverba);
  return pronto;
}

Cruciverba ConLettere(const Composizione& composizione, const std::string& lettere) {
  Cruciverba cruciverba = composizione.cruciverba;
  const Derivati& prima = composizione.griglia;
  for (std::size_t i = 0; i < composizione.caselle.size(); ++i) {
    const Casella casella = composizione.caselle[i];
    if (prima.Carattere(casella) != CellaVuota ||
        composizione.problema.Lasciata(static_cast<int>(i)))
      continue;
    const char lettera = i < lettere.size() ? lettere[i] : SenzaLettera;
    ScriviCarattere(cruciverba, casella, lettera == SenzaLettera ? CellaVuota : lettera);
  }
  const Derivati dopo = Deriva(cruciverba);
  for (const Slot& slot : composizione.slot)
    TogliDefinizione(cruciverba, slot);
  AggiungiProprie(cruciverba, dopo, composizione.proprie);
  return cruciverba;
}

}  // namespace telarium
