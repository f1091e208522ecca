#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

#include "composer/arena.h"
#include "composer/domain.h"
#include "composer/start.h"

// The state of a search and its propagation.
//
// Each cell has the letters, each slot the words that are left. Invariants, whenever Propaga has
// given true:
//   - a word of a slot has in each place a letter of the cell, and a letter of a crossed cell is
//     that of some word of either slot (domain consistency, by way of the cells' letters; where
//     words are many, letters are looked at anew when a tenth of the words has gone);
//   - a slot with one word left has it placed: no other slot has that word, or one akin to it,
//     unless its words are too many to be listed;
//   - where as many entries of a kind are placed as there may be, the same holds for that kind.
// Letters and words only get fewer, but for going back a level.
//
// A change at a new level makes new values and never touches those of older levels, so that going
// back restores pointers. For each place and letter a block is remembered in which a word supported
// it last.
//
// Each slot and cell has a reason: the set of levels whose decisions have made it what it is. A
// conflict's reason is that of the slot without words; without any level the problem is impossible.
namespace telarium {

/// Words akin to each word that was asked for. For one thread.
class ParentiNoti {
 public:
  explicit ParentiNoti(const Vocabolario& parole) : parole_(parole) {}
  std::span<const NumeroParola> Di(NumeroParola parola);

 private:
  const Vocabolario& parole_;
  std::unordered_map<std::int64_t, std::vector<NumeroParola>> note_;
};

/// A set of levels, from 1. Those past the last bit share it.
using Ragione = std::vector<Blocco>;

class Stato {
 public:
  /// At level 0: nothing decided, nothing propagated.
  explicit Stato(const Partenza& partenza);

  // --- Levels ---

  int Livello() const { return static_cast<int>(livelli_.size()); }
  /// Begins a level; what is decided next is its decision.
  void Avanza();
  /// Goes back to the end of a level as it was.
  void Torna(int livello);

  // --- Changes; Propaga follows, also when they have given false for a conflict ---

  bool Assegna(int casella, int lettera);
  bool Assegna(int slot, NumeroParola parola);
  /// `perche`: the levels that make it so.
  bool Togli(int casella, int lettera, const Ragione& perche);
  bool Togli(int slot, NumeroParola parola, const Ragione& perche);

  /// Draws all consequences. False on a conflict: `Conflitto` tells it.
  bool Propaga();

  struct Urto {
    int slot = -1;    // that has no word left
    Ragione ragione;  // levels
  };
  const Urto& Conflitto() const { return urto_; }
  /// The highest level of a set; 0 for none. Of the shared ones the present level.
  int Ultimo(const Ragione& ragione) const;
  /// Takes a level out of a set in which it is the last one.
  void TogliUltimo(Ragione& ragione) const;
  /// All levels until now, for a conflict that the state does not know of.
  Ragione TuttiILivelli() const;
  void AggiungiRagione(int slot, Ragione& ragione) const;

  // --- What is left ---

  const Partenza& Inizio() const { return partenza_; }
  Lettere LettereDi(int casella) const { return caselle_[S(casella)].lettere; }
  bool Fissa(int casella) const { return UnaSola(LettereDi(casella)); }
  /// The letter of a fixed cell, else SenzaLettera.
  char Lettera(int casella) const;
  const Dominio& DominioDi(int slot) const { return slot_[S(slot)].dominio; }
  bool Posato(int slot) const { return slot_[S(slot)].posato; }
  int Posati() const { return posati_; }
  /// How many words of a slot have each letter at a place.
  void ContaLettere(int slot, int posto, LettereContate& quante) const;

 private:
  static constexpr std::uint32_t BolloBase = ~0u;  // of words that are still those of the base
  static constexpr std::size_t MaxBlocchiRagione = 8;

