#include "laboratory/clue_quality.h"

#include <algorithm>
#include <array>

#include "dictionary/word_list.h"
#include "laboratory/clue_tables.h"
#include "laboratory/measures.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

using Parole = std::vector<ParolaDiDefinizione>;

// What each byte of a clue is within a word; none for what stands between words.
using TabellaPiegature = std::array<std::optional<std::string_view>, 256>;

TabellaPiegature CreaTabella() {
  constexpr std::string_view cifre = "0123456789";
  TabellaPiegature tabella;
  for (std::size_t byte = 0; byte < tabella.size(); ++byte)
    tabella[byte] = PiegaCarattere(TabellaCodePage[byte]);
  for (std::size_t i = 0; i < cifre.size(); ++i)
    tabella[static_cast<unsigned char>(cifre[i])] = cifre.substr(i, 1);
  return tabella;
}

std::optional<std::string_view> Piegatura(char carattere) {
  static const TabellaPiegature tabella = CreaTabella();
  return tabella[static_cast<unsigned char>(carattere)];
}

bool Uno(std::string_view parola, std::initializer_list<std::string_view> elenco) {
  return std::find(elenco.begin(), elenco.end(), parola) != elenco.end();
}

bool ArticoloDeterminativo(std::string_view parola) {
  return Uno(parola, {"IL", "LO", "LA", "L", "I", "GLI", "LE"});
}

bool Articolo(std::string_view parola) {
  return ArticoloDeterminativo(parola) || Uno(parola, {"UN", "UNO", "UNA"});
}

// A preposition without its article; any other word as it is.
std::string SenzaArticolo(std::string parola) {
  if (Uno(parola, {"AD", "AL", "ALLO", "ALLA", "ALL", "AI", "AGLI", "ALLE"})) return "A";
  if (Uno(parola, {"D", "DEL", "DELLO", "DELLA", "DELL", "DEI", "DEGLI", "DELLE"})) return "DI";
  if (Uno(parola, {"NEL", "NELLO", "NELLA", "NELL", "NEI", "NEGLI", "NELLE"})) return "IN";
  return parola;
}

// Words from one on, divided by blanks.
std::string Unite(const Parole& parole, std::size_t prima, std::size_t quante) {
  std::string unite;
  for (std::size_t i = prima; i < std::min(parole.size(), prima + quante); ++i) {
    if (!unite.empty()) unite += ' ';
    unite += parole[i].piegata;
  }
  return unite;
}

// How a clue begins, as openings of letter plays are written: text k has k words.
std::vector<std::string> Inizi(const Parole& parole, std::size_t prima) {
  constexpr std::size_t massimo = 3;  // of words in an opening
  std::vector<std::string> inizi = {{}};
  for (std::size_t i = prima; i < std::min(parole.size(), prima + massimo); ++i) {
    const std::string_view spazio = inizi.size() > 1 ? " " : "";
    inizi.push_back(Unisci(inizi.back(), spazio, SenzaArticolo(Maiuscole(parole[i].testo))));
  }
  return inizi;
}

std::size_t QuanteParole(std::string_view testo) {
  return static_cast<std::size_t>(std::count(testo.begin(), testo.end(), ' ')) + 1;
}

std::optional<std::string_view> GiocoDi(const Parole& parole) {
  const std::size_t prima = !parole.empty() && ArticoloDeterminativo(parole[0].piegata) ? 1 : 0;
  const std::size_t tutte = parole.size() - prima;
  const std::vector<std::string> inizi = Inizi(parole, prima);
  for (const auto& [testo, nome, sola] : tabelle::ApertureDiGiochi()) {
    const std::size_t quante = QuanteParole(testo);
    const bool resta = sola ? tutte == quante + 1 : tutte > quante;
    if (resta && quante < inizi.size() && inizi[quante] == testo) return nome;
  }
  return std::nullopt;
}

// The longest common prefix that a text begins with.
std::size_t LetterePrefisso(std::string_view testo) {
  std::size_t lettere = 0;
  for (const std::string_view prefisso : tabelle::PrefissiComuni()) {
    if (testo.starts_with(prefisso)) lettere = std::max(lettere, prefisso.size());
  }
  return lettere;
}

}  // namespace

Parole ParoleDi(std::string_view definizione) {
  Parole parole;
  for (std::size_t i = 0; i < definizione.size();) {
    const std::size_t inizio = i;
    std::string piegata;
    for (; i < definizione.size() && Piegatura(definizione[i]); ++i)
      piegata += *Piegatura(definizione[i]);
    if (!piegata.empty())
      parole.push_back({definizione.substr(inizio, i - inizio), std::move(piegata)});
    i += i == inizio;
  }
  return parole;
}

std::optional<std::size_t> Cerca(const Parole& definizione, const Parole& cercate) {
  const auto dove =
      std::search(definizione.begin(), definizione.end(), cercate.begin(), cercate.end(),
                  [](const ParolaDiDefinizione& una, const ParolaDiDefinizione& altra) {
                    return una.piegata == altra.piegata;
                  });
  if (dove == definizione.end()) return std::nullopt;
  return static_cast<std::size_t>(dove - definizione.begin());
}

QualitaDefinizione QualitaDi(std::string_view definizione) {
  const Parole parole = ParoleDi(definizione);
  if (parole.empty()) return QualitaDefinizione::Riempitiva;
  const std::size_t prima = parole.size() > 1 && Articolo(parole[0].piegata) ? 1 : 0;
  const auto riempitive = tabelle::Riempitive();
  const std::string testo = Unite(parole, prima, parole.size());
  if (std::find(riempitive.begin(), riempitive.end(), testo) != riempitive.end())
    return QualitaDefinizione::Riempitiva;
  return parole.size() - prima == 1 ? QualitaDefinizione::Debole : QualitaDefinizione::Buona;
}

std::optional<SchemaDefinizione> SchemaDi(std::string_view definizione) {
  constexpr std::size_t paroleUguali = 3;
  const Parole parole = ParoleDi(definizione);
  if (const auto gioco = GiocoDi(parole))
    return SchemaDefinizione{std::string(*gioco), std::string(*gioco)};
  if (parole.size() < paroleUguali) return std::nullopt;
  const std::string_view terza = parole[paroleUguali - 1].testo;
  const auto fine = static_cast<std::size_t>(terza.data() + terza.size() - definizione.data());
  return SchemaDefinizione{Unite(parole, 0, paroleUguali),
                           std::string(SenzaSpazi(definizione.substr(0, fine)))};
}

bool StessaRadice(std::string_view una, std::string_view altra) {
  // With a common prefix in front the words must share more: letters beyond it, or one of them
  // whole, where the prefix is short but for its ending vowel.
  constexpr std::size_t oltreIlPrefisso = 3, prefissoLungo = 5;
  const auto fine = std::mismatch(una.begin(), una.end(), altra.begin(), altra.end()).first;
  const auto comuni = static_cast<std::size_t>(fine - una.begin());
  if (comuni < LettereDiRadice) return false;
  const std::size_t prefisso = LetterePrefisso(una.substr(0, comuni));
  if (prefisso == 0 || comuni >= prefisso + oltreIlPrefisso) return true;
  const std::size_t vocale = prefisso < prefissoLungo ? 1 : 0;
  return comuni + vocale >= std::min(una.size(), altra.size());
}

}  // namespace telarium
