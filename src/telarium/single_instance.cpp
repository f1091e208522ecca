#include "telarium/single_instance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>
#include <sys/stat.h>
#include <sys/un.h>

#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/program_folder.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"
#include "telarium/own_folder.h"

namespace telarium {
namespace {

constexpr int TempoDiAttesa = 5000;  // milliseconds: the first one may just be busy
constexpr qint64 MaxByteMessaggio = 1 << 16;
constexpr char FineMessaggio = '\0';  // no file name holds it

constexpr std::size_t MaxPercorsoPresa = sizeof(sockaddr_un::sun_path) - 1;

// A name that only this program folder has.
std::string NomePerCartella(const Percorso& cartella) {
  std::error_code ignorato;
  const Percorso vera = std::filesystem::weakly_canonical(cartella, ignorato);
  const QByteArray impronta =
      QCryptographicHash::hash(QByteArray::fromStdString(vera.string()), QCryptographicHash::Sha1);
  return impronta.toHex().left(16).toStdString();
}

std::string Descrizione(const Proprietario& chi) {
  if (chi.processo == 0) return std::string("non dice di quale processo è"_cp);
  return Unisci("è del processo "_cp, chi.processo, " del computer ", DaUtf8(chi.computer));
}

// Whether the user goes on although the lock of another start may be meant.
bool SiProsegue(const Percorso& blocco, std::string_view causa) {
  const std::string dubbio =
      ConCausa("Non si può stabilire se Telarium è già aperto in questa cartella programma."_cp,
               blocco, causa);
  return ChiUsa().MostraMessaggio(
             {.testo = Unisci(dubbio, "\nSe non lo è, si può proseguire. Proseguire?"_cp),
              .titolo = "Telarium",
              .pulsanti = Pulsanti::OkAnnulla,
              .icona = Icona::Avviso}) == Risposta::Ok;
}

}  // namespace

UnicaIstanza::UnicaIstanza(const Percorso& cartella) : nome_(cartella / NomeBlocco) {
  const std::string nome = NomePerCartella(cartella);
  const Percorso propria = CartellaPropria(MaxPercorsoPresa - nome.size() - 1);
  if (propria.empty()) return;
  presa_ = PercorsoAQt(propria / nome);
  riserva_ = propria / (nome + ".lock");
}

UnicaIstanza::~UnicaIstanza() = default;

UnicaIstanza::Avvio UnicaIstanza::Inizia(std::function<void(const Percorso&)> riceve) {
  const Avvio avvio = PrendiBlocco();
  if (avvio != Avvio::Prima) return avvio;
  riceve_ = std::move(riceve);
  if (!presa_.isEmpty()) Ascolta();
  return avvio;
}

UnicaIstanza::Avvio UnicaIstanza::PrendiBlocco() {
  switch (blocco_.Prendi(nome_)) {
    case EsitoBlocco::Preso:
      return Avvio::Prima;
    case EsitoBlocco::Occupato:
      return Avvio::Seconda;
    case EsitoBlocco::Estraneo:
      if (!SiProsegue(nome_, Descrizione(blocco_.Chi()))) return Avvio::Rinuncia;
      blocco_.Firma();
      return Avvio::Prima;
    case EsitoBlocco::Inservibile: {
      const std::string causa = DescrizioneErrore(blocco_.Errore());
      const Avvio avvio = PrendiBloccoDiRiserva();
      return avvio == Avvio::Seconda || SiProsegue(nome_, causa) ? avvio : Avvio::Rinuncia;
    }
    case EsitoBlocco::Impossibile:
      break;
  }
  return PrendiBloccoDiRiserva();
}

// Holds off the later starts of the same user. Where it cannot be had they are not noticed.
UnicaIstanza::Avvio UnicaIstanza::PrendiBloccoDiRiserva() {
  const bool occupato = !riserva_.empty() && blocco_.Prendi(riserva_) == EsitoBlocco::Occupato;
  return occupato ? Avvio::Seconda : Avvio::Prima;
}

void UnicaIstanza::AvvisaSenzaRisposta() const {
  Avvisa(ConCausa("Telarium è già aperto in questa cartella programma e non risponde."_cp,
                  blocco_.Nome(), Descrizione(blocco_.Chi())),
         {}, Icona::Avviso);
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
  if (servente_->listen(presa_)) ::chmod(PercorsoDaQt(presa_).c_str(), 0600);
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
  if (presa_.isEmpty() || !Raggiungi(prima)) return false;
  prima.write(QByteArray::fromStdString(file.string()) + FineMessaggio);
  return prima.waitForReadyRead(TempoDiAttesa);
}

}  // namespace telarium
