#include "fill/placed_word.h"

#include <algorithm>

#include "editor/settings.h"
#include "platform/text.h"

namespace telarium {

PittoreDiParole::PittoreDiParole(Superficie* finestra) : finestra_(finestra) {
  if (finestra_) semilatoGomma_ = ArrotondaPari(finestra_->CorpoCarattere() / 2) + 2;
}

void PittoreDiParole::DirettoSulloSchermo() {
  if (finestra_) finestra_->DisegnoPersistente(false);
}

void PittoreDiParole::PreparaCarattere() {
  if (finestra_) finestra_->CorpoCarattere(std::max(AltezzaCaratteri * LatoCasella / 100.0, 5.0));
}

void PittoreDiParole::Dipingi(const Slot& slot, std::string_view parola) {
  if (!finestra_) return;
  for (int k = 1; k <= slot.lunghezza; ++k) {
    DipingiLettera(slot.Cella(k), parola[static_cast<std::size_t>(k) - 1]);
  }
}

void PittoreDiParole::DipingiLettera(Casella cella, char lettera) {
  const auto centro = [](int posto, int origine) {
    return ArrotondaPari((posto - 1) * LatoCasella + origine + LatoCasella / 2.0);
  };
  const int x = centro(cella.colonna, OrigineX);
  const int y = centro(cella.riga, OrigineY);
  const int h = semilatoGomma_;
  finestra_->RiquadroPieno(x - h, y - h, x + h, y + h, ColoreBianco);

  const std::string_view testo(&lettera, 1);
  const int mezzaLarghezza = ArrotondaPari(finestra_->LarghezzaTesto(testo) / 2);
  const int mezzaAltezza = ArrotondaPari(finestra_->AltezzaTesto(testo) / 2);
  finestra_->Posizione(x - mezzaLarghezza,
                       y - mezzaAltezza + DistanzaDaCentro * LatoCasella / 100.0);
  finestra_->Scrivi(testo);
}

void PittoreDiParole::Fine() {
  if (!finestra_) return;
  finestra_->DisegnoPersistente(true);
  finestra_->Pulisci();
}

}  // namespace telarium
