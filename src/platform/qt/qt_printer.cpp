#include "platform/qt/qt_printer.h"

#include "platform/qt/qt_fonts.h"

namespace telarium {

bool StampanteQt::Carattere(std::string_view nome) {
  if (!FamigliaInstallata(nome)) return false;
  famiglia_ = nome;
  return true;
}

std::unique_ptr<LavoroDiStampa> StampanteQt::IniziaLavoro(const std::string&) {
  return nullptr;
}

}  // namespace telarium
