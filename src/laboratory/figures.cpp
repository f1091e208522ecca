#include "laboratory/figures.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/text.h"

namespace telarium {
namespace {

using Voci = std::vector<VoceDiGriglia>;

std::string UnDecimale(double valore) {
  std::array<char, 32> cifre;
  const auto esito =
      std::to_chars(cifre.data(), cifre.data() + cifre.size(), valore, std::chars_format::fixed, 1);
  return {cifre.data(), esito.ptr};
}

std::vector<int> Lunghezze(const Voci& voci) {
  std::vector<int> lunghezze;
  for (const VoceDiGriglia& voce : voci)
    lunghezze.push_back(voce.slot.lunghezza);
  return lunghezze;
}

std::vector<int> Punteggi(const Voci& voci) {
  std::vector<int> punteggi;
  for (const VoceDiGriglia& voce : voci) {
    if (const auto punteggio = voce.Punteggio()) punteggi.push_back(*punteggio);
  }
  return punteggi;
}

std::vector<int> Difficolta(const Derivati& griglia, const Voci& voci, const Criteri& criteri) {
  std::vector<int> difficolta;
  for (const VoceDiGriglia& voce : voci) {
    if (!voce.Intera()) continue;
    const bool chiede = criteri.grado && !voce.definizione.empty();
    const auto grado = chiede ? criteri.grado(voce.lettere, voce.definizione) : GradoDefinizione{};
    difficolta.push_back(DifficoltaVoce(voce.Punteggio(), voce.slot.lunghezza,
                                        CelleIncrociate(griglia, voce.slot), grado));
  }
  return difficolta;
}

// How many entries have a clue of one family in the store.
std::string Coperte(const Voci& voci, const Criteri& criteri, int ConteggioDefinizioni::*famiglia) {
  const auto quante = std::count_if(voci.begin(), voci.end(), [&](const VoceDiGriglia& voce) {
    return criteri.copertura && voce.Intera() && criteri.copertura->Di(voce.lettere).*famiglia > 0;
  });
  return std::to_string(quante);
}

void AggiungiLunghezze(const Derivati& griglia, std::vector<Cifra>& cifre) {
  const std::vector<int> voci = VociPerLunghezza(griglia);
  for (std::size_t lunghezza = 0; lunghezza < voci.size(); ++lunghezza) {
    if (voci[lunghezza] > 0)
      cifre.push_back({Unisci("voci-", lunghezza), std::to_string(voci[lunghezza])});
  }
}

}  // namespace

std::string MediaConDecimale(const std::vector<int>& numeri) {
  if (numeri.empty()) return {};
  double somma = 0;
  for (const int numero : numeri)
    somma += numero;
  return UnDecimale(somma / static_cast<double>(numeri.size()));
}

std::vector<Cifra> CifreDi(const Derivati& griglia, const Voci& voci, const Criteri& criteri) {
  const std::vector<int> punteggi = Punteggi(voci);
  const auto minimo = std::min_element(punteggi.begin(), punteggi.end());
  const Rettangolo piazza = Piazza(griglia);
  std::vector<Cifra> cifre = {
      {"nere", UnDecimale(PercentualeNere(griglia))},
      {"media", MediaConDecimale(Lunghezze(voci))},
      {"punteggio", MediaConDecimale(punteggi)},
      {"minimo", minimo == punteggi.end() ? std::string() : std::to_string(*minimo)},
      {"facili", Coperte(voci, criteri, &ConteggioDefinizioni::facili)},
      {"difficili", Coperte(voci, criteri, &ConteggioDefinizioni::difficili)},
      {"lettere", std::to_string(LettereUsate(griglia))},
      {"piazza", Unisci(piazza.colonne, 'x', piazza.righe)},
      {"difficolta", MediaConDecimale(Difficolta(griglia, voci, criteri))},
  };
  AggiungiLunghezze(griglia, cifre);
  return cifre;
}

}  // namespace telarium
