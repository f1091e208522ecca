#include "platform/qt/qt_printer.h"

#include "platform/qt/qt_fonts.h"

namespace telarium {

bool StampanteQt::Carattere(std::string_view nome) {
  if (!FamigliaInstallata(nome)) return false;
  famiglia_ = nome;
  return true;
}

}  // namespace telarium
