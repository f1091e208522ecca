#pragma once

#include <csignal>
#include <exception>

#include "platform/common/fetch.h"
#include "platform/common/isolated_machine.h"
#include "platform/common/local_clock.h"
#include "platform/platform.h"

// The platform of `telar`: messages go to standard error, answers come from the command line.
namespace telarium {

/// Thrown by TerminaProgramma, for `main` to end with exit status 1.
class ProgrammaTerminato : public std::exception {
 public:
  const char* what() const noexcept override { return "programma terminato"; }
};

/// Each message is one line of UTF-8 on standard error, line breaks as blanks. Questions get the
/// answer that goes on: OK, or Yes.
class UtenteConsole : public Utente {
 public:
  /// Whether Ctrl+C was pressed since AscoltaInterruzione.
  bool Interrotto() const;

  Risposta MostraMessaggio(const Messaggio& messaggio) override;
  std::optional<std::string> ChiediTesto(const RichiestaDiTesto& richiesta) override;
  Colore ScegliColore(Colore) override { return NessunColore; }
  /// It goes on until Ctrl+C; nothing is shown.
  std::unique_ptr<Attesa> IniziaAttesa(const std::string& testo) override;
  void FormaPuntatore(int) override {}
  void SegnaleAcustico() override {}
  void CediAiMessaggi() override {}
};

/// From now on Ctrl+C and a request to terminate no longer end the process: they set the flag of
/// Interrotto, so that no file beside the output and no temporary folder is left. Nor
/// does it end when nobody reads its messages any more. For what takes long a command has to poll.
void AscoltaInterruzione();

class MacchinaConsole : public MacchinaIsolata {
 public:
  std::chrono::year_month_day Oggi() override { return OggiLocale(); }
  Prelevato Preleva(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                    const ProseguePrelievo& prosegue) override {
    return PrelevaIndirizzo(indirizzo, limiti, prosegue);
  }
};

class PiattaformaConsole : public Piattaforma {
 public:
  UtenteConsole& ChiUsa() override { return utente_; }
  Macchina& Sistema() override { return macchina_; }
  Superficie* FinestraPrincipale() override { return nullptr; }
  void Termina(Fine) override { throw ProgrammaTerminato(); }

 private:
  UtenteConsole utente_;
  MacchinaConsole macchina_;
};

}  // namespace telarium
