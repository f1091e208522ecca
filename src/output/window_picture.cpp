#include "output/window_picture.h"

#include <algorithm>

#include "editor/commands.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "output/output_file.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

// What the next question proposes.
std::string NomeImmagine;
bool soloLoSchema = false;

const AzzeramentoDiSottosistema azzeramento([] {
  NomeImmagine.clear();
  soloLoSchema = false;
});

// The name that the user gives; empty when there is none.
std::string ChiediNome(Spunta& soloSchema) {
  if (NomeImmagine.empty()) NomeImmagine = "NONOME.BMP";
  const auto nome = ChiUsa().ChiediTesto(
      {.richiesta =
           Unisci("Con questa operazione è possibile creare una immagine in formato BMP (per "
                  "importarla eventualmente con Paint Brush o altro).  Nome della picture da "
                  "salvare nella directory "_cp,
                  TestoPercorso(CartellaProgramma)),
       .predefinito = NomeImmagine,
       .titolo = "Salvataggio picture .BMP",
       .spunta = &soloSchema});
  return nome.value_or("");
}

// A "\\" between folders is as good as a "/".
Percorso PercorsoDigitato(std::string nome) {
  std::replace(nome.begin(), nome.end(), '\\', '/');
  return AUtf8(nome);
}

bool AccettaSovrascrittura(const Percorso& file, const std::string& nome) {
  std::error_code ignorato;
  if (!std::filesystem::exists(file, ignorato) || std::filesystem::is_directory(file, ignorato))
    return true;  // nothing that could be written over
  const Messaggio domanda{
      .testo = Unisci("Il file: ", nome, " esiste già, si vuole sovrascrivere?"_cp),
      .titolo = "Immagine gia' esistente",
      .pulsanti = Pulsanti::OkAnnulla};
  return ChiUsa().MostraMessaggio(domanda) == Risposta::Ok;
}

// The main window shows the grid on white ground for as long as one of these lives.
class SchemaSuBianco {
 public:
  explicit SchemaSuBianco(bool senzaSoluzioni) {
    LasciaAnteprima();
    if (Superficie* finestra = FinestraPrincipale()) {
      sfondo_ = finestra->Sfondo();
      finestra->Sfondo(ColoreBianco);
    }
    if (senzaSoluzioni) NascondiSoluzioni = Vero;
    RidisegnaSchema();
  }
  ~SchemaSuBianco() {
    if (Superficie* finestra = FinestraPrincipale()) finestra->Sfondo(sfondo_);
    NascondiSoluzioni = Falso;
    RidisegnaSchema();
  }

 private:
  Colore sfondo_ = ColoreBianco;
};

}  // namespace

std::string BitmapSuBianco(bool senzaSoluzioni, Inquadratura inquadratura) {
  const SchemaSuBianco suBianco(senzaSoluzioni);
  Superficie* finestra = FinestraPrincipale();
  if (!finestra) return {};
  return finestra->Bitmap(inquadratura == Inquadratura::Schema ? std::optional(ZonaDelloSchema())
                                                               : std::nullopt);
}

bool ScriviPicture(const Percorso& file, const std::string& bitmap) {
  if (!bitmap.empty()) return ScriviUscita(file, bitmap);
  AvvisaErroreDiUscita(file, std::make_error_code(std::errc::not_enough_memory));
  return false;
}

void SalvaPicture() {
  if (NumColonne == 0) return;
  LaFinestra().TogliLabel1();
  Spunta soloSchema{.testo = "Solo lo &schema, senza la finestra intorno", .scelta = soloLoSchema};
  const std::string nome = ChiediNome(soloSchema);
  if (SenzaSpazi(nome).empty()) return;
  const Percorso file = FileDiUscita(PercorsoDigitato(nome));
  if (!AccettaSovrascrittura(file, nome)) return;
  ChiUsa().CediAiMessaggi();
  const auto inquadratura = soloSchema.scelta ? Inquadratura::Schema : Inquadratura::Finestra;
  if (!ScriviPicture(file, BitmapSuBianco(false, inquadratura))) return;
  NomeImmagine = nome;
  soloLoSchema = soloSchema.scelta;
  ApriUscita(file);
}

}  // namespace telarium
