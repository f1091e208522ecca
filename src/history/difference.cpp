#include "history/difference.h"

#include <algorithm>

#include "history/bytes.h"

namespace telarium {
namespace {

void ScriviTesti(ScrittoreDiByte& scrittore, const std::vector<std::string>& testi) {
  scrittore.Numero(testi.size());
  for (const std::string& testo : testi)
    scrittore.Testo(testo);
}

void ScriviLaboratorio(ScrittoreDiByte& scrittore, const Laboratorio& laboratorio) {
  scrittore.Numero(laboratorio.bloccate.size());
  for (const auto& [casella, direzione] : laboratorio.bloccate) {
    for (const int numero : {casella.colonna, casella.riga, direzione})
      scrittore.Numero(static_cast<std::uint64_t>(numero));
  }
  ScriviTesti(scrittore, laboratorio.proprie);
  ScriviTesti(scrittore, laboratorio.vietate);
  scrittore.Numero(laboratorio.simmetria ? 1 + static_cast<std::uint64_t>(*laboratorio.simmetria)
                                         : 0);
  ScriviTesti(scrittore, laboratorio.altreRighe);
}

// Writes what turns one crossword into another.
class Confronto {
 public:
  Confronto(const Cruciverba& prima, const Cruciverba& dopo) : prima_(prima), dopo_(dopo) {}

  std::string Scrivi() {
    Intestazione();
    Griglia();
    prima_.definizioni.PerOgniDiversaIn(
        dopo_.definizioni, [&](const std::string& testo, int colonna, int riga, int direzione) {
          Parte('C', {colonna, riga, direzione});
          scrittore_.Testo(testo);
        });
    prima_.colori.PerOgniDiversaIn(dopo_.colori, [&](Colore colore, int colonna, int riga) {
      Parte('K', {colonna, riga});
      scrittore_.ConSegno(colore);
    });
    if (prima_.laboratorio != dopo_.laboratorio) {
      Parte('L', {});
      ScriviLaboratorio(scrittore_, dopo_.laboratorio);
    }
    return scrittore_.Prendi();
  }

 private:
  void Parte(char lettera, std::initializer_list<int> numeri) {
    scrittore_.Grezzo({&lettera, 1});
    for (const int numero : numeri)
      scrittore_.Numero(static_cast<std::uint64_t>(numero));
  }

  void Intestazione() {
    if (prima_.intestazione == dopo_.intestazione) return;
    Parte('I', {});
    for (const std::string& riga : *dopo_.intestazione)
      scrittore_.Testo(riga);
  }

  void Griglia() {
    if (prima_.colonne != dopo_.colonne || prima_.righe != dopo_.righe)
      Parte('D', {dopo_.colonne, dopo_.righe});
    if (prima_.griglia.size() != dopo_.griglia.size())
      Parte('N', {static_cast<int>(dopo_.griglia.size())});
    const Condiviso<std::string> vuota;
    for (std::size_t r = 0; r < dopo_.griglia.size(); ++r) {
      if ((r < prima_.griglia.size() ? prima_.griglia[r] : vuota) == dopo_.griglia[r]) continue;
      Parte('R', {static_cast<int>(r)});
      scrittore_.Testo(*dopo_.griglia[r]);
    }
  }

  const Cruciverba& prima_;
  const Cruciverba& dopo_;
  ScrittoreDiByte scrittore_;
};

// Reads it over the first one.
class Applicazione {
 public:
  Applicazione(const Cruciverba& prima, std::string_view differenza)
      : cruciverba_(prima), lettore_(differenza) {}

  std::optional<Cruciverba> Leggi() {
    while (!lettore_.Finito())
      Parte(static_cast<char>(lettore_.Fisso(1)));
    const bool intero = (cruciverba_.colonne == 0) == (cruciverba_.righe == 0);
    if (!lettore_.Sano() || !intero) return std::nullopt;
    return std::move(cruciverba_);
  }

 private:
  int Tra(int minimo, int massimo) {
    return static_cast<int>(lettore_.NumeroTra(static_cast<std::uint64_t>(minimo),
                                               static_cast<std::uint64_t>(massimo)));
  }
  // The column and the row of a cell of the largest grid.
  Casella Posto() {
    const int colonna = Tra(1, MaxColonne);
    return {colonna, Tra(1, MaxRighe)};
  }
  int Direzione() { return Tra(Orizzontale, Verticale); }

  void Parte(char lettera) {
    switch (lettera) {
      case 'I':
        return Intestazione();
      case 'D':
        cruciverba_.colonne = Tra(0, MaxColonne);
        cruciverba_.righe = Tra(0, MaxRighe);
        return;
      case 'N':
        return cruciverba_.griglia.resize(static_cast<std::size_t>(Tra(0, MaxRighe)));
      case 'R':
        return Riga();
      case 'C':
        return Definizione();
      case 'K':
        return Colore();
      case 'L':
        return Laboratorio();
      default:
        lettore_.Guasto();
    }
  }

  void Intestazione() {
    for (std::string& riga : cruciverba_.intestazione.Proprio())
      riga = lettore_.Testo();
  }

  void Riga() {
    const std::uint64_t riga = lettore_.Numero();
    if (riga >= cruciverba_.griglia.size()) {
      lettore_.Guasto();
      return;
    }
    cruciverba_.griglia[riga] = std::string(lettore_.Testo());
  }

  void Definizione() {
    const auto [colonna, riga] = Posto();
    const int direzione = Direzione();
    const std::string_view testo = lettore_.Testo();
    if (lettore_.Sano())
      cruciverba_.definizioni.Imposta(std::string(testo), colonna, riga, direzione);
  }

  void Colore() {
    const auto [colonna, riga] = Posto();
    const std::int64_t colore = lettore_.ConSegno();
    if (colore != static_cast<telarium::Colore>(colore)) lettore_.Guasto();
    if (lettore_.Sano())
      cruciverba_.colori.Imposta(static_cast<telarium::Colore>(colore), colonna, riga);
  }

  // How many of a list follow; each takes a byte at least, in a file too.
  std::size_t Quanti() {
    return lettore_.NumeroTra(0, std::min(lettore_.Restano(), MaxByteLaboratorio));
  }

  std::vector<std::string> Testi() {
    std::vector<std::string> testi(Quanti());
    for (std::string& testo : testi)
      testo = lettore_.Testo();
    return testi;
  }

  void Laboratorio() {
    telarium::Laboratorio laboratorio;
    laboratorio.bloccate.resize(Quanti());
    for (auto& [casella, direzione] : laboratorio.bloccate) {
      casella = Posto();
      direzione = Direzione();
    }
    laboratorio.proprie = Testi();
    laboratorio.vietate = Testi();
    const int simmetria = Tra(0, 1 + static_cast<int>(Simmetria::Quarto));
    if (simmetria > 0) laboratorio.simmetria = static_cast<Simmetria>(simmetria - 1);
    laboratorio.altreRighe = Testi();
    cruciverba_.laboratorio = std::move(laboratorio);
  }

  Cruciverba cruciverba_;
  LettoreDiByte lettore_;
};

}  // namespace

std::string DifferenzaTra(const Cruciverba& prima, const Cruciverba& dopo) {
  return Confronto(prima, dopo).Scrivi();
}

std::optional<Cruciverba> ConDifferenza(const Cruciverba& prima, std::string_view differenza) {
  return Applicazione(prima, differenza).Leggi();
}

}  // namespace telarium
