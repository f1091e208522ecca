#include "platform/mapped_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <utility>

#include "platform/descriptor.h"

namespace telarium {
namespace {

std::error_code ErroreDiSistema() {
  return {errno, std::system_category()};
}

}  // namespace

FileMappato::FileMappato(const Percorso& nome, std::error_code& errore) {
  errore.clear();
  // Without O_NONBLOCK the opening of a pipe would wait for a writer.
  const Descrittore file(open(nome.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat stato {};
  if (!file || fstat(file.Numero(), &stato) != 0) {
    errore = ErroreDiSistema();
    return;
  }
  if (!S_ISREG(stato.st_mode)) {
    errore = S_ISDIR(stato.st_mode) ? std::make_error_code(std::errc::is_a_directory)
                                    : ErroreNonUnFile();
    return;
  }
  const auto quanti = static_cast<std::size_t>(stato.st_size);
  if (quanti == 0) return;
  void* const inizio = mmap(nullptr, quanti, PROT_READ, MAP_SHARED, file.Numero(), 0);
  if (inizio == MAP_FAILED) {
    errore = ErroreDiSistema();
    return;
  }
  byte_ = {static_cast<const std::byte*>(inizio), quanti};
}

FileMappato::~FileMappato() {
  if (!byte_.empty()) munmap(const_cast<std::byte*>(byte_.data()), byte_.size());
}

void FileMappato::LasciaPagine() const {
  if (!byte_.empty()) ::madvise(const_cast<std::byte*>(byte_.data()), byte_.size(), MADV_DONTNEED);
}

FileMappato::FileMappato(FileMappato&& altro) noexcept : byte_(std::exchange(altro.byte_, {})) {}

FileMappato& FileMappato::operator=(FileMappato&& altro) noexcept {
  std::swap(byte_, altro.byte_);
  return *this;
}

}  // namespace telarium
