#include "platform/qt/qt_fonts.h"

#include <QFontDatabase>

#include "platform/qt/qt_text.h"
#include "platform/surface.h"

namespace telarium {

namespace {

// Where two foundries have a family of one name, Qt puts theirs behind it: "C059 [urw]".
QString SenzaFonderia(const QString& nome) {
  const qsizetype parentesi = nome.endsWith(u']') ? nome.lastIndexOf(QStringLiteral(" [")) : -1;
  return parentesi > 0 ? nome.left(parentesi) : nome;
}

}  // namespace

QStringList FamiglieInstallate() {
  QStringList nomi{AQt(CarattereIniziale)};
  for (const QString& famiglia : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(famiglia)) nomi.append(SenzaFonderia(famiglia));
  }
  nomi.removeIf([](const QString& nome) { return !DaQtEsatto(nome); });
  nomi.removeDuplicates();
  nomi.sort(Qt::CaseInsensitive);
  return nomi;
}

bool FamigliaInstallata(std::string_view nome) {
  return FamiglieInstallate().contains(AQt(nome));
}

}  // namespace telarium
