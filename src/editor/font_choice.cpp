#include "editor/font_choice.h"

#include "editor/settings.h"
#include "platform/codepage.h"
#include "platform/platform.h"

namespace telarium {
namespace {

// False when there is no printer, or none that takes the typeface.
bool PrendeIlCarattere(Stampante* stampante, const std::string& nome) {
  return stampante && stampante->Carattere(nome);
}

template <class Bersaglio>
void ImpostaStile(Bersaglio* bersaglio, bool corsivo, bool grassetto) {
  if (!bersaglio) return;
  bersaglio->Corsivo(corsivo);
  bersaglio->Grassetto(grassetto);
}

}  // namespace

void ApplicaCarattere(const std::string& nome, bool corsivo, bool grassetto) {
  NomeFont = nome;
  Stampante* stampante = LaStampante();
  if (!PrendeIlCarattere(stampante, nome)) {
    Avvisa("Font scelto non disponibile, verrà scelto l'Arial a video ed in stampa."_cp);
    NomeFont = CarattereIniziale;
    // Nothing is left to fall back on when the printer does not take this one either.
    static_cast<void>(PrendeIlCarattere(stampante, NomeFont));
  }
  ImpostaStile(stampante, corsivo, grassetto);
  Superficie* finestra = FinestraPrincipale();
  if (finestra) finestra->Carattere(NomeFont);
  ImpostaStile(finestra, corsivo, grassetto);
}

}  // namespace telarium
