#include "composer/problem.h"

#include <algorithm>
#include <optional>
#include <set>

namespace telarium {
namespace {

// Reads an answer slot by slot and gathers what is wrong.
class Lettore {
 public:
  Lettore(const Problema& problema, const std::string& lettere)
      : problema_(problema), lettere_(lettere) {}

  std::vector<std::string> Leggi() {
    if (lettere_.size() != problema_.lettere.size())
      return {"the answer has another number of cells"};
    for (int casella = 0; casella < problema_.Caselle(); ++casella)
      LeggiCasella(casella);
    for (int slot = 0; slot < problema_.Slot(); ++slot)
      LeggiSlot(slot);
    ConfrontaConAltrove();
    ConfrontaVolute();
    Conta();
    if (!problema_.ammetteForme) ConfrontaForme();
    return std::move(difetti_);
  }

 private:
  void Nota(int slot, const std::string& che) {
    difetti_.push_back("slot " + std::to_string(slot) + " " + Maschera(problema_, slot, lettere_) +
                       ": " + che);
  }

  void LeggiCasella(int casella) {
    const char lettera = lettere_[static_cast<std::size_t>(casella)];
    if (lettera == SenzaLettera) {
      if (!problema_.Lasciata(casella))
        difetti_.push_back("cell " + std::to_string(casella) + " has no letter");
      return;
    }
    if (lettera < 'A' || lettera > 'Z') {
      difetti_.push_back("cell " + std::to_string(casella) + " holds no letter");
    } else if ((problema_.lettere[static_cast<std::size_t>(casella)] & SolaLettera(lettera)) == 0) {
      difetti_.push_back("cell " + std::to_string(casella) + " has a letter that it may not have");
    }
  }

  void LeggiSlot(int slot) {
    const SlotDaRiempire& uno = problema_.slot[static_cast<std::size_t>(slot)];
    const std::string parola = Maschera(problema_, slot, lettere_);
    if (parola.find('.') != std::string::npos) {
      if (!uno.aperto) Nota(slot, "not whole");
      return;
    }
    const auto numero = problema_.vocabolario->Cerca(parola);
    if (!numero) return Nota(slot, "not in the vocabulary");
    LeggiParola(slot, uno, *numero);
    if (!parole_.insert(parola).second) Nota(slot, "twice");
    numeri_.push_back(*numero);
  }

  void LeggiParola(int slot, const SlotDaRiempire& uno, NumeroParola numero) {
    const Vocabolario& vocabolario = *problema_.vocabolario;
    if (vocabolario.Propria(numero)) return;
    if (vocabolario.Punteggio(numero) < uno.minimo) Nota(slot, "under its least score");
    if (problema_.soloDefinite && !vocabolario.Definita(numero) &&
        !problema_.Esente(vocabolario.Parola(numero)))
      Nota(slot, "without a clue");
  }

  void ConfrontaConAltrove() {
    for (const std::string& parola : problema_.altrove) {
      if (parole_.contains(parola)) difetti_.push_back(parola + " stands elsewhere too");
    }
  }

  void ConfrontaVolute() {
    for (const std::string& parola : problema_.volute) {
      if (!parole_.contains(parola)) difetti_.push_back(parola + " is wanted and stands nowhere");
    }
  }

  void Conta() {
    for (std::size_t genia = 0; genia < NumGenie; ++genia) {
      const int massimo = problema_.alMassimo[genia];
      const auto quante = std::count_if(numeri_.begin(), numeri_.end(), [&](NumeroParola numero) {
        return (problema_.vocabolario->GenieDi(numero) >> genia & 1) != 0;
      });
      if (massimo != SenzaLimite && quante > massimo)
        difetti_.push_back("too many words of kind " + std::to_string(genia));
    }
  }

  void ConfrontaForme() {
    const auto confronta = [&](std::string_view parola) {
      for (const NumeroParola parente : problema_.vocabolario->Parenti(parola)) {
        const std::string altra(problema_.vocabolario->Parola(parente));
        if (parole_.contains(altra))
          difetti_.push_back(std::string(parola) + " and " + altra + " are akin");
      }
    };
    for (const std::string& parola : parole_)
      confronta(parola);
    for (const std::string& parola : problema_.altrove)
      confronta(parola);
  }

  const Problema& problema_;
  const std::string& lettere_;
  std::vector<std::string> difetti_;
  std::set<std::string, std::less<>> parole_;
  std::vector<NumeroParola> numeri_;
};

}  // namespace

bool Problema::Esente(std::string_view parola) const {
  const auto ha = [parola](const std::vector<std::string>& parole) {
    return std::ranges::find(parole, parola) != parole.end();
  };
  return ha(volute) || ha(esenti);
}

std::string Maschera(const Problema& problema, int slot, const std::string& lettere) {
  std::string maschera;
  for (const int casella : problema.slot[static_cast<std::size_t>(slot)].caselle) {
    const char lettera = lettere[static_cast<std::size_t>(casella)];
    maschera += lettera == SenzaLettera ? '.' : lettera;
  }
  return maschera;
}

std::vector<std::string> Difetti(const Problema& problema, const std::string& lettere) {
  return Lettore(problema, lettere).Leggi();
}

}  // namespace telarium
