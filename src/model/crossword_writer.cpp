#include "model/crossword_writer.h"

#include <algorithm>

#include "model/derivation.h"
#include "platform/text.h"

namespace telarium {
namespace {

void AggiungiRiga(std::string& testo, std::string_view riga) {
  testo += riga;
  testo += "\r\n";
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

// False when a cell has a character that the file cannot hold.
bool AggiungiGriglia(std::string& testo, const Cruciverba& cruciverba) {
  for (std::size_t r = 0; r < static_cast<std::size_t>(cruciverba.righe); ++r) {
    const bool presente = r < cruciverba.griglia.size();
    const auto riga = RigaDelFile(presente ? *cruciverba.griglia[r] : std::string());
    if (!riga) return false;
    AggiungiRiga(testo, *riga);
  }
  return true;
}

// The clues stand in the file in the order in which the table has them.
void AggiungiDefinizioni(std::string& testo, const Cruciverba& cruciverba) {
  const Derivati derivati = Deriva(cruciverba);
  cruciverba.definizioni.PerOgni([&](const std::string& definizione, int c, int r, int d) {
    if (!derivati.Dentro({c, r}) || !derivati.Inizia({c, r}, d)) return;
    AggiungiRiga(testo,
                 Unisci(InTreCaratteri(c), InTreCaratteri(r), d, '-', InUnaRiga(definizione)));
  });
}

void AggiungiColori(std::string& testo, const Cruciverba& cruciverba) {
  AggiungiRiga(testo, SegnoColori);
  for (int c = 1; c <= cruciverba.colonne; ++c) {
    for (int r = 1; r <= cruciverba.righe; ++r)
      testo += FormaDiStampa(cruciverba.colori(c, r));
    testo += "\r\n";
  }
}

void AllineaSegni(Cruciverba& cruciverba) {
  cruciverba.griglia.resize(static_cast<std::size_t>(cruciverba.righe));
  for (Condiviso<std::string>& riga : cruciverba.griglia) {
    std::string allineata = ConSegni(*riga);
    if (allineata != *riga) riga = std::move(allineata);
  }
}

void UnisciIntestazione(Cruciverba& cruciverba) {
  Intestazione unita = *cruciverba.intestazione;
  for (std::string& riga : unita)
    riga = InUnaRiga(riga);
  if (unita != *cruciverba.intestazione) cruciverba.intestazione = std::move(unita);
}

// Three quick searches for one character each: every change looks through all clues.
bool Interrotto(const std::string& testo) {
  constexpr std::string_view interruzioni("\r\n\0", 3);
  return std::any_of(interruzioni.begin(), interruzioni.end(), [&](char interruzione) {
    return testo.find(interruzione) != std::string::npos;
  });
}

void UnisciDefinizioni(Cruciverba& cruciverba) {
  std::vector<InizioDiParola> interrotte;
  cruciverba.definizioni.PerOgni([&](const std::string& definizione, int c, int r, int d) {
    if (Interrotto(definizione)) interrotte.push_back({{c, r}, d});
  });
  if (interrotte.empty()) return;
  const Derivati derivati = Deriva(cruciverba);
  for (const auto& [casella, d] : interrotte) {
    if (!derivati.Dentro(casella) || !derivati.Inizia(casella, d)) continue;
    const auto [c, r] = casella;
    cruciverba.definizioni.Imposta(InUnaRiga(cruciverba.definizioni(c, r, d)), c, r, d);
  }
}

}  // namespace

void ComeNelFile(Cruciverba& cruciverba) {
  AllineaSegni(cruciverba);
  UnisciIntestazione(cruciverba);
  UnisciDefinizioni(cruciverba);
}

std::optional<std::string> ContenutoDelFile(const Cruciverba& cruciverba) {
  const auto laboratorio = SezioneDelLaboratorio(cruciverba.laboratorio);
  if (!laboratorio) return std::nullopt;
  std::string testo;
  for (const std::string& riga : *cruciverba.intestazione)
    AggiungiRiga(testo, InUnaRiga(riga));
  if (!AggiungiGriglia(testo, cruciverba)) return std::nullopt;
  AggiungiDefinizioni(testo, cruciverba);
  AggiungiColori(testo, cruciverba);
  testo += *laboratorio;
  if (testo.size() > MaxByteCruciverba) return std::nullopt;  // it could not be read again
  return testo;
}

}  // namespace telarium
