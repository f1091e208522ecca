#include "editor/font_choice.h"

#include "editor/settings.h"
#include "platform/codepage.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr const char* Ripiego = "Arial";

template <class Bersaglio>
void ImpostaStile(Bersaglio* bersaglio, bool corsivo, bool grassetto) {
  if (!bersaglio) return;
  bersaglio->Corsivo(corsivo);
  bersaglio->Grassetto(grassetto);
}

void ImpostaSullaFinestra(const std::string& nome, bool corsivo, bool grassetto) {
  Superficie* finestra = FinestraPrincipale();
  if (finestra) finestra->Carattere(nome);
  ImpostaStile(finestra, corsivo, grassetto);
}

void RipiegaSuArial() {
  Avvisa("Font scelto non disponibile, verrà scelto l'Arial a video ed in stampa."_cp);
  NomeFont = Ripiego;
  Stampante* stampante = LaStampante();
  // Nothing is left to fall back on when the printer does not take this one either.
  if (stampante) static_cast<void>(stampante->Carattere(NomeFont));
  ImpostaStile(stampante, false, false);
  ImpostaSullaFinestra(NomeFont, false, false);
}

}  // namespace

void ApplicaCarattere(const std::string& nome, bool corsivo, bool grassetto) {
  NomeFont = nome;
  Stampante* stampante = LaStampante();
  if (!stampante || !stampante->Carattere(nome)) RipiegaSuArial();
  ImpostaStile(stampante, corsivo, grassetto);
  ImpostaSullaFinestra(NomeFont, corsivo, grassetto);
}

}  // namespace telarium
