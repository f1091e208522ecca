#include "editor/history_commands.h"

#include "editor/commands.h"
#include "editor/commit.h"
#include "editor/main_window.h"
#include "model/crossword_file.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

Cronologia* corrente = nullptr;

// What the pointer has found in the grid holds no longer; a tool is the user's choice and stays.
void LasciaParolaIndicata() {
  LaFinestra().NascondiShape1();
  LaFinestra().TogliLabel1();
  if (PuntatoreMouse == PuntatoreOrizzontale || PuntatoreMouse == PuntatoreVerticale)
    ImpostaPuntatoreMouse(PuntatoreFreccia);
}

void PulisciFinestra() {
  if (Superficie* superficie = FinestraPrincipale()) superficie->Pulisci();
  LaFinestra().Titolo("Telarium");
}

// Goes elsewhere in the history, and shows what is open there.
template <class Vai>
void Percorri(Vai vai) {
  if (!corrente) return;
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
  LasciaParolaIndicata();
  vai(*corrente);
  const bool aperto = !NomeCruciverba.empty();
  LaFinestra().MostraPicture1(!aperto);
  if (NumColonne == 0) PulisciFinestra();
  if (aperto) AggiornaIstantanea();  // the next commit tells what is wrong
  RiprendiSchema();
}

void AggiornaVoce(std::string_view voce, const std::string& modifica) {
  LaFinestra().CompletaVoce(voce, modifica);
  LaFinestra().AbilitaVoce(voce, !modifica.empty());
}

}  // namespace

Cronologia* LaCronologia() {
  return corrente;
}

void ImpostaCronologia(Cronologia* cronologia) {
  corrente = cronologia;
}

void AnnullaModifica() {
  Percorri([](Cronologia& cronologia) { cronologia.Annulla(); });
}

void RipetiModifica() {
  Percorri([](Cronologia& cronologia) { cronologia.Ripeti(); });
}

void MostraCronologia() {
  if (!corrente || !corrente->LineaAperta()) return;
  if (LaFinestra().Command3d15Visibile()) ChiudiAnteprima();
  LasciaParolaIndicata();
  LaFinestra().MostraModale(Modale::StoriaDelleModifiche);
}

void VaiAllaModifica(std::size_t posto) {
  Percorri([posto](Cronologia& cronologia) { cronologia.VaiA(posto); });
}

void OffriLavoroPerso() {
  if (!corrente || corrente->Archivio().LavoriPersi().empty()) return;
  LaFinestra().MostraModale(Modale::LavoroNonSalvato);
}

bool RecuperaLavoro(const LavoroPerso& lavoro) {
  if (!corrente || !corrente->Recupera(lavoro)) {
    Avvisa(ConCausa("Il lavoro non si può recuperare: un altro programma lo ha aperto, o il suo "
                    "file non c'è più."_cp,
                    lavoro.giornale, "non disponibile"),
           {}, Icona::Avviso);
    return false;
  }
  LaFinestra().MostraPicture1(false);
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
  ModoGriglia = ModoModifica;
  return true;
}

void RiferisciSullaCronologia() {
  const auto testo = [](auto quale) { return corrente ? (corrente->*quale)() : std::string(); };
  AggiornaVoce("MenuAnnulla", testo(&Cronologia::DaAnnullare));
  AggiornaVoce("MenuRipeti", testo(&Cronologia::DaRipetere));
  LaFinestra().AbilitaVoce("MenuCronologia", corrente && corrente->LineaAperta());
  if (!corrente) return;
  if (const std::string guasto = corrente->Guasto(); !guasto.empty())
    Avvisa(guasto, {}, Icona::Avviso);
}

}  // namespace telarium
