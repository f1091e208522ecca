#include "crossworddialogs/crossword_preview.h"

#include <algorithm>
#include <array>

#include "editor/grid_preview.h"
#include "model/words.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view NonLeggibile = "Errore di lettura del file!";
constexpr double Margine = 10;             // both sides together
constexpr std::size_t MaxCaratteri = 200;  // of a text beside the picture
constexpr std::size_t MaxDimensioni = 20;

// What stands in a header line from that character on, counted from 0.
std::string Dal(std::string_view riga, std::size_t carattere, std::size_t massimo = MaxCaratteri) {
  return std::string(riga.substr(std::min(carattere, riga.size()), massimo));
}

// The cell characters of a grid line; none when one is no cell that a preview shows.
std::optional<std::string> Caselle(std::string_view riga, int colonne) {
  const auto schema = RigaDiSchema(riga);
  if (!schema) return std::nullopt;
  std::string caselle;
  for (std::size_t p = 0; p < schema->size() && std::ssize(caselle) < colonne; p += 2)
    caselle += (*schema)[p];
  if (!std::all_of(caselle.begin(), caselle.end(), CarattereSemplice)) return std::nullopt;
  return caselle;
}

// Takes a preview from the contents of a file; what is wrong with them otherwise.
std::string_view Interpreta(std::string_view contenuto, AnteprimaCruciverba& anteprima) {
  constexpr std::string_view formato = "Formato del file non valido!";
  LettoreDiRighe righe(contenuto);
  std::array<std::string_view, RigheIntestazione> intestazione;
  for (std::string_view& riga : intestazione)
    if (!righe.Prossima(riga)) return formato;
  const auto& [autore, data, tipo, dimensioni] = intestazione;
  const auto misure = DimensioniDichiarate(dimensioni);
  if (!misure) return formato;
  anteprima.misure = *misure;
  for (int r = 1; r <= misure->righe; ++r) {
    std::string_view riga;
    if (!righe.Prossima(riga)) return NonLeggibile;
    const auto caselle = Caselle(riga, misure->colonne);
    if (!caselle) return "Tipo di file non valido!";
    anteprima.caselle.push_back(*caselle);
  }
  // The author's data begin with the blank of the label.
  anteprima.autoreDataTipo =
      Unisci(Dal(autore, LunghezzaEtichetta - 1), " - ", Dal(data, LunghezzaEtichetta), " - ",
             Dal(tipo, LunghezzaEtichetta));
  anteprima.dimensioni = Dal(dimensioni, LunghezzaEtichetta, MaxDimensioni);
  return {};
}

// As Interpreta, with the file's name and the cause behind a message that has none.
std::string Difetto(const Percorso& nome, std::string_view contenuto,
                    AnteprimaCruciverba& anteprima) {
  const std::string_view difetto = Interpreta(contenuto, anteprima);
  return ConCausa(difetto, nome,
                  difetto == NonLeggibile ? "il file finisce prima dello schema" : "");
}

// Reads a file into a preview; the message about what is wrong otherwise.
std::string Leggi(const Percorso& nome, AnteprimaCruciverba& anteprima) {
  std::string contenuto;
  std::error_code errore;
  switch (LeggiFile(nome, MaxByteCruciverba, contenuto, errore)) {
    case EsitoLettura::Letto:
      return Difetto(nome, contenuto, anteprima);
    case EsitoLettura::Assente:
      return ConCausa("Nessun file di cruciverba trovato!", nome,
                      nome.filename().empty() ? std::error_code() : errore);
    default:
      return ConCausa(NonLeggibile, nome, errore);
  }
}

}  // namespace

std::optional<AnteprimaCruciverba> LeggiAnteprima(const Percorso& file) {
  AnteprimaCruciverba anteprima;
  const std::string difetto = Leggi(file, anteprima);
  if (difetto.empty()) return anteprima;
  Avvisa(difetto);
  return std::nullopt;
}

void DisegnaAnteprima(const AnteprimaCruciverba& anteprima, Superficie& superficie) {
  superficie.Pulisci();
  const auto [colonne, righe] = anteprima.misure;
  const AnteprimaDiSchema schema(superficie, colonne, righe, Margine);
  superficie.Carattere(CarattereIniziale);
  superficie.CorpoCarattere(CorpoLettereIntero(schema.Lato()));
  for (int r = 1; r <= righe; ++r) {
    const std::string& caselle = anteprima.caselle[static_cast<std::size_t>(r) - 1];
    for (int c = 1; c <= static_cast<int>(caselle.size()); ++c) {
      const char carattere = caselle[static_cast<std::size_t>(c) - 1];
      schema.Casella(c, r, carattere, ColoreCasella(c, r), [&](double x, double y) {
        ScriviLettera(superficie, x, y, schema.Lato(), carattere);
      });
    }
  }
}

}  // namespace telarium
