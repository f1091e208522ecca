#include "platform/qt/qt_fonts.h"

#include <QFontDatabase>

#include "platform/qt/qt_text.h"

namespace telarium {

QStringList FamiglieInstallate() {
  const QString arial = QStringLiteral("Arial");
  QStringList nomi = QFontDatabase::families();
  nomi.removeIf([](const QString& nome) {
    return QFontDatabase::isPrivateFamily(nome) || AQt(DaQt(nome)) != nome;
  });
  if (!nomi.contains(arial)) nomi.append(arial);
  nomi.sort(Qt::CaseInsensitive);
  return nomi;
}

bool FamigliaInstallata(std::string_view nome) {
  return FamiglieInstallate().contains(AQt(nome));
}

}  // namespace telarium
