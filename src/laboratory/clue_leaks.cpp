#include "laboratory/clue_leaks.h"

#include <algorithm>

#include "laboratory/clue_tables.h"

namespace telarium {
namespace {

using Specie = Rivelazione::Specie;

// Who bans RE from a grid has nothing against kings in its clues.
constexpr std::size_t MinLettereVietata = 3;

bool HannoComune(const std::vector<LemmaDiCategoria>& uni,
                 const std::vector<LemmaDiCategoria>& altri) {
  return std::find_first_of(uni.begin(), uni.end(), altri.begin(), altri.end()) != uni.end();
}

bool Trovata(const std::vector<Rivelazione>& trovate, Specie specie, const VoceDiGriglia* voce) {
  return std::any_of(trovate.begin(), trovate.end(), [&](const Rivelazione& una) {
    return una.specie == specie && una.voce == voce;
  });
}

// The answer tells more than a word akin to it.
void NascondiParenti(std::vector<Rivelazione>& trovate) {
  if (!Trovata(trovate, Specie::Risposta, nullptr)) return;
  std::erase_if(trovate, [](const Rivelazione& una) { return una.specie == Specie::Parente; });
}

// The words of a text from the first to the last of a row of them.
std::string_view Brano(const std::vector<ParolaDiDefinizione>& parole,
                       const std::vector<ParolaDiDefinizione>& cercate) {
  const auto dove = Cerca(parole, cercate);
  if (!dove) return {};
  const std::string_view prima = parole[*dove].testo;
  const std::string_view ultima = parole[*dove + cercate.size() - 1].testo;
  return {prima.data(), static_cast<std::size_t>(ultima.data() + ultima.size() - prima.data())};
}

}  // namespace

Rivelatore::Rivelatore(const Lessico& lessico, const ParoleVietate& vietate,
                       const std::vector<VoceDiGriglia>& voci)
    : lessico_(lessico), vietate_(vietate) {
  for (const VoceDiGriglia& voce : voci) {
    if (!voce.Intera()) continue;
    voci_.emplace(voce.lettere, &voce);
    if (!voce.parola) continue;
    Parole parole = ParoleDi(voce.parola->grafia);
    if (parole.size() > 1) locuzioni_.push_back({&voce, std::move(parole)});
  }
}

const Rivelatore::Nota& Rivelatore::NotaDi(const std::string& parola) {
  const auto [dove, nuova] = note_.try_emplace(parola);
  Nota& nota = dove->second;
  if (!nuova || tabelle::ParolaVuota(parola)) return nota;
  nota.vietata = parola.size() >= MinLettereVietata && vietate_.Ha(parola);
  if (const auto nelLessico = lessico_.Cerca(parola)) nota.lemmi = LemmiDi(*nelLessico);
  return nota;
}

bool Rivelatore::Parente(const VoceDiGriglia& voce, const ParolaDiDefinizione& parola) {
  if (StessaRadice(voce.lettere, parola.piegata)) return true;
  return voce.parola && HannoComune(LemmiDi(*voce.parola), NotaDi(parola.piegata).lemmi);
}

void Rivelatore::AggiungiAltra(const VoceDiGriglia& voce, const VoceDiGriglia& altra,
                               std::string_view parola, std::vector<Rivelazione>& trovate) const {
  if (altra.lettere == voce.lettere || altra.lettere.size() < MinLettereVoceContenuta) return;
  if (!Trovata(trovate, Specie::AltraVoce, &altra))
    trovate.push_back({Specie::AltraVoce, parola, &altra});
}

void Rivelatore::EsaminaParola(const VoceDiGriglia& voce, const ParolaDiDefinizione& parola,
                               std::vector<Rivelazione>& trovate) {
  if (NotaDi(parola.piegata).vietata && !Trovata(trovate, Specie::Vietata, nullptr))
    trovate.push_back({Specie::Vietata, parola.testo});
  if (const auto altra = voci_.find(parola.piegata); altra != voci_.end())
    AggiungiAltra(voce, *altra->second, parola.testo, trovate);
  if (!voce.Intera()) return;
  const bool risposta = parola.piegata == voce.lettere;
  if (!risposta && !Parente(voce, parola)) return;
  const Specie specie = risposta ? Specie::Risposta : Specie::Parente;
  if (!Trovata(trovate, specie, nullptr)) trovate.push_back({specie, parola.testo});
}

void Rivelatore::EsaminaLocuzioni(const VoceDiGriglia& voce, const Parole& parole,
                                  std::vector<Rivelazione>& trovate) const {
  for (const auto& [altra, cercate] : locuzioni_) {
    const std::string_view brano = Brano(parole, cercate);
    if (brano.empty()) continue;
    if (altra->lettere != voce.lettere) {
      AggiungiAltra(voce, *altra, brano, trovate);
    } else if (!Trovata(trovate, Specie::Risposta, nullptr)) {
      trovate.push_back({Specie::Risposta, brano});
    }
  }
}

std::vector<Rivelazione> Rivelatore::Esamina(const VoceDiGriglia& voce,
                                             std::string_view definizione) {
  const Parole parole = ParoleDi(definizione);
  std::vector<Rivelazione> trovate;
  for (const ParolaDiDefinizione& parola : parole)
    EsaminaParola(voce, parola, trovate);
  EsaminaLocuzioni(voce, parole, trovate);
  NascondiParenti(trovate);
  return trovate;
}

}  // namespace telarium
