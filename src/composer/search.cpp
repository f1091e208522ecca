#include "composer/search.h"

#include <algorithm>
#include <bit>
#include <limits>

#include "platform/check.h"

namespace telarium {
namespace {

constexpr int ParoleProvate = 8;      // of the best ones from which one is drawn
constexpr int RumoreLettera = 64;     // of a letter's worth, in 1/256 of a logarithm
constexpr int CrescitaPercento = 15;  // of the failures between two beginnings

}  // namespace

int Logaritmo(int numero) {
  // Between powers of two by the chord: the error is under a tenth.
  const auto valore = static_cast<std::uint32_t>(numero);
  const int potenza = std::bit_width(valore) - 1;
  const auto resto = static_cast<std::uint64_t>(valore - (1u << potenza));
  return potenza * 256 + static_cast<int>(resto * 256 >> potenza);
}

Ricerca::Ricerca(const Partenza& partenza, const Maniera& maniera)
    : partenza_(partenza),
      maniera_(maniera),
      stato_(partenza),
      caso_(maniera.seme),
      pesi_(S(partenza.Griglia().Slot()), 1),
      prossimaRipresa_(maniera.primaRipresa),
      attesa_(maniera.primaRipresa),
      migliori_(S(partenza.Griglia().Caselle()), SenzaLettera) {
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    std::uint32_t vicini = 1;
    for (const PostoDiSlot& incrocio : Griglia().IncrociDi(slot))
      vicini += incrocio.slot >= 0 ? 1 : 0;
    pesiVicini_.push_back(vicini);
  }
}

bool Ricerca::Comincia() {
  if (cominciata_) return possibile_;
  cominciata_ = true;
  for (const std::string& parola : Di().volute) {
    const auto numero = partenza_.Parole().Cerca(parola);
    if (!numero) return possibile_ = false;
    volute_.push_back(*numero);
  }
  possibile_ = stato_.Propaga();
  if (!possibile_) Pesa(stato_.Conflitto().slot);
  return possibile_;
}

bool Ricerca::Presumi(std::span<const Decisione> decisioni) {
  Rinuncia(presunti_);
  stato_.Avanza();
  decisioni_.emplace_back();
  ++presunti_;
  const bool riuscita = std::all_of(decisioni.begin(), decisioni.end(),
                                    [&](const Decisione& una) { return Assegna(una); });
  return riuscita && stato_.Propaga();
}

void Ricerca::Rinuncia(int livelli) {
  presunti_ = std::min(presunti_, livelli);
  stato_.Torna(presunti_);
  decisioni_.resize(S(presunti_));
  fallite_ = 0;
  attesa_ = maniera_.primaRipresa;
  prossimaRipresa_ = attesa_;
  piuPosati_ = 0;
  riempita_ = false;
}

Ricerca::Fine Ricerca::Continua(std::int64_t passi, const std::stop_token& ferma) {
  if (ferma.stop_requested()) return Fine::Sospesa;  // before the root is gone through
  if (!Comincia()) return Fine::Impossibile;
  while (passi_ < passi && !ferma.stop_requested()) {
    Annota();
    Decisione decisione;
    bool vicolo = false;
    switch (Scegli(decisione)) {
      case Scelta::Nessuna:
        riempita_ = true;
        return Fine::Riempito;
      case Scelta::Vicolo:
        vicolo = true;
        break;
      case Scelta::Fatta:
        ++passi_;
        if (Decidi(decisione)) continue;
        break;
    }
    if (!vicolo) {
      Pesa(stato_.Conflitto().slot);
      ragione_ = stato_.Conflitto().ragione;
    }
    if (!Ritratta()) return Fine::Impossibile;
    if (maniera_.primaRipresa > 0 && fallite_ >= prossimaRipresa_) Riprendi();
  }
  return Fine::Sospesa;
}

