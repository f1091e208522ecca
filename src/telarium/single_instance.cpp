#include "telarium/single_instance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

#include "platform/program_folder.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr int TempoDiAttesa = 5000;  // milliseconds: the first one may just be busy
constexpr qint64 MaxByteMessaggio = 1 << 16;
constexpr char FineMessaggio = '\0';  // no file name holds it

// A name in the user's own folder for running programs that only this program folder has. A socket
// in the program folder itself could have too long a name.
QString NomePerCartella(const Percorso& cartella) {
  std::error_code ignorato;
  const Percorso vera = std::filesystem::weakly_canonical(cartella, ignorato);
  const QByteArray impronta =
      QCryptographicHash::hash(QByteArray::fromStdString(vera.string()), QCryptographicHash::Sha1);
  const QString fra = qEnvironmentVariable("XDG_RUNTIME_DIR", QDir::tempPath());
  return QDir(fra).filePath(
      QStringLiteral("telarium-%1").arg(QLatin1StringView(impronta.toHex().left(16))));
}

QString NomeDelBlocco(const Percorso& cartella, const QString& altrimenti) {
  return CartellaScrivibile(cartella) ? PercorsoAQt(cartella / NomeBlocco)
                                      : altrimenti + QStringLiteral(".lock");
}

}  // namespace

UnicaIstanza::UnicaIstanza(const Percorso& cartella)
    : presa_(NomePerCartella(cartella)), blocco_(NomeDelBlocco(cartella, presa_)) {
  blocco_.setStaleLockTime(0);  // a running one holds it however long; a dead one never
}

bool UnicaIstanza::Prima(std::function<void(const Percorso&)> riceve) {
  if (!blocco_.tryLock() && blocco_.error() == QLockFile::LockFailedError) return false;
  riceve_ = std::move(riceve);
  Ascolta();
  return true;
}

void UnicaIstanza::Ascolta() {
  QLocalServer::removeServer(presa_);  // of one that died
  servente_ = std::make_unique<QLocalServer>();
  servente_->setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(servente_.get(), &QLocalServer::newConnection, servente_.get(), [this] {
    QLocalSocket* cliente = servente_->nextPendingConnection();
    cliente->setReadBufferSize(MaxByteMessaggio);
    QObject::connect(cliente, &QLocalSocket::disconnected, cliente, &QObject::deleteLater);
    const auto legge = [this, cliente] {
      const QByteArray avuto = cliente->peek(MaxByteMessaggio);
      const qsizetype fine = avuto.indexOf(FineMessaggio);
      if (fine < 0) {
        if (avuto.size() >= MaxByteMessaggio) cliente->abort();
        return;
      }
      cliente->readAll();
      cliente->write(&FineMessaggio, 1);  // taken: the other one may end
      cliente->flush();
      // Behind the socket's own work: a message box that opens here would see the socket's end.
      QTimer::singleShot(0, servente_.get(),
                         [this, file = avuto.left(fine).toStdString()] { riceve_(file); });
    };
    QObject::connect(cliente, &QLocalSocket::readyRead, cliente, legge);
    if (cliente->bytesAvailable() > 0) legge();
  });
  servente_->listen(presa_);
}

// The first one has the lock before it listens: one that has just started is not there yet.
bool UnicaIstanza::Raggiungi(QLocalSocket& prima) const {
  constexpr unsigned long pausa = 20;  // milliseconds
  for (QDeadlineTimer termine(TempoDiAttesa); !termine.hasExpired(); QThread::msleep(pausa)) {
    prima.connectToServer(presa_);
    if (prima.waitForConnected(static_cast<int>(termine.remainingTime()))) return true;
  }
  return false;
}

bool UnicaIstanza::Consegna(const Percorso& file) const {
  QLocalSocket prima;
  if (!Raggiungi(prima)) return false;
  prima.write(QByteArray::fromStdString(file.string()) + FineMessaggio);
  return prima.waitForReadyRead(TempoDiAttesa);
}

}  // namespace telarium
