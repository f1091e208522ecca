#include "model/crossword_file.h"

#include <array>
#include <charconv>
#include <utility>

#include "model/words.h"
#include "platform/codepage.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr int Spostamento = 26;  // of the cell characters of a grid line
constexpr std::string_view SegnoColori = "[Colori caselle]";
constexpr std::string_view MessaggioLettura = "Errore di lettura del file!";
constexpr std::string_view MessaggioScrittura = "Errore di scrittura del file!";
constexpr std::string_view NonUnCruciverba =
    "il contenuto non è quello di un cruciverba, o è incompleto"_cp;

// --- Reading. Each step gives false for a read error, whose message is the caller's. ---

bool LeggiRiga(LettoreDiRighe& righe, std::string_view& riga) {
  // A NUL byte is in no text: the file is some other program's.
  return righe.Prossima(riga) && riga.find('\0') == std::string_view::npos;
}

bool LeggiIntestazione(LettoreDiRighe& righe) {
  for (int i = 1; i <= RigheIntestazione; ++i) {
    std::string_view riga;
    if (!LeggiRiga(righe, riga)) return false;
    Schema(i) = riga;
  }
  return true;
}

// Sets the size from line 4; both numbers 0, and false, when it is none that the state has room
// for.
bool PrendiDimensioni() {
  const auto dimensioni = DimensioniDichiarate(Schema(4));
  NumColonne = static_cast<std::int16_t>(dimensioni ? dimensioni->colonne : 0);
  NumRighe = static_cast<std::int16_t>(dimensioni ? dimensioni->righe : 0);
  return dimensioni.has_value();
}

bool LeggiGriglia(LettoreDiRighe& righe) {
  for (int i = 1 + RigheIntestazione; i <= NumRighe + RigheIntestazione; ++i) {
    std::string_view letta;
    if (!LeggiRiga(righe, letta)) return false;
    auto riga = RigaDiSchema(letta);
    if (!riga) return false;
    Schema(i) = std::move(*riga);
  }
  return true;
}

bool PrendiDefinizione(std::string_view riga) {
  const auto numero = [riga](std::size_t da, std::size_t caratteri) {
    return da < riga.size() ? ValoreNumerico(riga.substr(da, caratteri)) : 0;
  };
  const int colonna = numero(0, 3);
  const int rigaGriglia = numero(3, 3);
  const int direzione = numero(6, 1);
  const bool alSuoPosto = colonna >= 1 && colonna <= MaxColonne && rigaGriglia >= 1 &&
                          rigaGriglia <= MaxRighe &&
                          (direzione == Orizzontale || direzione == Verticale);
  if (alSuoPosto) {
    Definizione(colonna, rigaGriglia, direzione) =
        riga.substr(std::min<std::size_t>(8, riga.size()));
  }
  return alSuoPosto;
}

// Reads the clues up to the colour mark, or to the end of a file without one.
bool LeggiDefinizioni(LettoreDiRighe& righe) {
  while (!righe.Finito()) {
    std::string_view riga;
    if (!LeggiRiga(righe, riga)) return false;
    if (riga.size() == SegnoColori.size() && Maiuscole(riga) == Maiuscole(SegnoColori)) return true;
    if (!PrendiDefinizione(riga)) return false;
  }
  return true;
}

// Takes the next number off a stream of numbers between blanks and line ends.
std::optional<Colore> PrendiNumero(std::string_view& resto) {
  resto.remove_prefix(std::min(resto.find_first_not_of(" \r\n"), resto.size()));
  Colore valore = 0;
  const auto [fine, errore] = std::from_chars(resto.data(), resto.data() + resto.size(), valore);
  if (errore != std::errc()) return std::nullopt;
  resto.remove_prefix(static_cast<std::size_t>(fine - resto.data()));
  return valore;
}

void LeggiColori(std::string_view resto) {
  for (int c = 1; c <= NumColonne; ++c) {
    for (int r = 1; r <= NumRighe; ++r) {
      const auto colore = PrendiNumero(resto);
      if (!colore) return;
      ColoreCasella(c, r) = *colore;
    }
  }
}

// --- Writing ---

void AggiungiRiga(std::string& testo, std::string_view riga) {
  testo += riga;
  testo += "\r\n";
}

// A grid line as the file holds it; none when a cell character has no code left after the shift.
std::optional<std::string> RigaSpostata(std::string riga) {
  for (std::size_t p = 0; p < riga.size(); p += 2) {
    if (p + 1 < riga.size()) riga[p + 1] = riga[p] == CellaNera ? CellaNera : CellaVuota;
    const int codice = static_cast<unsigned char>(riga[p]) + Spostamento;
    if (codice > 255) return std::nullopt;
    riga[p] = static_cast<char>(codice);
  }
  return riga;
}

