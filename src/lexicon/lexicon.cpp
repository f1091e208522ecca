#include "lexicon/lexicon.h"

#include <algorithm>

namespace telarium {
namespace {

// Reasons for which a rule may refuse an entry. One that some layer knows without any has none.
constexpr Segni SegniLimitanti = {Segno::Nome, Segno::Sigla, Segno::Straniera, Segno::Gioco,
                                  Segno::Tronca};

constexpr Segni Unione(Segni uni, Segni altri) {
  return Segni(static_cast<std::uint16_t>(uni.Bit() | altri.Bit()));
}

constexpr Segni Senza(Segni segni, Segni tolti) {
  return Segni(static_cast<std::uint16_t>(segni.Bit() & ~unsigned{tolti.Bit()}));
}

constexpr bool DellUtente(Origine origine) {
  return origine == Origine::Elenco || origine == Origine::Mio;
}

// Layers that hold no marks say nothing by that.
constexpr bool SenzaSegni(Origine origine) {
  return origine == Origine::Dizionario || DellUtente(origine);
}

// A score of 0 in the user's own list is no score but a ban.
bool Vieta(Origine origine, int punteggio, Segni segni) {
  return (origine == Origine::Mio && punteggio == 0) || segni.Ha(Segno::Bandita);
}

bool BanditaDa(const Lessico::Livello& livello, NumeroVoce numero) {
  return Vieta(livello.origine, livello.strato->Punteggio(numero),
               livello.strato->LeggiSegni(numero));
}

// Puts together what layers say of one word, from the lowest on.
class Raccolta {
 public:
  explicit Raccolta(std::string_view lettere) {
    parola_.lettere = lettere;
    parola_.grafia = lettere;
  }

  void Prendi(const Lessico::Livello& livello) {
    const auto numero = livello.strato->Cerca(parola_.lettere);
    if (!numero) return;
    Voce voce = livello.strato->Leggi(*numero);
    PrendiPunteggio(livello, *numero);
    if (!SenzaSegni(livello.origine)) PrendiSegni(voce.segni);
    if (parola_.letture.empty()) parola_.letture = std::move(voce.letture);
    if (parola_.grafia == parola_.lettere && !voce.grafia.empty()) parola_.grafia = voce.grafia;
    parola_.nelCorredo |= livello.origine == Origine::Sigle;
    parola_.propria |= DellUtente(livello.origine);
    trovata_ = true;
  }

  bool Trovata() const { return trovata_; }

  Parola Chiudi() {
    if (piana_) parola_.segni = Senza(parola_.segni, SegniLimitanti);
    return std::move(parola_);
  }

 private:
  void PrendiPunteggio(const Lessico::Livello& livello, NumeroVoce numero) {
    const int punteggio = livello.strato->Punteggio(numero);
    const bool vieta = livello.origine == Origine::Mio && punteggio == 0;
    if (trovata_ && (vieta || !livello.strato->HaPunteggio(numero))) return;
    parola_.punteggio = punteggio;
    parola_.strato = livello.strato->Nome();
    parola_.origine = livello.origine;
  }

  void PrendiSegni(Segni segni) {
    piana_ |= Senza(segni, SegniLimitanti) == segni;
    parola_.segni = Unione(parola_.segni, segni);
  }

  Parola parola_;
  bool trovata_ = false;
  bool piana_ = false;  // some layer with marks knows no reason to refuse it
};

}  // namespace

TrattiDiParola TrattiDi(const Parola& parola) {
  return {.lettere = parola.lettere.size(),
          .segni = parola.segni,
          .soloFinita = SoloFinita(parola.letture),
          .nelCorredo = parola.nelCorredo,
          .propria = parola.propria};
}

TrattiDiParola TrattiDiUnica(Origine origine, std::size_t lettere, int punteggio,
                             std::uint16_t segni) {
  TrattiDiParola tratti = {.lettere = lettere,
                           .segni = SenzaSegni(origine) ? Segni() : Segni(segni),
                           .soloFinita = (segni & BitSoloFinita) != 0,
                           .nelCorredo = origine == Origine::Sigle,
                           .propria = DellUtente(origine)};
  if (origine == Origine::Straniera) tratti.segni.Metti(Segno::Straniera);
  tratti.segni.Togli(Segno::Bandita);
  if (Vieta(origine, punteggio, Segni(segni))) tratti.segni.Metti(Segno::Bandita);
  return tratti;
}

void Lessico::Aggiungi(std::shared_ptr<const Strato> strato, Origine origine) {
  livelli_.push_back({std::move(strato), origine});
}

void Lessico::Vieta(std::string parola) {
  vietate_.insert(std::move(parola));
}

void Lessico::Ammetti(std::string parola) {
  ammesse_.insert(std::move(parola));
}

std::optional<Parola> Lessico::Cerca(std::string_view parola) const {
  Raccolta raccolta(parola);
  const auto prendi = [&](bool straniere) {
    for (const Livello& livello : livelli_) {
      if ((livello.origine == Origine::Straniera) == straniere) raccolta.Prendi(livello);
    }
  };
  prendi(false);
  const bool straniera = !raccolta.Trovata();
  if (straniera) prendi(true);
  if (!raccolta.Trovata()) return std::nullopt;
  Parola trovata = raccolta.Chiudi();
  if (straniera) trovata.segni.Metti(Segno::Straniera);
  trovata.segni.Togli(Segno::Bandita);
  if (Bandita(parola)) trovata.segni.Metti(Segno::Bandita);
  return trovata;
}

bool Lessico::Contiene(std::string_view parola) const {
  return std::any_of(livelli_.begin(), livelli_.end(), [&](const Livello& livello) {
    return livello.strato->Cerca(parola).has_value();
  });
}

bool Lessico::Bandita(std::string_view parola) const {
  if (ammesse_.contains(parola)) return false;
  if (vietate_.contains(parola)) return true;
  return std::any_of(livelli_.begin(), livelli_.end(), [&](const Livello& livello) {
    const auto numero = livello.strato->Cerca(parola);
    return numero && BanditaDa(livello, *numero);
  });
}

std::optional<Lessico::Fonte> Lessico::FonteDelleLetture(std::string_view parola) const {
  for (const bool straniere : {false, true}) {
    bool trovata = false;
    for (std::uint32_t i = 0; i < livelli_.size(); ++i) {
      const auto& [strato, origine] = livelli_[i];
      if ((origine == Origine::Straniera) != straniere) continue;
      const auto numero = strato->Cerca(parola);
      if (!numero) continue;
      if (!strato->Leggi(*numero).letture.empty()) return Fonte{i, *numero};
      trovata = true;
    }
    if (trovata) break;
  }
  return std::nullopt;
}

}  // namespace telarium
