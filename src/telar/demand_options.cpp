#include "telar/demand_options.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "laboratory/measures.h"
#include "platform/codepage.h"
#include "telar/option_values.h"
#include "telar/word_options.h"

namespace telarium::telar {
namespace {

constexpr Opzione OpzioneVuole = {"--vuole", "PAROLA[,...]", "parole che devono esserci"};
constexpr Opzione OpzioneDaCapo = {"--da-capo", "", "toglie prima le lettere del cruciverba"};
constexpr Opzione OpzioneRegione = {"--regione", "C1,R1,C2,R2",
                                    "riempie solo questo rettangolo di caselle"};
constexpr Opzione OpzioneMaschera = {"--maschera", "C,R,O|V:MASCHERA",
                                     "lettere di una parola, \".\" libera; anche più volte"};
constexpr Opzione OpzioneStraniere = {"--straniere", "N", "al massimo N parole straniere"};
constexpr Opzione OpzioneDue = {"--due", "N", "al massimo N voci di due lettere"};

constexpr std::string_view FormaMaschera =
    "--maschera richiede colonna, riga, O o V e le lettere, per esempio 3,1,O:C..A";

std::optional<int> AlMassimo(const Argomenti& argomenti, const Opzione& opzione) {
  if (!argomenti.Ha(opzione.nome)) return std::nullopt;
  return static_cast<int>(std::min<std::int64_t>(argomenti.Numero(opzione.nome, 0, 0),
                                                 std::numeric_limits<int>::max()));
}

std::optional<Regione> LeggiRegione(const Argomenti& argomenti) {
  if (!argomenti.Ha(OpzioneRegione.nome)) return std::nullopt;
  const std::vector<std::string> parti = Parti(argomenti, OpzioneRegione);
  std::array<int, 4> numeri{};
  if (parti.size() != numeri.size())
    throw ArgomentiErrati("--regione richiede colonna e riga di due angoli, per esempio 1,1,5,4");
  for (std::size_t i = 0; i < numeri.size(); ++i)
    numeri[i] = Limitato(parti[i], 1, i % 2 == 0 ? MaxColonne : MaxRighe, OpzioneRegione.nome);
  const auto [c1, r1, c2, r2] = numeri;
  return Regione{.prima = {std::min(c1, c2), std::min(r1, r2)},
                 .ultima = {std::max(c1, c2), std::max(r1, r2)}};
}

// Letters in capitals without accents, "." for a free place.
std::string LeggiLettere(std::string_view utf8) {
  std::string maschera;
  for (const char carattere : DaUtf8(utf8)) {
    const bool libera = carattere == '.' || carattere == '_';
    const auto lettera = libera ? CellaVuota : LetteraDiCella(carattere);
    if (!lettera) throw ArgomentiErrati(std::string(FormaMaschera));
    maschera += *lettera;
  }
  if (!LunghezzaDiVoce(maschera.size())) throw ArgomentiErrati(std::string(FormaMaschera));
  return maschera;
}

std::vector<MascheraDiParola> LeggiMaschere(const Argomenti& argomenti) {
  std::vector<MascheraDiParola> maschere;
  for (const std::string& valore : argomenti.Valori(OpzioneMaschera.nome)) {
    const std::size_t duePunti = valore.find(':');
    const auto inizio = DivisiDaVirgole(std::string_view(valore).substr(0, duePunti));
    if (duePunti == std::string::npos || inizio.size() != 3)
      throw ArgomentiErrati(std::string(FormaMaschera));
    maschere.push_back(
        {.inizio = LeggiInizio(inizio[0], inizio[1], inizio[2], OpzioneMaschera.nome),
         .maschera = LeggiLettere(std::string_view(valore).substr(duePunti + 1))});
  }
  return maschere;
}

}  // namespace

const std::vector<Opzione>& OpzioniDomanda() {
  static const std::vector<Opzione> opzioni = {OpzioneVuole,    OpzioneDaCapo,    OpzioneRegione,
                                               OpzioneMaschera, OpzioneStraniere, OpzioneDue};
  return opzioni;
}

std::optional<SceltaComposizione> LeggiSceltaComposizione(const Argomenti& argomenti) {
  // Wrong arguments come before any file is read.
  SceltaComposizione scelta;
  scelta.volute = Parole(argomenti, OpzioneVuole);
  scelta.daCapo = argomenti.Ha(OpzioneDaCapo.nome);
  scelta.regione = LeggiRegione(argomenti);
  scelta.maschere = LeggiMaschere(argomenti);
  scelta.straniere = AlMassimo(argomenti, OpzioneStraniere);
  scelta.due = AlMassimo(argomenti, OpzioneDue);
  auto parole = LeggiSceltaParole(argomenti);
  if (!parole) return std::nullopt;
  scelta.parole = std::move(*parole);
  return scelta;
}

}  // namespace telarium::telar