std::string InTreCaratteri(int numero) {
  const std::string cifre = std::to_string(numero);
  return std::string(3 - cifre.size(), ' ') + cifre;
}

// A text as one line of the file, which has no escape for a line break in it and no zero bytes.
std::string InUnaRiga(std::string_view testo) {
  std::string riga = SenzaInterruzioni(testo);
  std::replace(riga.begin(), riga.end(), '\0', ' ');
  return riga;
}

void AggiungiDefinizioni(std::string& testo) {
  for (int c = 1; c <= NumColonne; ++c) {
    for (int r = 1; r <= NumRighe; ++r) {
      for (const int d : Direzioni) {
        const std::string& definizione = Definizione(c, r, d);
        if (definizione.empty() || !IniziaParola({c, r}, d)) continue;
        AggiungiRiga(testo,
                     Unisci(InTreCaratteri(c), InTreCaratteri(r), d, '-', InUnaRiga(definizione)));
      }
    }
  }
}

void AggiungiColori(std::string& testo) {
  AggiungiRiga(testo, SegnoColori);
  for (int c = 1; c <= NumColonne; ++c) {
    for (int r = 1; r <= NumRighe; ++r)
      testo += FormaDiStampa(ColoreCasella(c, r));
    testo += "\r\n";
  }
}

// Tells that the contents are no crossword. `nome` is empty when they are not those of a file.
void AvvisaContenuto(const Percorso& nome) {
  Avvisa(ConCausa(MessaggioLettura, nome, nome.empty() ? std::string_view() : NonUnCruciverba));
}

// Takes the header and the size; a failure has been told.
bool PrendiIntestazione(LettoreDiRighe& righe, const Percorso& nome) {
  if (!LeggiIntestazione(righe)) {
    AvvisaContenuto(nome);
    return false;
  }
  if (!PrendiDimensioni()) {
    Avvisa("Formato del file non valido! Esecuzione terminata");
    return false;
  }
  return true;
}

// Takes what follows the header; a failure has been told.
bool PrendiCorpo(LettoreDiRighe& righe, const Percorso& nome) {
  if (!LeggiGriglia(righe) || !LeggiDefinizioni(righe)) {
    AvvisaContenuto(nome);
    return false;
  }
  LeggiColori(righe.Resto());
  return true;
}

// The header and the size as they are, to put them back.
class CopiaIntestazione {
 public:
  void Ripristina() const {
    for (int i = 1; i <= RigheIntestazione; ++i)
      Schema(i) = righe_[static_cast<std::size_t>(i) - 1];
    NumColonne = colonne_;
    NumRighe = numRighe_;
  }

 private:
  std::array<std::string, RigheIntestazione> righe_ = {Schema(1), Schema(2), Schema(3), Schema(4)};
  std::int16_t colonne_ = NumColonne;
  std::int16_t numRighe_ = NumRighe;
};

// Reads a file; what fails is told, but for a missing one.
EsitoLettura LeggiOAvvisa(const Percorso& nome, std::string& contenuto) {
  std::error_code errore;
  const EsitoLettura esito = LeggiFile(nome, MaxByteCruciverba, contenuto, errore);
  if (esito != EsitoLettura::Letto && esito != EsitoLettura::Assente)
    Avvisa(ConCausa(MessaggioLettura, nome, errore));
  return esito;
}

bool LeggiDa(const Percorso& percorso, const Percorso& nomeMostrato) {
  std::string contenuto;
  const EsitoLettura esito = LeggiOAvvisa(percorso, contenuto);
  if (esito == EsitoLettura::Assente) TerminaSenzaCruciverba(nomeMostrato);
  return esito == EsitoLettura::Letto && InterpretaCruciverba(contenuto, percorso);
}

// Writes the crossword; why that was not possible, empty when it was.
std::string Scrivi(const Percorso& percorso, Permanenza permanenza) {
  const auto testo = TestoDelCruciverba();
  if (!testo) return std::string(CruciverbaNonScrivibile);
  const auto errore = ScriviFile(percorso, *testo, permanenza);
  return errore ? DescrizioneErrore(errore) : std::string();
}

// True when nothing has failed, else it has been told.
bool Riferisci(const Percorso& percorso, const std::string& causa) {
  if (!causa.empty()) Avvisa(ConCausa(MessaggioScrittura, percorso, causa));
  return causa.empty();
}

bool istantaneaSuperata = false;

