#include <algorithm>
#include <charconv>
#include <map>

#include "lexicon/list_text.h"
#include "lexicon/rules.h"
#include "platform/codepage.h"
#include "platform/text.h"

// A set of rules as a small text file.
namespace telarium {
namespace {

/// The largest N of "uno su N": more entries than that no grid has.
constexpr int MaxUnaSu = 9999;

// Small letters, and one blank for several.
std::string Normale(std::string_view testo) {
  std::string normale;
  for (const char c : Ritagliato(testo)) {
    const bool bianco = c == ' ' || c == '\t';
    if (bianco && normale.ends_with(' ')) continue;
    normale += bianco ? ' ' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return normale;
}

std::optional<Quota> QuotaDi(std::string_view valore) {
  if (valore == "no") return Quota{Quota::Nessuna};
  if (valore == "si" || valore == "s\xC3\xAC" || valore == "s\xC3\x8C") return Quota{Quota::Libera};
  constexpr std::string_view inizi[] = {"uno su ", "una su ", "1 su "};
  for (const std::string_view inizio : inizi) {
    if (!valore.starts_with(inizio)) continue;
    valore.remove_prefix(inizio.size());
    int unaSu = 0;
    const char* const fine = valore.data() + valore.size();
    const auto [letto, errore] = std::from_chars(valore.data(), fine, unaSu);
    if (errore != std::errc() || letto != fine || unaSu < 1 || unaSu > MaxUnaSu) return {};
    return Quota{unaSu};
  }
  return std::nullopt;
}

using Impostazione = bool (*)(Regolamento&, std::string_view valore);

template <Genia genia>
bool ImpostaQuota(Regolamento& regole, std::string_view valore) {
  const auto quota = QuotaDi(valore);
  if (quota) regole.Di(genia) = *quota;
  return quota.has_value();
}

// Gives `dove` what stands beside a word in a table.
template <class Scelta, std::size_t N>
bool Scegli(const std::pair<std::string_view, Scelta> (&scelte)[N], std::string_view valore,
            Scelta& dove) {
  for (const auto& [nome, scelta] : scelte) {
    if (nome != valore) continue;
    dove = scelta;
    return true;
  }
  return false;
}

bool ImpostaDue(Regolamento& regole, std::string_view valore) {
  constexpr std::pair<std::string_view, DueLettere> scelte[] = {{"corredo", DueLettere::Corredo},
                                                                {"tutte", DueLettere::Tutte}};
  return Scegli(scelte, valore, regole.due);
}

bool ImpostaTre(Regolamento& regole, std::string_view valore) {
  constexpr std::pair<std::string_view, TreLettere> scelte[] = {
      {"parole", TreLettere::Parole}, {"gioco", TreLettere::Gioco}, {"tutte", TreLettere::Tutte}};
  return Scegli(scelte, valore, regole.tre);
}

bool ImpostaBase(Regolamento& regole, std::string_view valore) {
  const Regolamento* const base = RegolamentoDiNome(valore);
  if (base) regole = *base;
  return base;
}

struct Regola {
  std::string_view nome;
  Impostazione imposta;
  std::string_view valori;  // for a message
};

constexpr std::string_view ValoriDiQuota = "no, si, uno su N (N da 1 a 9999)";

// The first one is what the others change, wherever it stands in the file.
constexpr Regola Regole[] = {
    {"base", ImpostaBase, NomiDeiRegolamenti},
    {"finite", ImpostaQuota<Genia::Finita>, ValoriDiQuota},
    {"tronche", ImpostaQuota<Genia::Tronca>, ValoriDiQuota},
    {"due", ImpostaDue, "corredo, tutte"},
    {"tre", ImpostaTre, "parole, gioco, tutte"},
    {"nomi", ImpostaQuota<Genia::Nome>, ValoriDiQuota},
    {"sigle", ImpostaQuota<Genia::Sigla>, ValoriDiQuota},
    {"straniere", ImpostaQuota<Genia::Straniera>, ValoriDiQuota},
};
constexpr std::size_t NumRegole = std::size(Regole);

std::string NomiDelleRegole() {
  std::string nomi;
  for (const Regola& regola : Regole)
    nomi += Unisci(nomi.empty() ? "" : ", ", regola.nome);
  return nomi;
}

// The lines of a file, sorted by the rule that each sets.
class FileDiRegole {
 public:
  // False, with `causa`, for a line that sets nothing.
  bool Prendi(std::string_view riga, std::string& causa) {
    ++riga_;
    riga = Ritagliato(riga);
    if (riga.empty() || riga.starts_with('#')) return true;
    const std::size_t uguale = riga.find('=');
    if (uguale == std::string_view::npos)
      return Rifiuta(causa, Unisci("manca \"=\" in \"", DaUtf8(riga), '"'));
    const std::string nome = Normale(riga.substr(0, uguale));
    const auto regola = std::find_if(std::begin(Regole), std::end(Regole),
                                     [&](const Regola& una) { return una.nome == nome; });
    if (regola == std::end(Regole)) {
      return Rifiuta(causa, Unisci('"', DaUtf8(nome), "\" non è una regola; le regole sono "_cp,
                                   NomiDelleRegole()));
    }
    return PrendiValore(static_cast<std::size_t>(regola - Regole), riga.substr(uguale + 1), causa);
  }

  Regolamento Applica(std::string_view nome) const {
    Regolamento regole = *RegolamentoDiNome(RegolamentoIniziale);
    for (std::size_t i = 0; i < NumRegole; ++i) {
      if (!valori_[i].empty()) Regole[i].imposta(regole, valori_[i]);
    }
    regole.nome = nome;
    return regole;
  }

 private:
  bool PrendiValore(std::size_t quale, std::string_view valore, std::string& causa) {
    const Regola& regola = Regole[quale];
    if (!valori_[quale].empty())
      return Rifiuta(causa, Unisci('"', regola.nome, "\" è impostata due volte"_cp));
    valori_[quale] = Normale(valore);
    Regolamento prova;
    if (regola.imposta(prova, valori_[quale])) return true;
    return Rifiuta(causa, Unisci('"', DaUtf8(valori_[quale]), "\" non è un valore di \""_cp,
                                 regola.nome, "\"; i valori sono ", regola.valori));
  }

  bool Rifiuta(std::string& causa, std::string_view perche) const {
    causa = Unisci("riga ", riga_, ": ", perche);
    return false;
  }

  int riga_ = 0;
  std::array<std::string, NumRegole> valori_;
};

}  // namespace

std::optional<Regolamento> InterpretaRegolamento(std::string_view testo, std::string_view nome,
                                                 std::string& causa) {
  if (InUtf16(testo)) {
    causa = "il file è in UTF-16, o non è un testo: va salvato in UTF-8"_cp;
    return std::nullopt;
  }
  const bool utf8 = CodificaDi(testo) == Codifica::Utf8;
  const std::string inUtf8 = utf8 ? std::string(SenzaSegnoUtf8(testo)) : AUtf8(testo);
  FileDiRegole file;
  LettoreDiRighe righe(inUtf8);
  std::string_view riga;
  while (righe.Prossima(riga)) {
    if (!file.Prendi(riga, causa)) return std::nullopt;
  }
  return file.Applica(nome);
}

}  // namespace telarium
