#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/entry.h"

namespace telarium {

/// The number of an entry in its layer, from 0: by length.
using NumeroVoce = std::uint32_t;

class FileLessico;

/// What orders and filters look at of an entry.
struct TrattiDiVoce {
  std::string_view parola;  // folded
  std::uint8_t punteggio = 0;
  bool soloFinita = false;  // see SoloFinita
  Segni segni;
};

/// Words from one place: the lexicon of a language, the kit of short entries, a dictionary, a list.
/// A layer never changes, so that threads share it.
class Strato {
 public:
  virtual ~Strato() = default;

  /// What the layer is called: the language, or the file name with its ending.
  const std::string& Nome() const { return nome_; }

  /// How many entries of a length from 2 to 53 there are, and the number of the first one. They
  /// have numbers in a row, those of higher scores first.
  virtual int Conta(int lunghezza) const = 0;
  virtual NumeroVoce Prima(int lunghezza) const = 0;

  /// The entry of a folded word.
  virtual std::optional<NumeroVoce> Cerca(std::string_view parola) const = 0;

  virtual std::string_view Parola(NumeroVoce numero) const = 0;
  virtual int Punteggio(NumeroVoce numero) const = 0;
  virtual Voce Leggi(NumeroVoce numero) const = 0;

  /// Whether the score of an entry says anything: dictionaries and plain lists give every word
  /// PunteggioIgnoto, and any layer below that has the word knows better.
  virtual bool HaPunteggio(NumeroVoce) const { return true; }
  /// The marks of an entry, for those who need no more of it.
  virtual Segni LeggiSegni(NumeroVoce numero) const { return Leggi(numero).segni; }
  /// All entries of a length, by number, for those who go through them: sooner done than entry by
  /// entry. One that a damaged layer cannot tell has no word.
  virtual void LeggiTratti(int lunghezza, std::vector<TrattiDiVoce>& tratti) const;
  /// The layer as a lexicon file, which alone has readings; null for any other.
  virtual const FileLessico* ComeFile() const { return nullptr; }

 protected:
  explicit Strato(std::string nome) : nome_(std::move(nome)) {}

 private:
  std::string nome_;
};

}  // namespace telarium
