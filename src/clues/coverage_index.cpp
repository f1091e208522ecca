#include "clues/coverage_index.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <optional>
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

struct Casella {
  std::uint32_t impronta;
  std::uint32_t voce;  // where it begins, + 1
};
static_assert(sizeof(Casella) == 8);

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

std::uint32_t Superiore(std::uint64_t impronta) {
  return static_cast<std::uint32_t>(impronta >> 32);
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

// Slots and entries of an index that is being made.
class Composizione {
 public:
  explicit Composizione(std::size_t quante)
      : caselle_(std::bit_ceil(std::max<std::size_t>(quante + quante / 4 + 1, 2))) {}

  void Metti(const VoceCopertura& voce) {
    if (voce.parola.size() > MaxLunghezzaIndice) return;
    const std::uint64_t impronta = ImprontaDi(voce.parola);
    Casella& casella = PostoDi(voce.parola, impronta);
    if (casella.voce != 0 || voci_.size() > MaxByteVoci) return;
    casella = {Superiore(impronta), static_cast<std::uint32_t>(voci_.size() + 1)};
    voci_ += static_cast<char>(voce.parola.size());
    Aggiungi(voci_, Conteggio(voce.conteggio.facili));
    Aggiungi(voci_, Conteggio(voce.conteggio.difficili));
    voci_ += voce.parola;
    parole_ += voce.conteggio.Alcuna() ? 1 : 0;
  }

  std::string Byte(std::string_view timbro) const {
    Testata testata{.segno = {},
                    .versione = Versione,
                    .ordine = Ordine,
                    .impronta = 0,
                    .parole = parole_,
                    .caselle = static_cast<std::uint32_t>(caselle_.size()),
                    .byteVoci = static_cast<std::uint32_t>(voci_.size()),
                    .byteTimbro = static_cast<std::uint32_t>(timbro.size())};
    std::copy(Segno.begin(), Segno.end(), testata.segno);
    std::string byte;
    Aggiungi(byte, testata);
    byte += ComeTesto(std::as_bytes(std::span(caselle_)));
    byte += voci_;
    byte += timbro;
    SegnaImpronta(byte);
    return byte;
  }

 private:
  // Far above any store's.
  static constexpr std::size_t MaxByteVoci = std::numeric_limits<std::uint32_t>::max() / 2;

  static std::uint16_t Conteggio(int quante) {
    return static_cast<std::uint16_t>(std::clamp(quante, 0, MaxConteggio));
  }

  // The slot of a word, or the free one that it gets.
  Casella& PostoDi(std::string_view parola, std::uint64_t impronta) {
    const std::size_t maschera = caselle_.size() - 1;
    for (std::size_t i = impronta & maschera;; i = (i + 1) & maschera) {
      Casella& casella = caselle_[i];
      if (casella.voce == 0) return casella;
      if (casella.impronta == Superiore(impronta) &&
          LeggiVoce(ComeByte(voci_), casella.voce - 1)->parola == parola)
        return casella;
    }
  }

  std::vector<Casella> caselle_;
  std::string voci_;
  std::uint32_t parole_ = 0;
};

}  // namespace

std::string ComponiIndice(std::span<const VoceCopertura> voci, std::string_view timbro) {
  Composizione composizione(voci.size());
  for (const VoceCopertura& voce : voci)
    composizione.Metti(voce);
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

ConteggioDefinizioni IndiceCopertura::Cerca(std::string_view parola) const {
  const std::uint64_t impronta = ImprontaDi(parola);
  const std::size_t quante = caselle_.size() / sizeof(Casella);
  // No more steps than slots: a full table would have no end.
  for (std::size_t passo = 0; passo < quante; ++passo) {
    const auto casella =
        Leggi<Casella>(caselle_, ((impronta + passo) & (quante - 1)) * sizeof(Casella));
    if (casella.voce == 0) return {};
    if (casella.impronta != Superiore(impronta)) continue;
    const auto voce = LeggiVoce(voci_, casella.voce - 1);
    if (voce && voce->parola == parola) return voce->conteggio;
  }
  return {};
}

void IndiceCopertura::PerOgniParola(const Visita& visita) const {
  for (std::size_t posto = 0; const auto voce = LeggiVoce(voci_, posto);) {
    if (voce->conteggio.Alcuna()) visita(voce->parola, voce->conteggio);
    posto += ByteTestaVoce + voce->parola.size();
  }
}

}  // namespace telarium
