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
constexpr std::string_view Lingue[] = {LessicoIniziale, "inglese", "latino", "francese"};

enum class Specie { Lingua, Corredo, Dizionario, Elenco, Mio };

std::string Estensione(const Percorso& nome) {
  std::string estensione = nome.extension().string();
  std::transform(estensione.begin(), estensione.end(), estensione.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return estensione;
}

Specie SpecieDi(const Percorso& nome) {
  if (std::ranges::find(Lingue, nome.native()) != std::end(Lingue)) return Specie::Lingua;
  if (nome == NomeCorredo) return Specie::Corredo;
  if (nome == NomeParoleMie) return Specie::Mio;
  const std::string estensione = Estensione(nome);
  return estensione == ".dat" || estensione == ".priv" ? Specie::Dizionario : Specie::Elenco;
}

// Reads a text file. None, with a message that begins with a text, when that fails.
std::optional<std::string> LeggiTesto(const Percorso& file, std::size_t massimo,
                                      std::string_view messaggio, std::string& causa) {
  std::string contenuto;
  std::error_code errore;
  switch (LeggiFile(file, massimo, contenuto, errore)) {
    case EsitoLettura::Letto:
      return contenuto;
    case EsitoLettura::TroppoGrande:
      causa = ConCausa(messaggio, file, "è troppo grande"_cp);
      return std::nullopt;
    default:
      causa = ConCausa(messaggio, file, errore);
      return std::nullopt;
  }
}

std::optional<ElencoImportato> LeggiElenco(const Percorso& file, std::string& causa) {
  constexpr std::string_view messaggio = "La lista di parole non si può leggere."_cp;
  const auto testo = LeggiTesto(file, MaxByteElenco, messaggio, causa);
  if (!testo) return std::nullopt;
  std::string perche;
  auto elenco = InterpretaElenco(*testo, LetturaPunteggi::ComeSono, perche);
  if (!elenco) causa = ConCausa(messaggio, file, perche);
  return elenco;
}

// Puts a lexicon together from the layers that are named.
class Composizione {
 public:
  Composizione(const std::vector<Percorso>& nomi, const LuoghiLessico& luoghi, std::string& causa)
      : nomi_(nomi), luoghi_(luoghi), causa_(causa) {}

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
      causa_ = ConCausa(Unisci("Il lessico \"", TestoPercorso(nome), "\" non si può aprire."_cp),
                        file, perche);
    }
    return strato;
  }

  std::shared_ptr<const Strato> ApriDizionario(const Percorso& nome) {
    const Percorso file = PercorsoNellaCartella(luoghi_.programma, nome);
    std::string perche;
    auto strato = StratoDizionario(file, TestoPercorso(nome.filename()), perche);
    if (!strato) causa_ = ConCausa("Impossibile leggere il dizionario.", file, perche);
    return strato;
  }

  std::shared_ptr<const Strato> ApriElenco(const Percorso& nome) {
    const auto elenco = LeggiElenco(nome, causa_);
    if (!elenco) return nullptr;
    return std::make_shared<StratoElenco>(TestoPercorso(nome.filename()), elenco->parole);
  }

  bool AggiungiMio() {
    const auto mie = ParoleMie::Leggi(luoghi_.programma, causa_);
    if (!mie) return false;
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
  std::string& causa_;
  Lessico lessico_;
};

}  // namespace

std::optional<Lessico> ComponiLessico(const std::vector<Percorso>& nomi,
                                      const LuoghiLessico& luoghi, std::string& causa) {
  return Composizione(nomi, luoghi, causa).Esegui();
}

std::optional<Regolamento> TrovaRegolamento(const Percorso& nome, std::string& causa) {
  if (const Regolamento* const noto = RegolamentoDiNome(nome.string())) return *noto;
  constexpr std::string_view messaggio = "Le regole non si possono leggere.";
  const auto testo = LeggiTesto(nome, MaxByteRegolamento, messaggio, causa);
  if (!testo) return std::nullopt;
  std::string perche;
  auto regole = InterpretaRegolamento(*testo, TestoPercorso(nome.filename()), perche);
  if (!regole) causa = ConCausa(messaggio, nome, perche);
  return regole;
}

std::optional<InsiemeDiParole> LeggiParole(const Percorso& lista, std::string& causa) {
  const auto elenco = LeggiElenco(lista, causa);
  if (!elenco) return std::nullopt;
  InsiemeDiParole parole;
  for (std::size_t i = 0; i < elenco->parole.Quante(); ++i)
    parole.emplace(elenco->parole[i].parola);
  return parole;
}

}  // namespace telarium