std::string Ricerca::LettereTrovate() const {
  if (riempita_) return migliori_;
  std::string lettere(migliori_.size(), SenzaLettera);
  // Letters that stand in no whole entry are a guess of the moment.
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    if (Maschera(Di(), slot, migliori_).find('.') != std::string::npos) continue;
    for (const int casella : Griglia().CaselleDi(slot))
      lettere[S(casella)] = migliori_[S(casella)];
  }
  return lettere;
}

// --- What to decide ---

Ricerca::Scelta Ricerca::Scegli(Decisione& decisione) {
  if (!volute_.empty()) {
    const Scelta voluta = ScegliVoluta(decisione);
    if (voluta != Scelta::Nessuna) return voluta;
  }
  const int slot = ScegliSlot();
  if (slot < 0) return Scelta::Nessuna;
  const bool aParole = fallite_ < maniera_.falliteAParole && !Di().slot[S(slot)].aperto;
  decisione = aParole ? ScegliParola(slot) : ScegliLettera(slot);
  return Scelta::Fatta;
}

// The wanted word with the fewest slots, and one of them. A word without any is a conflict.
Ricerca::Scelta Ricerca::ScegliVoluta(Decisione& decisione) {
  int pochi = std::numeric_limits<int>::max();
  for (const NumeroParola parola : volute_) {
    int quanti = 0;
    int scelto = -1;
    bool posata = false;
    for (const int slot : Griglia().DiLunghezza(parola.lunghezza)) {
      if (Di().slot[S(slot)].aperto || !stato_.DominioDi(slot).Ha(parola.numero)) continue;
      posata |= stato_.Posato(slot);
      if (caso_.Fino(++quanti) == 0) scelto = slot;
    }
    if (posata) continue;
    if (quanti == 0) {
      ragione_ = {};
      for (const int slot : Griglia().DiLunghezza(parola.lunghezza)) {
        stato_.AggiungiRagione(slot, ragione_);
        Pesa(slot);
      }
      return Scelta::Vicolo;
    }
    if (quanti >= pochi) continue;
    pochi = quanti;
    decisione = {.slot = scelto, .valore = parola.numero};
  }
  return pochi == std::numeric_limits<int>::max() ? Scelta::Nessuna : Scelta::Fatta;
}

bool Ricerca::Aperto(int slot) const {
  if (!Di().slot[S(slot)].aperto) return !stato_.Posato(slot);
  const auto caselle = Griglia().CaselleDi(slot);
  return std::any_of(caselle.begin(), caselle.end(), [&](int casella) {
    return !Di().Lasciata(casella) && !stato_.Fissa(casella);
  });
}

int Ricerca::ScegliSlot() {
  int scelto = -1;
  std::uint64_t log = 0;
  std::uint64_t peso = 1;
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    if (!Aperto(slot)) continue;
    const auto suoLog = static_cast<std::uint64_t>(Logaritmo(stato_.DominioDi(slot).conta)) + 1;
    const std::uint64_t suoPeso = pesiVicini_[S(slot)];
    if (scelto >= 0 && suoLog * peso >= log * suoPeso) continue;
    scelto = slot;
    log = suoLog;
    peso = suoPeso;
  }
  return scelto;
}

Ricerca::Decisione Ricerca::ScegliParola(int slot) {
  if (!guida_.empty()) {
    const int parola = guida_[S(slot)];
    if (parola >= 0 && stato_.DominioDi(slot).Ha(parola)) return {.slot = slot, .valore = parola};
  }
  stato_.DominioDi(slot).Prime(ParoleProvate, prime_);
  const int quale = caso_.Fino(static_cast<int>(prime_.size()));
  return {.slot = slot, .valore = prime_[S(quale)]};
}

