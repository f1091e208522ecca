#include "platform/qt/qt_wait.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/qt_dialog.h"

namespace telarium {
namespace {

constexpr int LarghezzaMinima = 320;  // pixels
constexpr int PassiDellaBarra = 1000;

QLabel* Etichetta(const char16_t* nome, const QString& testo, QWidget* genitore) {
  auto* etichetta = Chiamato(QString::fromUtf16(nome), new QLabel(testo, genitore));
  etichetta->setTextFormat(Qt::PlainText);
  return etichetta;
}

QString ByteRicevuti(std::size_t byte) {
  if (byte == 0) return {};
  const QLocale italiano(QLocale::Italian, QLocale::Italy);
  return QStringLiteral("Ricevuti: %1")
      .arg(italiano.formattedDataSize(static_cast<qint64>(byte), 1, QLocale::DataSizeSIFormat));
}

}  // namespace

AttesaQt::AttesaQt(const QString& testo, QWidget* genitore,
                   std::chrono::milliseconds primaDiMostrarsi)
    : QDialog(genitore), primaDiMostrarsi_(primaDiMostrarsi) {
  setObjectName(u"Attesa");
  setWindowTitle(QGuiApplication::applicationDisplayName());
  setModal(true);
  setMinimumWidth(LarghezzaMinima);
  byte_ = Etichetta(u"Byte", {}, this);
  barra_ = Chiamato(QStringLiteral("Barra"), new QProgressBar(this));
  barra_->setRange(0, 0);  // nobody knows how much will come
  auto* interrompi =
      Chiamato(QStringLiteral("Interrompi"), new QPushButton(QStringLiteral("Interrompi"), this));
  connect(interrompi, &QPushButton::clicked, this, &QDialog::reject);
  auto* disposizione = new QVBoxLayout(this);
  disposizione->addWidget(Etichetta(u"Testo", testo, this));
  disposizione->addWidget(barra_);
  disposizione->addWidget(byte_);
  disposizione->addWidget(interrompi, 0, Qt::AlignRight);
  trascorso_.start();
}

bool AttesaQt::Prosegue(std::size_t byte) {
  byte_->setText(ByteRicevuti(byte));
  return Mostra();
}

bool AttesaQt::ProsegueFino(double parte) {
  byte_->hide();
  barra_->setRange(0, PassiDellaBarra);
  barra_->setValue(static_cast<int>(parte * PassiDellaBarra));
  return Mostra();
}

bool AttesaQt::Mostra() {
  if (!isVisible() && trascorso_.elapsed() >= primaDiMostrarsi_.count()) show();
  // Before the box takes all input, that is kept for later, a close of a window too.
  QCoreApplication::processEvents(isVisible() ? QEventLoop::AllEvents
                                              : QEventLoop::ExcludeUserInputEvents);
  return !interrotta_;
}

// The box stays until the wait has ended: the windows behind it must not get the second click.
void AttesaQt::reject() {
  interrotta_ = true;
}

}  // namespace telarium
