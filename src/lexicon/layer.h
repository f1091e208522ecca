#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/entry.h"

namespace telarium {

/// The number of an entry in its layer, from 0: by length.
using NumeroVoce = std::uint32_t;

class FileLessico;

/// The entries of a length by number, what filters and orders look at of them in columns. Views
/// that are valid as long as the layer and the memory are that they were made with.
struct ColonneDiVoci {
  std::string_view lettere;  // one word behind the other; in a damaged layer some are no letters
  std::span<const std::uint8_t> punteggi;
  std::span<const std::uint16_t> segni;  // their bits, and BitSoloFinita
};
struct MemoriaDiColonne {
  std::string lettere;
  std::vector<std::uint8_t> punteggi;
  std::vector<std::uint16_t> segni;
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
  /// All entries of a length, for those who go through them. A layer that does not have them in
  /// columns writes them into `memoria`.
  virtual ColonneDiVoci Colonne(int lunghezza, MemoriaDiColonne& memoria) const;
  /// The layer as a lexicon file, which alone has readings; null for any other.
  virtual const FileLessico* ComeFile() const { return nullptr; }

 protected:
  explicit Strato(std::string nome) : nome_(std::move(nome)) {}

 private:
  std::string nome_;
};

}  // namespace telarium
