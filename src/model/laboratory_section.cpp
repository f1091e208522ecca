#include "model/laboratory_section.h"

#include <algorithm>
#include <charconv>

#include "model/crossword_format.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view NomeSimmetria = "simmetria";

constexpr std::string_view NomiDelleSimmetrie[] = {"no", "180", "orizzontale", "verticale",
                                                   "quarto"};

bool DiControllo(char carattere) {
  const auto codice = static_cast<unsigned char>(carattere);
  return codice < ' ' || codice == 0x7F;
}

// Takes the next word off a list divided by blanks; empty at its end.
std::string_view PrendiVoce(std::string_view& resto) {
  resto.remove_prefix(std::min(resto.find_first_not_of(' '), resto.size()));
  const std::string_view voce = resto.substr(0, resto.find(' '));
  resto.remove_prefix(voce.size());
  return voce;
}

bool ParolaAmmessa(std::string_view parola) {
  return !parola.empty() && parola.find(' ') == std::string_view::npos &&
         std::none_of(parola.begin(), parola.end(), DiControllo);
}

// Takes a number from 1 to `massimo` and the comma behind it.
std::optional<int> PrendiCoordinata(std::string_view& resto, int massimo) {
  int numero = 0;
  const char* const fineResto = resto.data() + resto.size();
  const auto [fine, errore] = std::from_chars(resto.data(), fineResto, numero);
  if (errore != std::errc() || fine == fineResto || *fine != ',') return std::nullopt;
  if (numero < 1 || numero > massimo) return std::nullopt;
  resto.remove_prefix(static_cast<std::size_t>(fine - resto.data()) + 1);
  return numero;
}

// A lock from "C,R,O" or "C,R,V".
std::optional<InizioDiParola> InizioDa(std::string_view voce) {
  const auto colonna = PrendiCoordinata(voce, MaxColonne);
  const auto riga = colonna ? PrendiCoordinata(voce, MaxRighe) : std::nullopt;
  if (!riga || (voce != "O" && voce != "V")) return std::nullopt;
  return InizioDiParola{{*colonna, *riga}, voce == "O" ? Orizzontale : Verticale};
}

std::string TestoDi(const InizioDiParola& inizio) {
  return Unisci(inizio.casella.colonna, ',', inizio.casella.riga, ',',
                inizio.direzione == Orizzontale ? 'O' : 'V');
}

bool PrendiBloccata(Laboratorio& laboratorio, std::string_view voce) {
  const auto inizio = InizioDa(voce);
  if (inizio) laboratorio.bloccate.push_back(*inizio);
  return inizio.has_value();
}

template <auto Elenco>
bool PrendiParola(Laboratorio& laboratorio, std::string_view voce) {
  if (!ParolaAmmessa(voce)) return false;
  (laboratorio.*Elenco).emplace_back(voce);
  return true;
}

bool PrendiSimmetria(Laboratorio& laboratorio, std::string_view voce) {
  const auto simmetria = SimmetriaDi(voce);
  if (simmetria) laboratorio.simmetria = simmetria;
  return simmetria.has_value();
}

// What a line of the section can be called; the function takes one word of its value, and gives
// false for one that it does not know.
const struct {
  std::string_view nome;
  bool (*prendi)(Laboratorio&, std::string_view voce);
} Righe[] = {
    {"bloccate", PrendiBloccata},
    {"proprie", PrendiParola<&Laboratorio::proprie>},
    {"vietate", PrendiParola<&Laboratorio::vietate>},
    {NomeSimmetria, PrendiSimmetria},
};

void PrendiRiga(Laboratorio& laboratorio, std::string_view riga) {
  if (SenzaSpazi(riga).empty()) return;
  const std::size_t uguale = riga.find('=');
  const std::string nome = Maiuscole(SenzaSpazi(riga.substr(0, uguale)));
  const auto* const nota = std::find_if(std::begin(Righe), std::end(Righe), [&](const auto& una) {
    return uguale != std::string_view::npos && Maiuscole(una.nome) == nome;
  });
  if (nota == std::end(Righe)) {
    laboratorio.altreRighe.emplace_back(riga);
    return;
  }
  std::string ignote;
  std::string_view resto = riga.substr(uguale + 1);
  for (std::string_view voce = PrendiVoce(resto); !voce.empty(); voce = PrendiVoce(resto)) {
    if (!nota->prendi(laboratorio, voce)) ignote += Unisci(' ', voce);
  }
  if (!ignote.empty()) laboratorio.altreRighe.push_back(Unisci(nota->nome, " =", ignote));
}

// The section line by line; from the first text on that it cannot hold there is none.
class Sezione {
 public:
  template <class Elementi, class Testo>
  void Elenco(std::string_view nome, const Elementi& elementi, Testo testo) {
    if (elementi.empty()) return;
    std::string valore;
    for (const auto& uno : elementi) {
      const std::string voce(testo(uno));
      intera_ = intera_ && ParolaAmmessa(voce);
      valore += Unisci(' ', voce);
    }
    Riga(Unisci(nome, " =", valore));
  }

  void Riga(std::string_view riga) {
    intera_ = intera_ && riga.find_first_of("\r\n") == std::string_view::npos;
    testo_ += Unisci(riga, "\r\n");
  }

  std::optional<std::string> Prendi() && {
    if (testo_.empty()) return testo_;
    if (!intera_ || testo_.size() > MaxByteLaboratorio) return std::nullopt;
    return Unisci(SegnoLaboratorio, "\r\n", testo_);
  }

 private:
  std::string testo_;
  bool intera_ = true;
};

}  // namespace

std::string_view NomeDi(Simmetria simmetria) {
  return NomiDelleSimmetrie[static_cast<std::size_t>(simmetria)];
}

std::optional<Simmetria> SimmetriaDi(std::string_view nome) {
  const auto* const trovato =
      std::find(std::begin(NomiDelleSimmetrie), std::end(NomiDelleSimmetrie), nome);
  if (trovato == std::end(NomiDelleSimmetrie)) return std::nullopt;
  return static_cast<Simmetria>(trovato - std::begin(NomiDelleSimmetrie));
}

std::optional<Laboratorio> LeggiLaboratorio(std::string_view righe) {
  Laboratorio laboratorio;
  // Twice the bound, since a line can hold blanks that are not written again.
  if (righe.size() > 2 * MaxByteLaboratorio) return std::nullopt;
  LettoreDiRighe lettore(righe);
  std::string_view riga;
  while (lettore.Prossima(riga))
    PrendiRiga(laboratorio, riga);
  // What cannot be written again is not taken: a save would lose it.
  if (!SezioneDelLaboratorio(laboratorio)) return std::nullopt;
  return laboratorio;
}

std::optional<std::string> SezioneDelLaboratorio(const Laboratorio& laboratorio) {
  const auto comeE = [](const std::string& parola) -> const std::string& { return parola; };
  Sezione sezione;
  sezione.Elenco("bloccate", laboratorio.bloccate, TestoDi);
  sezione.Elenco("proprie", laboratorio.proprie, comeE);
  sezione.Elenco("vietate", laboratorio.vietate, comeE);
  if (laboratorio.simmetria)
    sezione.Riga(Unisci(NomeSimmetria, " = ", NomeDi(*laboratorio.simmetria)));
  for (const std::string& riga : laboratorio.altreRighe)
    sezione.Riga(riga);
  return std::move(sezione).Prendi();
}

}  // namespace telarium
