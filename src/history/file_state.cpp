#include "history/file_state.h"

#include "model/crossword_writer.h"

namespace telarium {

bool DiversoDalFile(const Cruciverba& cruciverba, const FileDelCruciverba& file) {
  if (cruciverba == file.contenuto) return false;
  const auto byte = ContenutoDelFile(cruciverba);
  return !byte || byte != ContenutoDelFile(file.contenuto);
}

}  // namespace telarium
