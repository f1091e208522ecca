#include "clues/first_encyclopedia.h"

#include <algorithm>
#include <memory>

#include "clues/encyclopedia.h"
#include "clues/encyclopedia_writer.h"
#include "platform/codepage.h"
#include "platform/pace.h"
#include "platform/platform.h"
#include "platform/program_folder.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::size_t BytePerVolta = 64 << 10;  // of a list: a few milliseconds
constexpr double QuotaLettura = 0.3;            // of the whole time, as measured

std::vector<Percorso> ListeInstallate(const Percorso& installati) {
  std::vector<Percorso> liste = ElencaFile(installati / CartellaListeInstallate, "*.tsv");
  for (Percorso& lista : liste)
    lista = installati / CartellaListeInstallate / lista;
  return liste;
}

double ByteDi(const std::vector<Percorso>& file) {
  double byte = 1;  // a divisor
  for (const Percorso& uno : file) {
    std::error_code errore;
    const auto misura = std::filesystem::file_size(uno, errore);
    if (!errore) byte += static_cast<double>(misura);
  }
  return byte;
}

// Takes some whole lines off a text.
std::string_view PrendiRighe(std::string_view& resto) {
  const std::size_t fine = resto.find('\n', std::min(BytePerVolta, resto.size()));
  const std::string_view righe = resto.substr(0, fine == std::string_view::npos ? fine : fine + 1);
  resto.remove_prefix(righe.size());
  return righe;
}

EsitoEnciclopedia LeggiListe(const std::vector<Percorso>& liste, const ProsegueOpera& prosegue,
                             std::vector<VoceDiLista>& voci) {
  const double totale = ByteDi(liste);
  double letti = 0;
  for (const Percorso& lista : liste) {
    std::string contenuto;
    if (LeggiFile(lista, MaxByteLista, contenuto) != EsitoLettura::Letto)
      return {.errore = Unisci("Non si può leggere "_cp, TestoPercorso(lista), '.')};
    for (std::string_view resto = contenuto; !resto.empty();) {
      const std::string_view righe = PrendiRighe(resto);
      AggiungiVoci(righe, voci);
      letti += static_cast<double>(righe.size());
      if (!prosegue(std::min(letti / totale, 1.0))) return {.errore = {}, .interrotta = true};
    }
  }
  if (voci.empty()) return {.errore = "Le liste installate non hanno definizioni."};
  return {};
}

EsitoEnciclopedia FaiDalleListe(const Percorso& installati, const Percorso& cartella,
                                const ProsegueOpera& prosegue) {
  if (!CartellaScrivibile(cartella))
    return {.errore =
                Unisci("Non si può scrivere nella cartella "_cp, TestoPercorso(cartella), '.')};
  std::vector<VoceDiLista> voci;
  const auto leggendo = [&](double parte) { return prosegue(QuotaLettura * parte); };
  EsitoEnciclopedia esito = LeggiListe(ListeInstallate(installati), leggendo, voci);
  if (!esito.Fatta()) return esito;
  return CreaEnciclopedia(cartella, std::move(voci), [&](double parte) {
    return prosegue(QuotaLettura + (1 - QuotaLettura) * parte);
  });
}

}  // namespace

bool MancaEnciclopedia(const Percorso& installati, const Percorso& cartella) {
  return !TrovaFile(cartella, NomeEnciclopedia) && !ListeInstallate(installati).empty();
}

bool PreparaEnciclopedia(const Percorso& installati, const Percorso& cartella) {
  std::unique_ptr<Attesa> attesa = ChiUsa().IniziaAttesa(
      "Preparazione dell'enciclopedia delle definizioni: succede solo al primo avvio.\n"
      "Se viene interrotta, Telarium va avanti senza e riprova al prossimo avvio.");
  Cadenza cadenza;
  const EsitoEnciclopedia esito = FaiDalleListe(installati, cartella, [&](double parte) {
    return !cadenza.Scaduta() || attesa->ProsegueFino(parte);
  });
  attesa.reset();
  if (!esito.errore.empty()) {
    Avvisa(Unisci("Impossibile preparare l'enciclopedia delle definizioni. ", esito.errore,
                  " Telarium riprova al prossimo avvio."),
           {}, Icona::Avviso);
  }
  return esito.Fatta();
}

}  // namespace telarium
