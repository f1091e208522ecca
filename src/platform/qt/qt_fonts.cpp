#include "platform/qt/qt_fonts.h"

#include <QFontDatabase>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "platform/surface.h"

namespace telarium {

namespace {

constexpr double MinPunti = 0.1;
constexpr double MaxPunti = 1000;  // a settings file can ask for any size

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

QFont FontDi(std::string_view famiglia, double punti, bool grassetto, bool corsivo) {
  QFont font(AQt(famiglia));
  font.setPointSizeF(std::clamp(punti, MinPunti, MaxPunti));
  font.setBold(grassetto);
  font.setItalic(corsivo);
  return font;
}

bool CorpoVisibile(double punti) {
  return punti >= MinPunti;  // nor does what is no number
}

}  // namespace telarium
