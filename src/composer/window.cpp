#include "composer/window.h"

#include <algorithm>

namespace telarium {
namespace {

constexpr int MinLarghezza = 3;  // of a rectangle across its slot

}  // namespace

Pianta::Pianta(const Reticolo& reticolo)
    : reticolo_(reticolo),
      luoghi_(S(reticolo.Caselle())),
      versi_(S(reticolo.Slot()), Verso::Ignoto),
      viste_(S(reticolo.Caselle()), 0) {
  for (int slot = 0; slot < reticolo.Slot(); ++slot) {
    if (versi_[S(slot)] == Verso::Ignoto) Stendi(slot);
  }
  std::ranges::fill(viste_, 0);
}

// Places the slots that hang together with one.
void Pianta::Stendi(int prima) {
  versi_[S(prima)] = Verso::Riga;
  coda_.assign(1, prima);
  for (std::size_t k = 0; k < coda_.size(); ++k) {
    const int slot = coda_[k];
    Colloca(slot, k == 0);
    for (const PostoDiSlot& incrocio : reticolo_.IncrociDi(slot)) {
      if (incrocio.slot < 0 || versi_[S(incrocio.slot)] != Verso::Ignoto) continue;
      versi_[S(incrocio.slot)] = versi_[S(slot)] == Verso::Riga ? Verso::Colonna : Verso::Riga;
      coda_.push_back(incrocio.slot);
    }
  }
}

// Of a slot that is not the first one some cell has its place.
void Pianta::Colloca(int slot, bool primo) {
  const auto caselle = reticolo_.CaselleDi(slot);
  int nota = 0;
  while (!primo && viste_[S(caselle[S(nota)])] == 0)
    ++nota;
  const Luogo inizio = primo ? Luogo{} : luoghi_[S(caselle[S(nota)])];
  for (int posto = 0; posto < static_cast<int>(caselle.size()); ++posto) {
    Luogo luogo = inizio;
    (versi_[S(slot)] == Verso::Riga ? luogo.x : luogo.y) += posto - nota;
    luoghi_[S(caselle[S(posto)])] = luogo;
    viste_[S(caselle[S(posto)])] = 1;
  }
}

Pianta::Rettangolo Pianta::RettangoloDi(int slot, int lato, Luogo scarto) const {
  const auto caselle = reticolo_.CaselleDi(slot);
  const int lungo = static_cast<int>(caselle.size());
  const int lunghezza = std::max(lungo, lato);
  const int larghezza = std::max(MinLarghezza, lato * lato / lunghezza);
  const int prima = scarto.x % (lunghezza - lungo + 1);
  const int accanto = scarto.y % larghezza;
  const Luogo inizio = luoghi_[S(caselle[0])];
  if (versi_[S(slot)] == Verso::Riga)
    return {{inizio.x - prima, inizio.y - accanto}, {lunghezza, larghezza}};
  return {{inizio.x - accanto, inizio.y - prima}, {larghezza, lunghezza}};
}

template <class Visita>
void Pianta::Vicine(int casella, Visita visita) const {
  for (const PostoDiSlot& posto : reticolo_.SlotDi(casella)) {
    if (posto.slot < 0) continue;
    const auto caselle = reticolo_.CaselleDi(posto.slot);
    if (posto.posto > 0) visita(caselle[S(posto.posto - 1)]);
    if (S(posto.posto + 1) < caselle.size()) visita(caselle[S(posto.posto + 1)]);
  }
}

void Pianta::Intorno(const Stesura& stesura, int slot, int lato, Luogo scarto,
                     std::vector<int>& caselle) {
  const Rettangolo rettangolo = RettangoloDi(slot, lato, scarto);
  const auto raggiungi = [&](int casella) {
    if (viste_[S(casella)] != 0 || !rettangolo.Ha(luoghi_[S(casella)])) return;
    viste_[S(casella)] = 1;
    coda_.push_back(casella);
  };
  coda_.clear();
  raggiungi(reticolo_.CaselleDi(slot)[0]);
  for (std::size_t k = 0; k < coda_.size(); ++k)
    Vicine(coda_[k], raggiungi);
  caselle.clear();
  for (const int casella : coda_) {
    viste_[S(casella)] = 0;
    if (stesura.Mutabile(casella)) caselle.push_back(casella);
  }
  std::ranges::sort(caselle);
}

}  // namespace telarium
