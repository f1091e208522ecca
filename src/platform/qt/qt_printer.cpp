#include "platform/qt/qt_printer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "platform/qt/qt_dialog.h"
#include "platform/qt/qt_fonts.h"
#include "platform/qt/qt_print_job.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr double Margine = 6;           // mm; a printer that needs more has more
constexpr int LarghezzaFinestra = 560;  // pixels: room for the name of a file with its folder

QString CartellaDeiDocumenti() {
  const QString documenti = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(documenti).exists() ? documenti : QDir::homePath();
}

// The system's dialog offers a choice of pages, where all are printed, and options of printers even
// if the only one is that of PDF files, which has none of them.
void TogliScelteSenzaEffetto(const QPrintDialog& finestra) {
  if (auto* pagine = finestra.findChild<QWidget*>(QStringLiteral("gbPrintRange"))) pagine->hide();
  const auto* pulsanti = finestra.findChild<QDialogButtonBox*>();
  if (!pulsanti || !QPrinterInfo::availablePrinterNames().isEmpty()) return;
  for (QAbstractButton* pulsante : pulsanti->buttons()) {
    if (pulsanti->buttonRole(pulsante) == QDialogButtonBox::ResetRole) pulsante->hide();
  }
}

}  // namespace

bool StampanteQt::Carattere(std::string_view nome) {
  if (!FamigliaInstallata(nome)) return false;
  famiglia_ = nome;
  return true;
}

QPrinter& StampanteQt::Scelta() {
  if (!scelta_) {
    scelta_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    scelta_->setCreator(QApplication::applicationName());
    scelta_->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                       QMarginsF(Margine, Margine, Margine, Margine),
                                       QPageLayout::Millimeter));
  }
  return *scelta_;
}

// The PDF file has the job's name, in the folder of the last one.
void StampanteQt::ProponiFile(const QString& nome) {
  scelta_->setDocName(nome);
  if (scelta_->outputFormat() != QPrinter::PdfFormat) return;
  const QString ultimo = scelta_->outputFileName();
  const QString cartella =
      ultimo.isEmpty() ? CartellaDeiDocumenti() : QFileInfo(ultimo).absolutePath();
  scelta_->setOutputFileName(QDir(cartella).filePath(nome + QStringLiteral(".pdf")));
}

bool StampanteQt::Chiedi() {
  QPrintDialog finestra(scelta_.get(), GenitoreDiScatola(finestra_));
  finestra.setObjectName(u"CommonDialog1");
  finestra.setWindowTitle(QStringLiteral("Stampa"));
  finestra.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies |
                      QAbstractPrintDialog::PrintShowPageSize);
  TogliFigure(finestra);
  TogliScelteSenzaEffetto(finestra);
  finestra.setMinimumWidth(LarghezzaFinestra);
  return finestra.exec() == QDialog::Accepted;
}

std::unique_ptr<LavoroDiStampa> StampanteQt::IniziaLavoro(const std::string& nome) {
  QPrinter& stampante = Scelta();
  ProponiFile(AQt(nome));
  if (!Chiedi()) return nullptr;
  const bool pdf =
      stampante.outputFormat() == QPrinter::PdfFormat && !stampante.outputFileName().isEmpty();
  auto lavoro =
      std::make_unique<LavoroQt>(pdf ? CartaPdf(stampante) : CartaDellaStampante(stampante),
                                 TipoIniziale{famiglia_, corsivo_, grassetto_});
  if (lavoro->Iniziato()) return lavoro;
  AvvisaStampaFallita();
  return nullptr;
}

}  // namespace telarium
