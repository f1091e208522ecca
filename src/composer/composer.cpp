#include "composer/composer.h"

#include <algorithm>
#include <barrier>
#include <memory>
#include <optional>
#include <thread>

#include "composer/search.h"
#include "platform/check.h"

namespace telarium {
namespace {

constexpr int NumCorsie = 2;
constexpr std::int64_t PassiDaSola = 1000;   // of the first lane before the others join
constexpr std::int64_t PassiPerTurno = 500;  // of each lane, then

Maniera ManieraDi(int corsia, std::uint64_t seme) {
  Caso caso(seme * NumCorsie + static_cast<std::uint64_t>(corsia));
  Maniera maniera{.seme = caso.Prossimo()};
  if (corsia == 0) {
    maniera.falliteAParole = 30;
    maniera.primaRipresa = 40;
  }
  return maniera;
}

// How far each lane may go so that all together, the first one with what it did alone, have done so
// many steps.
std::int64_t PassiPerCorsia(std::int64_t passi) {
  const std::int64_t daSola = std::min(PassiDaSola, passi);
  const std::int64_t perLeAltre = (passi - daSola) / (NumCorsie - 1);
  return perLeAltre <= daSola ? perLeAltre : passi / NumCorsie;
}

// A lane with what it came to.
struct Corsia {
  Corsia(const Partenza& partenza, int numero, std::uint64_t seme)
      : ricerca(partenza, ManieraDi(numero, seme)) {}

  void Continua(std::int64_t passi, const std::stop_token& ferma) {
    if (fine == Ricerca::Fine::Sospesa) fine = ricerca.Continua(passi, ferma);
  }
  bool Finita() const { return fine != Ricerca::Fine::Sospesa; }

  Ricerca ricerca;
  Ricerca::Fine fine = Ricerca::Fine::Sospesa;
};

class Corsie {
 public:
  Corsie(const Partenza& partenza, const Limiti& limiti) : partenza_(partenza), limiti_(limiti) {}

  Riempimento Corri() {
    Apri(1);
    Turno(std::min(PassiDaSola, limiti_.passi));
    const std::int64_t massimo = PassiPerCorsia(limiti_.passi);
    std::int64_t passi = 0;
    while (!Vincente() && passi < massimo && !limiti_.ferma.stop_requested()) {
      Apri(NumCorsie);
      passi = std::min(passi + PassiPerTurno, massimo);
      Turno(passi);
    }
    return Risposta();
  }

 private:
  void Apri(int quante) {
    for (auto numero = static_cast<int>(corsie_.size()); numero < quante; ++numero) {
      corsie_.push_back(std::make_unique<Corsia>(partenza_, numero, limiti_.seme));
      // What the first lane has learnt of hard places is what a proof wants to begin with.
      if (numero > 0) corsie_.back()->ricerca.PrendiPesi(corsie_.front()->ricerca.Pesi());
    }
  }

  // Each lane searches on until it has done so many steps. Threads take every so manieth one.
  void Turno(std::int64_t passi) {
    const auto lavoratori =
        std::min(static_cast<std::size_t>(std::max(limiti_.lavoratori, 1)), corsie_.size());
    const auto lavora = [&](std::size_t primo) {
      for (std::size_t k = primo; k < corsie_.size(); k += lavoratori)
        corsie_[k]->Continua(passi, limiti_.ferma);
    };
    std::vector<std::jthread> altri;
    for (std::size_t k = 1; k < lavoratori; ++k)
      altri.emplace_back(lavora, k);
    lavora(0);
  }

  // Of the lanes that have ended that of the fewest steps.
  const Corsia* Vincente() const {
    const Corsia* vincente = nullptr;
    for (const auto& corsia : corsie_) {
      if (!corsia->Finita()) continue;
      if (!vincente || corsia->ricerca.Passi() < vincente->ricerca.Passi()) vincente = corsia.get();
    }
    return vincente;
  }

  // That has met the most whole entries; the lower one of equals.
  const Corsia& LaPiuPiena() const {
    return **std::ranges::max_element(corsie_, {},
                                      [](const auto& una) { return una->ricerca.PiuPosati(); });
  }

  Riempimento Risposta() const {
    const Corsia* corsia = Vincente();
    Riempimento risposta;
    if (!corsia) {
      corsia = corsie_.front().get();
      for (const auto& una : corsie_)
        risposta.passi += una->ricerca.Passi();
    } else {
      risposta.esito =
          corsia->fine == Ricerca::Fine::Riempito ? Esito::Riempito : Esito::Impossibile;
      risposta.passi = corsia->ricerca.Passi();
    }
    risposta.lettere =
        (risposta.esito == Esito::Riempito ? *corsia : LaPiuPiena()).ricerca.LettereTrovate();
    risposta.pesi = corsia->ricerca.Pesi();
    return risposta;
  }

  const Partenza& partenza_;
  const Limiti& limiti_;
  std::vector<std::unique_ptr<Corsia>> corsie_;
};

}  // namespace

Riempimento Componi(const Problema& problema, const Limiti& limiti) {
  const Partenza partenza(problema);
  Riempimento risposta = Corsie(partenza, limiti).Corri();
  if (risposta.esito == Esito::Riempito)
    Verifica(Difetti(problema, risposta.lettere).empty(), "un riempimento rispetta le richieste");
  return risposta;
}

}  // namespace telarium
