#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/layer.h"

namespace telarium {

/// What a layer is to the words in it.
enum class Origine {
  Lingua,      // the language of the crossword
  Sigle,       // the kit of two-letter entries
  Straniera,   // a further language: what only it has is a foreign word
  Dizionario,  // a .dat or .priv dictionary
  Elenco,      // a list of words, with scores or without
  Mio,         // the user's own list: scores, and bans by a score of 0
};

/// A word as the layers together know it.
struct Parola {
  std::string lettere;           // folded
  std::string grafia;            // as spelled, in the code page
  int punteggio = 0;             // of the last layer that has the word
  Segni segni;                   // of all layers; `Bandita` as bans and admissions leave it
  std::vector<Lettura> letture;  // of the first layer that has any; views into it
  std::string_view strato;       // the name of the layer that the score is from
  Origine origine = Origine::Lingua;
  bool nelCorredo = false;  // whether the kit has it
};

/// The words that a crossword may use: layers one above the other, of which a later one overrides
/// the score of an earlier one, bans, and admissions, which lift a ban. A value: copies share the
/// layers. Words are folded.
class Lessico {
 public:
  struct Livello {
    std::shared_ptr<const Strato> strato;
    Origine origine;
  };

  void Aggiungi(std::shared_ptr<const Strato> strato, Origine origine);
  void Vieta(std::string parola);
  void Ammetti(std::string parola);

  /// The word, banned or not; none when no layer has it.
  std::optional<Parola> Cerca(std::string_view parola) const;
  bool Contiene(std::string_view parola) const;
  bool Bandita(std::string_view parola) const;

  const std::vector<Livello>& Livelli() const { return livelli_; }
  const std::set<std::string, std::less<>>& Vietate() const { return vietate_; }
  const std::set<std::string, std::less<>>& Ammesse() const { return ammesse_; }

 private:
  std::vector<Livello> livelli_;
  std::set<std::string, std::less<>> vietate_;
  std::set<std::string, std::less<>> ammesse_;
};

}  // namespace telarium
