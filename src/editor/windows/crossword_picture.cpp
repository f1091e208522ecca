#include "editor/windows/crossword_picture.h"

#include <QDateTime>
#include <QLocale>

#include "editor/small_picture.h"
#include "platform/surface.h"

namespace telarium {
namespace {

constexpr QSize MisuraMinima(240, 200);  // logical pixels

}  // namespace

FiguraDiCruciverba::FiguraDiCruciverba(const QString& nome, QWidget* genitore) : Tela(genitore) {
  setObjectName(nome);
  setMinimumSize(MisuraMinima);
  Superficie().Sfondo(ColoreBianco);
  QuandoCambiaMisura([this] { DisegnaInPiccolo(Superficie(), mostrato_); });
}

void FiguraDiCruciverba::Mostra(const Cruciverba& cruciverba) {
  mostrato_ = cruciverba;
  DisegnaInPiccolo(Superficie(), mostrato_);
  setAccessibleName(
      QStringLiteral("Schema di %1 x %2 caselle").arg(mostrato_.colonne).arg(mostrato_.righe));
}

QString MomentoDi(std::chrono::sys_seconds quando) {
  const QDateTime momento = QDateTime::fromSecsSinceEpoch(quando.time_since_epoch().count());
  const bool oggi = momento.date() == QDate::currentDate();
  return QLocale().toString(momento,
                            oggi ? QStringLiteral("HH:mm:ss") : QStringLiteral("d MMM yyyy HH:mm"));
}

}  // namespace telarium
