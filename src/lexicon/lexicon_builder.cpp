#include "lexicon/lexicon_builder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <numeric>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "lexicon/lexicon_layout.h"
#include "platform/codepage.h"
#include "platform/digest.h"
#include "platform/text.h"

namespace telarium {

using namespace lessico_interno;

namespace {

using Numeri = std::vector<std::uint32_t>;

// Takes the next part off a text, its divider too.
std::string_view Stacca(std::string_view& testo, char divisorio) {
  const std::string_view parte = testo.substr(0, testo.find(divisorio));
  testo.remove_prefix(std::min(testo.size(), parte.size() + 1));
  return parte;
}

std::optional<std::uint8_t> InterpretaPunteggio(std::string_view testo) {
  std::uint8_t punteggio = 0;
  const char* const fine = testo.data() + testo.size();
  const auto letto = std::from_chars(testo.data(), fine, punteggio);
  if (letto.ec != std::errc() || letto.ptr != fine || punteggio > MaxPunteggio) return std::nullopt;
  return punteggio;
}

std::optional<Segni> InterpretaSegni(std::string_view nomi) {
  Segni segni;
  if (nomi.ends_with(',')) return std::nullopt;
  while (!nomi.empty()) {
    const auto segno = SegnoDiNome(Stacca(nomi, ','));
    if (!segno || segni.Ha(*segno)) return std::nullopt;
    segni.Metti(*segno);
  }
  return segni;
}

// Lemmas by number, in the order in which they come first.
class TavolaLemmi {
 public:
  std::uint32_t NumeroDi(const std::string& lemma) {
    return numeri_.try_emplace(lemma, static_cast<std::uint32_t>(numeri_.size())).first->second;
  }

  std::size_t Quanti() const { return numeri_.size(); }

  /// All lemmas in the order of their bytes, each with its number so far.
  std::vector<std::pair<std::string_view, std::uint32_t>> Ordinati() const {
    std::vector<std::pair<std::string_view, std::uint32_t>> ordinati(numeri_.begin(),
                                                                     numeri_.end());
    std::ranges::sort(ordinati);
    return ordinati;
  }

 private:
  std::unordered_map<std::string, std::uint32_t> numeri_;
};

// What a source holds, in the order of the file but for the lemmas, whose order is known at the
// end.
class Raccolta {
 public:
  /// Takes a line of the source; gives why it is refused, empty when it is not.
  std::string_view Aggiungi(std::string_view riga);
  /// What can be said only when all lines are there, again with the reason of a refusal.
  std::string Concludi();

  std::array<std::uint32_t, NumLunghezze> voci{};  // of each length
  std::vector<std::string> parole;
  std::vector<std::uint8_t> punteggi;
  std::vector<std::uint16_t> segni;
  Numeri grafie, capiVoce, inizioLemmi, capiFamiglia, famiglie, posti;
  std::vector<LetturaScritta> letture;
  std::string testi;

 private:
  bool SegueUltima(const std::string& parola, int punteggio) const;
  std::string_view AggiungiLetture(std::string_view codici, const std::string& grafia);
  void OrdinaLemmi();
  std::string FormaFamiglie();
  std::string FormaPosti();

