#include "lexicon/list_import.h"

#include <algorithm>
#include <array>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

// Separators in the order in which they are preferred.
constexpr std::array<char, 3> Separatori = {';', '\t', ','};
constexpr char NessunSeparatore = '\n';  // no line has one
// So many lines tell which one a list uses.
constexpr int RigheDiProva = 1000;

// Whether a separator divides a line into a word and a score, which may be missing.
bool DivideInPunteggio(std::string_view riga, char separatore) {
  if (riga.find(separatore) == std::string_view::npos) return false;
  StaccaCampo(riga, separatore);
  const std::string_view campo = StaccaCampo(riga, separatore);
  return campo.empty() || InterpretaPunteggio(campo);
}

// The separator that divides most of the first lines; none for a list of bare words.
char SeparatoreDi(std::string_view testo) {
  std::array<int, Separatori.size()> divise{};
  LettoreDiRighe righe(testo);
  std::string_view riga;
  for (int i = 0; i < RigheDiProva && righe.Prossima(riga); ++i) {
    for (std::size_t s = 0; s < Separatori.size(); ++s)
      divise[s] += DivideInPunteggio(riga, Separatori[s]);
  }
  const auto migliore = std::max_element(divise.begin(), divise.end());
  if (*migliore == 0) return NessunSeparatore;
  return Separatori[static_cast<std::size_t>(migliore - divise.begin())];
}

// The line with which spreadsheets name their columns.
bool Intestazione(std::string_view parola, std::string_view punteggio) {
  constexpr std::string_view nomi[] = {"SCORE", "PUNTEGGIO", "PUNTI"};
  return !parola.empty() &&
         std::find(std::begin(nomi), std::end(nomi), Maiuscole(punteggio)) != std::end(nomi);
}

class Importazione {
 public:
  explicit Importazione(std::string_view testo)
      : testo_(SenzaSegnoUtf8(testo)), separatore_(SeparatoreDi(testo_)) {
    Resoconto().codifica = testo_.size() < testo.size() ? Codifica::Utf8 : CodificaDi(testo_);
  }

  ElencoImportato Esegui() {
    LettoreDiRighe righe(testo_);
    std::string_view riga;
    for (std::int64_t numero = 1; righe.Prossima(riga); ++numero) {
      if (RigaVuota(riga) || Prendi(riga)) continue;
      if (Resoconto().scartate++ == 0) Resoconto().primaScartata = numero;
    }
    return std::move(importato_);
  }

 private:
  ResocontoElenco& Resoconto() { return importato_.resoconto; }

  // False for a line that is none of a list.
  bool Prendi(std::string_view riga) {
    const std::string_view grafia = StaccaCampo(riga, separatore_);
    const std::string_view campo = StaccaCampo(riga, separatore_);
    if (Resoconto().righe == 0 && Intestazione(grafia, campo)) return true;
    ++Resoconto().righe;
    const auto parola = PiegaGrafia(grafia, Resoconto().codifica);
    const auto punteggio = InterpretaPunteggio(campo);
    if (!parola || (!campo.empty() && !punteggio)) return false;
    PrendiParola(*parola, grafia, punteggio);
    PrendiDefinizione(*parola, Campo(riga));
    return true;
  }

  void PrendiParola(std::string_view parola, std::string_view grafia,
                    std::optional<int> punteggio) {
    const std::string scritta = GrafiaNellaCodePage(grafia, Resoconto().codifica);
    const bool nuova =
        importato_.parole.Metti(parola, scritta, punteggio.value_or(ElencoParole::SenzaPunteggio));
    Resoconto().doppie += !nuova;
    if (!punteggio) return;
    ++Resoconto().conPunteggio;
    Resoconto().aZero += *punteggio == 0;
    Resoconto().massimo = std::max(Resoconto().massimo, *punteggio);
  }

  void PrendiDefinizione(std::string_view parola, std::string_view testo) {
    if (testo.empty()) return;
    const bool utf8 = Resoconto().codifica == Codifica::Utf8;
    importato_.definizioni.push_back({.parola = *importato_.parole.Cerca(parola),
                                      .testo = utf8 ? DaUtf8(testo) : std::string(testo)});
  }

  std::string_view testo_;
  char separatore_;
  ElencoImportato importato_;
};

Scala ScalaDi(const ResocontoElenco& resoconto, LetturaPunteggi lettura) {
  if (resoconto.conPunteggio == 0) return Scala::Nessuna;
  // Zeros alone are bans and show no scale.
  const bool cinquanta = resoconto.massimo > 0 && resoconto.massimo <= MassimoDiCinquanta;
  return lettura == LetturaPunteggi::Riconosci && cinquanta ? Scala::Cinquanta : Scala::Cento;
}

std::string Quante(std::int64_t quante, std::string_view una, std::string_view molte) {
  if (quante == 1) return Unisci("1 ", una);
  return Unisci(quante == 0 ? "0" : ConMigliaia(quante), ' ', molte);
}

constexpr std::string_view TestoScala(Scala scala) {
  switch (scala) {
    case Scala::Nessuna:
      return " Non ci sono punteggi.";
    case Scala::Cinquanta:
      return " I punteggi vanno da 0 a 50 e sono stati raddoppiati.";
    case Scala::Cento:
      return " I punteggi vanno da 0 a 100.";
  }
  return {};
}

}  // namespace

std::optional<ElencoImportato> InterpretaElenco(std::string_view testo, LetturaPunteggi lettura,
                                                std::string& causa) {
  if (InUtf16(testo)) {
    causa = "la lista è in UTF-16, o non è un testo: va salvata in UTF-8"_cp;
    return std::nullopt;
  }
  ElencoImportato importato = Importazione(testo).Esegui();
  ResocontoElenco& resoconto = importato.resoconto;
  if (resoconto.scartate > 0 && importato.parole.Quante() == 0) {
    causa = Unisci("la lista non contiene parole, solo ",
                   Quante(resoconto.scartate, "riga", "righe"), " d'altro");
    return std::nullopt;
  }
  resoconto.scala = ScalaDi(resoconto, lettura);
  if (resoconto.scala == Scala::Cinquanta) importato.parole.RaddoppiaPunteggi();
  return importato;
}

std::optional<ElencoImportato> ImportaElenco(std::string_view testo, std::string& causa) {
  auto importato = InterpretaElenco(testo, LetturaPunteggi::Riconosci, causa);
  if (!importato || importato->parole.Quante() > 0) return importato;
  causa = "la lista è vuota"_cp;
  return std::nullopt;
}

std::string TestoResoconto(const ElencoImportato& importato) {
  const ResocontoElenco& resoconto = importato.resoconto;
  std::string testo =
      Unisci(Quante(resoconto.righe, "riga", "righe"), ": ",
             Quante(static_cast<std::int64_t>(importato.parole.Quante()), "parola", "parole"), ", ",
             Quante(resoconto.doppie, "doppia", "doppie"), ", ",
             Quante(resoconto.scartate, "riga scartata", "righe scartate"));
  if (resoconto.scartate > 0) testo += Unisci(" (la prima: ", resoconto.primaScartata, ')');
  testo += '.';
  testo += TestoScala(resoconto.scala);
  if (!importato.definizioni.empty()) {
    testo += Unisci(" Le definizioni sono ", ConMigliaia(std::ssize(importato.definizioni)), '.');
  }
  return testo;
}

}  // namespace telarium
