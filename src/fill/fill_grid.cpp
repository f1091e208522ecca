#include "fill/fill_grid.h"

#include "platform/check.h"
#include "platform/codepage.h"

namespace telarium {

GrigliaInEstrazione::GrigliaInEstrazione(const Cruciverba& cruciverba)
    : derivati_(Deriva(cruciverba)) {
  for (int r = 1; r <= Righe(); ++r) {
    for (int c = 1; c <= Colonne(); ++c) {
      const char carattere = derivati_.Carattere({c, r});
      lettere_ += carattere == CellaVuota ? CellaSvuotata : carattere;
    }
  }
}

std::size_t GrigliaInEstrazione::Posto(Casella casella) const {
  Verifica(derivati_.Dentro(casella), "GrigliaInEstrazione: casella fuori dallo schema");
  return static_cast<std::size_t>((casella.riga - 1) * Colonne() + casella.colonna - 1);
}

std::string GrigliaInEstrazione::LettereDi(const Slot& slot) const {
  std::string lettere;
  for (int k = 1; k <= slot.lunghezza; ++k)
    lettere += LetteraCasella(slot.Cella(k));
  return lettere;
}

std::string GrigliaInEstrazione::LettereAttraverso(Casella casella, int direzione) const {
  const int quale = derivati_.ParolaPer(casella, direzione);
  if (quale == Derivati::NessunaParola) return {};
  return LettereDi(Parole()[static_cast<std::size_t>(quale)]);
}

void GrigliaInEstrazione::Svuota() {
  for (char& lettera : lettere_)
    if (lettera != CellaNera) lettera = CellaSvuotata;
}

void GrigliaInEstrazione::ScriviLettera(Casella casella, char lettera) {
  char& qui = lettere_[Posto(casella)];
  VerificaInvariante(qui == CellaSvuotata || qui == lettera,
                     "una parola cambia una lettera già posta"_cp);
  qui = lettera;
}

}  // namespace telarium
