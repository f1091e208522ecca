#include "output/word_export.h"

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

// A file as it was before it was written over.
class FileDiPrima {
 public:
  explicit FileDiPrima(const Percorso& file) : file_(file) {
    constexpr std::size_t massimo = 64u << 20;
    cera_ = LeggiFile(file, massimo, contenuto_) == EsitoLettura::Letto;
  }

  void Rimetti() const {
    std::error_code errore;
    if (cera_) {
      errore = ScriviFile(file_, contenuto_, Permanenza::Provvisoria);
    } else {
      std::filesystem::remove(file_, errore);
    }
  }

 private:
  Percorso file_;
  std::string contenuto_;
  bool cera_;
};

bool ScriviFileNonome() {
  ChiUsa().CediAiMessaggi();
  return ScriviPicture(FileDiUscita("NONOME.BMP"), BitmapSuBianco(false)) &&
         ScriviTestiNonome(CartellaProgramma);
}

}  // namespace

void EsportaInWord() {
  if (creadocHTML(PaginaPerWord)) AperturaWord();
}

void AperturaWord() {
  static_cast<void>(Sistema().ApriInWord(FileDiUscita(NomePaginaStatica)));
}

bool ScriviTestiNonome(const Percorso& cartella) {
  const Percorso testo = cartella / "NONOME.TXT";
  const FileDiPrima prima(testo);
  if (!ScriviUscita(testo, TestoNonome())) return false;
  if (ScriviUscita(cartella / "NONOME.html", PaginaNonome())) return true;
  prima.Rimetti();
  return false;
}

void EsportaInWordConPicture() {
  if (NumColonne == 0 || !ScriviFileNonome()) return;
  const Percorso documento = PercorsoNellaCartella(CartellaProgramma, NomeDocumento);
  if (!Sistema().ApriInWord(documento)) ApriUscita(documento);
}

}  // namespace telarium
