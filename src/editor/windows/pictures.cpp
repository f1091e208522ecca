#include "editor/windows/pictures.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace telarium {
namespace {

QString Risorsa(const char* nome) {
  return QStringLiteral(":/pictures/%1.svg").arg(QLatin1StringView(nome));
}

}  // namespace

QIcon Immagine(const char* nome) {
  return QIcon(Risorsa(nome));
}

QPixmap Figura(const char* nome, double rapporto) {
  QSvgRenderer disegno(Risorsa(nome));
  const QSize misura = disegno.defaultSize();
  QPixmap figura((QSizeF(misura) * rapporto).toSize());
  figura.setDevicePixelRatio(rapporto);
  figura.fill(Qt::transparent);
  QPainter pittore(&figura);
  disegno.render(&pittore, QRectF(QPointF(), misura));
  return figura;
}

QCursor PuntatoreDi(const char* nome, QPoint punta, double rapporto) {
  return QCursor(Figura(nome, rapporto), punta.x(), punta.y());
}

}  // namespace telarium
