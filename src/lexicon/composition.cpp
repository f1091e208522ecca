#include "lexicon/composition.h"

#include <algorithm>

#include "lexicon/dictionary_layer.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/list_import.h"
#include "lexicon/own_words.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr const char* EstensioneLessico = ".lexicon";

enum class Specie { Lingua, Corredo, Dizionario, Elenco, Mio };

std::string Estensione(const Percorso& nome) {
  std::string estensione = nome.extension().string();
  std::transform(estensione.begin(), estensione.end(), estensione.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return estensione;
}

Specie SpecieDi(const Percorso& nome) {
  if (std::ranges::find(LingueDeiLessici, nome.native()) != LingueDeiLessici.end())
    return Specie::Lingua;
  if (nome == NomeCorredo) return Specie::Corredo;
  if (nome == NomeParoleMie) return Specie::Mio;
  const std::string estensione = Estensione(nome);
  return estensione == ".dat" || estensione == ".priv" ? Specie::Dizionario : Specie::Elenco;
}

// Reads a text file. None, with a message that begins with a text, when that fails.
std::optional<std::string> LeggiTesto(const Percorso& file, std::size_t massimo,
                                      std::string_view illeggibile, std::string& messaggio) {
  std::string contenuto;
  std::error_code errore;
  switch (LeggiFile(file, massimo, contenuto, errore)) {
    case EsitoLettura::Letto:
      return contenuto;
    case EsitoLettura::TroppoGrande:
      messaggio = ConCausa(illeggibile, file, "è troppo grande"_cp);
      return std::nullopt;
    default:
      messaggio = ConCausa(illeggibile, file, errore);
      return std::nullopt;
  }
}

// So many scores, none above 50, are hardly of the scale from 0 to 100.
constexpr std::int64_t MoltiPunteggi = 1000;

std::string NotaSu(const ResocontoElenco& resoconto, const Percorso& file) {
  std::string nota;
  if (resoconto.scartate > 0) {
    nota = Unisci("Lista ", TestoPercorso(file),
                  ": righe che non contengono una parola, ignorate: ", resoconto.scartate,
                  " (la prima: ", resoconto.primaScartata, ").");
  }
  if (resoconto.conPunteggio >= MoltiPunteggi && resoconto.massimo <= MassimoDiCinquanta) {
    nota += Unisci(nota.empty() ? "" : "\n", "Lista ", TestoPercorso(file),
                   ": nessun punteggio supera 50, ma valgono come stanno, da 0 a 100.");
  }
  return nota;
}

std::optional<ElencoImportato> LeggiElenco(const Percorso& file, std::string& messaggio) {
  constexpr std::string_view illeggibile = "La lista di parole non si può leggere."_cp;
  const auto testo = LeggiTesto(file, MaxByteElenco, illeggibile, messaggio);
  if (!testo) return std::nullopt;
  std::string causa;
  auto elenco = InterpretaElenco(*testo, LetturaPunteggi::ComeSono, causa);
  messaggio = elenco ? NotaSu(elenco->resoconto, file) : ConCausa(illeggibile, file, causa);
  return elenco;
}

// A bare name that no file has is likely meant as one of those that need none: they are told.
std::string SeNomeErrato(const Percorso& nome, std::string_view quali, std::string_view noti) {
  std::error_code ignorato;
  const bool errato = !nome.has_parent_path() && !std::filesystem::exists(nome, ignorato);
  return errato ? Unisci(' ', quali, noti, '.') : std::string();
}

std::string NomiDelleLingue() {
  std::string nomi;
  for (const std::string_view lingua : LingueDeiLessici)
    nomi += Unisci(nomi.empty() ? "" : ", ", lingua);
  return nomi;
}

bool SenzaParole(const Strato& strato) {
  int lunghezza = MinLunghezzaVoce;
  while (lunghezza <= MaxLunghezzaVoce && strato.Conta(lunghezza) == 0)
    ++lunghezza;
  return lunghezza > MaxLunghezzaVoce;
}

// Puts a lexicon together from the layers that are named.
class Composizione {
 public:
  Composizione(const std::vector<Percorso>& nomi, const LuoghiLessico& luoghi,
               std::string& messaggio)
      : nomi_(nomi), luoghi_(luoghi), messaggio_(messaggio) {}

  std::optional<Lessico> Esegui() {
    if (!AggiungiSpecie(Specie::Lingua) || !Aggiungi(Specie::Corredo, NomeCorredo) ||
        !AggiungiSpecie(Specie::Dizionario) || !AggiungiSpecie(Specie::Elenco) || !AggiungiMio()) {
      return std::nullopt;
    }
    return std::move(lessico_);
  }

 private:
  bool Nominata(Specie specie) const {
    return std::ranges::any_of(nomi_,
                               [&](const Percorso& nome) { return SpecieDi(nome) == specie; });
  }

  bool AggiungiSpecie(Specie specie) {
    return std::ranges::all_of(nomi_, [&](const Percorso& nome) {
      return SpecieDi(nome) != specie || Aggiungi(specie, nome);
    });
  }

  bool Aggiungi(Specie specie, const Percorso& nome) {
    auto strato = Apri(specie, nome);
    if (!strato) return false;
    if (SenzaParole(*strato))
      AggiungiRiga(Unisci(TestoPercorso(nome), ": non contiene nemmeno una parola."));
    lessico_.Aggiungi(std::move(strato), OrigineDi(specie));
    return true;
  }

  Origine OrigineDi(Specie specie) const {
    switch (specie) {
      case Specie::Lingua:
        return lessico_.Livelli().empty() ? Origine::Lingua : Origine::Straniera;
      case Specie::Corredo:
        return Origine::Sigle;
      case Specie::Dizionario:
        return Origine::Dizionario;
      case Specie::Elenco:
        return Origine::Elenco;
      case Specie::Mio:
        break;
    }
    return Origine::Mio;
  }

  std::shared_ptr<const Strato> Apri(Specie specie, const Percorso& nome) {
    switch (specie) {
      case Specie::Lingua:
      case Specie::Corredo:
        return ApriLessico(nome);
      case Specie::Dizionario:
        return ApriDizionario(nome);
      default:
        return ApriElenco(nome);
    }
  }

  std::shared_ptr<const Strato> ApriLessico(const Percorso& nome) {
    Percorso file = luoghi_.lessici / nome;
    file += EstensioneLessico;
    std::string perche;
    auto strato = FileLessico::Apri(file, nome.string(), perche);
    if (!strato) {
      messaggio_ = ConCausa(
          Unisci("Il lessico \"", TestoPercorso(nome), "\" non si può aprire."_cp), file, perche);
    }
    return strato;
  }

  std::shared_ptr<const Strato> ApriDizionario(const Percorso& nome) {
    const Percorso file = PercorsoNellaCartella(luoghi_.programma, nome);
    std::string perche;
    auto strato = StratoDizionario(file, TestoPercorso(nome.filename()), perche);
    if (!strato) messaggio_ = ConCausa("Impossibile leggere il dizionario.", file, perche);
    return strato;
  }

  void AggiungiRiga(std::string_view messaggio) {
    if (!messaggio_.empty() && !messaggio.empty()) messaggio_ += '\n';
    messaggio_ += messaggio;
  }

  std::shared_ptr<const Strato> ApriElenco(const Percorso& nome) {
    std::string messaggio;
    const auto elenco = LeggiElenco(nome, messaggio);
    AggiungiRiga(messaggio);
    if (!elenco) {
      messaggio_ += SeNomeErrato(nome, "Le lingue sono ", NomiDelleLingue());
      return nullptr;
    }
    return std::make_shared<StratoElenco>(TestoPercorso(nome.filename()), elenco->parole);
  }

  bool AggiungiMio() {
    std::string causa;
    const auto mie = ParoleMie::Leggi(luoghi_.programma, causa);
    AggiungiRiga(causa);
    if (!mie) return false;
    const auto [quante, prima] = mie->RigheIgnorate();
    AggiungiRiga(NotaSu({.scartate = quante, .primaScartata = prima},
                        PercorsoNellaCartella(luoghi_.programma, ParoleMie::NomeFile)));
    if (Nominata(Specie::Lingua) || Nominata(Specie::Dizionario) || Nominata(Specie::Mio)) {
      lessico_.Aggiungi(std::make_shared<StratoElenco>(NomeParoleMie, mie->Elenco()), Origine::Mio);
      return true;
    }
    for (const std::string& parola : mie->Vietate())
      lessico_.Vieta(parola);
    return true;
  }

  const std::vector<Percorso>& nomi_;
  const LuoghiLessico& luoghi_;
  std::string& messaggio_;
  Lessico lessico_;
};

}  // namespace

