#include "crossworddialogs/crossword_preview.h"

#include <algorithm>

#include "editor/grid_preview.h"
#include "model/crossword_reader.h"
#include "model/state.h"
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
  std::string caselle;
  for (std::size_t p = 0; p < riga.size() && std::ssize(caselle) < colonne; p += 2)
    caselle += riga[p];
  if (!std::all_of(caselle.begin(), caselle.end(), CarattereSemplice)) return std::nullopt;
  return caselle;
}

// Takes the rows that were read, in their order; false when one cannot be shown.
bool PrendiCaselle(const LetturaDelFile& lettura, AnteprimaCruciverba& anteprima) {
  const auto& [cruciverba, finoA, guasto] = lettura;
  const bool interrotta = guasto && guasto->parte == ParteDelFile::Griglia;
  const int lette = interrotta ? guasto->riga - RigheIntestazione - 1 : cruciverba.righe;
  for (int r = 0; r < lette; ++r) {
    auto caselle = Caselle(*cruciverba.griglia[static_cast<std::size_t>(r)], cruciverba.colonne);
    if (!caselle) return false;
    anteprima.caselle.push_back(std::move(*caselle));
  }
  return !interrotta || guasto->motivo == FineDelFile;
}

// Takes a preview from the contents of a file; what is wrong with them otherwise.
std::string_view Interpreta(std::string_view contenuto, AnteprimaCruciverba& anteprima) {
  const LetturaDelFile lettura = LeggiContenuto(contenuto);
  if (lettura.finoA < ParteDelFile::Griglia) return "Formato del file non valido!";
  if (!PrendiCaselle(lettura, anteprima)) return "Tipo di file non valido!";
  if (lettura.finoA == ParteDelFile::Griglia && lettura.guasto) return NonLeggibile;
  const auto& [autore, data, tipo, dimensioni] = *lettura.cruciverba.intestazione;
  anteprima.misure = {lettura.cruciverba.colonne, lettura.cruciverba.righe};
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
  return ConCausa(difetto, nome, difetto == NonLeggibile ? FineDelFile : "");
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
