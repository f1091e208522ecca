#pragma once

#include <functional>
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
  std::string lettere;                // folded
  std::string grafia;                 // as spelled, in the code page
  int punteggio = 0;                  // see Lessico
  Segni segni;                        // likewise; `Bandita` as bans and admissions leave it
  std::vector<Lettura> letture;       // of the first layer that has any; views into it
  std::string_view strato;            // the name of the layer that the score is from
  Origine origine = Origine::Lingua;  // what that layer is
  bool nelCorredo = false;            // whether the kit has it
  bool propria = false;               // whether a list or the user's own one has it
};

/// What rules look at of a word.
struct TrattiDiParola {
  std::size_t lettere = 0;
  Segni segni;              // as of Parola, and so the others
  bool soloFinita = false;  // of its readings, see SoloFinita
  bool nelCorredo = false;
  bool propria = false;
};
TrattiDiParola TrattiDi(const Parola& parola);

/// The same of a word that one layer alone has, for those who go through whole layers: an entry
/// there of so many letters, with that score and marks (BitSoloFinita too). Bans and admissions by
/// name are not looked at.
TrattiDiParola TrattiDiUnica(Origine origine, std::size_t lettere, int punteggio,
                             std::uint16_t segni);

/// Words by their letters.
using InsiemeDiParole = std::set<std::string, std::less<>>;

/// The words that a crossword may use: layers one above the other, bans, and admissions, which lift
/// a ban. A value: copies share the layers. Words are folded.
///
/// The score of a word is that of the last layer which gives it one, its readings are those of the
/// first that has any. Its marks are those of language and kit together, but what one of them knows
/// as a plain word is one. Further languages are asked only for words that no other layer has: what
/// is common there may be rare here. A ban of any layer holds for all.
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

  /// Where a word has its readings from: the number of a layer, from 0, and the entry there. None
  /// for a word that has none.
  struct Fonte {
    std::uint32_t livello = 0;
    NumeroVoce numero = 0;
  };
  std::optional<Fonte> FonteDelleLetture(std::string_view parola) const;

  const std::vector<Livello>& Livelli() const { return livelli_; }
  const InsiemeDiParole& Vietate() const { return vietate_; }
  const InsiemeDiParole& Ammesse() const { return ammesse_; }

 private:
  std::vector<Livello> livelli_;
  InsiemeDiParole vietate_;
  InsiemeDiParole ammesse_;
};

}  // namespace telarium
