#include <unordered_map>

#include "laboratory/clue_leaks.h"
#include "laboratory/clue_quality.h"
#include "laboratory/examination.h"
#include "platform/codepage.h"
#include "platform/text.h"

// Faults and warnings that lie in clues.
namespace telarium {
namespace {

// "La definizione di SEGUO (5 verticale)".
std::string LaDefinizione(const VoceDiGriglia& voce) {
  return "La definizione di " + voce.Nome();
}

void Lunghezza(Esame& esame, const VoceDiGriglia& voce) {
  const std::size_t caratteri = voce.definizione.size();
  if (caratteri <= LunghezzaDefinizioneVoluta) return;
  const bool troppi = caratteri > MaxLunghezzaDefinizione;
  esame.Rileva(troppi ? Codice::DefinizioneLunga : Codice::DefinizioneOltre, voce,
               Unisci(LaDefinizione(voce), " ha ", caratteri, " caratteri: ",
                      troppi ? std::string_view("il massimo è "_cp) : "meglio non più di "_cp,
                      troppi ? MaxLunghezzaDefinizione : LunghezzaDefinizioneVoluta, '.'));
}

void Riempitive(Esame& esame, const VoceDiGriglia& voce) {
  if (QualitaDi(voce.definizione) != QualitaDefinizione::Riempitiva) return;
  esame.Rileva(
      Codice::Riempitiva, voce,
      Unisci(LaDefinizione(voce), " dice troppo poco: ", TraVirgolette(voce.definizione), '.'));
}

// What a clue gives away, as a predicate.
std::string Detto(const Rivelazione& rivelazione) {
  const std::string parola = TraVirgolette(rivelazione.parola);
  switch (rivelazione.specie) {
    case Rivelazione::Specie::Risposta:
      return "contiene la risposta";
    case Rivelazione::Specie::Parente:
      return Unisci("tradisce la risposta: ", parola, " le somiglia troppo");
    case Rivelazione::Specie::AltraVoce:
      return Unisci("contiene un'altra voce dello schema: ", rivelazione.voce->Nome());
    default:
      return Unisci("contiene una parola vietata: ", parola);
  }
}

void Rivelazioni(Esame& esame, const VoceDiGriglia& voce, Rivelatore& rivelatore) {
  for (const Rivelazione& rivelazione : rivelatore.Esamina(voce, voce.definizione)) {
    const bool vietata = rivelazione.specie == Rivelazione::Specie::Vietata;
    esame.Rileva(vietata ? Codice::DefinizioneVietata : Codice::DefinizioneRivela, voce,
                 Unisci(LaDefinizione(voce), ' ', Detto(rivelazione), '.'));
  }
}

// A clue without capitals and punctuation; one that has nothing else stays as it is.
std::string TestoPiegato(const std::string& definizione) {
  std::string testo;
  for (const ParolaDiDefinizione& parola : ParoleDi(definizione))
    testo += Unisci(parola.piegata, ' ');
  return testo.empty() ? definizione : testo;
}

// Tells clues that an earlier one equals.
class Doppioni {
 public:
  explicit Doppioni(Esame& esame) : esame_(esame) {}

  void Aggiungi(const VoceDiGriglia& voce) {
    const auto [prima, nuova] = prime_.emplace(TestoPiegato(voce.definizione), &voce);
    if (nuova) return;
    esame_.Rileva(Codice::DefinizioneRipetuta, voce,
                  Unisci(voce.Nome(), " ha la stessa definizione di ", prima->second->Nome(), '.'));
  }

 private:
  Esame& esame_;
  std::unordered_map<std::string, const VoceDiGriglia*> prime_;
};

// Tells clues of a pattern that is used up.
class SchemiUsati {
 public:
  explicit SchemiUsati(Esame& esame) : esame_(esame) {}

  void Aggiungi(const VoceDiGriglia& voce) {
    const auto schema = SchemaDi(voce.definizione);
    if (!schema) return;
    const int prima = usi_[schema->chiave]++;
    if (prima < MaxDefinizioniPerSchema) return;
    esame_.Rileva(Codice::SchemaRipetuto, voce,
                  Unisci(LaDefinizione(voce), " comincia come altre ", prima, ": ",
                         TraVirgolette(schema->apertura), '.'));
  }

 private:
  Esame& esame_;
  std::unordered_map<std::string, int> usi_;
};

void Mancanti(Esame& esame, const VoceDiGriglia& voce) {
  if (!esame.criteri.vuoleDefinizioni || voce.libera) return;
  esame.Rileva(Codice::SenzaDefinizione, voce, voce.Nome() + " non ha una definizione.");
}

}  // namespace

void EsaminaDefinizioni(Esame& esame) {
  const ParoleVietate vietate(esame.criteri.lessico, esame.cruciverba);
  Rivelatore rivelatore(esame.criteri.lessico, vietate, esame.voci);
  Doppioni doppioni(esame);
  SchemiUsati schemi(esame);
  for (const VoceDiGriglia& voce : esame.voci) {
    if (voce.definizione.empty()) {
      Mancanti(esame, voce);
      continue;
    }
    Lunghezza(esame, voce);
    Riempitive(esame, voce);
    Rivelazioni(esame, voce, rivelatore);
    doppioni.Aggiungi(voce);
    schemi.Aggiungi(voce);
  }
}

}  // namespace telarium
