#include "editor/settings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

std::string NomeFont;
std::int16_t AltezzaCaratteri = 0;
std::int16_t AltezzaNumeri = 0;
std::int16_t PercentualeRiquadro = 0;
std::int16_t DistanzaDaSpigolo = 0;
std::int16_t DistanzaDaCentro = 0;
std::int16_t SpessoreBordo = 0;
Booleano16 RettangoloParola = Vero;
Booleano16 StampaSoluzioni = Falso;
Booleano16 TastoSin = Falso;
Booleano16 NascondiSoluzioni = Falso;

namespace {

constexpr const char* NomeFile = "telarium.INI";
constexpr std::size_t MaxByteImpostazioni = 1u << 20;

enum class Lettura { Numero, VeroOFalso };

struct Voce {
  std::string_view chiave;
  std::int16_t& valore;
  Lettura lettura = Lettura::Numero;
};

// The order is that of the file, and that in which a line is tested for a key.
const std::array<Voce, 9> voci = {{
    {"RettangoloParola=", RettangoloParola, Lettura::VeroOFalso},
    {"TastoSin=", TastoSin, Lettura::VeroOFalso},
    {"StampaSoluzioni=", StampaSoluzioni},
    {"PercentualeRiquadro=", PercentualeRiquadro},
    {"SpessoreBordo=", SpessoreBordo},
    {"AltezzaCaratteri=", AltezzaCaratteri},
    {"AltezzaNumeri=", AltezzaNumeri},
    {"DistanzaDaSpigolo=", DistanzaDaSpigolo},
    {"DistanzaDaCentro=", DistanzaDaCentro},
}};

void AzzeraImpostazioni() {
  NomeFont.clear();
  for (const Voce& voce : voci)
    voce.valore = 0;
  RettangoloParola = Vero;
  NascondiSoluzioni = Falso;
}

const AzzeramentoDiSottosistema azzeramento(AzzeraImpostazioni);

std::int16_t NumeroDi16Bit(double numero) {
  using Limiti = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(
      ArrotondaPari(std::clamp<double>(numero, Limiti::min(), Limiti::max())));
}

void InterpretaRiga(std::string_view riga) {
  const auto voce = std::find_if(voci.begin(), voci.end(), [riga](const Voce& una) {
    return riga.find(una.chiave) != std::string_view::npos;
  });
  if (voce == voci.end()) return;
  const double numero = ValoreDecimale(riga.substr(riga.find('=') + 1));
  if (voce->lettura == Lettura::VeroOFalso) {
    voce->valore = numero != 0 ? Vero : Falso;  // a fraction is true too
  } else {
    voce->valore = NumeroDi16Bit(numero);
  }
}

}  // namespace

void InterpretaImpostazioni(std::string_view testo) {
  LettoreDiRighe righe(testo);
  for (std::string_view riga; righe.Prossima(riga);)
    InterpretaRiga(riga);
}

Percorso FileImpostazioni() {
  return PercorsoNellaCartella(CartellaProgramma, NomeFile);
}

EsitoImpostazioni LeggiImpostazioni(std::error_code& errore) {
  std::string testo;
  switch (LeggiFile(FileImpostazioni(), MaxByteImpostazioni, testo, errore)) {
    case EsitoLettura::Letto:
      InterpretaImpostazioni(testo);
      return EsitoImpostazioni::Lette;
    case EsitoLettura::Assente:
      return EsitoImpostazioni::Assenti;
    default:
      return EsitoImpostazioni::Illeggibili;
  }
}

EsitoImpostazioni LeggiImpostazioni() {
  std::error_code ignorato;
  return LeggiImpostazioni(ignorato);
}

void ImpostazioniIniziali() {
  PercentualeRiquadro = 95;
  SpessoreBordo = 2;
  AltezzaCaratteri = 52;
  AltezzaNumeri = 18;
  DistanzaDaSpigolo = 3;
  DistanzaDaCentro = 6;
}

void ScriviImpostazioni() {
  std::string testo;
  for (const Voce& voce : voci)
    testo += Unisci(voce.chiave, FormaDiStampa(voce.valore), "\r\n");
  const Percorso file = FileImpostazioni();
  if (const auto errore = ScriviFile(file, testo)) {
    Avvisa(ConCausa(
        "Attenzione, si è verificato un errore di scrittura del file di inizializzazione "
        "telarium.ini, controllare che il drive/percorso abbia i diritti di scrittura o non sia un "
        "CD-ROM"_cp,
        file, errore));
  }
}

}  // namespace telarium
