#pragma once

#include "platform/common/random_source.h"
#include "platform/machine.h"

namespace telarium {

/// The user's machine: programs and pages open in what the desktop has for them, settings lie in
/// the user's configuration folder.
class MacchinaQt : public Macchina {
 public:
  std::chrono::year_month_day Oggi() override;
  double Casuale() override { return casuali_.Prossimo(); }
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
  void ScriviImpostazione(const std::string& chiave, const std::string& valore) override;

 private:
  SorgenteCasuale casuali_;
};

}  // namespace telarium
