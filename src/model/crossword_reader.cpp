#include "model/crossword_reader.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view DiUnAltroProgramma = "la riga contiene un byte nullo";
constexpr std::string_view SenzaDimensioni = "le dimensioni non sono quelle di uno schema";
constexpr std::string_view CellaSconosciuta = "un carattere non è quello di una casella"_cp;
constexpr std::string_view SenzaPosto =
    "la riga non è una definizione con un posto nello schema"_cp;
constexpr std::string_view NonUnColore = "un valore non è un colore"_cp;
constexpr std::string_view TroppoPerIlLaboratorio = "la sezione [Laboratorio] è troppo grande"_cp;

bool UgualeSenzaMaiuscole(std::string_view riga, std::string_view segno) {
  return riga.size() == segno.size() && Maiuscole(riga) == Maiuscole(segno);
}

int QuanteRighe(std::string_view testo) {
  LettoreDiRighe righe(testo);
  std::string_view riga;
  int quante = 0;
  while (righe.Prossima(riga))
    ++quante;
  return quante;
}

// One reading. Each step gives false when the reading ends with it.
class Lettore {
 public:
  Lettore(std::string_view contenuto, Cruciverba base) : righe_(contenuto) {
    lettura_.cruciverba = std::move(base);
  }

  LetturaDelFile Leggi(Coda coda) && {
    if (Intestazione() && PrendiDimensioni() && Griglia() && Definizioni()) {
      Colori();
      if (coda == Coda::Laboratorio) LaboratorioDellaCoda();
    }
    return std::move(lettura_);
  }

 private:
  bool Guasto(std::string_view motivo, int riga) {
    lettura_.guasto = {lettura_.finoA, riga, motivo};
    return false;
  }

  // The next line of a part that must have it.
  bool Riga(std::string_view& riga) {
    ++numeroRiga_;
    if (!righe_.Prossima(riga)) return Guasto(FineDelFile, numeroRiga_);
    // A NUL byte is in no text: the file is some other program's.
    if (riga.find('\0') != std::string_view::npos) return Guasto(DiUnAltroProgramma, numeroRiga_);
    return true;
  }

  bool Intestazione() {
    lettura_.finoA = ParteDelFile::Intestazione;
    for (std::string& una : lettura_.cruciverba.intestazione.Proprio()) {
      std::string_view riga;
      if (!Riga(riga)) return false;
      una = riga;
    }
    return true;
  }

  bool PrendiDimensioni() {
    lettura_.finoA = ParteDelFile::Dimensioni;
    Cruciverba& cruciverba = lettura_.cruciverba;
    const auto dimensioni = DimensioniDichiarate(cruciverba.intestazione->back());
    cruciverba.colonne = dimensioni ? dimensioni->colonne : 0;
    cruciverba.righe = dimensioni ? dimensioni->righe : 0;
    return dimensioni || Guasto(SenzaDimensioni, numeroRiga_);
  }

  bool Griglia() {
    lettura_.finoA = ParteDelFile::Griglia;
    auto& griglia = lettura_.cruciverba.griglia;
    griglia.resize(static_cast<std::size_t>(lettura_.cruciverba.righe));
    for (Condiviso<std::string>& una : griglia) {
      std::string_view letta;
      if (!Riga(letta)) return false;
      auto riga = RigaDiSchema(letta);
      if (!riga) return Guasto(CellaSconosciuta, numeroRiga_);
      una = std::move(*riga);
    }
    return true;
  }

  // Reads the clues up to the colour mark; a file may end without one.
  bool Definizioni() {
    lettura_.finoA = ParteDelFile::Definizioni;
    while (!righe_.Finito()) {
      std::string_view riga;
      if (!Riga(riga)) return false;
      if (UgualeSenzaMaiuscole(riga, SegnoColori)) return true;
      if (!PrendiDefinizione(riga)) return Guasto(SenzaPosto, numeroRiga_);
    }
    return false;
  }

  bool PrendiDefinizione(std::string_view testo) {
    const auto numero = [testo](std::size_t da, std::size_t caratteri) {
      return da < testo.size() ? ValoreNumerico(testo.substr(da, caratteri)) : 0;
    };
    const int colonna = numero(0, 3);
    const int riga = numero(3, 3);
    const int direzione = numero(6, 1);
    const bool alSuoPosto = colonna >= 1 && colonna <= MaxColonne && riga >= 1 &&
                            riga <= MaxRighe &&
                            (direzione == Orizzontale || direzione == Verticale);
    if (alSuoPosto) {
      lettura_.cruciverba.definizioni.Imposta(
          std::string(testo.substr(std::min<std::size_t>(8, testo.size()))), colonna, riga,
          direzione);
    }
    return alSuoPosto;
  }

  // The colours are one stream of numbers between blanks and line ends. At its end, which may come
  // early, the other colours stay.
  void Colori() {
    lettura_.finoA = ParteDelFile::Colori;
    resto_ = righe_.Resto();
    const std::string_view colori = resto_;
    for (int c = 1; c <= lettura_.cruciverba.colonne; ++c) {
      for (int r = 1; r <= lettura_.cruciverba.righe; ++r) {
        const auto colore = PrendiNumero();
        if (!colore) return FineDeiColori(colori);
        lettura_.cruciverba.colori.Imposta(*colore, c, r);
      }
    }
  }

  std::optional<Colore> PrendiNumero() {
    resto_.remove_prefix(std::min(resto_.find_first_not_of(" \r\n"), resto_.size()));
    Colore valore = 0;
    const auto [fine, errore] =
        std::from_chars(resto_.data(), resto_.data() + resto_.size(), valore);
    if (errore != std::errc()) return std::nullopt;
    resto_.remove_prefix(static_cast<std::size_t>(fine - resto_.data()));
    return valore;
  }

  // Takes note of what is no colour, but for the end of the file and the mark of a next section.
  void FineDeiColori(std::string_view colori) {
    if (resto_.empty() || resto_.front() == '[') return;
    const std::string_view letti = colori.substr(0, colori.size() - resto_.size() + 1);
    Guasto(NonUnColore, numeroRiga_ + QuanteRighe(letti));
  }

  // What a damaged colour part leaves before the mark is passed over.
  void LaboratorioDellaCoda() {
    LettoreDiRighe righe(resto_);
    std::string_view riga;
    while (righe.Prossima(riga)) {
      if (!UgualeSenzaMaiuscole(riga, SegnoLaboratorio)) continue;
      lettura_.finoA = ParteDelFile::Laboratorio;
      auto letto = LeggiLaboratorio(righe.Resto());
      if (letto) {
        lettura_.cruciverba.laboratorio = std::move(*letto);
      } else {
        Guasto(TroppoPerIlLaboratorio, RigaDi(riga));
      }
      return;
    }
  }

  // The number of a line that is part of the rest.
  int RigaDi(std::string_view riga) const {
    const std::string_view coda = righe_.Resto();
    const auto prima = static_cast<std::size_t>(riga.data() - coda.data());
    return numeroRiga_ + QuanteRighe(coda.substr(0, prima)) + 1;
  }

  LettoreDiRighe righe_;
  std::string_view resto_;  // behind the last colour
  int numeroRiga_ = 0;
  LetturaDelFile lettura_;
};

}  // namespace

LetturaDelFile LeggiContenuto(std::string_view contenuto, Cruciverba base, Coda coda) {
  return Lettore(contenuto, std::move(base)).Leggi(coda);
}

}  // namespace telarium
