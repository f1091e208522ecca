#include "crossworddialogs/crossword_preview.h"

#include <algorithm>
#include <array>
#include <vector>

#include "crossworddialogs/grid_preview.h"
#include "editor/cell_drawing.h"
#include "model/crossword_file.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double Margine = 10;  // both sides together
constexpr double MinCorpo = 5;  // points

// A crossword file as far as a preview shows it.
struct FileLetto {
  std::array<std::string, RigheIntestazione> intestazione;
  Dimensioni dimensioni;
  std::vector<std::string> caselle;  // a text per row, a character per cell
};

std::string_view Dal(std::string_view riga, std::size_t carattere) {
  return riga.substr(std::min(carattere - 1, riga.size()));
}

bool Mostrabile(char carattere) {
  return carattere == CellaNera || carattere == CellaVuota ||
         (carattere >= 'A' && carattere <= 'Z');
}

// The cell characters of a grid line; none when one is no cell that a preview shows.
std::optional<std::string> Caselle(std::string_view riga, int colonne) {
  const auto schema = RigaDiSchema(riga);
  if (!schema) return std::nullopt;
  std::string caselle;
  for (std::size_t p = 0; p < schema->size() && std::ssize(caselle) < colonne; p += 2)
    caselle += (*schema)[p];
  if (!std::all_of(caselle.begin(), caselle.end(), Mostrabile)) return std::nullopt;
  return caselle;
}

// Reads a file for a preview; what is wrong with it otherwise.
std::string_view Leggi(const Percorso& nome, FileLetto& file) {
  constexpr std::string_view nonLeggibile = "Errore di lettura del file!";
  std::string contenuto;
  const EsitoLettura esito = LeggiFile(nome, MaxByteCruciverba, contenuto);
  if (esito == EsitoLettura::Assente) return "Nessun file di cruciverba trovato!";
  if (esito != EsitoLettura::Letto) return nonLeggibile;
  LettoreDiRighe righe(contenuto);
  std::string_view riga;
  for (std::string& testo : file.intestazione) {
    if (!righe.Prossima(riga)) return "Formato del file non valido!";
    testo = riga;
  }
  const auto dimensioni = DimensioniDichiarate(file.intestazione.back());
  if (!dimensioni) return "Formato del file non valido!";
  file.dimensioni = *dimensioni;
  while (std::ssize(file.caselle) < dimensioni->righe) {
    if (!righe.Prossima(riga)) return nonLeggibile;
    const auto caselle = Caselle(riga, dimensioni->colonne);
    if (!caselle) return "Tipo di file non valido!";
    file.caselle.push_back(*caselle);
  }
  return {};
}

void DisegnaCasella(Superficie& superficie, const AnteprimaDiSchema& anteprima, int colonna,
                    int riga, char carattere) {
  anteprima.Contorno(colonna, riga);
  if (carattere == CellaNera) {
    anteprima.Nera(colonna, riga, ColoreCasella(colonna, riga));
  } else if (carattere != CellaVuota) {
    ScriviLettera(superficie, anteprima.CentroX(colonna), anteprima.CentroY(riga), anteprima.Lato(),
                  carattere);
  }
}

void Disegna(Superficie& superficie, const FileLetto& file) {
  const auto [colonne, righe] = file.dimensioni;
  const AnteprimaDiSchema anteprima(superficie, colonne, righe, Margine);
  superficie.Carattere("Arial");
  superficie.CorpoCarattere(
      std::max<double>(ArrotondaPari(CorpoLettere(anteprima.Lato(), 0)), MinCorpo));
  for (int r = 1; r <= righe; ++r) {
    const std::string& caselle = file.caselle[static_cast<std::size_t>(r) - 1];
    for (int c = 1; c <= static_cast<int>(caselle.size()); ++c)
      DisegnaCasella(superficie, anteprima, c, r, caselle[static_cast<std::size_t>(c) - 1]);
  }
}

}  // namespace

DatiAnteprima MostraAnteprima(const Percorso& file, Superficie& superficie) {
  superficie.Pulisci();
  FileLetto letto;
  if (const std::string_view difetto = Leggi(file, letto); !difetto.empty()) {
    Avvisa(difetto);
    return {};
  }
  Disegna(superficie, letto);
  const auto& [autore, data, tipo, dimensioni] = letto.intestazione;
  return {.autoreDataTipo = Unisci(Dal(autore, 13), " - ", Dal(data, 14), " - ", Dal(tipo, 14)),
          .dimensioni = std::string(Dal(dimensioni, 14))};
}

}  // namespace telarium
