#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/layer.h"
#include "lexicon/word_index.h"

// Words held in memory: those of lists, dictionaries, crosswords and of the user.
namespace telarium {

/// Different words with scores, in the order in which they came. Packed, since lists have millions.
class ElencoParole {
 public:
  static constexpr int SenzaPunteggio = -1;

  struct Voce {
    std::string_view parola;       // folded
    std::string_view grafia = {};  // as spelled, in the code page
    int punteggio = SenzaPunteggio;
  };

  /// Takes a folded word of 2 to 53 letters and its spelled form (empty or too long to be kept: the
  /// word itself). False when the word is there already: it then gets this score, if it is one.
  bool Metti(std::string_view parola, std::string_view grafia = {}, int punteggio = SenzaPunteggio);

  /// Brings scores from 0 to 50 to the scale from 0 to 100.
  void RaddoppiaPunteggi();

  std::size_t Quante() const { return righe_.size(); }
  /// The number of a word, from 0.
  std::optional<std::uint32_t> Cerca(std::string_view parola) const;
  /// The views are valid until the next word comes.
  Voce operator[](std::size_t numero) const;

 private:
  struct Riga {
    std::uint32_t inizio;  // of the word in the texts; behind it its spelled form
    std::uint8_t lunghezza;
    std::uint8_t lunghezzaGrafia;  // 0: the word itself
    std::int8_t punteggio;
  };

  std::string_view Lettere(std::uint32_t numero) const;

  std::string testi_;
  std::vector<Riga> righe_;
  IndiceDiParole indice_;
};

/// A list as a layer.
class StratoElenco final : public Strato {
 public:
  StratoElenco(std::string nome, const ElencoParole& elenco);

  int Conta(int lunghezza) const override;
  NumeroVoce Prima(int lunghezza) const override;
  std::optional<NumeroVoce> Cerca(std::string_view parola) const override;
  std::string_view Parola(NumeroVoce numero) const override;
  int Punteggio(NumeroVoce numero) const override;
  Voce Leggi(NumeroVoce numero) const override;
  bool HaPunteggio(NumeroVoce numero) const override;
  Segni LeggiSegni(NumeroVoce) const override { return {}; }

 private:
  void Prendi(const ElencoParole::Voce& voce);

  std::string lettere_;                // the words, by number
  std::vector<std::uint32_t> inizi_;   // of each word in the letters, and the end of the last one
  std::vector<std::int8_t> punteggi_;  // SenzaPunteggio for none
  std::string grafie_;
  std::vector<std::uint32_t> iniziGrafie_;                // likewise
  std::array<NumeroVoce, MaxLunghezzaVoce + 2> prime_{};  // by length
  IndiceDiParole indice_;
};

}  // namespace telarium
