#include "lexicon/entry.h"

#include <algorithm>
#include <array>

#include "dictionary/word_list.h"
#include "platform/codepage.h"

namespace telarium {
namespace {

struct NomeCategoria {
  std::string_view codice;
  Categoria categoria;
};

constexpr NomeCategoria Categorie[] = {
    {"s", Categoria::Sostantivo},
    {"a", Categoria::Aggettivo},
    {"v", Categoria::Verbo},
    {"avv", Categoria::Avverbio},
    {"pron", Categoria::Pronome},
    {"art", Categoria::Articolo},
    {"prep", Categoria::Preposizione},
    {"cong", Categoria::Congiunzione},
    {"inter", Categoria::Interiezione},
    {"num", Categoria::Numerale},
    {"np", Categoria::NomeProprio},
    {"sig", Categoria::Abbreviazione},
};

struct Flessione {
  std::string_view codice;
  Genere genere;
  Numero numero;
};

constexpr Flessione Flessioni[] = {
    {"ms", Genere::Maschile, Numero::Singolare},   {"fs", Genere::Femminile, Numero::Singolare},
    {"mp", Genere::Maschile, Numero::Plurale},     {"fp", Genere::Femminile, Numero::Plurale},
    {"m", Genere::Maschile, Numero::Invariabile},  {"f", Genere::Femminile, Numero::Invariabile},
    {"s", Genere::Invariabile, Numero::Singolare}, {"p", Genere::Invariabile, Numero::Plurale},
};

struct PersonaVerbale {
  std::string_view codice;
  std::uint8_t persona;
  Numero numero;
};

constexpr PersonaVerbale Persone[] = {
    {"1s", 1, Numero::Singolare}, {"2s", 2, Numero::Singolare}, {"3s", 3, Numero::Singolare},
    {"1p", 1, Numero::Plurale},   {"2p", 2, Numero::Plurale},   {"3p", 3, Numero::Plurale},
};

// What follows mood and tense of a verb.
enum class Seguito { Niente, Flessione, Persona };

struct FormaVerbale {
  std::string_view codice;
  Modo modo;
  Tempo tempo;
  Seguito seguito;
};

constexpr FormaVerbale FormeVerbali[] = {
    {"", Modo::Nessuno, Tempo::Nessuno, Seguito::Niente},
    {"inf", Modo::Infinito, Tempo::Nessuno, Seguito::Niente},
    {"ger", Modo::Gerundio, Tempo::Nessuno, Seguito::Niente},
    {"part.pres", Modo::Participio, Tempo::Presente, Seguito::Flessione},
    {"part.pass", Modo::Participio, Tempo::Passato, Seguito::Flessione},
    {"ind.pres", Modo::Indicativo, Tempo::Presente, Seguito::Persona},
    {"ind.impf", Modo::Indicativo, Tempo::Imperfetto, Seguito::Persona},
    {"ind.pass", Modo::Indicativo, Tempo::Passato, Seguito::Persona},
    {"ind.fut", Modo::Indicativo, Tempo::Futuro, Seguito::Persona},
    {"cong.pres", Modo::Congiuntivo, Tempo::Presente, Seguito::Persona},
    {"cong.impf", Modo::Congiuntivo, Tempo::Imperfetto, Seguito::Persona},
    {"cond.pres", Modo::Condizionale, Tempo::Presente, Seguito::Persona},
    {"imp.pres", Modo::Imperativo, Tempo::Presente, Seguito::Persona},
    {"fin", Modo::Finito, Tempo::Nessuno, Seguito::Niente},
};

template <class Tabella>
auto Trova(const Tabella& tabella, std::string_view codice) {
  const auto* riga = std::ranges::find(tabella, codice, [](const auto& una) { return una.codice; });
  return riga == std::end(tabella) ? nullptr : riga;
}

// Takes the next attribute off a code, the point before it too.
std::string_view Stacca(std::string_view& codice) {
  const std::string_view parte = codice.substr(0, codice.find('.'));
  codice.remove_prefix(std::min(codice.size(), parte.size() + 1));
  return parte;
}

// Takes an attribute off a code when it comes next.
bool StaccaSe(std::string_view& codice, std::string_view attributo) {
  if (!codice.starts_with(attributo)) return false;
  if (codice.size() > attributo.size() && codice[attributo.size()] != '.') return false;
  codice.remove_prefix(std::min(codice.size(), attributo.size() + 1));
  return true;
}

void StaccaFlessione(std::string_view& codice, Analisi& analisi) {
  std::string_view resto = codice;
  const Flessione* const flessione = Trova(Flessioni, Stacca(resto));
  if (!flessione) return;
  codice = resto;
  analisi.genere = flessione->genere;
  analisi.numero = flessione->numero;
}

bool StaccaPersona(std::string_view& codice, Analisi& analisi) {
  const PersonaVerbale* const persona = Trova(Persone, Stacca(codice));
  if (!persona) return false;
  analisi.persona = persona->persona;
  analisi.numero = persona->numero;
  return true;
}

bool StaccaFormaVerbale(std::string_view& codice, Analisi& analisi) {
  const auto* const forma =
      std::find_if(std::begin(FormeVerbali) + 1, std::end(FormeVerbali),
                   [&](const FormaVerbale& una) { return StaccaSe(codice, una.codice); });
  if (forma == std::end(FormeVerbali)) return true;  // a verb of which no more is known
  analisi.modo = forma->modo;
  analisi.tempo = forma->tempo;
  if (forma->seguito == Seguito::Flessione) StaccaFlessione(codice, analisi);
  return forma->seguito != Seguito::Persona || StaccaPersona(codice, analisi);
}

// Where the parts of an analysis begin in its 32 bits. One ends where the next begins.
enum Inizio : unsigned {
  DiCategoria = 0,
  DiModo = 5,
  DiTempo = 9,
  DiPersona = 12,
  DiGenere = 14,
  DiNumero = 16,
  DiClitica = 18,
  DiComparata = 19,
  Fine = 20
};

constexpr std::uint32_t Metti(Inizio inizio, auto valore) {
  return static_cast<std::uint32_t>(valore) << inizio;
}

template <class Parte>
constexpr Parte Prendi(std::uint32_t bit, Inizio inizio, Inizio seguente) {
  return static_cast<Parte>(bit >> inizio & ((1u << (seguente - inizio)) - 1));
}

// What may follow a mood and a tense; nothing where no form has the two.
using SeguitiVerbali = std::array<std::array<std::optional<Seguito>, 8>, 16>;

constexpr SeguitiVerbali TabellaDeiSeguiti() {
  SeguitiVerbali seguiti{};
  for (const FormaVerbale& forma : FormeVerbali)
    seguiti[static_cast<std::size_t>(forma.modo)][static_cast<std::size_t>(forma.tempo)] =
        forma.seguito;
  return seguiti;
}

// Whether the parts go together, as they do in every analysis that a code gives.
bool Coerente(const Analisi& analisi) {
  static constexpr SeguitiVerbali seguiti = TabellaDeiSeguiti();
  if (analisi.categoria > Categoria::Abbreviazione || analisi.genere > Genere::Femminile ||
      analisi.numero > Numero::Plurale || analisi.persona > 3) {
    return false;
  }
  const auto seguito =
      seguiti[static_cast<std::size_t>(analisi.modo)][static_cast<std::size_t>(analisi.tempo)];
  if (!seguito) return false;
  if (analisi.categoria != Categoria::Verbo && analisi.modo != Modo::Nessuno) return false;
  return (analisi.persona > 0) == (*seguito == Seguito::Persona);
}

// Adds a name to a list of names.
void Elenca(std::string& elenco, std::string_view nome) {
  if (!elenco.empty()) elenco += ',';
  elenco += nome;
}

struct NomeSegno {
  std::string_view codice;
  Segno segno;
};

constexpr NomeSegno NomiSegni[] = {
    {"nome", Segno::Nome},           {"sigla", Segno::Sigla}, {"straniera", Segno::Straniera},
    {"locuzione", Segno::Locuzione}, {"gioco", Segno::Gioco}, {"tronca", Segno::Tronca},
    {"bandita", Segno::Bandita},
};

// What spelling puts between letters: blanks, apostrophes, hyphens and points.
bool FraLettere(char32_t carattere) {
  constexpr std::u32string_view segni = U" '.-\u00A0\u2010\u2011\u2018\u2019";
  return segni.find(carattere) != std::u32string_view::npos;
}

// Adds the letters of a character of a spelled text. False when it has no place in one.
bool Piega(char32_t carattere, std::string& parola) {
  if (FraLettere(carattere)) return true;
  const auto lettere = PiegaCarattere(carattere);
  if (lettere) parola += *lettere;
  return lettere.has_value();
}

std::optional<std::string> SeDiVoce(std::string parola) {
  if (!LunghezzaDiVoce(parola.size())) return std::nullopt;
  return parola;
}

}  // namespace

bool DiLettere(std::string_view testo) {
  // Without an early end and a byte each, so that many are looked at at once.
  std::uint8_t altri = 0;
  for (const char carattere : testo)
    altri |= static_cast<unsigned char>(carattere - 'A') >= LettereAlfabeto ? 1 : 0;
  return altri == 0;
}

std::optional<Analisi> InterpretaAnalisi(std::string_view codice) {
  if (codice.ends_with('.')) return std::nullopt;
  const NomeCategoria* const categoria = Trova(Categorie, Stacca(codice));
  if (!categoria) return std::nullopt;
  Analisi analisi{.categoria = categoria->categoria};
  if (analisi.categoria == Categoria::Verbo) {
    if (!StaccaFormaVerbale(codice, analisi)) return std::nullopt;
    analisi.clitica = StaccaSe(codice, "cli");
  } else {
    StaccaFlessione(codice, analisi);
    analisi.comparata = StaccaSe(codice, "comp");
  }
  if (!codice.empty()) return std::nullopt;
  return analisi;
}

std::uint32_t BitDi(const Analisi& analisi) {
  return Metti(DiCategoria, analisi.categoria) | Metti(DiModo, analisi.modo) |
         Metti(DiTempo, analisi.tempo) | Metti(DiPersona, analisi.persona) |
         Metti(DiGenere, analisi.genere) | Metti(DiNumero, analisi.numero) |
         Metti(DiClitica, analisi.clitica) | Metti(DiComparata, analisi.comparata);
}

std::optional<Analisi> AnalisiDaBit(std::uint32_t bit) {
  const Analisi analisi = {
      .categoria = Prendi<Categoria>(bit, DiCategoria, DiModo),
      .modo = Prendi<Modo>(bit, DiModo, DiTempo),
      .tempo = Prendi<Tempo>(bit, DiTempo, DiPersona),
      .persona = Prendi<std::uint8_t>(bit, DiPersona, DiGenere),
      .genere = Prendi<Genere>(bit, DiGenere, DiNumero),
      .numero = Prendi<Numero>(bit, DiNumero, DiClitica),
      .clitica = Prendi<bool>(bit, DiClitica, DiComparata),
      .comparata = Prendi<bool>(bit, DiComparata, Fine),
  };
  if (bit >> Fine != 0 || !Coerente(analisi)) return std::nullopt;
  return analisi;
}

bool SoloFinita(const std::vector<Lettura>& letture) {
  return !letture.empty() && std::ranges::all_of(letture, [](const Lettura& lettura) {
    return lettura.analisi.SoloVerbale();
  });
}

std::string NomiDeiSegni(Segni segni) {
  std::string nomi;
  for (const auto& [nome, segno] : NomiSegni) {
    if (segni.Ha(segno)) Elenca(nomi, nome);
  }
  return nomi;
}

std::string NomiDelleForme(const Lettura& lettura, std::string_view grafia) {
  const Analisi& analisi = lettura.analisi;
  const bool finita = analisi.Finita();
  const std::pair<bool, std::string_view> forme[] = {
      {lettura.lemma == grafia, "lemma"},
      {analisi.numero == Numero::Plurale && !finita, "plurale"},
      {analisi.genere == Genere::Femminile, "femminile"},
      {analisi.modo == Modo::Infinito, "infinito"},
      {analisi.modo == Modo::Participio, "participio"},
      {analisi.modo == Modo::Gerundio, "gerundio"},
      {finita, "finita"},
      {analisi.clitica, "clitica"},
      {analisi.comparata, "comparata"},
  };
  std::string nomi;
  for (const auto& [vale, nome] : forme) {
    if (vale) Elenca(nomi, nome);
  }
  return nomi;
}

std::optional<Segno> SegnoDiNome(std::string_view nome) {
  const NomeSegno* const riga = Trova(NomiSegni, nome);
  if (!riga) return std::nullopt;
  return riga->segno;
}

std::optional<std::string> PiegaGrafia(std::string_view grafia) {
  std::string parola;
  for (const char byte : grafia) {
    if (!Piega(TabellaCodePage[static_cast<unsigned char>(byte)], parola)) return std::nullopt;
  }
  return SeDiVoce(std::move(parola));
}

std::optional<std::string> PiegaGrafiaUtf8(std::string_view grafia) {
  std::string parola;
  while (!grafia.empty()) {
    const auto carattere = EstraiCarattereUtf8(grafia);
    if (!carattere || !Piega(*carattere, parola)) return std::nullopt;
  }
  return SeDiVoce(std::move(parola));
}

}  // namespace telarium
