#pragma once

#include "platform/common/random_source.h"
#include "platform/machine.h"

namespace telarium {

/// A machine that has no programs to open things with, no mail, no settings and no network: for a
/// program without windows. What is left is the clock and the random numbers.
class MacchinaIsolata : public Macchina {
 public:
  double Casuale() override { return casuali_.Prossimo(); }
  std::error_code EseguiComando(const Percorso&, const std::vector<std::string>&) override {
    return std::make_error_code(std::errc::not_supported);
  }
  bool ApriProgramma(const std::vector<std::string>&) override { return false; }
  bool ApriFile(const Percorso&) override { return false; }
  bool ApriIndirizzo(const std::string&) override { return false; }
  bool ApriInWord(const Percorso&) override { return false; }
  bool ScriviInWord(const std::string&) override { return false; }
  bool PreparaMail(const Mail&) override { return false; }
  Prelevato Preleva(const std::string&, const LimitiDiPrelievo&, const ProseguePrelievo&) override {
    return {.byte = {}, .causa = "Manca il collegamento alla rete."};
  }
  std::optional<std::string> LeggiImpostazione(const std::string&) override { return std::nullopt; }
  void ScriviImpostazione(const std::string&, const std::string&) override {}

 private:
  SorgenteCasuale casuali_;
};

}  // namespace telarium
