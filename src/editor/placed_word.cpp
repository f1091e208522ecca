#include "editor/placed_word.h"

#include "editor/cell_drawing.h"
#include "editor/geometry.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double MinCorpo = 5;  // points

}  // namespace

PittoreDiParole::PittoreDiParole(Superficie* finestra) : finestra_(finestra) {
  if (finestra_) semilatoGomma_ = ArrotondaPari(finestra_->CorpoCarattere() / 2) + 2;
}

PittoreDiParole::~PittoreDiParole() {
  if (diretto_) finestra_->DisegnoPersistente(true);
}

void PittoreDiParole::DirettoSulloSchermo() {
  if (!finestra_) return;
  diretto_ = true;
  finestra_->DisegnoPersistente(false);
}

void PittoreDiParole::PreparaCarattere() {
  if (finestra_) finestra_->CorpoCarattere(CorpoLettere(LatoCasella, MinCorpo));
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
  ScriviLettera(*finestra_, x, y, LatoCasella, lettera);
}

void PittoreDiParole::Fine() {
  if (!finestra_) return;
  diretto_ = false;
  finestra_->DisegnoPersistente(true);
  finestra_->Pulisci();
}

}  // namespace telarium
