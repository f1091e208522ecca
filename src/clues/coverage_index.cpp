#include "clues/coverage_index.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "platform/digest.h"

namespace telarium {
namespace {

struct Testata {
  char segno[8];
  std::uint32_t versione;
  std::uint32_t ordine;
  std::uint64_t impronta;
  std::uint32_t parole;
  std::uint32_t caselle;
  std::uint32_t byteVoci;
  std::uint32_t byteTimbro;
};
static_assert(sizeof(Testata) == 40);

using Casella = std::uint64_t;

// In front of the letters.
constexpr std::size_t ByteTestaVoce = 5;

constexpr std::string_view Segno = "TELARCOP";
constexpr std::uint32_t Versione = 1;
constexpr std::uint32_t Ordine = 0x01020304;
constexpr std::size_t InizioImpronta = 24;

template <class Valore>
Valore Leggi(std::span<const std::byte> byte, std::size_t posto) {
  Valore valore;
  std::memcpy(&valore, byte.data() + posto, sizeof valore);
  return valore;
}

std::span<const std::byte> ComeByte(std::string_view testo) {
  return std::as_bytes(std::span(testo));
}

std::string_view ComeTesto(std::span<const std::byte> byte) {
  return {reinterpret_cast<const char*>(byte.data()), byte.size()};
}

template <class Valore>
void Aggiungi(std::string& byte, const Valore& valore) {
  byte += ComeTesto(std::as_bytes(std::span(&valore, 1)));
}

// The digest of the contents is that of the digests of their blocks: after each one, `dopo` may let
// go of what was read.
template <class Dopo>
std::uint64_t ImprontaABlocchi(std::span<const std::byte> byte, Dopo dopo) {
  constexpr std::size_t Blocco = 256 << 10;
  std::vector<std::uint64_t> blocchi;
  for (std::size_t da = InizioImpronta; da < byte.size(); da += Blocco) {
    blocchi.push_back(ImprontaDi(byte.subspan(da, std::min(Blocco, byte.size() - da))));
    dopo();
  }
  return ImprontaDi(std::as_bytes(std::span(blocchi)));
}

// The slot of an entry: what it has of the digest, and where the entry is.
constexpr Casella MascheraImpronta = 0xFFFFFFFF00000000;
std::size_t PostoVoce(Casella casella) {
  return (casella & ~MascheraImpronta) - 1;
}
bool PuoEssere(Casella casella, std::uint64_t impronta) {
  return ((casella ^ impronta) & MascheraImpronta) == 0;
}

// A piece of the entries: what stands at `posto`. None outside them.
struct VoceLetta {
  std::string_view parola;
  ConteggioDefinizioni conteggio;
};
std::optional<VoceLetta> LeggiVoce(std::span<const std::byte> voci, std::size_t posto) {
  if (posto > voci.size() || voci.size() - posto < ByteTestaVoce) return std::nullopt;
  const auto lunghezza = std::to_integer<std::size_t>(voci[posto]);
  if (voci.size() - posto - ByteTestaVoce < lunghezza) return std::nullopt;
  return VoceLetta{ComeTesto(voci.subspan(posto + ByteTestaVoce, lunghezza)),
                   {.facili = Leggi<std::uint16_t>(voci, posto + 1),
                    .difficili = Leggi<std::uint16_t>(voci, posto + 3)}};
}

// Has memory come nearer that is soon read.
void Richiama(const std::byte* dove) {
  __builtin_prefetch(dove);
}

std::uint16_t Conteggio(int quante) {
  return static_cast<std::uint16_t>(std::clamp(quante, 0, MaxConteggio));
}

// Far above any store's.
constexpr std::size_t MaxByteVoci = std::numeric_limits<std::uint32_t>::max() / 2;

}  // namespace

void ComposizioneIndice::Metti(std::string_view parola, ConteggioDefinizioni conteggio) {
  if (parola.size() > MaxLunghezzaIndice || voci_.size() > MaxByteVoci) return;
  const std::uint64_t impronta = ImprontaDi(parola);
  Casella& casella = PostoDi(parola, impronta);
  if (casella != 0) return;
  casella = (impronta & MascheraImpronta) | (voci_.size() + 1);
  voci_ += static_cast<char>(parola.size());
  Aggiungi(voci_, Conteggio(conteggio.facili));
  Aggiungi(voci_, Conteggio(conteggio.difficili));
  voci_ += parola;
  conDefinizioni_ += conteggio.Alcuna() ? 1 : 0;
  // A fifth stays free: the way to a free slot is short.
  if (++quante_ > caselle_.size() / 5 * 4) Raddoppia();
}

// The slot of a word, or the free one that it gets.
std::uint64_t& ComposizioneIndice::PostoDi(std::string_view parola, std::uint64_t impronta) {
  const std::size_t maschera = caselle_.size() - 1;
  for (std::size_t i = impronta & maschera;; i = (i + 1) & maschera) {
    Casella& casella = caselle_[i];
    if (casella == 0) return casella;
    if (PuoEssere(casella, impronta) &&
        LeggiVoce(ComeByte(voci_), PostoVoce(casella))->parola == parola)
      return casella;
  }
}

void ComposizioneIndice::Raddoppia() {
  const std::vector<Casella> prima =
      std::exchange(caselle_, std::vector<Casella>(2 * caselle_.size()));
  for (const Casella casella : prima) {
    if (casella == 0) continue;
    const std::string_view parola = LeggiVoce(ComeByte(voci_), PostoVoce(casella))->parola;
    PostoDi(parola, ImprontaDi(parola)) = casella;
  }
}

std::string ComposizioneIndice::Byte(std::string_view timbro) const {
  Testata testata{.segno = {},
                  .versione = Versione,
                  .ordine = Ordine,
                  .impronta = 0,
                  .parole = conDefinizioni_,
                  .caselle = static_cast<std::uint32_t>(caselle_.size()),
                  .byteVoci = static_cast<std::uint32_t>(voci_.size()),
                  .byteTimbro = static_cast<std::uint32_t>(timbro.size())};
  std::copy(Segno.begin(), Segno.end(), testata.segno);
  const auto caselle = std::as_bytes(std::span(caselle_));
  std::string byte;
  byte.reserve(sizeof testata + caselle.size() + voci_.size() + timbro.size());
  Aggiungi(byte, testata);
  byte += ComeTesto(caselle);
  byte += voci_;
  byte += timbro;
  SegnaImpronta(byte);
  return byte;
}

std::string ComponiIndice(std::span<const VoceCopertura> voci, std::string_view timbro) {
  ComposizioneIndice composizione;
  for (const VoceCopertura& voce : voci)
    composizione.Metti(voce.parola, voce.conteggio);
  return composizione.Byte(timbro);
}

void SegnaImpronta(std::string& byte) {
  if (byte.size() < sizeof(Testata)) return;
  const std::uint64_t impronta = ImprontaABlocchi(ComeByte(byte), [] {});
  std::memcpy(byte.data() + offsetof(Testata, impronta), &impronta, sizeof impronta);
}

std::shared_ptr<const IndiceCopertura> IndiceCopertura::Apri(Byte byte) {
  std::shared_ptr<IndiceCopertura> indice(new IndiceCopertura(std::move(byte)));
  return indice->Riconosci() ? indice : nullptr;
}

bool IndiceCopertura::Riconosci() {
  const auto* mappato = std::get_if<FileMappato>(&byte_);
  const std::span<const std::byte> byte =
      mappato ? mappato->Byte() : ComeByte(std::get<std::string>(byte_));
  if (byte.size() < sizeof(Testata)) return false;
  const auto testata = Leggi<Testata>(byte, 0);
  const std::uint64_t byteCaselle = std::uint64_t{testata.caselle} * sizeof(Casella);
  const bool riconosciuta =
      std::string_view(testata.segno, sizeof testata.segno) == Segno &&
      testata.versione == Versione && testata.ordine == Ordine &&
      std::has_single_bit(testata.caselle) &&
      byte.size() == sizeof(Testata) + byteCaselle + testata.byteVoci + testata.byteTimbro &&
      testata.parole <= testata.byteVoci && testata.impronta == ImprontaABlocchi(byte, [&] {
                                              if (mappato) mappato->LasciaPagine();
                                            });
  if (!riconosciuta) return false;
  parole_ = static_cast<int>(testata.parole);
  caselle_ = byte.subspan(sizeof(Testata), byteCaselle);
  voci_ = byte.subspan(sizeof(Testata) + byteCaselle, testata.byteVoci);
  timbro_ = ComeTesto(byte.last(testata.byteTimbro));
  return true;
}

std::uint64_t IndiceCopertura::CasellaDi(std::uint64_t impronta, std::size_t passo) const {
  const std::size_t quante = caselle_.size() / sizeof(Casella);
  return Leggi<Casella>(caselle_, ((impronta + passo) & (quante - 1)) * sizeof(Casella));
}

ConteggioDefinizioni IndiceCopertura::Cerca(std::string_view parola) const {
  return Cerca(parola, ImprontaDi(parola));
}

ConteggioDefinizioni IndiceCopertura::Cerca(std::string_view parola, std::uint64_t impronta) const {
  const std::size_t quante = caselle_.size() / sizeof(Casella);
  // No more steps than slots: a full table would have no end.
  for (std::size_t passo = 0; passo < quante; ++passo) {
    const Casella casella = CasellaDi(impronta, passo);
    if (casella == 0) return {};
    if (!PuoEssere(casella, impronta)) continue;
    const auto voce = LeggiVoce(voci_, PostoVoce(casella));
    if (voce && voce->parola == parola) return voce->conteggio;
  }
  return {};
}

// Asks for the entry that the first slots of a digest lead to.
void IndiceCopertura::ChiediVoce(std::uint64_t impronta) const {
  constexpr std::size_t Passi = 4;
  for (std::size_t passo = 0; passo < Passi; ++passo) {
    const Casella casella = CasellaDi(impronta, passo);
    if (casella == 0) return;
    const std::size_t posto = PostoVoce(casella);
    if (!PuoEssere(casella, impronta) || posto >= voci_.size()) continue;
    return Richiama(voci_.data() + posto);
  }
}

void IndiceCopertura::CercaInsieme(std::span<const std::string_view> parole,
                                   std::span<ConteggioDefinizioni> conteggi) const {
  constexpr std::size_t Gruppo = 32;
  std::array<std::uint64_t, Gruppo> impronte;
  for (std::size_t primo = 0; primo < parole.size(); primo += Gruppo) {
    const auto queste = parole.subspan(primo, std::min(Gruppo, parole.size() - primo));
    for (std::size_t k = 0; k < queste.size(); ++k) {
      impronte[k] = ImprontaDi(queste[k]);
      const std::size_t quante = caselle_.size() / sizeof(Casella);
      Richiama(caselle_.data() + (impronte[k] & (quante - 1)) * sizeof(Casella));
    }
    for (std::size_t k = 0; k < queste.size(); ++k)
      ChiediVoce(impronte[k]);
    for (std::size_t k = 0; k < queste.size(); ++k)
      conteggi[primo + k] = Cerca(queste[k], impronte[k]);
  }
}

void IndiceCopertura::PerOgniParola(const Visita& visita) const {
  for (std::size_t posto = 0; const auto voce = LeggiVoce(voci_, posto);) {
    if (voce->conteggio.Alcuna()) visita(voce->parola, voce->conteggio);
    posto += ByteTestaVoce + voce->parola.size();
  }
}

}  // namespace telarium
