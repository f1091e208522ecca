#include "history/line.h"

#include "platform/check.h"

namespace telarium {
namespace {

// About how many bytes a step takes that it does not share with a crossword.
std::size_t ByteDelPasso(const Passo& passo, const Cruciverba& prima) {
  const Cruciverba& dopo = passo.cruciverba;
  std::size_t byte = sizeof(Passo) + 3 * ByteDiUnNodo + ByteAltrove(passo.motivo) +
                     dopo.griglia.size() * sizeof(dopo.griglia.front());
  for (std::size_t r = 0; r < dopo.griglia.size(); ++r) {
    if (r < prima.griglia.size() && prima.griglia[r].StessoDi(dopo.griglia[r])) continue;
    byte += ByteDiUnNodo + sizeof(std::string) + ByteAltrove(*dopo.griglia[r]);
  }
  return byte + dopo.definizioni.ByteNonCondivisiCon(prima.definizioni) +
         dopo.colori.ByteNonCondivisiCon(prima.colori);
}

}  // namespace

Linea::Linea(Passo inizio, std::size_t massimo, std::size_t caduti)
    : massimo_(massimo), caduti_(caduti) {
  byte_ = ByteDelPasso(inizio, {});
  passi_.push_back({std::make_shared<Passo>(std::move(inizio)), byte_});
}

const Passo& Linea::operator[](std::size_t posto) const {
  Verifica(posto < passi_.size(), "Linea: passo che non c'e'");
  return *passi_[posto].passo;
}

void Linea::Aggiungi(Passo passo) {
  TogliDietro(posto_);
  const std::size_t byte = ByteDelPasso(passo, Attuale());
  passi_.push_back({std::make_shared<Passo>(std::move(passo)), byte});
  byte_ += byte;
  ++posto_;
  while (byte_ > massimo_ && posto_ > 0)
    TogliIlPrimo();
}

void Linea::VaiA(std::size_t posto) {
  Verifica(posto < passi_.size(), "Linea: passo che non c'e'");
  posto_ = posto;
}

void Linea::Correggi(Cruciverba cruciverba) {
  auto corretto = std::make_shared<Passo>((*this)[posto_]);
  corretto->cruciverba = std::move(cruciverba);
  passi_[posto_].passo = std::move(corretto);
}

void Linea::TogliDietro(std::size_t posto) {
  for (std::size_t i = posto + 1; i < passi_.size(); ++i)
    byte_ -= passi_[i].byte;
  passi_.resize(posto + 1);
  if (postoDelFile_ && *postoDelFile_ > posto) postoDelFile_.reset();
}

void Linea::TogliIlPrimo() {
  byte_ -= passi_[0].byte + passi_[1].byte;
  passi_.erase(passi_.begin());
  passi_[0].byte = ByteDelPasso(*passi_[0].passo, {});
  byte_ += passi_[0].byte;
  --posto_;
  ++caduti_;
  if (postoDelFile_)
    postoDelFile_ = *postoDelFile_ > 0 ? std::optional(*postoDelFile_ - 1) : std::nullopt;
}

}  // namespace telarium
