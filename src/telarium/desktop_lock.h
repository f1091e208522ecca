#pragma once

#include "platform/descriptor.h"
#include "platform/files.h"

namespace telarium {

/// Whom a lock file names.
struct Proprietario {
  long processo = 0;  // 0 when the file does not tell
  std::string computer;
};

enum class EsitoBlocco {
  Preso,
  Occupato,     // by a running program
  Estraneo,     // taken, but its lines are of another computer, whose locks may not be seen here
  Inservibile,  // what has the name is no file that can be opened: Errore says why
  Impossibile,  // the folder takes no such file: Errore says why
};

/// The lock of a program folder: a file that the system itself holds for a process and lets go at
/// the process's end, however that comes. So nothing that the file says can keep it taken; its
/// lines, process, program and computer, only serve messages and tell a lock from another computer.
class BloccoDesktop {
 public:
  BloccoDesktop() = default;
  ~BloccoDesktop();
  BloccoDesktop(const BloccoDesktop&) = delete;
  BloccoDesktop& operator=(const BloccoDesktop&) = delete;

  /// Takes the lock of that name unless another process has it.
  [[nodiscard]] EsitoBlocco Prendi(const Percorso& nome);

  /// Makes a lock that is Estraneo this process's own.
  void Firma();

  const Percorso& Nome() const { return nome_; }
  const Proprietario& Chi() const { return chi_; }
  const std::error_code& Errore() const { return errore_; }

 private:
  EsitoBlocco Fallito(EsitoBlocco esito, const std::error_code& errore);

  Percorso nome_;
  Proprietario chi_;
  std::error_code errore_;
  Descrittore file_;
  bool nostro_ = false;
};

}  // namespace telarium
