#include "output/window_picture.h"

#include "editor/commands.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "output/output_file.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

std::string NomeImmagine;  // what the next question proposes

const AzzeramentoDiSottosistema azzeramento([] { NomeImmagine.clear(); });

// The name that the user gives; empty when there is none.
std::string ChiediNome() {
  if (NomeImmagine.empty()) NomeImmagine = "NONOME.BMP";
  const auto nome = ChiUsa().ChiediTesto(
      {.richiesta =
           Unisci("Con questa operazione è possibile creare una immagine in formato BMP (per "
                  "importarla eventualmente con Paint Brush o altro).  Nome della picture da "
                  "salvare nella directory "_cp,
                  TestoPercorso(CartellaProgramma)),
       .predefinito = NomeImmagine,
       .titolo = "Salvataggio picture .BMP"});
  return nome.value_or("");
}

bool AccettaSovrascrittura(const Percorso& file, const std::string& nome) {
  std::error_code ignorato;
  if (!std::filesystem::exists(file, ignorato)) return true;
  const Messaggio domanda{
      .testo = Unisci("Il file: ", nome, " esiste già, si vuole sovrascrivere?"_cp),
      .titolo = "Immagine gia' esistente",
      .pulsanti = Pulsanti::OkAnnulla};
  return ChiUsa().MostraMessaggio(domanda) == Risposta::Ok;
}

}  // namespace

SchemaSuBianco::SchemaSuBianco(bool senzaSoluzioni) {
  LasciaAnteprima();
  if (Superficie* finestra = FinestraPrincipale()) {
    sfondo_ = finestra->Sfondo();
    finestra->Sfondo(ColoreBianco);
  }
  if (senzaSoluzioni) NascondiSoluzioni = Vero;
  RidisegnaSchema();
}

SchemaSuBianco::~SchemaSuBianco() {
  if (Superficie* finestra = FinestraPrincipale()) finestra->Sfondo(sfondo_);
  NascondiSoluzioni = Falso;
  RidisegnaSchema();
}

bool ScriviPicture(const Percorso& file) {
  Superficie* finestra = FinestraPrincipale();
  const std::string bitmap = finestra ? finestra->Bitmap() : std::string();
  if (!bitmap.empty()) return ScriviUscita(file, bitmap);
  AvvisaErroreDiUscita();
  return false;
}

void SalvaPicture() {
  if (NumColonne == 0) return;
  LaFinestra().TogliLabel1();
  const std::string nome = ChiediNome();
  if (nome.empty()) return;
  const Percorso file = CartellaProgramma / AUtf8(nome);
  if (!AccettaSovrascrittura(file, nome)) return;
  ChiUsa().CediAiMessaggi();
  const SchemaSuBianco suBianco(false);
  if (!ScriviPicture(file)) return;
  NomeImmagine = nome;
  ApriUscita(file);
}

}  // namespace telarium