std::optional<Lessico> ComponiLessico(const std::vector<Percorso>& nomi,
                                      const LuoghiLessico& luoghi, std::string& messaggio) {
  messaggio.clear();
  return Composizione(nomi, luoghi, messaggio).Esegui();
}

std::optional<Regolamento> TrovaRegolamento(const Percorso& nome, std::string& messaggio) {
  messaggio.clear();
  if (const Regolamento* const noto = RegolamentoDiNome(nome.string())) return *noto;
  constexpr std::string_view illeggibili = "Le regole non si possono leggere.";
  const auto testo = LeggiTesto(nome, MaxByteRegolamento, illeggibili, messaggio);
  if (!testo) {
    messaggio += SeNomeErrato(nome, "Le regole con un nome sono ", NomiDeiRegolamenti);
    return std::nullopt;
  }
  std::string causa;
  auto regole = InterpretaRegolamento(*testo, TestoPercorso(nome.filename()), causa);
  if (!regole) messaggio = ConCausa(illeggibili, nome, causa);
  return regole;
}

std::optional<InsiemeDiParole> LeggiParole(const Percorso& lista, std::string& messaggio) {
  const auto elenco = LeggiElenco(lista, messaggio);
  if (!elenco) return std::nullopt;
  InsiemeDiParole parole;
  for (std::size_t i = 0; i < elenco->parole.Quante(); ++i)
    parole.emplace(elenco->parole[i].parola);
  return parole;
}

}  // namespace telarium
