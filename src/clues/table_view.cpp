#include "clues/table_view.h"

#include "clues/clue_family.h"
#include "clues/clue_search.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "model/pointer.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

void AggiungiDidascalie(std::vector<VoceDefinizione>& voci, std::string_view specie,
                        const std::string& famiglia) {
  for (const std::string_view definizione : DefinizioniDellaFamiglia(famiglia)) {
    const int numero = static_cast<int>(voci.size()) + 1;
    voci.push_back({Unisci(DueCifre(numero), "-(", specie, ") ", definizione),
                    std::string(SenzaSpazi(definizione))});
  }
}

}  // namespace

void ApriTabella() {
  if (NumColonne == 0) return;
  ModoGriglia = ModoTabella;
  LaFinestra().TogliLabel1();
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  LaFinestra().MostraModale(Modale::TelarBro);
}

std::string TitoloTabella() {
  return Unisci("Telarium - Cruciverba ", NumColonne, 'x', NumRighe, "  ",
                TestoPercorso(NomeCruciverba));
}

std::vector<Slot> ParoleDellaTabella() {
  std::vector<Slot> parole;
  PerOgniParola([&](const Slot& slot) { parole.push_back(slot); });
  return parole;
}

std::string SiglaParola(const Slot& slot) {
  return Unisci(NumeroCasella(slot.inizio.colonna, slot.inizio.riga), '-',
                slot.direzione == Orizzontale ? 'O' : 'V');
}

std::string SiglaEstesa(const Slot& slot) {
  return SiglaParola(slot) + (slot.direzione == Orizzontale ? "rizzontale" : "erticale");
}

const std::string& ParolaDi(const Slot& slot) {
  return ParolaCasella(slot.inizio.colonna, slot.inizio.riga, slot.direzione);
}

const std::string& DefinizioneDi(const Slot& slot) {
  return Definizione(slot.inizio.colonna, slot.inizio.riga, slot.direzione);
}

bool VariaRiga(const Slot& slot, std::string_view parola, std::string_view definizione) {
  if (!ParolaAccettata(parola, slot.lunghezza)) return false;
  const Clessidra attesa;
  Definizione(slot.inizio.colonna, slot.inizio.riga, slot.direzione) = definizione;
  SchemaModificato = Vero;
  ScriviInSchema(slot, parola);
  RicalcolaParole();
  return true;
}

void RicalcolaParole() {
  if (const Superficie* superficie = FinestraPrincipale()) CalcolaGeometria(*superficie, 0, 0);
  RicalcolaCaselleSenzaNumeri();
}

std::optional<std::vector<VoceDefinizione>> CercaVoci(std::string_view parola) {
  const FormaDelPuntatore mano(PuntatoreMano);
  const auto famiglie = CercaFamiglie(
      parola,
      "La ricerca della definizione è possibile solo su una parola completa di almeno 2 caratteri."_cp);
  if (!famiglie) return std::nullopt;
  std::vector<VoceDefinizione> voci;
  AggiungiDidascalie(voci, "Facile", famiglie->facili);
  AggiungiDidascalie(voci, "Diffic", famiglie->difficili);
  return voci;
}

void CopiaCruciverba::Ripristina() const {
  Schema = schema_;
  Definizione = definizione_;
}

}  // namespace telarium
