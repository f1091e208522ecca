#include "lexicon/rules.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr Quota No = {Quota::Nessuna};
constexpr Quota Si = {Quota::Libera};

const std::array<Regolamento, 3>& Regolamenti() {
  // clang-format off
  static const std::array<Regolamento, 3> regolamenti = {{
      //              finite  tronche nomi sigle straniere
      {"severe",      {{No,   No,     Si,  Si,   {20}}}, DueLettere::Corredo, TreLettere::Parole},
      {"settimanali", {{{10}, No,     Si,  Si,   {10}}}, DueLettere::Corredo, TreLettere::Gioco},
      {"libere",      {{Si,   Si,     Si,  Si,   Si}},   DueLettere::Tutte,   TreLettere::Tutte},
  }};
  // clang-format on
  return regolamenti;
}

constexpr std::string_view NomiDiGenia[NumGenie] = {"è una forma di verbo finita o un gerundio"_cp,
                                                    "è una parola tronca"_cp, "è un nome"_cp,
                                                    "è una sigla"_cp, "è una parola straniera"_cp};

constexpr std::string_view NonDelCorredo = "non è una delle voci di due lettere riconosciute"_cp;
constexpr std::string_view SoloGioco = "si spiega solo come gioco di lettere";

bool DueLettereVietate(const TrattiDiParola& tratti, DueLettere due) {
  const bool riconosciuta = tratti.nelCorredo || tratti.propria;
  return tratti.lettere == 2 && due == DueLettere::Corredo && !riconosciuta;
}

bool GiocoVietato(const TrattiDiParola& tratti, TreLettere tre) {
  return tratti.lettere > 2 && tre == TreLettere::Parole && tratti.segni.Ha(Segno::Gioco);
}

// The reason why a word is refused, as a predicate; empty for none.
std::string_view Motivo(const TrattiDiParola& tratti, const Regolamento& regole) {
  if (DueLettereVietate(tratti, regole.due)) return NonDelCorredo;
  if (GiocoVietato(tratti, regole.tre)) return SoloGioco;
  for (int i = 0; i < NumGenie; ++i) {
    const auto genia = static_cast<Genia>(i);
    if (regole.Di(genia) == No && Appartiene(tratti, genia)) return CheCosaE(genia);
  }
  return {};
}

}  // namespace

int Quota::Ammesse(int voci) const {
  switch (unaSu) {
    case Libera:
      return voci;
    case Nessuna:
      return 0;
    default:
      return voci / unaSu;
  }
}

const Regolamento* RegolamentoDiNome(std::string_view nome) {
  const auto trovato = std::find_if(Regolamenti().begin(), Regolamenti().end(),
                                    [&](const Regolamento& uno) { return uno.nome == nome; });
  return trovato == Regolamenti().end() ? nullptr : &*trovato;
}

bool Appartiene(const TrattiDiParola& tratti, Genia genia) {
  switch (genia) {
    case Genia::Finita:
      return !tratti.nelCorredo && tratti.soloFinita;
    case Genia::Tronca:
      return tratti.segni.Ha(Segno::Tronca);
    case Genia::Nome:
      return tratti.segni.Ha(Segno::Nome);
    case Genia::Sigla:
      return tratti.segni.Ha(Segno::Sigla);
    case Genia::Straniera:
      return tratti.segni.Ha(Segno::Straniera);
  }
  return false;
}

bool Appartiene(const Parola& parola, Genia genia) {
  return Appartiene(TrattiDi(parola), genia);
}

std::string_view CheCosaE(Genia genia) {
  return NomiDiGenia[static_cast<std::size_t>(genia)];
}

std::optional<std::string> Divieto(const Parola& parola, const Regolamento& regole,
                                   std::string_view chiamata) {
  const std::string_view motivo = Motivo(TrattiDi(parola), regole);
  if (motivo.empty()) return std::nullopt;
  if (chiamata.empty()) chiamata = parola.lettere;
  return Unisci(chiamata, ' ', motivo, ": le regole «"_cp, regole.nome, "» non l'ammettono."_cp);
}

bool Ammessa(const TrattiDiParola& tratti, const Regolamento& regole) {
  return Motivo(tratti, regole).empty();
}

}  // namespace telarium
