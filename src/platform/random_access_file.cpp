#include "platform/random_access_file.h"

#include <fcntl.h>

namespace telarium {

FileAdAccessoDiretto::FileAdAccessoDiretto(const Percorso& nome)
    // A pipe in the place of the file must not make the program wait for it.
    : descrittore_(::open(nome.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
  if (!Aperto()) errore_ = {errno, std::generic_category()};
  if (!Aperto() || FileOrdinario(nome)) return;
  errore_ = ErroreNonUnFile();
  descrittore_ = {};
}

std::size_t FileAdAccessoDiretto::Leggi(std::int64_t posto, char* destinazione,
                                        std::size_t byte) const {
  if (!Aperto() || posto < 0) return 0;
  std::size_t letti = 0;
  while (letti < byte) {
    const ssize_t n = ::pread(descrittore_.Numero(), destinazione + letti, byte - letti,
                              posto + static_cast<std::int64_t>(letti));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) guasto_ = true;
    if (n <= 0) break;
    letti += static_cast<std::size_t>(n);
  }
  return letti;
}

}  // namespace telarium
