#include "clues/table_view.h"

#include "clues/clue_family.h"
#include "clues/clue_search.h"
#include "editor/main_window.h"
#include "editor/redraw.h"
#include "model/crossword_file.h"
#include "model/documento.h"
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

BozzaDiTabella::BozzaDiTabella(Cruciverba cruciverba)
    : cruciverba_(std::move(cruciverba)), derivati_(Deriva(cruciverba_)) {}

std::string BozzaDiTabella::Sigla(const Slot& slot) const {
  return Unisci(derivati_.Numero(slot.inizio), '-', slot.direzione == Orizzontale ? 'O' : 'V');
}

std::string BozzaDiTabella::SiglaEstesa(const Slot& slot) const {
  return Sigla(slot) + (slot.direzione == Orizzontale ? "rizzontale" : "erticale");
}

const std::string& BozzaDiTabella::DefinizioneDi(const Slot& slot) const {
  return cruciverba_.definizioni(slot.inizio.colonna, slot.inizio.riga, slot.direzione);
}

void BozzaDiTabella::Scrivi(const Slot& slot, const ParolaDefinita& testo) {
  const auto [c, r] = slot.inizio;
  cruciverba_.definizioni.Imposta(testo.definizione, c, r, slot.direzione);
  ScriviCaratteri(cruciverba_, slot, testo.parola);
  derivati_ = Deriva(cruciverba_);
}

BozzaDiTabella ApriBozza() {
  return BozzaDiTabella(IlDocumento().Valore());
}

bool VariaRiga(BozzaDiTabella& bozza, const Slot& slot, const ParolaDefinita& testo) {
  if (!ParolaAccettata(testo.parola, slot.lunghezza)) return false;
  const Clessidra attesa;
  bozza.Scrivi(slot, testo);
  IlDocumento().SegnaModificato(true);
  if (const Superficie* superficie = FinestraPrincipale())
    ImpostaGeometria(CalcolaGeometria(*superficie, 0, 0));
  return true;
}

void ConfermaBozza(const BozzaDiTabella& bozza) {
  IlDocumento().Modifica("Vista tabellare",
                         [&](Cruciverba& cruciverba) { cruciverba = bozza.Valore(); });
  static_cast<void>(ScriviIstantanea());
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

}  // namespace telarium
