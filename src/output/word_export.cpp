#include "output/word_export.h"

#include <utility>
#include <vector>

#include "output/clue_entries.h"
#include "output/clue_page.h"
#include "output/output_file.h"
#include "output/static_page.h"
#include "output/window_picture.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr std::size_t TrattiniDelTesto = 12;
constexpr std::size_t TrattiniDellaPagina = 10;
constexpr const char* NomeDocumento = "PRENDIFILETELARIUM.DOC";

void ScriviVoci(TestoDiPagina& testo, int direzione) {
  PerOgniDefinizione(direzione, TrattiniDelTesto, [&](int numero, const std::string& definizione) {
    testo.Scrivi(numero, ' ', definizione, "  ");
  });
}

// Both lists as plain text, one line each.
std::string TestoNonome() {
  TestoDiPagina testo;
  testo.Riga("ORIZZONTALI:");
  ScriviVoci(testo, Orizzontale);
  testo.Riga();
  testo.Riga("VERTICALI:");
  ScriviVoci(testo, Verticale);
  return std::move(testo).Prendi();
}

// Both lists as a page.
std::string PaginaNonome() {
  TestoDiPagina pagina;
  pagina.Riga("<html><head></head><body>");
  ScriviCorpoDiDefinizioni(pagina, TrattiniDellaPagina);
  return std::move(pagina).Prendi();
}

struct FileDaScrivere {
  Percorso file;
  std::string contenuto;
};

// A file as it was before it was written over.
class FileDiPrima {
 public:
  explicit FileDiPrima(const Percorso& file) : file_(file) {
    constexpr std::size_t massimo = 512u << 20;
    esito_ = LeggiFile(file, massimo, contenuto_);
  }

  // What could not be read cannot be put back, and is not removed either.
  void Rimetti() const {
    std::error_code errore;
    if (esito_ == EsitoLettura::Letto) {
      errore = ScriviFile(file_, contenuto_, Permanenza::Provvisoria);
    } else if (esito_ == EsitoLettura::Assente) {
      std::filesystem::remove(file_, errore);
    }
  }

 private:
  Percorso file_;
  std::string contenuto_;
  EsitoLettura esito_;
};

// Writes all of them, or what was there stays. A failure has been told.
bool ScriviInsieme(const std::vector<FileDaScrivere>& tutti) {
  std::vector<FileDiPrima> scritti;
  for (const auto& [file, contenuto] : tutti) {
    FileDiPrima prima(file);
    if (!ScriviUscita(file, contenuto)) {
      for (const FileDiPrima& scritto : scritti)
        scritto.Rimetti();
      return false;
    }
    scritti.push_back(std::move(prima));
  }
  return true;
}

std::vector<FileDaScrivere> TestiNonome(const Percorso& cartella) {
  return {{cartella / "NONOME.TXT", TestoNonome()}, {cartella / "NONOME.html", PaginaNonome()}};
}

bool ScriviFileNonome() {
  ChiUsa().CediAiMessaggi();
  std::string bitmap = BitmapSuBianco(false);
  if (bitmap.empty()) {
    AvvisaErroreDiUscita(FileDiUscita("NONOME.BMP"),
                         std::make_error_code(std::errc::not_enough_memory));
    return false;
  }
  std::vector<FileDaScrivere> tutti = TestiNonome(CartellaProgramma);
  tutti.insert(tutti.begin(), {FileDiUscita("NONOME.BMP"), std::move(bitmap)});
  return ScriviInsieme(tutti);
}

}  // namespace

void EsportaInWord() {
  if (creadocHTML(PaginaPerWord)) AperturaWord();
}

void AperturaWord() {
  static_cast<void>(Sistema().ApriInWord(FileDiUscita(NomePaginaStatica)));
}

bool ScriviTestiNonome(const Percorso& cartella) {
  return ScriviInsieme(TestiNonome(cartella));
}

void EsportaInWordConPicture() {
  if (NumColonne == 0 || !ScriviFileNonome()) return;
  const Percorso documento = PercorsoNellaCartella(CartellaProgramma, NomeDocumento);
  if (!Sistema().ApriInWord(documento)) ApriUscita(documento);
}

}  // namespace telarium
