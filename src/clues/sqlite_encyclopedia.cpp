#include <chrono>
#include <map>
#include <thread>

#include "clues/clue_family.h"
#include "clues/encyclopedia.h"
#include "clues/sqlite_database.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

// A family for the database, in UTF-8: a clue that is as it was shown is as it was stored, with the
// characters that the code page could not show.
std::optional<std::string> ConOriginali(const std::optional<std::string>& famiglia,
                                        const std::optional<std::string>& conservata) {
  if (!famiglia) return std::nullopt;
  std::map<std::string, std::string_view> originali;
  if (conservata) {
    for (const std::string_view una : PartiDellaFamiglia(*conservata))
      originali.emplace(DaUtf8(una), una);
  }
  std::string utf8;
  for (const std::string_view una : PartiDellaFamiglia(*famiglia)) {
    if (una.data() != famiglia->data()) utf8 += SeparatoreDefinizioni;
    const auto originale = originali.find(std::string(una));
    utf8 += originale == originali.end() ? AUtf8(una) : std::string(originale->second);
  }
  return utf8;
}

// The store as an SQLite database, the table Parole with the columns PAROLA, DEFINIZ_FACILE and
// DEFINIZ_DIFFIC and an index on PAROLA (encyclopedia_writer.cpp makes it). As long as it is only
// read nothing is stored in it. The first write turns to a write-ahead log, in which a commit
// waits for no disk; the end of the connection folds the log back into the file, which then opens
// as it is on any medium.
class EnciclopediaSqlite : public Enciclopedia {
 public:
  explicit EnciclopediaSqlite(const Percorso& file)
      : base_(file),
        cerca_(base_,
               "SELECT rowid, PAROLA FROM Parole WHERE PAROLA = ?1 COLLATE BINARY"
               " ORDER BY rowid LIMIT 1"),
        leggiCorrente_(base_,
                       "SELECT DEFINIZ_FACILE, DEFINIZ_DIFFIC FROM Parole"
                       " WHERE rowid = ?1 AND PAROLA IS ?2 COLLATE BINARY"),
        leggi_(base_, "SELECT PAROLA, DEFINIZ_FACILE, DEFINIZ_DIFFIC FROM Parole WHERE rowid = ?1"),
        inserisci_(base_,
                   "INSERT INTO Parole (PAROLA, DEFINIZ_FACILE, DEFINIZ_DIFFIC)"
                   " VALUES (?1, ?2, ?3)"),
        aggiungi_(base_,
                  "UPDATE Parole SET DEFINIZ_FACILE ="
                  " coalesce(DEFINIZ_FACILE, '') || char(13, 10) || ?3"
                  " WHERE rowid = ?1 AND PAROLA IS ?2 COLLATE BINARY") {
    // With a log, this lets a commit return before the disk has it; the file stays sound.
    base_.Esegui("PRAGMA synchronous = NORMAL");
    Istruzione prima(base_,
                     "SELECT rowid, PAROLA FROM Parole"
                     " ORDER BY PAROLA COLLATE BINARY, rowid LIMIT 1");
    corrente_ = Trovata(prima);
  }

  ~EnciclopediaSqlite() override { base_.RiponiRegistro(); }

  bool CercaParola(std::string_view parola) override {
    VerificaCercabile(parola);
    cerca_.Lega(1, parola);
    corrente_ = Trovata(cerca_);
    return corrente_.has_value();
  }

  std::optional<std::string> LeggiFacili() override { return LeggiCorrente(0); }
  std::optional<std::string> LeggiDifficili() override { return LeggiCorrente(1); }

  void AggiungiParola(std::string_view parola, std::string_view definizione) override {
    const NumeroRiga numero = InserisciRiga({.parola = std::string(parola),
                                             .facili = std::string(definizione),
                                             .difficili = std::nullopt});
    corrente_ = {numero, AUtf8(parola)};
  }

  void ScriviFacili(std::string_view definizione) override {
    PreparaScrittura();
    // In the database itself, where no character is lost on the way through the code page.
    LegaCorrente(aggiungi_).Lega(3, definizione).Esegui();
    VerificaTrovata();
  }

  void Insieme(const std::function<void()>& operazioni) override {
    PreparaScrittura();
    base_.Esegui("BEGIN IMMEDIATE");
    try {
      operazioni();
      base_.Esegui("COMMIT");
    } catch (...) {
      RinunciaATutto();
      throw;
    }
  }

  void IniziaSerie() override {
    try {
      PreparaScrittura();
    } catch (const ErroreEnciclopedia&) {
      // The first write tells why; it may be that none is needed.
      NonAttendere();
    }
  }

  void NonAttendere() override { base_.Attesa(0); }

  std::vector<ChiaveRiga> Chiavi() override {
    Istruzione tutte(base_,
                     "SELECT rowid, PAROLA FROM Parole ORDER BY PAROLA COLLATE BINARY, rowid");
    std::vector<ChiaveRiga> chiavi;
    while (tutte.Passo())
      chiavi.push_back({tutte.Intero(0), tutte.Testo(1).value_or("")});
    return chiavi;
  }

