#pragma once

#include <limits>
#include <sys/mman.h>
#include <unistd.h>

#include "lexicon/lexicon_file.h"
#include "platform/check.h"
#include "platform/descriptor.h"
#include "platform/text.h"

namespace telarium {

/// The lexicon of some bytes, in a file that lies in memory alone. None and its cause as Apri.
inline std::shared_ptr<const FileLessico> OpenLexicon(std::string_view bytes, std::string& cause) {
  const Descrittore file(memfd_create("lexicon", MFD_CLOEXEC));
  Verifica(write(file.Numero(), bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
           "no file in memory");
  return FileLessico::Apri(Unisci("/proc/self/fd/", file.Numero()), "prova", cause);
}

/// What every answer about an entry must keep to, however damaged the file is.
inline void UseEntry(const FileLessico& lexicon, NumeroVoce number, int length) {
  const std::string_view word = lexicon.Parola(number);
  Verifica(word.empty() || static_cast<int>(word.size()) == length, "a word of another length");
  Verifica(word.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == word.npos, "no letters");
  const Voce entry = lexicon.Leggi(number);
  Verifica(
      entry.parola == word && entry.segni == (word.empty() ? Segni() : lexicon.LeggiSegni(number)),
      "another entry");
  Verifica(entry.punteggio >= 0 && entry.punteggio <= MaxPunteggio, "a score past its bounds");
  std::size_t bytes = entry.grafia.size();
  for (const Lettura& reading : entry.letture)
    bytes += reading.lemma.size() + NomiDelleForme(reading, entry.grafia).size();
  Verifica(bytes < std::size_t{1} << 30, "texts past the file");
  std::vector<LetturaNumerata> readings;
  lexicon.LeggiLetture(number, readings);
  Verifica(word.empty() || readings.size() == entry.letture.size(), "other readings by numbers");
  for (const LetturaNumerata& reading : readings) {
    lexicon.CercaLemma(lexicon.Lemma(reading.lemma));
    lexicon.FormeDi(reading.lemma);
  }
  if (const auto found = lexicon.Cerca(word)) {
    Verifica(lexicon.Parola(*found) == word, "another word was found");
  }
  const auto family = lexicon.Famiglia(number);
  for (std::size_t i = 0; i < family.size(); ++i) {
    Verifica(i == 0 || family[i - 1] < family[i], "a family out of order");
    lexicon.Parola(family[i]);
  }
}

/// Calls every routine of a lexicon that opened with all there is to ask, and with numbers past it.
inline void UseAll(const FileLessico& lexicon) {
  volatile std::uint64_t bits = 0;  // so that they are read
  for (int length = -1; length <= MaxLunghezzaVoce + 2; ++length) {
    const NumeroVoce first = lexicon.Prima(length);
    for (int i = 0; i < lexicon.Conta(length); ++i)
      UseEntry(lexicon, first + static_cast<NumeroVoce>(i), length);
    // One place and one letter past each end.
    for (int place = -1; lexicon.Conta(length) > 0 && place <= length; ++place) {
      for (int letter = -1; letter <= LettereAlfabeto; ++letter) {
        for (const std::uint64_t word : lexicon.Insieme(length, place, letter))
          bits = bits | word;
      }
    }
    Verifica(lexicon.Insieme(length, 0, 0).empty() == (lexicon.Conta(length) == 0), "no sets");
  }
  const NumeroVoce last = std::numeric_limits<NumeroVoce>::max();
  for (const NumeroVoce number :
       {lexicon.Prima(MaxLunghezzaVoce) + static_cast<NumeroVoce>(lexicon.Conta(MaxLunghezzaVoce)),
        last - 1, last}) {
    UseEntry(lexicon, number, 0);
  }
  for (const std::string_view absent : {"", "Q", "ZZ", "zz", "QQQQ\xE0", "Z\0Z"})
    lexicon.Cerca(absent);
  std::string cause;
  const bool sound = lexicon.Verifica(cause);
  Verifica(sound == cause.empty(), "a verdict without its cause");
}

}  // namespace telarium