Ricerca::Decisione Ricerca::ScegliLettera(int slot) {
  const auto caselle = Griglia().CaselleDi(slot);
  int posto = -1;
  int poche = LettereAlfabeto + 1;
  for (int k = 0; k < static_cast<int>(caselle.size()); ++k) {
    const int casella = caselle[S(k)];
    const int quante = QuanteLettere(stato_.LettereDi(casella));
    if (quante < 2 || quante >= poche || Di().Lasciata(casella)) continue;
    posto = k;
    poche = quante;
  }
  VerificaInvariante(posto >= 0, "uno slot aperto ha una casella da decidere");
  const int casella = caselle[S(posto)];
  const PostoDiSlot incrocio = Griglia().IncrociDi(slot)[S(posto)];
  LettereContate qui{};
  LettereContate la{};
  stato_.ContaLettere(slot, posto, qui);
  if (incrocio.slot >= 0) stato_.ContaLettere(incrocio.slot, incrocio.posto, la);
  int scelta = -1;
  int pregio = -1;
  for (Lettere resto = stato_.LettereDi(casella); resto != 0; resto &= resto - 1) {
    const int lettera = std::countr_zero(resto);
    const int suo = Logaritmo(qui[S(lettera)] + 1) +
                    (incrocio.slot >= 0 ? Logaritmo(la[S(lettera)] + 1) : 0) +
                    caso_.Fino(RumoreLettera);
    if (suo <= pregio) continue;
    pregio = suo;
    scelta = lettera;
  }
  return {.casella = casella, .valore = scelta};
}

// --- Deciding and taking back ---

bool Ricerca::Decidi(const Decisione& decisione) {
  stato_.Avanza();
  decisioni_.push_back(decisione);
  return Assegna(decisione) && stato_.Propaga();
}

bool Ricerca::Assegna(const Decisione& decisione) {
  if (decisione.slot < 0) return stato_.Assegna(decisione.casella, decisione.valore);
  return stato_.Assegna(decisione.slot, {Griglia().Lunghezza(decisione.slot), decisione.valore});
}

// Goes back from the present conflict and takes out what led to it, as often as that is one in
// turn. False when no decision has a part in it but what is presumed.
bool Ricerca::Ritratta() {
  for (;;) {
    ++passi_;
    ++fallite_;
    const int livello = stato_.Ultimo(ragione_);
    if (livello <= presunti_) return false;
    const Decisione decisione = decisioni_[S(livello - 1)];
    stato_.TogliUltimo(ragione_);
    stato_.Torna(livello - 1);
    decisioni_.resize(S(livello - 1));
    if (Togli(decisione, ragione_) && stato_.Propaga()) return true;
    Pesa(stato_.Conflitto().slot);
    ragione_ = stato_.Conflitto().ragione;
  }
}

bool Ricerca::Togli(const Decisione& decisione, const Ragione& perche) {
  if (decisione.slot < 0) return stato_.Togli(decisione.casella, decisione.valore, perche);
  return stato_.Togli(decisione.slot, {Griglia().Lunghezza(decisione.slot), decisione.valore},
                      perche);
}

void Ricerca::Pesa(int slot) {
  if (slot < 0) return;
  ++pesi_[S(slot)];
  ++pesiVicini_[S(slot)];
  for (const PostoDiSlot& incrocio : Griglia().IncrociDi(slot)) {
    if (incrocio.slot >= 0) ++pesiVicini_[S(incrocio.slot)];
  }
}

void Ricerca::PrendiPesi(const std::vector<std::uint32_t>& pesi) {
  pesi_ = pesi;
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    pesiVicini_[S(slot)] = pesi_[S(slot)];
    for (const PostoDiSlot& incrocio : Griglia().IncrociDi(slot))
      pesiVicini_[S(slot)] += incrocio.slot >= 0 ? pesi_[S(incrocio.slot)] : 0;
  }
}

void Ricerca::Riprendi() {
  stato_.Torna(presunti_);
  decisioni_.resize(S(presunti_));
  attesa_ += attesa_ * CrescitaPercento / 100;
  prossimaRipresa_ = fallite_ + attesa_;
}

// Keeps the letters of the state that has most entries whole.
void Ricerca::Annota() {
  if (stato_.Posati() < piuPosati_) return;
  piuPosati_ = stato_.Posati();
  for (int casella = 0; casella < Griglia().Caselle(); ++casella)
    migliori_[S(casella)] = Di().Lasciata(casella) ? SenzaLettera : stato_.Lettera(casella);
}

}  // namespace telarium