// Writes the snapshot; why that was not possible, empty when it was.
std::string FallimentoDellIstantanea() {
  std::string causa = Scrivi(PercorsoIstantanea(), Permanenza::Provvisoria);
  istantaneaSuperata = !causa.empty();
  return causa;
}

const AzzeramentoDiSottosistema azzeramento([] { istantaneaSuperata = false; });

}  // namespace

std::optional<Dimensioni> DimensioniDichiarate(std::string_view riga4) {
  const auto dal = [riga4](std::size_t carattere) {
    return ValoreNumerico(riga4.substr(std::min(LunghezzaEtichetta + carattere, riga4.size())));
  };
  const Dimensioni dimensioni{dal(0), dal(3)};
  const auto [colonne, righe] = dimensioni;
  const bool valide = colonne >= 1 && colonne <= MaxColonne && righe >= 1 && righe <= MaxRighe;
  return valide ? std::optional(dimensioni) : std::nullopt;
}

std::optional<std::string> RigaDiSchema(std::string_view riga) {
  std::string schema(riga);
  for (std::size_t p = 0; p < schema.size(); p += 2) {
    const int codice = static_cast<unsigned char>(schema[p]) - Spostamento;
    if (codice < 0) return std::nullopt;
    schema[p] = static_cast<char>(codice);
  }
  return schema;
}

std::optional<std::string> TestoDelCruciverba() {
  std::string testo;
  for (int i = 1; i <= NumRighe + RigheIntestazione; ++i) {
    const auto riga = i > RigheIntestazione ? RigaSpostata(Schema(i)) : InUnaRiga(Schema(i));
    if (!riga) return std::nullopt;
    AggiungiRiga(testo, *riga);
  }
  AggiungiDefinizioni(testo);
  AggiungiColori(testo);
  if (testo.size() > MaxByteCruciverba) return std::nullopt;  // it could not be read again
  return testo;
}

bool InterpretaCruciverba(std::string_view contenuto, const Percorso& nome) {
  LettoreDiRighe righe(contenuto);
  return PrendiIntestazione(righe, nome) && PrendiCorpo(righe, nome);
}

bool LeggiCruciverba(const Percorso& nome) {
  return LeggiDa(CartellaProgramma / nome, nome);
}

void TerminaSenzaCruciverba(const Percorso& nome) {
  Avvisa(
      Unisci("Errore: Cruciverba  ", TestoPercorso(nome), "  Non trovato! Esecuzione terminata."),
      "Telarium", Icona::Informazione);
  TerminaProgramma();
}

Apertura ApriCruciverba(const Percorso& nome) {
  std::string contenuto;
  const EsitoLettura esito = LeggiOAvvisa(nome, contenuto);
  if (esito == EsitoLettura::Assente) return Apertura::Assente;
  if (esito != EsitoLettura::Letto) return Apertura::Rifiutata;
  return ApriTestoDiCruciverba(contenuto, nome);
}

Apertura ApriTestoDiCruciverba(std::string_view contenuto, const Percorso& nome) {
  LettoreDiRighe righe(contenuto);
  const CopiaIntestazione prima;
  if (!PrendiIntestazione(righe, nome)) {
    prima.Ripristina();
    return Apertura::Rifiutata;
  }
  SvuotaCruciverba();
  return PrendiCorpo(righe, nome) ? Apertura::Intera : Apertura::Parziale;
}

bool ScriviCruciverba(const Percorso& nome) {
  return Riferisci(nome, Scrivi(nome, Permanenza::SulDisco));
}

bool LetteraScrivibile(char carattere) {
  const int codice = static_cast<unsigned char>(carattere);
  return codice > ' ' && codice != 0x7F && codice + Spostamento <= 255 && carattere != CellaNera &&
         carattere != CellaVuota;
}

bool LeggiIstantanea() {
  return LeggiDa(PercorsoIstantanea(), NomeIstantanea);
}

bool ScriviIstantanea() {
  return Riferisci(PercorsoIstantanea(), FallimentoDellIstantanea());
}

bool IstantaneaSuperata() {
  return istantaneaSuperata;
}

void EliminaIstantanea() {
  std::error_code ignorato;
  std::filesystem::remove(PercorsoIstantanea(), ignorato);
}

bool AggiornaIstantanea() {
  return FallimentoDellIstantanea().empty();
}

void ScriviDimensioni(int colonne, int righe) {
  Schema(4).resize(LunghezzaEtichetta, ' ');
  Schema(4) += Unisci(DueCifre(colonne), 'x', DueCifre(righe));
}

}  // namespace telarium
