#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "composer/start.h"
#include "composer/state.h"

namespace telarium {

/// A whole fill while it is changed: which word stands in each slot, and which words may therefore
/// stand in no other one. Invariant: forbidden and counted is what the words that stand forbid and
/// count, each as often as it does.
class Stesura {
 public:
  static constexpr int SenzaParola = -1;

  /// Takes a fill without faults. The start must outlive it.
  Stesura(const Partenza& partenza, const std::string& lettere);

  const Partenza& Inizio() const { return partenza_; }
  const std::string& Testo() const { return lettere_; }
  char Lettera(int casella) const { return lettere_[S(casella)]; }
  /// The number of a slot's word; SenzaParola for an open slot, and while it is taken out.
  int Parola(int slot) const { return parole_[S(slot)]; }
  /// May a letter be changed? Not a given one, none of a wanted word, none in open slots alone.
  bool Mutabile(int casella) const { return mutabili_[S(casella)]; }

  /// Takes a slot's word out, or places one with its letters.
  void Togli(int slot);
  void Posa(int slot, int numero);

  /// The words of a length that stand, or are akin to one that does, as a set.
  const Blocco* Vietate(int lunghezza) const { return vietate_[S(lunghezza)].data(); }
  /// The words that may not stand beside a word, without itself. Remembers them.
  std::span<const NumeroParola> ParentiDi(NumeroParola parola) const;
  /// The limited kinds that a word counts as.
  Genie Limitate(NumeroParola parola) const;
  /// The kinds of which there may be no more entries.
  Genie Esaurite() const;
  /// Whether each open slot has a word left that may stand beside those that do.
  bool LasciaAperti() const;
  /// How many more entries of a limited kind there may be.
  int Restano(int genia) const { return Di().alMassimo[S(genia)] - conteggi_[S(genia)]; }

 private:
  static constexpr std::size_t S(int numero) { return static_cast<std::size_t>(numero); }
  const Problema& Di() const { return partenza_.Di(); }
  const Vocabolario& Parole() const { return partenza_.Parole(); }
  const Reticolo& Griglia() const { return partenza_.Griglia(); }

  void SegnaMutabili();
  void FermaCaselle(int slot);
  void Conta(int slot, int segno);
  void Vieta(NumeroParola parola, int segno);
  bool HaParola(int slot) const;

  const Partenza& partenza_;
  std::string lettere_;
  std::vector<int> parole_;
  std::vector<int> aperti_;  // slots
  std::vector<bool> mutabili_;
  // By length: how many words that stand forbid each word, and those that any does.
  std::array<std::vector<std::uint16_t>, MaxLunghezzaVoce + 1> divieti_;
  std::array<std::vector<Blocco>, MaxLunghezzaVoce + 1> vietate_;
  std::array<int, NumGenie> conteggi_{};
  Genie limitate_ = 0;
  mutable ParentiNoti parenti_;
};

}  // namespace telarium
