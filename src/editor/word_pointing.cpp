#include "editor/word_pointing.h"

#include "editor/main_window.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

int MouseCol = 0;
int MouseRiga = 0;

namespace {

const AzzeramentoDiSottosistema azzeramento([] { MouseCol = MouseRiga = 0; });

// Where the tip goes, in pixels from the pointer.
constexpr double SottoIlPuntatore = 12;
constexpr double ASinistraDelPuntatore = 19;

constexpr Colore ColoreOrizzontale = 65535;   // yellow
constexpr Colore ColoreVerticale = 12632064;  // blue-green

// The look-back from a white cell where no word starts.
Indicazione GuardaIndietro(Casella casella, bool altoDestra) {
  auto [c, r] = casella;
  bool orizzontale = altoDestra;
  if (r == 1) orizzontale = false;
  if (c == 1) orizzontale = true;
  if (orizzontale && c > 1) --c;
  if (!orizzontale && r > 1) --r;

  const Casella indietro{c, r};
  if (orizzontale && IniziaParola(indietro, Orizzontale))
    return {Indicazione::Parola, indietro, Orizzontale};
  if (TipoCasella(c, r) == 0) return {Indicazione::Neutra, indietro};
  if (c == 1)
    return {TipoCasella(2, r) == 0 ? Indicazione::Neutra : Indicazione::Invariata, indietro};
  if (!orizzontale && IniziaParola(indietro, Verticale))
    return {Indicazione::Parola, indietro, Verticale};
  if (r == 1 && TipoCasella(c, 2) == 0) return {Indicazione::Neutra, indietro};
  return {Indicazione::Invariata, indietro};
}

void VaiNeutro() {
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  LaFinestra().TogliLabel1();
  LaFinestra().NascondiShape1();
}

void MostraStrumento(std::string_view nome, double x, double y) {
  LaFinestra().ScriviLabel1(nome);
  LaFinestra().CollocaLabel1(x, y + SottoIlPuntatore);
}

void MostraSuggerimento(const Slot& slot, double x, double y) {
  const auto& [c, r] = slot.inizio;
  const char* direzione = slot.direzione == Orizzontale ? " oriz. -" : " vert. -";
  const double larghezza = LaFinestra().ScriviLabel1(
      Unisci("  ", NumeroCasella(c, r), direzione, Definizione(c, r, slot.direzione), ' '));
  const Superficie* superficie = FinestraPrincipale();
  const double usabile = superficie ? superficie->LarghezzaSuperficie() : 0;
  const double sinistra =
      x + larghezza <= usabile ? x - ASinistraDelPuntatore : usabile - 1 - larghezza;
  LaFinestra().CollocaLabel1(sinistra, y + SottoIlPuntatore);
}

void MostraRettangolo(const Slot& slot) {
  const double lungo = slot.lunghezza * LatoCasella - 2;
  const double corto = LatoCasella - 2;
  const bool orizzontale = slot.direzione == Orizzontale;
  LaFinestra().MostraShape1(
      {.sinistra = GeometriaDelloSchema().BordoSinistro(slot.inizio.colonna) + 1,
       .cima = GeometriaDelloSchema().BordoAlto(slot.inizio.riga) + 1,
       .larghezza = orizzontale ? lungo : corto,
       .altezza = orizzontale ? corto : lungo,
       .colore = orizzontale ? ColoreOrizzontale : ColoreVerticale});
}

void MostraParola(const Slot& slot, double x, double y) {
  ImpostaPuntatoreMouse(slot.direzione == Orizzontale ? PuntatoreOrizzontale : PuntatoreVerticale);
  MostraSuggerimento(slot, x, y);
  if (RettangoloParola) MostraRettangolo(slot);
}

void PassaSuUnaCasella(Casella casella, double x, double y) {
  const bool altoDestra = y - GeometriaDelloSchema().BordoAlto(casella.riga) <=
                          x - GeometriaDelloSchema().BordoSinistro(casella.colonna);
  const Indicazione indicazione = IndicazioneDa(casella, altoDestra);
  MouseCol = indicazione.casella.colonna;
  MouseRiga = indicazione.casella.riga;
  if (indicazione.specie == Indicazione::Neutra) VaiNeutro();
  if (indicazione.specie == Indicazione::Parola)
    MostraParola(SlotDa(indicazione.casella, indicazione.direzione), x, y);
}

}  // namespace

Casella CasellaSotto(double x, double y) {
  const auto indice = [](double coordinata, int origine) {
    return coordinata < origine ? 0 : ArrotondaPari(coordinata - origine) / LatoCasella + 1;
  };
  return {indice(x, OrigineX), indice(y, OrigineY)};
}

Indicazione IndicazioneDa(Casella casella, bool altoDestra) {
  switch (TipoCasella(casella.colonna, casella.riga)) {
    case 0:
      return {Indicazione::Neutra, casella};
    case 2:
      return {Indicazione::Parola, casella, Orizzontale};
    case 3:
      return {Indicazione::Parola, casella, Verticale};
    case 5:
      return {Indicazione::Parola, casella, altoDestra ? Orizzontale : Verticale};
    default:
      return GuardaIndietro(casella, altoDestra);
  }
}

void PassaSullaSuperficie(double x, double y) {
  if (PuntatoreMouse == PuntatoreMano) ImpostaPuntatoreMouse(PuntatoreFreccia);
  if (StrumentoAttivo() == Strumento::CasellaBianca)
    return MostraStrumento(" Casella bianca ", x, y);
  if (StrumentoAttivo() == Strumento::CasellaNera) return MostraStrumento(" Casella nera ", x, y);
  if (ModoGriglia != ModoModifica) return LaFinestra().TogliLabel1();
  if (LatoCasella == 0) return;
  const Casella casella = CasellaSotto(x, y);
  if (NelloSchema(casella)) return PassaSuUnaCasella(casella, x, y);
  MouseCol = casella.colonna;
  MouseRiga = casella.riga;
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  LaFinestra().TogliLabel1();
}

void PassaSuToolbar1() {
  LaFinestra().TogliLabel1();
  const bool tenuto = PuntatoreMouse == PuntatoreMano || StrumentoAttivo() != Strumento::Nessuno;
  if (!tenuto && PuntatoreMouse != PuntatoreFreccia) ImpostaPuntatoreMouse(PuntatoreFreccia);
}

}  // namespace telarium
