#include "composer/draft.h"

#include <algorithm>
#include <bit>

#include "platform/check.h"

namespace telarium {

Stesura::Stesura(const Partenza& partenza, const std::string& lettere)
    : partenza_(partenza),
      lettere_(lettere),
      parole_(S(partenza.Griglia().Slot()), SenzaParola),
      mutabili_(lettere.size(), false),
      parenti_(partenza.Parole()) {
  Verifica(lettere.size() == S(Griglia().Caselle()), "un riempimento ha le caselle del problema");
  for (int lunghezza = MinLunghezzaVoce; lunghezza <= MaxLunghezzaVoce; ++lunghezza) {
    divieti_[S(lunghezza)].assign(S(Parole().Quante(lunghezza)), 0);
    vietate_[S(lunghezza)].assign(S(Parole().Blocchi(lunghezza)), 0);
  }
  for (int genia = 0; genia < NumGenie; ++genia) {
    if (Di().alMassimo[S(genia)] != SenzaLimite) limitate_ |= SolaGenia(static_cast<Genia>(genia));
  }
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    if (Di().slot[S(slot)].aperto) {
      aperti_.push_back(slot);
      continue;
    }
    const auto numero = Parole().Cerca(Maschera(Di(), slot, lettere_));
    if (!numero) continue;
    parole_[S(slot)] = numero->numero;
    Conta(slot, 1);
  }
  SegnaMutabili();
}

void Stesura::SegnaMutabili() {
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    if (parole_[S(slot)] == SenzaParola) continue;
    for (const int casella : Griglia().CaselleDi(slot)) {
      mutabili_[S(casella)] =
          !std::has_single_bit(Di().lettere[S(casella)]) && !Di().Lasciata(casella);
    }
  }
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    if (parole_[S(slot)] == SenzaParola) {
      if (!Di().slot[S(slot)].aperto) FermaCaselle(slot);
    } else if (std::ranges::find(Di().volute, Maschera(Di(), slot, lettere_)) !=
               Di().volute.end()) {
      FermaCaselle(slot);
    }
  }
}

void Stesura::FermaCaselle(int slot) {
  for (const int casella : Griglia().CaselleDi(slot))
    mutabili_[S(casella)] = false;
}

void Stesura::Togli(int slot) {
  VerificaInvariante(parole_[S(slot)] != SenzaParola, "una parola che si toglie sta nello slot");
  Conta(slot, -1);
  parole_[S(slot)] = SenzaParola;
}

void Stesura::Posa(int slot, int numero) {
  VerificaInvariante(parole_[S(slot)] == SenzaParola, "uno slot riceve una parola sola");
  parole_[S(slot)] = numero;
  const auto caselle = Griglia().CaselleDi(slot);
  const std::string_view parola = Parole().Parola({Griglia().Lunghezza(slot), numero});
  for (std::size_t posto = 0; posto < caselle.size(); ++posto)
    lettere_[S(caselle[posto])] = parola[posto];
  Conta(slot, 1);
}

void Stesura::Conta(int slot, int segno) {
  const NumeroParola parola = {Griglia().Lunghezza(slot), parole_[S(slot)]};
  Vieta(parola, segno);
  for (const NumeroParola parente : ParentiDi(parola))
    Vieta(parente, segno);
  const Genie genie = Limitate(parola);
  for (int genia = 0; genia < NumGenie; ++genia)
    conteggi_[S(genia)] += (genie >> genia & 1) != 0 ? segno : 0;
}

void Stesura::Vieta(NumeroParola parola, int segno) {
  std::uint16_t& quante = divieti_[S(parola.lunghezza)][S(parola.numero)];
  VerificaInvariante(quante != 0 || segno > 0, "un divieto che si toglie vale");
  quante = static_cast<std::uint16_t>(quante + segno);
  (quante != 0 ? Metti : Leva)(vietate_[S(parola.lunghezza)].data(), parola.numero);
}

std::span<const NumeroParola> Stesura::ParentiDi(NumeroParola parola) const {
  if (Di().ammetteForme || !Parole().HaParentele()) return {};
  return parenti_.Di(parola);
}

Genie Stesura::Limitate(NumeroParola parola) const {
  if (limitate_ == 0 || Parole().Propria(parola)) return 0;
  return Parole().GenieDi(parola) & limitate_;
}

Genie Stesura::Esaurite() const {
  Genie esaurite = 0;
  for (int genia = 0; genia < NumGenie; ++genia) {
    const Genie sola = SolaGenia(static_cast<Genia>(genia));
    if ((limitate_ & sola) != 0 && Restano(genia) <= 0) esaurite |= sola;
  }
  return esaurite;
}

bool Stesura::LasciaAperti() const {
  return std::ranges::all_of(aperti_, [&](int slot) { return HaParola(slot); });
}

bool Stesura::HaParola(int slot) const {
  const auto caselle = Griglia().CaselleDi(slot);
  const int lunghezza = Griglia().Lunghezza(slot);
  std::vector<const Blocco*> insiemi = {partenza_.BaseDi(slot).parole.data()};
  for (int posto = 0; posto < lunghezza; ++posto) {
    const char lettera = Lettera(caselle[S(posto)]);
    if (lettera != SenzaLettera)
      insiemi.push_back(Parole().Insieme(lunghezza, posto, lettera - 'A'));
  }
  const Genie esaurite = Esaurite();
  for (int k = 0; k < Parole().Blocchi(lunghezza); ++k) {
    Blocco restano = ~Vietate(lunghezza)[k];
    for (const Blocco* insieme : insiemi)
      restano &= insieme[k];
    for (; restano != 0; restano &= restano - 1) {
      const int numero = k * ParolePerBlocco + std::countr_zero(restano);
      if ((Limitate({lunghezza, numero}) & esaurite) == 0) return true;
    }
  }
  return false;
}

}  // namespace telarium
