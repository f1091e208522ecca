#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "composer/draft.h"

// Fills the free cells of a small window anew, by the words of most worth together.
//
// Branch and bound, exact but for its limits (of words a slot and of failures):
//   - A slot's words are those that fit the letters outside and may stand beside the words there.
//     Only what could still beat the present worth is listed, if all other slots had their best
//     word.
//   - Where two slots cross, worth is moved between them until each letter of the cell is worth as
//     much to the one as to the other (max-sum diffusion: Werner, "A linear programming approach to
//     max-sum problem", 2007). A choice of words that agree keeps its worth, the sum of the best
//     words only falls, and words that cannot reach the present worth drop out; or it falls that
//     far itself: nothing better fits.
//   - What is left is searched slot by slot, the one of fewest words first, with that sum as bound.
//
// Invariant of the search: `somma` of the words placed and of the best left in each other slot is
// no less than what any answer below is worth.
namespace telarium {

/// The worth of a word to the improvement; sums of a window stay far within 32 bits.
using Valore = std::int32_t;

class Rifacimento {
 public:
  struct Parola {
    int slot = -1;
    int numero = 0;
  };
  struct Risposta {
    bool trovato = false;  // `Trovate` are worth more than what they had to beat
    std::int64_t passi = 0;
  };

  /// The draft must outlive it.
  explicit Rifacimento(const Stesura& stesura);

  /// Seeks words for the slots through the free cells, which are taken out of the draft, that
  /// together are worth more than `daBattere`. Of one slot (-1: none) a word is not taken.
  Risposta Cerca(std::span<const int> libere, Valore daBattere, Parola evitata);
  /// The words of the last answer that was found, those of open slots left out.
  const std::vector<Parola>& Trovate() const { return trovate_; }

  Valore ValoreDi(int lunghezza, int numero) const {
    return valori_[Vocaboli().Pregi(lunghezza)[numero]];
  }
  /// A word's worth is its `pregio` in these units, less where it is more than enough.
  static constexpr Valore Grana = 32;

 private:
  // A slot of the window.
  struct Voce {
    int slot = 0;
    int lunghezza = 0;
    bool aperta = false;
    std::vector<int> posti;  // of its free cells
    std::vector<int> celle;  // numbers of these in the window
    std::vector<Blocco> insieme;
    Valore migliore = 0;  // worth of the best word left
    // The words left; for each free place their letters, `passo` apart.
    int quante = 0;
    int passo = 0;
    std::vector<std::int32_t> numeri;
    std::vector<Valore> valori;
    std::vector<std::uint8_t> lettere;

    const std::uint8_t* Colonna(int posto) const { return lettere.data() + posto * passo; }
    std::uint8_t* Colonna(int posto) { return lettere.data() + posto * passo; }
  };
  struct Capo {  // of a cell: a slot of the window and its free place
    int voce = -1;
    int posto = 0;
  };
  struct Cella {
    Lettere lettere = 0;
    std::array<Capo, 2> capi;
  };
  // The words of a slot that are left at a level of the search: places in Voce, in memoria_.
  struct Elenco {
    int da = 0;
    int quante = 0;
  };

  static constexpr std::size_t S(int numero) { return static_cast<std::size_t>(numero); }
  const Vocabolario& Vocaboli() const { return stesura_.Inizio().Parole(); }
  const Reticolo& Griglia() const { return stesura_.Inizio().Griglia(); }
  std::span<Voce> Voci() { return {voci_.data(), S(quanteVoci_)}; }
  std::span<const Voce> Voci() const { return {voci_.data(), S(quanteVoci_)}; }

  void Disponi(std::span<const int> libere);
  void AggiungiVoce(int slot);
  bool Elenca();
  void Filtra(Voce& voce) const;
  Valore Massimo(const Voce& voce) const;
  int Limite(const Voce& voce, Valore oltre) const;
  void FiltraLettere(Voce& voce, std::size_t blocchi);
  bool ElencaVoce(Voce& voce);
  bool Evitata(const Voce& voce, int numero) const;
  void LeggiLettere(Voce& voce);

  bool Diffondi();
  void DiffondiCella(const Cella& cella);
  bool Sfoltisci();
  void Tieni(Voce& voce, Valore oltre);

  void Prepara();
  void Scendi(Valore valore);
  int ScegliVoce() const;
  Valore Resto(int senza) const;
  const Capo& Altro(int voce, int cella) const;
  bool Pone(int voce, int parola, Valore& resto);
  bool Ammessa(const Voce& voce, int numero) const;
  int Posata(int voce) const { return voci_[S(voce)].numeri[S(posate_[S(voce)])]; }
  bool SenzaParenti() const;
  void Conserva(Valore valore);

  const Stesura& stesura_;
  std::array<Valore, MaxPregio + 1> valori_;

  Parola evitata_;
  Valore daBattere_ = 0;
  Valore somma_ = 0;  // of the best words
  Genie esaurite_ = 0;
  int quanteVoci_ = 0;
  std::vector<Voce> voci_;  // more than there are: their room is used again
  std::vector<Cella> celle_;
  std::vector<int> celleDi_;  // by cell of the grid: its number in the window, -1
  std::vector<int> vociDi_;   // by slot
  std::vector<int> ordine_;
  std::vector<int> restano_;
  std::vector<const Blocco*> insiemi_;

  std::vector<Elenco> elenchi_;  // by slot of the window
  std::vector<int> posate_;      // likewise: place of its word, -1
  std::vector<std::int32_t> memoria_;
  std::vector<Elenco> salvati_;
  std::int64_t passi_ = 0;
  std::int64_t fallite_ = 0;
  bool trovato_ = false;
  std::vector<Parola> trovate_;
};

}  // namespace telarium
