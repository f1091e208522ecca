#include "platform/qt/qt_text.h"

#include <QFile>
#include <QTextDocument>

#include "platform/codepage.h"

namespace telarium {

QString AQt(std::string_view testo) {
  QString qt(static_cast<qsizetype>(testo.size()), Qt::Uninitialized);
  QChar* carattere = qt.data();
  for (const char byte : testo)
    *carattere++ = TabellaCodePage[static_cast<unsigned char>(byte)];
  return qt;
}

std::string DaQt(const QString& testo) {
  return DaUtf8(testo.toUtf8().toStdString());
}

QString TitoloAQt(std::string_view testo) {
  return AQt(testo).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

QString ComeVoceDiMenu(QString testo) {
  return testo.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

std::optional<std::string> DaQtEsatto(const QString& testo) {
  std::string esatto = DaQt(testo);
  if (AQt(esatto) != testo) return std::nullopt;
  return esatto;
}

QString ComeSuggerimento(const QString& testo) {
  return testo.isEmpty() ? QString() : Qt::convertFromPlainText(testo);
}

QString PercorsoAQt(const Percorso& percorso) {
  return QFile::decodeName(QByteArray::fromStdString(percorso.string()));
}

Percorso PercorsoDaQt(const QString& percorso) {
  return QFile::encodeName(percorso).toStdString();
}

}  // namespace telarium
