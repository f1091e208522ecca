#include "clues/small_grid.h"

#include <algorithm>

#include "editor/grid_preview.h"
#include "editor/redraw.h"
#include "editor/settings.h"
#include "platform/platform.h"

namespace telarium {
namespace {

constexpr double Margine = 10;             // both sides together
constexpr double MinCorpo = 6;             // points
constexpr double CaselleDiUnNumero = 5.5;  // type sizes of a number in the side of a cell
// One line would hardly be seen on the light ground: so many inside each other, one for each so
// many units of a cell.
constexpr int MaxLinee = 3;
constexpr int LatoPerLinea = 8;

void PrendiCarattereDellaFinestra(Superficie& superficie) {
  superficie.Carattere(FontDelleLettere());
  const Superficie* finestra = FinestraPrincipale();
  if (!finestra) return;
  superficie.Grassetto(finestra->Grassetto());
  superficie.Corsivo(finestra->Corsivo());
}

template <class Visita>
void PerOgniCasella(const Derivati& derivati, Visita visita) {
  for (int r = 1; r <= derivati.Righe(); ++r) {
    for (int c = 1; c <= derivati.Colonne(); ++c)
      visita(c, r);
  }
}

void DisegnaCaselle(Superficie& superficie, const Derivati& derivati,
                    const AnteprimaDiSchema& schema) {
  superficie.CorpoCarattere(CorpoLettere(schema.Lato(), MinCorpo));
  PerOgniCasella(derivati, [&](int c, int r) {
    const char carattere = derivati.Carattere({c, r});
    schema.Casella(c, r, carattere, ColoreNero, [&](double x, double y) {
      ScriviLettera(superficie, x, y, schema.Lato(), carattere);
    });
  });
}

void DisegnaNumeri(Superficie& superficie, const Derivati& derivati,
                   const AnteprimaDiSchema& schema) {
  superficie.CorpoCarattere(schema.Lato() / CaselleDiUnNumero);
  const double distanza = LatoCasella / 100.0 * DistanzaDaSpigolo;
  PerOgniCasella(derivati, [&](int c, int r) {
    const int numero = derivati.Numero({c, r});
    if (numero == 0) return;
    ScriviNumero(superficie, schema.BordoSinistro(c), schema.BordoAlto(r), distanza, numero);
  });
}

void Evidenzia(Superficie& superficie, const AnteprimaDiSchema& schema, const Slot& slot) {
  const Casella prima = slot.Cella(1);
  const Casella ultima = slot.Cella(slot.lunghezza);
  const int linee = std::clamp(schema.Lato() / LatoPerLinea, 1, MaxLinee);
  for (int i = 0; i < linee; ++i) {
    superficie.Riquadro(schema.BordoSinistro(prima.colonna) + i, schema.BordoAlto(prima.riga) + i,
                        schema.BordoSinistro(ultima.colonna + 1) - i,
                        schema.BordoAlto(ultima.riga + 1) - i, ColoreGiallo);
  }
}

}  // namespace

void EsigiSchemaSemplice(const Derivati& derivati) {
  bool semplice = true;
  PerOgniCasella(derivati, [&](int c, int r) {
    semplice = semplice && CarattereSemplice(derivati.Carattere({c, r}));
  });
  if (semplice) return;
  Avvisa("Tipo di file non valido: Esecuzione terminata!");
  TerminaProgramma();
}

void DisegnaSchemaPiccolo(Superficie& superficie, const Derivati& derivati, const Slot* evidente) {
  superficie.Pulisci();
  if (derivati.Colonne() == 0) return;
  const AnteprimaDiSchema schema(superficie, derivati.Colonne(), derivati.Righe(), Margine,
                                 AnteprimaDiSchema::Misura::Troncata);
  if (schema.Lato() == 0) return;
  PrendiCarattereDellaFinestra(superficie);
  DisegnaCaselle(superficie, derivati, schema);
  DisegnaNumeri(superficie, derivati, schema);
  if (evidente) Evidenzia(superficie, schema, *evidente);
}

}  // namespace telarium