  struct StatoSlot {
    Dominio dominio;
    Lettere* viste;  // by place: the letters that the words have been filtered by
    Blocco* ragione;
    std::uint32_t bollo;        // of the level that owns viste, ragione and the flags
    std::uint32_t bolloParole;  // of the level that owns the arrays of the words
    int sostenute;              // words that were left when the letters were last supported
    int escluse;                // of the exclusions of its length those that were looked at
    Genie genie;                // kinds that were taken out of the words
    bool posato;
  };
  struct StatoCasella {
    Lettere lettere;
    std::uint32_t bollo;
    Blocco* ragione;
  };
  struct Esclusione {
    int numero;
    int slot;  // that has the word, or one akin to it
  };
  struct InizioLivello {
    std::uint32_t bollo;
    Arena::Segno memoria;
    std::size_t slotSalvati;
    std::size_t caselleSalvate;
    std::size_t posatiDiGenia;
    std::size_t esclusioniScritte;
    int posati;
    std::array<int, NumGenie> conteggi;
    Genie esaurite;
  };

  static constexpr std::size_t S(int numero) { return static_cast<std::size_t>(numero); }
  const Problema& Di() const { return partenza_.Di(); }
  const Vocabolario& Parole() const { return partenza_.Parole(); }
  const Reticolo& Griglia() const { return partenza_.Griglia(); }

  void Prepara();
  StatoSlot& PrendiSlot(int slot);
  StatoCasella& PrendiCasella(int casella);
  Blocco* CopiaRagione(const Blocco* ragione);
  void Unisci(Blocco* ragione, const Blocco* altra) const;
  void UnisciLivello(Blocco* ragione, int livello) const;

  void Accoda(int slot);
  void SvuotaCode();
  bool Urta(int slot, const Blocco* perche, const Blocco* anche = nullptr);

  // The steps of a revision. `tolta` is a word to be taken out besides, -1 for none.
  bool Rivedi(int slot, int tolta = -1);
  bool DaRivedere(int slot) const;
  static bool BastanoLeLettere(const StatoSlot& stato);
  void RaccogliCambi(int slot, StatoSlot& stato);
  void TogliEscluse(int slot, StatoSlot& stato);
  void TogliGenie(int slot, StatoSlot& stato);
  bool Sostieni(int slot, StatoSlot& stato);
  Lettere LettereSostenute(int slot, int posto, Lettere chieste);
  bool Riduci(int casella, Lettere lettere, int slot);
  bool Posa(int slot, StatoSlot& stato);
  void Escludi(NumeroParola parola, int slot);
  bool ContaGenie(int slot, Genie genie);
  void Esaurisci(int genia);
  bool UrtaPerGenia(int slot, int genia);

  // The invariants, where they are checked.
  void VerificaSlot(int slot) const;
  void VerificaStato() const;

  const Partenza& partenza_;
  std::size_t blocchiRagione_ = 1;
  Arena memoria_;
  std::vector<StatoSlot> slot_;
  std::vector<StatoCasella> caselle_;
  std::vector<std::pair<int, StatoSlot>> slotSalvati_;
  std::vector<std::pair<int, StatoCasella>> caselleSalvate_;
  std::vector<InizioLivello> livelli_;
  std::uint32_t bollo_ = 0;        // of the present level
  std::uint32_t ultimoBollo_ = 0;  // given so far
  int posati_ = 0;

  std::array<std::vector<Esclusione>, MaxLunghezzaVoce + 1> esclusioni_;  // by length
  std::vector<int> esclusioniScritte_;                                    // lengths, as they came
  std::array<int, NumGenie> conteggi_{};
  Genie esaurite_ = 0;
  std::vector<std::pair<Genie, int>> posatiDiGenia_;  // slots with a limited kind
  ParentiNoti parenti_;

  // Slots to be revised, listed ones first: they cost little and find the conflicts, and the sets
  // of blocks then take in all changes at once.
  std::vector<int> coda_;
  std::size_t testa_ = 0;
  std::vector<int> codaLunga_;
  std::size_t testaLunga_ = 0;
  std::vector<char> inCoda_;

  std::vector<std::uint16_t> residui_;  // by slot's first place, place and letter
  std::vector<int> primoPosto_;         // of each slot in residui_
  Revisione revisione_;
  std::vector<Cambio> cambi_;
  std::array<Lettere, MaxLunghezzaVoce> unione_{};
  Urto urto_;
};

}  // namespace telarium
