#include "crossworddialogs/new_crossword.h"

#include "crossworddialogs/model_file.h"
#include "model/crossword_file.h"
#include "model/documento.h"
#include "model/state.h"
#include "platform/platform.h"

namespace telarium {
namespace {

bool Ammesso(int celle, int massimo) {
  return celle >= MinCelle && celle <= massimo;
}

void AvvisaDimensione(std::string_view quali, int massimo) {
  ChiUsa().SegnaleAcustico();
  Avvisa(Unisci("Numero caselle ", quali, " consentito da ", MinCelle, " a ", massimo, '.'));
}

// The header of a new crossword, with today's date.
Intestazione IntestazioneNuova() {
  return {"Autore     : Zanotti Graziella", "Data       : " + DataDiOggi(),
          "Tipo       : Crociate Normale", "Dimensioni : "};
}

// Opens the new crossword of which `riga` makes the grid lines, r from 1, once the snapshot can
// hold it.
template <class Riga>
EsitoNuovo Finisci(int colonne, int righe, Riga riga) {
  Cruciverba nuovo;
  nuovo.intestazione = IntestazioneNuova();
  Ridimensiona(nuovo, colonne, righe);
  for (int r = 1; r <= righe; ++r)
    nuovo.griglia[static_cast<std::size_t>(r) - 1] = riga(r);
  if (!ScriviIstantanea(nuovo)) return EsitoNuovo::NonScritto;
  IlDocumento().Sostituisci("Nuovo cruciverba",
                            {std::move(nuovo), SoloNome(NomeMaiSalvato), false});
  return EsitoNuovo::Fatto;
}

// A model's row as a line of Schema: each character twice.
std::string Raddoppiata(std::string_view riga) {
  std::string doppia;
  for (const char c : riga)
    doppia.append(2, c);
  return doppia;
}

}  // namespace

EsitoNuovo NuovoVuoto(int colonne, int righe) {
  if (!Ammesso(colonne, MaxColonne)) {
    AvvisaDimensione("orizzontali", MaxColonne);
    return EsitoNuovo::ColonneRifiutate;
  }
  if (!Ammesso(righe, MaxRighe)) {
    AvvisaDimensione("verticali", MaxRighe);
    return EsitoNuovo::RigheRifiutate;
  }
  return Finisci(colonne, righe, [colonne](int) {
    return std::string(2 * static_cast<std::size_t>(colonne), CellaVuota);
  });
}

EsitoNuovo NuovoDaModello(const Percorso& fileModelli, int numero) {
  std::vector<Modello> modelli;
  if (!CaricaModelli(fileModelli, modelli)) return EsitoNuovo::ModelloRifiutato;
  if (numero < 0 || numero >= static_cast<int>(modelli.size())) return EsitoNuovo::ModelloAssente;
  const Modello& modello = modelli[static_cast<std::size_t>(numero)];
  if (modello.empty()) return EsitoNuovo::ModelloAssente;
  EsigiModelloValido(modello);
  if (modello.front().size() > MaxColonne || modello.size() > MaxRighe) {
    Avvisa(Unisci("Il modello supera le dimensioni massime di ", MaxColonne, " colonne e ",
                  MaxRighe, " righe."));
    return EsitoNuovo::ModelloRifiutato;
  }
  return Finisci(static_cast<int>(modello.front().size()), static_cast<int>(modello.size()),
                 [&](int r) { return Raddoppiata(modello[static_cast<std::size_t>(r) - 1]); });
}

}  // namespace telarium
