#include "clues/store_state.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <sys/stat.h>
#include <thread>

#include "clues/encyclopedia.h"
#include "clues/sqlite_database.h"
#include "platform/text.h"

namespace telarium {
namespace {

using Nanosecondi = std::chrono::nanoseconds;
using namespace std::chrono_literals;

constexpr Nanosecondi Scatto = 30ms;      // of the system's clock: 10 at most, with some room
constexpr Nanosecondi ScattoGrosso = 2s;  // of file systems that keep whole seconds
constexpr int AttesaDiScrittura = 30;     // milliseconds for another program's write to the log
constexpr int TentativiDiFermare = 3;

// Far from now, where nanoseconds overflow, all times count as one.
Nanosecondi Tempo(const timespec& tempo) {
  constexpr std::time_t Ultimo = 9'000'000'000;
  const std::chrono::seconds secondi(std::clamp<std::time_t>(tempo.tv_sec, 0, Ultimo));
  return secondi + Nanosecondi(tempo.tv_nsec);
}

std::string Esatto(const timespec& tempo) {
  return Unisci(tempo.tv_sec, ':', tempo.tv_nsec);
}

// What the system tells of the files, and what follows from it.
class Stato {
 public:
  explicit Stato(const FontiIndice& fonti) {
    Metti(fonti.archivio, &stat::st_ctim);
    // Whoever opens the log may give it its owner once more, which changes that time too.
    registro_ = Metti(Percorso(fonti.archivio) += "-wal", &stat::st_mtim) > 0;
    Metti(fonti.corredo, &stat::st_ctim);
    testo_ += '\n' + fonti.archivio.string();
  }

  const std::string& Testo() const { return testo_; }

  /// Whether there is a write-ahead log with something in it.
  bool ConRegistro() const { return registro_; }

  /// How long it takes until a change would give another time; 0 when it would by now.
  Nanosecondi Manca() const {
    timespec adesso{};
    ::clock_gettime(CLOCK_REALTIME, &adesso);
    const Nanosecondi eta = Tempo(adesso) - cambiato_;
    const bool intero = cambiato_ % 1s == 0ns;
    // A time to come is one of a clock that was wrong: a write of today has another one.
    if (eta < -ScattoGrosso) return 0ns;
    return std::max((intero ? ScattoGrosso : Scatto) - eta, Nanosecondi(0));
  }

 private:
  // Gives the size, 0 for a file that is missing. `quando` is the time of its last change.
  std::int64_t Metti(const Percorso& file, timespec stat::*quando) {
    struct stat stato {};
    if (::stat(file.c_str(), &stato) != 0) {
      testo_ += "- ";
      return 0;
    }
    testo_ += Unisci(stato.st_dev, '.', stato.st_ino, '.', stato.st_size, '.',
                     Esatto(stato.st_mtim), '.', Esatto(stato.*quando), ' ');
    cambiato_ = std::max(cambiato_, Tempo(stato.*quando));
    return stato.st_size;
  }

  std::string testo_;
  Nanosecondi cambiato_{};  // when the last of them was
  bool registro_ = false;
};

// Waits until a tick has passed since the last change. None when that takes too long.
std::optional<Stato> StatoVecchio(const FontiIndice& fonti) {
  for (int i = 0; i < TentativiDiFermare; ++i) {
    Stato stato(fonti);
    const Nanosecondi manca = stato.Manca();
    if (manca == 0ns) return stato;
    if (manca > Scatto) return std::nullopt;
    std::this_thread::sleep_for(manca);
  }
  return std::nullopt;
}

// The state while no program is in the middle of a write to the log; none while one is, or when it
// has just ended one, or where this user may not write.
std::optional<Stato> StatoSenzaScritture(const FontiIndice& fonti) {
  BaseDati base(fonti.archivio);
  base.Attesa(AttesaDiScrittura);
  try {
    base.Esegui("BEGIN IMMEDIATE");
  } catch (const ErroreEnciclopedia&) {
    return std::nullopt;
  }
  // Others wait as long as this lasts.
  std::optional<Stato> stato(fonti);
  if (stato->Manca() > 0ns) stato.reset();
  base.Esegui("ROLLBACK");
  return stato;
}

void RiponiRegistro(const Percorso& archivio) {
  BaseDati base(archivio);
  base.Attesa(0);
  base.RiponiRegistro();
}

}  // namespace

std::string TimbroDi(const FontiIndice& fonti) {
  return Stato(fonti).Testo();
}

Percorso ArchivioDelTimbro(std::string_view timbro) {
  const std::size_t riga = timbro.find('\n');
  return riga == std::string_view::npos ? Percorso() : Percorso(timbro.substr(riga + 1));
}

std::optional<std::string> TimbroFermo(const FontiIndice& fonti) {
  RiponiRegistro(fonti.archivio);
  for (int i = 0; i < TentativiDiFermare; ++i) {
    std::optional<Stato> stato = StatoVecchio(fonti);
    if (!stato) return std::nullopt;
    if (stato->ConRegistro()) stato = StatoSenzaScritture(fonti);
    // A connection of ours that was the last one has folded the log back at its end.
    if (stato && TimbroDi(fonti) == stato->Testo()) return stato->Testo();
  }
  return std::nullopt;
}

}  // namespace telarium
