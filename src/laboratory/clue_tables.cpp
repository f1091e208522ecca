#include "laboratory/clue_tables.h"

#include <algorithm>
#include <array>

#include "platform/codepage.h"

namespace telarium::tabelle {
namespace {

// clang-format off
constexpr std::string_view ElencoRiempitive[] = {
    // parts of speech
    "ESCLAMAZIONE", "ESCLAMAZIONI", "INTERIEZIONE", "INTERIEZIONI", "IMPRECAZIONE",
    "ARTICOLO", "ARTICOLI", "ARTICOLO DETERMINATIVO", "ARTICOLO INDETERMINATIVO",
    "ARTICOLO MASCHILE", "ARTICOLO FEMMINILE", "ARTICOLO PLURALE",
    "PREPOSIZIONE", "PREPOSIZIONI", "PREPOSIZIONE SEMPLICE", "PREPOSIZIONE ARTICOLATA",
    "CONGIUNZIONE", "CONGIUNZIONI", "AVVERBIO", "AVVERBI", "AVVERBIO DI LUOGO",
    "AVVERBIO DI TEMPO", "AVVERBIO DI MODO", "AVVERBIO DI QUANTITA",
    "PRONOME", "PRONOMI", "PRONOME PERSONALE", "PRONOME RELATIVO", "PRONOME POSSESSIVO",
    "PRONOME DIMOSTRATIVO", "PRONOME INDEFINITO", "PRONOME INTERROGATIVO", "PRONOME FEMMINILE",
    "PRONOME MASCHILE", "PARTICELLA", "PARTICELLA PRONOMINALE", "PARTICELLA AVVERBIALE",
    "AGGETTIVO", "AGGETTIVI", "AGGETTIVO POSSESSIVO", "AGGETTIVO DIMOSTRATIVO",
    "AGGETTIVO NUMERALE", "NUMERALE", "NUMERALI", "NUMERO", "NUMERI",
    "SOSTANTIVO", "VERBO", "VERBI", "VERBO AUSILIARE", "VOCE VERBALE", "VOCE DEL VERBO",
    "FORMA VERBALE", "PREFISSO", "SUFFISSO", "DESINENZA", "PAROLA", "PAROLE",
    // names
    "NOME", "NOMI", "NOME PROPRIO", "NOME COMUNE", "NOME MASCHILE", "NOME FEMMINILE",
    "NOME PROPRIO MASCHILE", "NOME PROPRIO FEMMINILE", "NOME DI PERSONA", "NOME DI DONNA",
    "NOME DI UOMO", "NOME D UOMO", "NOME MASCHILE E FEMMINILE", "COGNOME", "COGNOMI",
    "DIMINUTIVO", "DIMINUTIVO MASCHILE", "DIMINUTIVO FEMMINILE",
    // abbreviations and the like
    "SIGLA", "SIGLE", "ABBREVIAZIONE", "ABBREVIAZIONI", "SIMBOLO", "SIMBOLO CHIMICO", "TARGA",
    "LETTERE", "VOCALI", "CONSONANTI",
    // kinds of which there are hundreds
    "LINGUA", "LINGUE", "CITTA", "COMUNE", "COMUNE ITALIANO", "FIUME", "FIUMI", "ANIMALE",
    "ANIMALI", "PIANTA", "PIANTE", "COSA", "COSE", "AZIONE", "PERSONA",
};

constexpr Apertura ElencoAperture[] = {
    {"A INIZIO DI", "All'inizio di"}, {"INIZIO DI", "Inizio di"}, {"PRINCIPIO DI", "Principio di"},
    {"IN TESTA A", "In testa a"}, {"IN CIMA A", "In cima a"}, {"IN CAPO A", "In capo a"},
    {"PRIME DI", "Le prime di"}, {"UN PO DI", "Un po' di"}, {"PEZZO DI", "Pezzo di"},
    {"A FINE DI", "Alla fine di"}, {"FINE DI", "Fine di"}, {"IN FONDO A", "In fondo a"},
    {"IN CODA A", "In coda a"}, {"ULTIME DI", "Le ultime di"},
    {"A CENTRO DI", "Al centro di"}, {"IN CENTRO DI", "Nel centro di"}, {"CENTRO DI", "Centro di"},
    {"IN CUORE DI", "Nel cuore di"}, {"CUORE DI", "Cuore di"}, {"IN MEZZO A", "In mezzo a"},
    {"IN MEZZO DI", "Nel mezzo di"},
    {"ESTREMI DI", "Gli estremi di"}, {"ESTREMI IN", "Estremi in"}, {"CONFINI DI", "I confini di"},
    {"LIMITI DI", "I limiti di"}, {"VOCALI DI", "Le vocali di"}, {"VOCALI IN", "Vocali in"},
    {"CONSONANTI DI", "Le consonanti di"}, {"CONSONANTI IN", "Consonanti in"},
    {"PARI DI", "Le pari di"}, {"PARI IN", "Pari in"}, {"DISPARI DI", "Le dispari di"},
    {"DISPARI IN", "Dispari in"}, {"GEMELLE DI", "Le gemelle di"}, {"GEMELLE IN", "Gemelle in"},
    {"DOPPIE DI", "Le doppie di"}, {"DOPPIE IN", "Doppie in"}, {"INIZIALI DI", "Le iniziali di"},
    {"MEZZO", "Mezzo", true}, {"MEZZA", "Mezza", true}, {"METÀ"_cp, "Metà"_cp, true},
};

// CON and its like are no beginnings of five letters, but with the letters that so often follow
// they become some: COMPAGNO and compassione, DISTRETTO and distratto.
constexpr std::string_view ElencoPrefissi[] = {
    "ANTE", "ANTI", "ARCHI", "AUTO", "CIRCO", "CIRCUM", "COM", "CON", "CONTR", "DIS", "ELETTR",
    "EXTRA", "FOTO", "IDRO", "INFRA", "INTER", "INTRA", "INTRO", "IPER", "MACRO", "MAXI",
    "MEGA", "META", "MICRO", "MINI", "MONO", "MULTI", "NEURO", "ONNI", "PARA", "PERI", "PLURI",
    "POLI", "POST", "PRE", "PRO", "PSICO", "RADIO", "RETRO", "SEMI", "SOPRA", "SOTTO", "SOVRA",
    "STRA", "SUPER", "TECNO", "TELE", "TERMO", "TRANS", "TRAS", "ULTRA", "VIDEO",
};

// Sorted, for a search by halves.
constexpr auto ElencoVuote = [] {
  auto parole = std::to_array<std::string_view>({
      "A", "ABBIAMO", "AD", "AGLI", "AI", "AL", "ALL", "ALLA", "ALLE", "ALLO", "ALTRA", "ALTRE",
      "ALTRI", "ALTRO", "ANCHE", "AVETE", "C", "CHE", "CHI", "CI", "COI", "COL", "COME", "CON",
      "COSI", "CUI", "D", "DA", "DAGLI", "DAI", "DAL", "DALL", "DALLA", "DALLE", "DALLO", "DEGLI",
      "DEI", "DEL", "DELL", "DELLA", "DELLE", "DELLO", "DEVE", "DEVONO", "DI", "DO", "DOVE", "E",
      "ED", "EGLI", "ERA", "ERANO", "ESSA", "ESSE", "ESSI", "ESSO", "FA", "FAI", "FANNO", "FO",
      "FRA", "FU", "FURONO", "GLI", "HA", "HAI", "HANNO", "HO", "I", "IL", "IN", "IO", "L", "LA",
      "LE", "LEI", "LI", "LO", "LORO", "LUI", "M", "MA", "ME", "MI", "MIA", "MIE", "MIEI", "MIO",
      "MOLTA", "MOLTE", "MOLTI", "MOLTO", "N", "NE", "NEGLI", "NEI", "NEL", "NELL", "NELLA",
      "NELLE", "NELLO", "NOI", "NON", "O", "OD", "OGNI", "PER", "PIU", "PO", "POCO", "POSSONO",
      "PUO", "PUOI", "QUALCHE", "QUANDO", "QUEGLI", "QUEI", "QUEL", "QUELL", "QUELLA", "QUELLE",
      "QUELLI", "QUELLO", "QUEST", "QUESTA", "QUESTE", "QUESTI", "QUESTO", "S", "SA", "SAI",
      "SANNO", "SE", "SEI", "SENZA", "SI", "SIAMO", "SIETE", "SO", "SONO", "STA", "STAI", "STANNO",
      "STO", "SU", "SUA", "SUE", "SUGLI", "SUI", "SUL", "SULL", "SULLA", "SULLE", "SULLO", "SUO",
      "SUOI", "T", "TE", "TI", "TRA", "TU", "TUA", "TUE", "TUO", "TUOI", "TUTT", "TUTTA", "TUTTE",
      "TUTTI", "TUTTO", "UN", "UNA", "UNO", "V", "VA", "VAI", "VANNO", "VENGONO", "VI", "VIENE",
      "VO", "VOGLIONO", "VOI", "VUOLE", "VUOI",
  });
  std::sort(parole.begin(), parole.end());
  return parole;
}();
// clang-format on

constexpr std::string_view ElencoLemmiVuoti[] = {"essere", "avere"};

}  // namespace

std::span<const std::string_view> Riempitive() {
  return ElencoRiempitive;
}

std::span<const Apertura> ApertureDiGiochi() {
  return ElencoAperture;
}

std::span<const std::string_view> PrefissiComuni() {
  return ElencoPrefissi;
}

bool ParolaVuota(std::string_view parola) {
  return std::binary_search(ElencoVuote.begin(), ElencoVuote.end(), parola);
}

bool LemmaVuoto(std::string_view lemma) {
  return std::ranges::find(ElencoLemmiVuoti, lemma) != std::end(ElencoLemmiVuoti);
}

}  // namespace telarium::tabelle
