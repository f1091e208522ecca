#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lexicon/lexicon.h"
#include "lexicon/list_layer.h"
#include "lexicon/list_text.h"
#include "platform/files.h"

namespace telarium {

/// The user's own words: `parole_mie.txt` of a program folder, `parola;punteggio` a line, from 1 to
/// 100; 0 bans, and a word without a score is one of which nothing more is told. UTF-8, or the code
/// page where the file is in it. Of a word that stands there twice the last line holds. Lines that
/// are none of these are kept as they are.
class ParoleMie {
 public:
  static constexpr const char* NomeFile = "parole_mie.txt";

  /// The list of a program folder; an empty one where there is none. None when it cannot be read:
  /// `causa` is then a message in Italian, and nothing may be written over it.
  static std::optional<ParoleMie> Leggi(const Percorso& cartella, std::string& causa);
  static ParoleMie Interpreta(std::string_view testo);

  /// Writes it into a program folder. The system's error, 0 for none.
  [[nodiscard]] std::error_code Scrivi(const Percorso& cartella) const;
  std::string Testo() const;

  /// Gives a word, as spelled in the code page, a score from 0 to 100 or none. False when it is no
  /// word of 2 to 53 letters.
  bool Imposta(std::string_view grafia, int punteggio = ElencoParole::SenzaPunteggio);
  /// Takes a folded word out. False when it is not there.
  bool Togli(std::string_view parola);

  /// The lines that hold something but no word.
  struct Ignorate {
    std::int64_t quante = 0;
    std::int64_t prima = 0;  // the number of the first one, from 1; 0 for none
  };
  Ignorate RigheIgnorate() const;

  /// All words, those with a score of 0 too; and these alone.
  ElencoParole Elenco() const;
  InsiemeDiParole Vietate() const;

 private:
  struct Riga {
    std::string testo;   // as it stands in the file, its end too
    std::string parola;  // folded; empty for a line that is none of a word
    std::string grafia;
    int punteggio = ElencoParole::SenzaPunteggio;
  };

  Riga Leggi(std::string_view testo) const;
  Riga Componi(std::string_view grafia, std::string parola, int punteggio) const;

  Codifica codifica_ = Codifica::Utf8;
  bool conSegno_ = false;  // a mark of UTF-8 before the first line
  std::string fineRiga_ = "\n";
  std::vector<Riga> righe_;
};

}  // namespace telarium