  TavolaLemmi lemmi_;
};

bool Raccolta::SegueUltima(const std::string& parola, int punteggio) const {
  if (parole.empty()) return true;
  const std::string& ultima = parole.back();
  return std::tuple(ultima.size(), -punteggi.back(), std::string_view(ultima)) <
         std::tuple(parola.size(), -punteggio, std::string_view(parola));
}

std::string_view Raccolta::Aggiungi(std::string_view riga) {
  if (std::ranges::count(riga, '\t') != 3) return "i campi non sono quattro";
  const std::string_view grafiaUtf8 = Stacca(riga, '\t');
  const auto parola = PiegaGrafiaUtf8(grafiaUtf8);
  if (!parola) return "la grafia non è di 2-53 lettere"_cp;
  if (SenzaSpazi(grafiaUtf8) != grafiaUtf8) return "la grafia ha spazi ai due capi";
  const auto grafia = DaUtf8Esatto(grafiaUtf8);
  if (!grafia) return "la grafia ha un carattere che la code page non ha";
  const auto punteggio = InterpretaPunteggio(Stacca(riga, '\t'));
  if (!punteggio) return "il punteggio non è un numero da 0 a 100"_cp;
  const auto segniDellaVoce = InterpretaSegni(Stacca(riga, '\t'));
  if (!segniDellaVoce) return "un segno è sconosciuto o ripetuto"_cp;
  if (!SegueUltima(*parola, *punteggio)) return "non segue la riga che precede";

  ++voci[parola->size() - MinLunghezzaVoce];
  parole.push_back(*parola);
  punteggi.push_back(*punteggio);
  segni.push_back(segniDellaVoce->Bit());
  grafie.push_back(static_cast<std::uint32_t>(testi.size()));
  if (*grafia != *parola) testi += *grafia;
  return AggiungiLetture(riga, *grafia);
}

std::string_view Raccolta::AggiungiLetture(std::string_view codici, const std::string& grafia) {
  capiVoce.push_back(static_cast<std::uint32_t>(letture.size()));
  if (codici.ends_with(';')) return "manca una lettura";
  bool soloFinita = !codici.empty();
  while (!codici.empty()) {
    std::string_view lemmaUtf8 = Stacca(codici, ';');
    const bool proprio = lemmaUtf8.find('=') == std::string_view::npos;
    const auto analisi = InterpretaAnalisi(Stacca(lemmaUtf8, '='));
    if (!analisi) return "il codice di una lettura è sconosciuto"_cp;
    const auto lemma = proprio ? grafia : DaUtf8Esatto(lemmaUtf8);
    if (!lemma || lemma->empty()) return "un lemma manca o ha un carattere che la code page non ha";
    letture.push_back({lemmi_.NumeroDi(*lemma), BitDi(*analisi)});
    soloFinita &= analisi->SoloVerbale();
  }
  if (soloFinita) segni.back() |= BitSoloFinita;
  if (letture.size() - capiVoce.back() > MaxLetture) return "le letture sono troppe";
  return {};
}

std::string Raccolta::Concludi() {
  if (parole.empty()) return "non ci sono voci";
  if (parole.size() > MaxVoci) return "le voci sono troppe";
  grafie.push_back(static_cast<std::uint32_t>(testi.size()));
  capiVoce.push_back(static_cast<std::uint32_t>(letture.size()));
  OrdinaLemmi();
  std::string causa = FormaPosti();
  return causa.empty() ? FormaFamiglie() : causa;
}

void Raccolta::OrdinaLemmi() {
  Numeri nuovi(lemmi_.Quanti());
  for (const auto& [lemma, vecchio] : lemmi_.Ordinati()) {
    nuovi[vecchio] = static_cast<std::uint32_t>(inizioLemmi.size());
    inizioLemmi.push_back(static_cast<std::uint32_t>(testi.size()));
    testi += lemma;
  }
  inizioLemmi.push_back(static_cast<std::uint32_t>(testi.size()));
  for (LetturaScritta& lettura : letture)
    lettura.lemma = nuovi[lettura.lemma];
}

std::string Raccolta::FormaFamiglie() {
  std::vector<Numeri> membri(lemmi_.Quanti());
  for (std::uint32_t voce = 0; voce < parole.size(); ++voce) {
    for (std::uint32_t i = capiVoce[voce]; i < capiVoce[voce + 1]; ++i) {
      Numeri& famiglia = membri[letture[i].lemma];
      if (famiglia.empty() || famiglia.back() != voce) famiglia.push_back(voce);
    }
  }
  for (const Numeri& famiglia : membri) {
    if (famiglia.size() > MaxFamiglia) {
      return Unisci("la voce ", parole[famiglia.front()], " ha un lemma con troppe voci");
    }
    capiFamiglia.push_back(static_cast<std::uint32_t>(famiglie.size()));
    famiglie.insert(famiglie.end(), famiglia.begin(), famiglia.end());
  }
  capiFamiglia.push_back(static_cast<std::uint32_t>(famiglie.size()));
  return {};
}

// Doubled words are found here: scores differ, so they need not stand side by side.
std::string Raccolta::FormaPosti() {
  posti.assign(std::bit_ceil(2 * parole.size()), 0);
  const std::size_t ultimo = posti.size() - 1;
  for (std::uint32_t voce = 0; voce < parole.size(); ++voce) {
    std::size_t posto = ImprontaDi(parole[voce]) & ultimo, passi = 1;
    for (; posti[posto] != 0; posto = (posto + 1) & ultimo, ++passi) {
      if (parole[posti[posto] - 1] == parole[voce])
        return Unisci("riga ", voce + 1, ": ", parole[voce], " sta anche alla riga ", posti[posto]);
    }
    if (passi > MaxPassi) return std::string("la tavola delle parole è troppo fitta"_cp);
    posti[posto] = voce + 1;
  }
  return {};
}

// The bytes of a file, section by section.
class Scrittore {
 public:
  template <class Elementi>
  void Scrivi(Sezione sezione, const Elementi& elementi) {
    byte_.resize((byte_.size() + Allineamento - 1) / Allineamento * Allineamento);
    const auto quanti = std::size(elementi) * sizeof(elementi[0]);
    testata_.sezioni[sezione] = {byte_.size(), quanti};
    byte_.append(reinterpret_cast<const char*>(std::data(elementi)), quanti);
  }

