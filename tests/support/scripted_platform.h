#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/common/isolated_machine.h"
#include "platform/platform.h"
#include "support/recording_surface.h"

namespace telarium {

/// Thrown by TerminaProgramma in tests, so that what comes behind it never runs: when the user is
/// done, and after a message of what cannot go on.
class ProgramEnded : public std::exception {};
class ProgramDone : public ProgramEnded {};
class ProgramFailed : public ProgramEnded {};

/// A user that is scripted beforehand. Every message is recorded. A question that nobody expected
/// is a failure of the test, and so are, when the test ends, an answer that nobody used and a
/// message that nobody looked at.
class ScriptedUser : public Utente {
 public:
  /// Answers the next question (any message with more than an OK button).
  void Answer(Risposta answer) { answers_.push_back(answer); }
  /// Answers the next dead end of a fill, ahead of the answer for all.
  void AnswerDeadEnd(Risposta answer) { deadEndAnswers_.push_back(answer); }
  /// Answers every dead end that has no answer of its own.
  void AnswerAllDeadEnds(Risposta answer) { deadEndAnswer_ = answer; }
  /// Answers the next input box; none is its cancel button.
  void AnswerText(std::optional<std::string> text) { textAnswers_.push_back(std::move(text)); }

  /// Whether no message waits to be looked at.
  bool Silent() const { return messages_.empty(); }

  /// The texts shown so far, dead ends included; they count as looked at.
  std::vector<std::string> TakeTexts();
  /// The messages shown so far with titles and buttons; they count as looked at.
  std::vector<Messaggio> TakeMessages();

  /// The colours that the next choosers give; NessunColore is a cancelled one.
  std::deque<Colore> colours;

  std::vector<RichiestaDiTesto> requests;  // the input boxes so far
  std::optional<bool> offeredTick;         // how the last one's check box stood
  std::optional<bool> tick;                // how the user leaves such a box; none: as it stands
  std::vector<std::string> waits;          // the waits so far
  bool patient = true;                     // false: breaks a wait off at once
  std::function<void()> whileYielding;     // what the user does at each look at the message loop
  int beeps = 0;
  std::vector<int> pointerShapes;

  /// Fails the test for what was not asked or not looked at.
  void VerifyNothingLeft();

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::optional<std::string> ChiediTesto(const RichiestaDiTesto& richiesta) override;
  Colore ScegliColore(Colore iniziale) override;
  Risposta ChiediVicoloCieco(const std::string& testo) override;
  std::unique_ptr<Attesa> IniziaAttesa(const std::string& testo) override;
  void FormaPuntatore(int forma) override { pointerShapes.push_back(forma); }
  void SegnaleAcustico() override { ++beeps; }
  void CediAiMessaggi() override {
    if (whileYielding) whileYielding();
  }

 private:
  std::vector<Messaggio> messages_;
  std::deque<Risposta> answers_;
  std::deque<Risposta> deadEndAnswers_;
  std::optional<Risposta> deadEndAnswer_;
  std::deque<std::optional<std::string>> textAnswers_;
};

/// A machine with a fixed date and random numbers from a fixed seed, or told one by one. What is
/// opened, started and fetched is recorded, and goes as scripted.
class ScriptedMachine : public MacchinaIsolata {
 public:
  /// The next draws, before the seeded ones go on.
  std::deque<double> draws;
  std::function<void()> whenDrawing;  // what happens meanwhile
  std::chrono::year_month_day today{std::chrono::year(2024), std::chrono::month(3),
                                    std::chrono::day(5)};
  SorgenteCasuale random{20240305};
  std::vector<std::string> opened;   // files and addresses
  std::vector<std::string> started;  // programs
  std::vector<std::string> tried;    // programs of the system
  std::string program;               // the one of them that there is
  std::vector<Mail> mails;
  std::vector<std::string> fetched;  // addresses
  LimitiDiPrelievo limits{};         // of the last fetch
  std::vector<std::string> written;  // texts for the word processor
  std::vector<std::string> inWord;   // documents opened in it
  bool opens = true;
  bool takesMail = true;
  std::string unshown;  // the ending of files that nothing opens
  bool hasWord = true;
  std::error_code startError;
  std::string failure = "Il sito tace.";     // why nothing is behind an address
  std::optional<std::string> fetches;        // what is behind it
  std::map<std::string, std::string> pages;  // before that: what is behind this one
  /// This user wants no tips: a modal window at each start would hold the tests up.
  std::map<std::string, std::string> settings{{"Options/Show Tips at Startup", "0"}};

  std::chrono::year_month_day Oggi() override { return today; }
  double Casuale() override;
  std::error_code EseguiComando(const Percorso& programma,
                                const std::vector<std::string>& argomenti) override;
  bool ApriProgramma(const std::vector<std::string>& parole) override;
  bool ApriFile(const Percorso& file) override;
  bool ApriIndirizzo(const std::string& indirizzo) override;
  bool ApriInWord(const Percorso& documento) override;
  bool ScriviInWord(const std::string& testo) override;
  bool PreparaMail(const Mail& mail) override;
  Prelevato Preleva(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                    const ProseguePrelievo& prosegue) override;
  std::optional<std::string> LeggiImpostazione(const std::string& chiave) override;
  void ScriviImpostazione(const std::string& chiave, const std::string& valore) override {
    settings[chiave] = valore;
  }
};

/// A printer that takes every typeface but one. Its user may give up in the printer dialog.
class ScriptedPrinter : public Stampante {
 public:
  std::string refused;
  std::string typeface;
  bool italic = false;
  bool bold = false;
  bool givenUp = false;
  std::vector<std::string> jobs;     // their names
  std::vector<std::string> printed;  // the calls of the last one

  bool Carattere(std::string_view nome) override;
  const std::string& Carattere() const override { return typeface; }
  void Corsivo(bool corsivo) override { italic = corsivo; }
  bool Corsivo() const override { return italic; }
  void Grassetto(bool grassetto) override { bold = grassetto; }
  bool Grassetto() const override { return bold; }
  std::unique_ptr<LavoroDiStampa> IniziaLavoro(const std::string& nome) override;
};

class ScriptedPlatform : public Piattaforma {
 public:
  ScriptedUser user;
  ScriptedMachine machine;
  RecordingSurface window;
  Superficie* surface = &window;  // what the main window draws on, if there is one
  bool hasWindow = false;
  ScriptedPrinter printer;
  Stampante* printerInUse = &printer;
  bool hasPrinter = true;

  Utente& ChiUsa() override { return user; }
  Macchina& Sistema() override { return machine; }
  Superficie* FinestraPrincipale() override { return hasWindow ? surface : nullptr; }
  Stampante* LaStampante() override { return hasPrinter ? printerInUse : nullptr; }
  void Termina(Fine fine) override {
    if (fine == Fine::Regolare) throw ProgramDone();
    throw ProgramFailed();
  }
};

}  // namespace telarium