  RigaParole LeggiRiga(NumeroRiga numero) override {
    const PrimaRiga riga(leggi_.Lega(1, numero));
    if (!riga) Mancante();
    return {riga->Testo(0).value_or(""), riga->Testo(1), riga->Testo(2)};
  }

  void ScriviRiga(NumeroRiga numero, const ModificheRiga& modifiche) override {
    PreparaScrittura();
    // Only what was changed: the other columns may hold characters that the code page lacks.
    Istruzione scrivi(base_,
                      "UPDATE Parole SET PAROLA = iif(?2, ?3, PAROLA),"
                      " DEFINIZ_FACILE = iif(?4, ?5, DEFINIZ_FACILE),"
                      " DEFINIZ_DIFFIC = iif(?6, ?7, DEFINIZ_DIFFIC) WHERE rowid = ?1");
    scrivi.Lega(1, numero);
    scrivi.Lega(2, modifiche.parola.has_value()).Lega(3, modifiche.parola);
    {
      const PrimaRiga riga(leggi_.Lega(1, numero));
      if (!riga) Mancante();
      scrivi.Lega(4, modifiche.facili.has_value());
      scrivi.LegaUtf8(5, ConOriginali(Famiglia(modifiche.facili), riga->TestoUtf8(1)));
      scrivi.Lega(6, modifiche.difficili.has_value());
      scrivi.LegaUtf8(7, ConOriginali(Famiglia(modifiche.difficili), riga->TestoUtf8(2)));
    }
    scrivi.Esegui();
    VerificaTrovata();
  }

  void EliminaRiga(const ChiaveRiga& riga) override {
    Insieme([&] {
      {
        const PrimaRiga adesso(leggi_.Lega(1, riga.numero));
        if (!adesso) return;
        if (adesso->Testo(0).value_or("") != riga.parola) Mancante();
      }
      Istruzione(base_, "DELETE FROM Parole WHERE rowid = ?1").Lega(1, riga.numero).Esegui();
    });
    if (corrente_ && corrente_->numero == riga.numero) corrente_.reset();
  }

  NumeroRiga InserisciRiga(const ModificheRiga& modifiche) override {
    PreparaScrittura();
    inserisci_.Lega(1, std::string_view(modifiche.parola.value_or("")));
    inserisci_.Lega(2, Famiglia(modifiche.facili)).Lega(3, Famiglia(modifiche.difficili));
    inserisci_.Esegui();
    return base_.UltimaRiga();
  }

 private:
  // The current row, with its word in UTF-8 as it is stored.
  struct Corrente {
    NumeroRiga numero;
    std::optional<std::string> parola;
  };

  static std::optional<Corrente> Trovata(Istruzione& ricerca) {
    const PrimaRiga prima(ricerca);
    if (!prima) return std::nullopt;
    return Corrente{prima->Intero(0), prima->TestoUtf8(1)};
  }

  static std::optional<std::string> Famiglia(const std::optional<std::string>& testo) {
    return testo && testo->empty() ? std::nullopt : testo;
  }

  [[noreturn]] static void Mancante() {
    throw ErroreEnciclopedia("la riga non c'è più"_cp, ErroreEnciclopedia::Specie::RigaPersa);
  }

  void VerificaTrovata() const {
    if (base_.RigheCambiate() == 0) Mancante();
  }

  Istruzione& LegaCorrente(Istruzione& istruzione) const {
    if (!corrente_) Mancante();
    return istruzione.Lega(1, corrente_->numero).LegaUtf8(2, corrente_->parola);
  }

  std::optional<std::string> LeggiCorrente(int colonna) {
    const PrimaRiga riga(LegaCorrente(leggiCorrente_));
    if (!riga) Mancante();
    return riga->Testo(colonna);
  }

  void RinunciaATutto() {
    try {
      base_.Esegui("ROLLBACK");
    } catch (const ErroreEnciclopedia&) {
      // Some errors have ended the transaction by themselves.
    }
  }

  void PreparaScrittura() {
    const auto inizio = std::chrono::steady_clock::now();
    while (!preparata_) {
      try {
        base_.Esegui("BEGIN IMMEDIATE; COMMIT");  // waits for another program
        base_.Esegui("PRAGMA journal_mode = WAL");
        preparata_ = true;
      } catch (const ErroreEnciclopedia& errore) {
        // The second one does not wait, even for one that is only reading.
        const auto passato = std::chrono::steady_clock::now() - inizio;
        if (errore.DiSpecie() != ErroreEnciclopedia::Specie::Occupata ||
            passato >= std::chrono::milliseconds(base_.Attesa()))
          throw;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
      }
    }
  }

  BaseDati base_;
  Istruzione cerca_, leggiCorrente_, leggi_, inserisci_, aggiungi_;
  std::optional<Corrente> corrente_;
  bool preparata_ = false;  // for writing
};

}  // namespace

EnciclopediaAperta ApriEnciclopedia() {
  return EnciclopediaAperta(
      new EnciclopediaSqlite(PercorsoNellaCartella(CartellaProgramma, NomeEnciclopedia)));
}

}  // namespace telarium
