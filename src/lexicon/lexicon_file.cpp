#include "lexicon/lexicon_file.h"

#include <algorithm>
#include <bit>
#include <ranges>

#include "platform/codepage.h"
#include "platform/digest.h"

namespace telarium {

using namespace lessico_interno;

namespace {

// The stretch of a list between two of its heads; empty when they do not enclose one of at most so
// many elements.
template <class Elemento>
std::span<const Elemento> Fra(std::span<const Elemento> elementi, std::size_t inizio,
                              std::size_t fine, std::size_t massimo) {
  if (inizio > fine || fine > elementi.size() || fine - inizio > massimo) return {};
  return elementi.subspan(inizio, fine - inizio);
}

}  // namespace

std::shared_ptr<const FileLessico> FileLessico::Apri(const Percorso& file, std::string nome,
                                                     std::string& causa) {
  std::error_code errore;
  FileMappato mappato(file, errore);
  if (errore) {
    causa = DescrizioneErrore(errore);
    return nullptr;
  }
  const std::shared_ptr<FileLessico> aperto(new FileLessico(std::move(mappato), std::move(nome)));
  for (const auto passo :
       {&FileLessico::PrendiTestata, &FileLessico::PrendiSezioni, &FileLessico::PrendiLunghezze}) {
    causa = (*aperto.*passo)();
    if (!causa.empty()) return nullptr;
  }
  return aperto;
}

std::string FileLessico::PrendiTestata() {
  const auto byte = file_.Byte();
  const bool intera = byte.size() >= sizeof testata_;
  std::ranges::copy(byte.first(std::min(byte.size(), sizeof testata_)),
                    std::as_writable_bytes(std::span(&testata_, 1)).begin());
  if (testata_.sigla != SiglaFile) return std::string("non è un lessico"_cp);
  if (intera && testata_.ordine != OrdineDeiByte)
    return std::string("è fatto per una macchina con un altro ordine dei byte"_cp);
  if (intera && testata_.versione != VersioneFile)
    return std::string("è di un'altra versione del programma"_cp);
  if (!intera || testata_.byte != byte.size()) return std::string("è troncato o ha byte in più"_cp);
  return {};
}

// `quanti` is how many elements the section must have; any number without it.
template <class Elemento>
bool FileLessico::PrendiSezione(Sezione sezione, std::span<const Elemento>& elementi,
                                std::optional<std::uint64_t> quanti) const {
  const auto file = file_.Byte();
  const auto [inizio, byte] = testata_.sezioni[sezione];
  if (inizio % Allineamento != 0 || inizio > file.size() || byte > file.size() - inizio ||
      byte % sizeof(Elemento) != 0 ||
      byte / sizeof(Elemento) != quanti.value_or(byte / sizeof(Elemento))) {
    return false;
  }
  elementi = {reinterpret_cast<const Elemento*>(file.data() + inizio), byte / sizeof(Elemento)};
  return true;
}

std::string FileLessico::PrendiSezioni() {
  const std::uint64_t voci = testata_.voci, lemmi = testata_.lemmi;
  const bool sani =
      voci <= MaxVoci && std::has_single_bit(testata_.posti) && testata_.posti >= 2 * voci &&
      PrendiSezione(Parole, parole_, {}) && PrendiSezione(Punteggi, punteggi_, voci) &&
      PrendiSezione(SegniDelleVoci, segni_, voci) && PrendiSezione(Grafie, grafie_, voci + 1) &&
      PrendiSezione(CapiVoce, capiVoce_, voci + 1) &&
      PrendiSezione(LettureDelleVoci, letture_, testata_.letture) &&
      PrendiSezione(Lemmi, lemmi_, lemmi + 1) &&
      PrendiSezione(CapiFamiglia, capiFamiglia_, lemmi + 1) &&
      PrendiSezione(Famiglie, famiglie_, {}) && PrendiSezione(Testi, testi_, {}) &&
      PrendiSezione(Posti, posti_, testata_.posti) && PrendiSezione(Insiemi, insiemi_, {});
  return sani ? std::string() : std::string("è danneggiato (sezioni)"_cp);
}

// The rows are taken from how many entries each length has: all offsets follow from that.
std::string FileLessico::PrendiLunghezze() {
  std::span<const Riga> scritte;
  std::array<std::uint32_t, NumLunghezze> voci{};
  std::uint64_t totale = 0, lettere = 0, insiemi = 0;
  if (PrendiSezione(Lunghezze, scritte, NumLunghezze)) {
    for (std::size_t i = 0; i < NumLunghezze; ++i) {
      voci[i] = scritte[i].voci;
      totale += voci[i];
      lettere += (i + MinLunghezzaVoce) * voci[i];
      insiemi += ByteInsiemi(i + MinLunghezzaVoce, voci[i]);
    }
  }
  if (scritte.empty() || totale != testata_.voci || lettere != parole_.size() ||
      insiemi != insiemi_.size_bytes()) {
    return std::string("è danneggiato (lunghezze)"_cp);
  }
  lunghezze_ = RigheDi(voci);
  return {};
}

const FileLessico::Riga* FileLessico::RigaDi(int lunghezza) const {
  if (lunghezza < MinLunghezzaVoce || lunghezza > MaxLunghezzaVoce) return nullptr;
  return &lunghezze_[static_cast<std::size_t>(lunghezza - MinLunghezzaVoce)];
}

const FileLessico::Riga* FileLessico::RigaDellaVoce(NumeroVoce numero) const {
  if (numero >= testata_.voci) return nullptr;
  return &*std::prev(std::ranges::upper_bound(lunghezze_, numero, {}, &Riga::prima));
}

int FileLessico::Conta(int lunghezza) const {
  const Riga* const riga = RigaDi(lunghezza);
  return riga ? static_cast<int>(riga->voci) : 0;
}

NumeroVoce FileLessico::Prima(int lunghezza) const {
  const Riga* const riga = RigaDi(lunghezza);
  return riga ? riga->prima : 0;
}

std::string_view FileLessico::LettereDi(const Riga& riga, NumeroVoce numero) const {
  const auto lunghezza = static_cast<std::size_t>(&riga - lunghezze_.data()) + MinLunghezzaVoce;
  const std::size_t inizio = riga.parole + (numero - riga.prima) * lunghezza;
  return {parole_.data() + inizio, lunghezza};
}

std::optional<NumeroVoce> FileLessico::Cerca(std::string_view parola) const {
  if (!LunghezzaDiVoce(parola.size()) || !DiLettere(parola)) return std::nullopt;
  const Riga& riga = *RigaDi(static_cast<int>(parola.size()));
  const std::size_t ultimo = posti_.size() - 1;
  std::size_t posto = ImprontaDi(parola) & ultimo;
  for (std::size_t passi = 0; passi < MaxPassi && posti_[posto] != 0; ++passi) {
    const NumeroVoce numero = posti_[posto] - 1;
    // A number before the first of the length becomes one past its last.
    if (numero - riga.prima < riga.voci && LettereDi(riga, numero) == parola) return numero;
    posto = (posto + 1) & ultimo;
  }
  return std::nullopt;
}

std::string_view FileLessico::Parola(NumeroVoce numero) const {
  const Riga* const riga = RigaDellaVoce(numero);
  if (!riga) return {};
  const std::string_view parola = LettereDi(*riga, numero);
  return DiLettere(parola) ? parola : std::string_view();
}

int FileLessico::Punteggio(NumeroVoce numero) const {
  return numero < punteggi_.size() ? std::min<int>(punteggi_[numero], MaxPunteggio) : 0;
}

Segni FileLessico::LeggiSegni(NumeroVoce numero) const {
  return numero < segni_.size() ? Segni(segni_[numero]) : Segni();
}

ColonneDiVoci FileLessico::Colonne(int lunghezza, MemoriaDiColonne&) const {
  const Riga* const riga = RigaDi(lunghezza);
  if (!riga) return {};
  const std::string_view lettere(parole_.data(), parole_.size());
  return {.lettere = lettere.substr(riga->parole, riga->voci * static_cast<std::size_t>(lunghezza)),
          .punteggi = punteggi_.subspan(riga->prima, riga->voci),
          .segni = segni_.subspan(riga->prima, riga->voci)};
}

std::string_view FileLessico::Testo(std::span<const std::uint32_t> inizi,
                                    std::uint32_t numero) const {
  if (numero + std::size_t{1} >= inizi.size()) return {};
  const auto testo = Fra(testi_, inizi[numero], inizi[numero + 1], testi_.size());
  return {testo.data(), testo.size()};
}

std::span<const LetturaScritta> FileLessico::LettureDi(NumeroVoce numero) const {
  if (numero >= testata_.voci) return {};
  return Fra(letture_, capiVoce_[numero], capiVoce_[numero + 1], MaxLetture);
}

template <class Visita>
void FileLessico::PerOgniLettura(NumeroVoce numero, Visita visita) const {
  for (const LetturaScritta& scritta : LettureDi(numero)) {
    const std::string_view lemma = Testo(lemmi_, scritta.lemma);
    const auto analisi = AnalisiDaBit(scritta.analisi);
    if (!lemma.empty() && analisi) visita(scritta.lemma, lemma, *analisi);
  }
}

std::span<const NumeroVoce> FileLessico::FamigliaDi(std::uint32_t lemma) const {
  if (lemma >= testata_.lemmi) return {};
  return Fra(famiglie_, capiFamiglia_[lemma], capiFamiglia_[lemma + 1], MaxFamiglia);
}

Voce FileLessico::Leggi(NumeroVoce numero) const {
  Voce voce;
  voce.parola = Parola(numero);
  if (voce.parola.empty()) return voce;
  voce.grafia = Testo(grafie_, numero);
  if (voce.grafia.empty()) voce.grafia = voce.parola;
  voce.punteggio = Punteggio(numero);
  voce.segni = LeggiSegni(numero);
  PerOgniLettura(numero, [&](NumeroLemma, std::string_view lemma, const Analisi& analisi) {
    voce.letture.push_back({lemma, analisi});
  });
  return voce;
}

void FileLessico::LeggiLetture(NumeroVoce numero, std::vector<LetturaNumerata>& letture) const {
  letture.clear();
  PerOgniLettura(numero, [&](NumeroLemma lemma, std::string_view, const Analisi& analisi) {
    letture.push_back({lemma, analisi});
  });
}

std::optional<NumeroLemma> FileLessico::CercaLemma(std::string_view lemma) const {
  const auto numeri = std::views::iota(NumeroLemma{0}, NumeroLemma{testata_.lemmi});
  const auto trovato = std::ranges::lower_bound(
      numeri, lemma, {}, [this](NumeroLemma numero) { return Lemma(numero); });
  if (trovato == numeri.end() || Lemma(*trovato) != lemma) return std::nullopt;
  return *trovato;
}

std::span<const std::uint64_t> FileLessico::Insieme(int lunghezza, int posto, int lettera) const {
  const Riga* const riga = RigaDi(lunghezza);
  if (!riga || posto < 0 || posto >= lunghezza || lettera < 0 || lettera >= LettereAlfabeto)
    return {};
  const std::size_t parole = ParoleInsieme(riga->voci);
  const auto quale = static_cast<std::size_t>(posto * LettereAlfabeto + lettera);
  return insiemi_.subspan(riga->insiemi / sizeof(std::uint64_t) + quale * parole, parole);
}

std::vector<NumeroVoce> FileLessico::Famiglia(NumeroVoce numero) const {
  std::vector<std::uint32_t> lemmi;
  for (const LetturaScritta& scritta : LettureDi(numero))
    lemmi.push_back(scritta.lemma);
  std::ranges::sort(lemmi);
  const auto doppi = std::ranges::unique(lemmi);
  lemmi.erase(doppi.begin(), doppi.end());

  std::vector<NumeroVoce> famiglia;
  for (const std::uint32_t lemma : lemmi) {
    for (const NumeroVoce parente : FamigliaDi(lemma)) {
      if (parente < testata_.voci) famiglia.push_back(parente);
    }
  }
  std::ranges::sort(famiglia);
  const auto ripetute = std::ranges::unique(famiglia);
  famiglia.erase(ripetute.begin(), ripetute.end());
  return famiglia;
}

}  // namespace telarium
