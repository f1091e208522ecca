#include <algorithm>
#include <bit>
#include <functional>

#include "lexicon/lexicon_file.h"
#include "platform/codepage.h"
#include "platform/digest.h"
#include "platform/text.h"

// Whether a lexicon file holds what it promises. A reader takes none of this for granted.
namespace telarium {

using namespace lessico_interno;

namespace {

// Heads that begin at `primo`, never fall, and end at `fine`.
bool Salgono(std::span<const std::uint32_t> capi, std::size_t primo, std::size_t fine) {
  return capi.front() == primo && capi.back() == fine && std::ranges::is_sorted(capi);
}

}  // namespace

bool FileLessico::Verifica(std::string& causa) const {
  causa = ImprontaDi(file_.Byte().subspan(InizioImpronta)) == testata_.impronta ? "" : "impronta";
  for (const auto parte : {&FileLessico::DifettoDelleParole, &FileLessico::DifettoDelleLetture,
                           &FileLessico::DifettoDeiLemmi, &FileLessico::DifettoDegliInsiemi}) {
    if (causa.empty()) causa = (this->*parte)();
  }
  if (causa.empty()) return true;
  causa = std::string("è danneggiato ("_cp) + causa + ')';
  return false;
}

std::string FileLessico::DifettoDelleParole() const {
  const std::span<const Riga> scritte(
      reinterpret_cast<const Riga*>(file_.Byte().data() + testata_.sezioni[Lunghezze].inizio),
      NumLunghezze);
  if (!std::ranges::equal(scritte, lunghezze_)) return "lunghezze";
  for (NumeroVoce numero = 0; numero < testata_.voci; ++numero) {
    const std::string_view parola = Parola(numero);
    if (Cerca(parola) != numero) return Unisci("parola ", numero);
    if (punteggi_[numero] > MaxPunteggio) return Unisci("punteggio di ", parola);
    if ((Segni(segni_[numero]).Bit() | BitSoloFinita) != (segni_[numero] | BitSoloFinita))
      return Unisci("segni di ", parola);
    const bool prima = numero == Prima(static_cast<int>(parola.size()));
    if (!prima && std::pair(-punteggi_[numero - 1], Parola(numero - 1)) >=
                      std::pair(-punteggi_[numero], parola)) {
      return Unisci("ordine di ", parola);
    }
  }
  const auto piene = std::ranges::count_if(posti_, [](std::uint32_t uno) { return uno != 0; });
  return piene == static_cast<std::ptrdiff_t>(testata_.voci) ? "" : "tavola";
}

std::string FileLessico::DifettoDelleLetture() const {
  if (!Salgono(capiVoce_, 0, letture_.size())) return "letture";
  if (!Salgono(grafie_, 0, lemmi_.front())) return "grafie";
  for (NumeroVoce numero = 0; numero < testata_.voci; ++numero) {
    const Voce voce = Leggi(numero);
    if (PiegaGrafia(voce.grafia) != voce.parola) return Unisci("grafia di ", voce.parola);
    if (voce.letture.size() != capiVoce_[numero + 1] - capiVoce_[numero] ||
        SoloFinita(voce.letture) != ((segni_[numero] & BitSoloFinita) != 0)) {
      return Unisci("letture di ", voce.parola);
    }
    for (const LetturaScritta& lettura : LettureDi(numero)) {
      if (!std::ranges::binary_search(FamigliaDi(lettura.lemma), numero))
        return Unisci("famiglia di ", voce.parola);
    }
  }
  return {};
}

std::string FileLessico::DifettoDeiLemmi() const {
  if (!Salgono(lemmi_, lemmi_.front(), testi_.size())) return "lemmi";
  if (!Salgono(capiFamiglia_, 0, famiglie_.size())) return "famiglie";
  for (std::uint32_t lemma = 0; lemma < testata_.lemmi; ++lemma) {
    const std::string_view testo = Testo(lemmi_, lemma);
    if (testo.empty() || (lemma > 0 && Testo(lemmi_, lemma - 1) >= testo))
      return Unisci("lemma ", lemma);
    const auto famiglia = FamigliaDi(lemma);
    const bool sua = std::ranges::all_of(famiglia, [&](NumeroVoce parente) {
      return std::ranges::count(LettureDi(parente), lemma, &LetturaScritta::lemma) > 0;
    });
    if (!sua || std::ranges::adjacent_find(famiglia, std::greater_equal()) != famiglia.end())
      return Unisci("famiglia di ", testo);
  }
  return {};
}

// Each word is in its sets, and so many bits in all are no others.
std::string FileLessico::DifettoDegliInsiemi() const {
  for (int lunghezza = MinLunghezzaVoce; lunghezza <= MaxLunghezzaVoce; ++lunghezza) {
    for (int posto = 0; posto < lunghezza; ++posto) {
      if (BitAccesi(lunghezza, posto) != Conta(lunghezza) || !TuttiAccesi(lunghezza, posto))
        return Unisci("insiemi di ", lunghezza, " lettere");
    }
  }
  return {};
}

int FileLessico::BitAccesi(int lunghezza, int posto) const {
  int accesi = 0;
  for (int lettera = 0; lettera < LettereAlfabeto; ++lettera) {
    for (const std::uint64_t parola : Insieme(lunghezza, posto, lettera))
      accesi += std::popcount(parola);
  }
  return accesi;
}

bool FileLessico::TuttiAccesi(int lunghezza, int posto) const {
  const auto voci = static_cast<NumeroVoce>(Conta(lunghezza));
  for (NumeroVoce k = 0; k < voci; ++k) {
    const char lettera = Parola(Prima(lunghezza) + k)[static_cast<std::size_t>(posto)];
    if ((Insieme(lunghezza, posto, lettera - 'A')[k / 64] >> k % 64 & 1) == 0) return false;
  }
  return true;
}

}  // namespace telarium
