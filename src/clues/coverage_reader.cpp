#include "clues/coverage_reader.h"

#include <algorithm>
#include <set>

#include "clues/clue_family.h"
#include "clues/sqlite_database.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

using Famiglia = std::optional<std::string_view>;  // in UTF-8

// A stored word as a search has it; none for one that no search can ask for.
std::optional<std::string> Cercabile(std::string_view utf8) {
  if (utf8.empty() || utf8.find('\'') != std::string_view::npos) return std::nullopt;
  return DaUtf8Esatto(utf8);
}

class Lettura {
 public:
  explicit Lettura(const DefinizioniDelCorredo& corredo) : corredo_(corredo) {
    corredo.PerOgniParola([&](const std::string& parola) {
      mancanti_.insert(parola);
      lunghezzaCorredo_ = std::max(lunghezzaCorredo_, parola.size());
    });
  }

  void Riga(std::string_view parolaUtf8, const Famiglia& facili, const Famiglia& difficili) {
    const auto parola = Cercabile(parolaUtf8);
    if (!parola) return;
    ConteggioDefinizioni conteggio = {ContaDefinizioni(facili.value_or("")),
                                      ContaDefinizioni(difficili.value_or(""))};
    if (parola->size() <= lunghezzaCorredo_ && mancanti_.erase(*parola) > 0) {
      conteggio.facili += Nuove(*parola, QualiDefinizioni::Facili, facili);
      conteggio.difficili += Nuove(*parola, QualiDefinizioni::Difficili, difficili);
    }
    indice_.Metti(*parola, conteggio);
  }

  ComposizioneIndice Indice() && {
    for (const std::string& parola : mancanti_) {
      indice_.Metti(parola, {Nuove(parola, QualiDefinizioni::Facili, std::nullopt),
                             Nuove(parola, QualiDefinizioni::Difficili, std::nullopt)});
    }
    return std::move(indice_);
  }

 private:
  // How many clues of the kit a family lacks.
  int Nuove(const std::string& parola, QualiDefinizioni quali, const Famiglia& famiglia) const {
    std::vector<std::string_view> presenti = DefinizioniDellaFamiglia(famiglia.value_or(""));
    std::transform(presenti.begin(), presenti.end(), presenti.begin(), SenzaSpazi);
    const auto delCorredo = corredo_.Di(parola, quali);
    return static_cast<int>(
        std::count_if(delCorredo.begin(), delCorredo.end(), [&](std::string_view una) {
          return std::find(presenti.begin(), presenti.end(), AUtf8(una)) == presenti.end();
        }));
  }

  const DefinizioniDelCorredo& corredo_;
  std::set<std::string> mancanti_;  // words of the kit that no row was of so far
  std::size_t lunghezzaCorredo_ = 0;
  ComposizioneIndice indice_;
};

}  // namespace

std::optional<ComposizioneIndice> LeggiVociCopertura(const Percorso& archivio,
                                                     const DefinizioniDelCorredo& corredo,
                                                     const std::stop_token& ferma) {
  Lettura lettura(corredo);
  BaseDati base(archivio);
  {
    // A search compares texts: what is none is never found.
    Istruzione righe(base,
                     "SELECT PAROLA, DEFINIZ_FACILE, DEFINIZ_DIFFIC FROM Parole"
                     " WHERE typeof(PAROLA) = 'text' ORDER BY rowid");
    while (righe.Passo()) {
      if (ferma.stop_requested()) return std::nullopt;
      lettura.Riga(righe.VistaUtf8(0).value_or(""), righe.VistaUtf8(1), righe.VistaUtf8(2));
    }
  }
  base.Attesa(0);
  base.RiponiRegistro();
  return std::move(lettura).Indice();
}

}  // namespace telarium