  std::string Concludi(const Raccolta& raccolta) {
    testata_.sigla = SiglaFile;
    testata_.versione = VersioneFile;
    testata_.ordine = OrdineDeiByte;
    testata_.byte = byte_.size();
    testata_.voci = static_cast<std::uint32_t>(raccolta.parole.size());
    testata_.lemmi = static_cast<std::uint32_t>(raccolta.inizioLemmi.size() - 1);
    testata_.letture = static_cast<std::uint32_t>(raccolta.letture.size());
    testata_.posti = static_cast<std::uint32_t>(raccolta.posti.size());
    MettiTestata();
    testata_.impronta = ImprontaDi(std::string_view(byte_).substr(InizioImpronta));
    MettiTestata();
    return std::move(byte_);
  }

 private:
  void MettiTestata() {
    byte_.replace(0, sizeof testata_, reinterpret_cast<const char*>(&testata_), sizeof testata_);
  }

  Testata testata_{};
  std::string byte_ = std::string(sizeof(Testata), '\0');
};

// The sets of all lengths.
std::vector<std::uint64_t> FormaInsiemi(const Raccolta& raccolta) {
  const auto righe = RigheDi(raccolta.voci);
  std::vector<std::uint64_t> insiemi;
  for (const RigaLunghezza& riga : righe) {
    const std::size_t inizio = insiemi.size(), parole = ParoleInsieme(riga.voci);
    if (parole == 0) continue;
    const std::size_t lunghezza = raccolta.parole[riga.prima].size();
    insiemi.resize(inizio + lunghezza * LettereAlfabeto * parole);
    for (std::size_t k = 0; k < riga.voci; ++k) {
      const std::string& parola = raccolta.parole[riga.prima + k];
      for (std::size_t posto = 0; posto < lunghezza; ++posto) {
        const auto quale = posto * LettereAlfabeto + static_cast<std::size_t>(parola[posto] - 'A');
        insiemi[inizio + quale * parole + k / 64] |= std::uint64_t{1} << k % 64;
      }
    }
  }
  return insiemi;
}

std::string Byte(const Raccolta& raccolta) {
  Scrittore scrittore;
  scrittore.Scrivi(Lunghezze, RigheDi(raccolta.voci));
  scrittore.Scrivi(Parole,
                   std::accumulate(raccolta.parole.begin(), raccolta.parole.end(), std::string()));
  scrittore.Scrivi(Punteggi, raccolta.punteggi);
  scrittore.Scrivi(SegniDelleVoci, raccolta.segni);
  scrittore.Scrivi(Grafie, raccolta.grafie);
  scrittore.Scrivi(CapiVoce, raccolta.capiVoce);
  scrittore.Scrivi(LettureDelleVoci, raccolta.letture);
  scrittore.Scrivi(Lemmi, raccolta.inizioLemmi);
  scrittore.Scrivi(CapiFamiglia, raccolta.capiFamiglia);
  scrittore.Scrivi(Famiglie, raccolta.famiglie);
  scrittore.Scrivi(Testi, raccolta.testi);
  scrittore.Scrivi(Posti, raccolta.posti);
  scrittore.Scrivi(Insiemi, FormaInsiemi(raccolta));
  return scrittore.Concludi(raccolta);
}

}  // namespace

std::optional<std::string> CostruisciLessico(std::string_view sorgenteUtf8, std::string& causa) {
  Raccolta raccolta;
  LettoreDiRighe righe(sorgenteUtf8);
  int numero = 0;
  for (std::string_view riga; righe.Prossima(riga);) {
    ++numero;
    if (const std::string_view motivo = raccolta.Aggiungi(riga); !motivo.empty()) {
      causa = Unisci("riga ", numero, ": ", motivo);
      return std::nullopt;
    }
  }
  causa = raccolta.Concludi();
  if (!causa.empty()) return std::nullopt;
  return Byte(raccolta);
}

}  // namespace telarium
