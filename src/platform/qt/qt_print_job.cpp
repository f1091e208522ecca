#include "platform/qt/qt_print_job.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>
#include <utility>

#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/qt/qt_colour.h"
#include "platform/qt/qt_coordinates.h"
#include "platform/qt/qt_fonts.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr double SpessoreLinea = 0.5;  // points: thin, and well visible
constexpr double PuntiPerPollice = 72;

class DellaStampante : public Carta {
 public:
  explicit DellaStampante(QPrinter& stampante) : stampante_(stampante) {}
  QPagedPaintDevice& Pagine() override { return stampante_; }
  void Concludi() override {
    if (stampante_.printerState() == QPrinter::Error) AvvisaStampaFallita();
  }
  void Abbandona() override { stampante_.abort(); }

 private:
  QPrinter& stampante_;
};

class NelPdf : public Carta {
 public:
  explicit NelPdf(const QPrinter& stampante)
      : file_(PercorsoDaQt(stampante.outputFileName())), pdf_(Aperto(bytes_)) {
    pdf_.setPageLayout(stampante.pageLayout());
    pdf_.setResolution(stampante.resolution());
    pdf_.setTitle(stampante.docName());
    pdf_.setCreator(stampante.creator());
  }
  QPagedPaintDevice& Pagine() override { return pdf_; }
  void Concludi() override {
    const std::string contenuto = bytes_.data().toStdString();
    const std::error_code errore = ScriviFile(file_, contenuto);
    if (!errore) return;
    Avvisa(Unisci("Non è possibile scrivere il file "_cp, TestoPercorso(file_), ": ",
                  DescrizioneErrore(errore), '.'),
           {}, Icona::Avviso);
  }

 private:
  static QIODevice* Aperto(QBuffer& bytes) {
    bytes.open(QIODevice::WriteOnly);
    return &bytes;
  }

  Percorso file_;
  QBuffer bytes_;
  QPdfWriter pdf_;
};

}  // namespace

std::unique_ptr<Carta> CartaDellaStampante(QPrinter& stampante) {
  return std::make_unique<DellaStampante>(stampante);
}

std::unique_ptr<Carta> CartaPdf(const QPrinter& stampante) {
  return std::make_unique<NelPdf>(stampante);
}

void AvvisaStampaFallita() {
  Avvisa("Non è possibile stampare: la stampante non risponde."_cp, {}, Icona::Avviso);
}

LavoroQt::LavoroQt(std::unique_ptr<Carta> carta, const TipoIniziale& tipo)
    : carta_(std::move(carta)),
      famiglia_(tipo.famiglia),
      corsivo_(tipo.corsivo),
      grassetto_(tipo.grassetto) {
  pittore_.begin(&carta_->Pagine());
  const QPagedPaintDevice& pagine = carta_->Pagine();
  ScalaSuperficie(pagine.width(), pagine.height());
}

LavoroQt::~LavoroQt() {
  if (finito_ || !Iniziato()) return;
  carta_->Abbandona();
  pittore_.end();
}

void LavoroQt::ScalaSuperficie(double larghezza, double altezza) {
  larghezza_ = std::max(larghezza, 1.0);
  altezza_ = std::max(altezza, 1.0);
  puntiX_ = carta_->Pagine().width() / larghezza_;
  puntiY_ = carta_->Pagine().height() / altezza_;
}

void LavoroQt::FineStampa() {
  if (std::exchange(finito_, true)) return;
  pittore_.end();
  carta_->Concludi();
}

QPointF LavoroQt::SullaCarta(double x, double y) const {
  return {CoordinataSicura(x * puntiX_), CoordinataSicura(y * puntiY_)};
}

void LavoroQt::Riquadro(double x1, double y1, double x2, double y2, Colore colore) {
  Disegna(x1, y1, x2, y2, colore, false);
}

void LavoroQt::RiquadroPieno(double x1, double y1, double x2, double y2, Colore colore) {
  Disegna(x1, y1, x2, y2, colore, true);
}

void LavoroQt::Disegna(double x1, double y1, double x2, double y2, Colore colore, bool pieno) {
  const double linea = SpessoreLinea / PuntiPerPollice * carta_->Pagine().logicalDpiX();
  pittore_.setPen(QPen(ColoreQt(colore), linea, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  pittore_.setBrush(pieno ? QBrush(ColoreQt(colore)) : QBrush(Qt::NoBrush));
  pittore_.drawRect(QRectF(SullaCarta(x1, y1), SullaCarta(x2, y2)).normalized());
}

void LavoroQt::Carattere(std::string_view nome) {
  famiglia_ = nome;
  tipo_.reset();
}

void LavoroQt::CorpoCarattere(double punti) {
  punti_ = punti;
  tipo_.reset();
}

void LavoroQt::Grassetto(bool grassetto) {
  grassetto_ = grassetto;
  tipo_.reset();
}

void LavoroQt::Corsivo(bool corsivo) {
  corsivo_ = corsivo;
  tipo_.reset();
}

// The fonts have the paper's resolution, so that points are points on it whatever the scale.
const LavoroQt::Tipo& LavoroQt::TipoCorrente() const {
  if (!tipo_) {
    const QFont font(FontDi(famiglia_, punti_, grassetto_, corsivo_), &carta_->Pagine());
    tipo_ = std::make_unique<Tipo>(Tipo{font, QFontMetricsF(font, &carta_->Pagine())});
  }
  return *tipo_;
}

double LavoroQt::LarghezzaTesto(std::string_view testo) const {
  if (!CorpoVisibile(punti_)) return 0;
  return TipoCorrente().misure.horizontalAdvance(AQt(testo)) / puntiX_;
}

double LavoroQt::AltezzaTesto(std::string_view) const {
  if (!CorpoVisibile(punti_)) return 0;
  const QFontMetricsF& misure = TipoCorrente().misure;
  return (misure.ascent() + misure.descent()) / puntiY_;
}

void LavoroQt::Posizione(double x, double y) {
  x_ = x;
  y_ = y;
}

void LavoroQt::Scrivi(std::string_view testo) {
  if (CorpoVisibile(punti_)) {
    const Tipo& tipo = TipoCorrente();
    pittore_.setFont(tipo.font);
    pittore_.setPen(Qt::black);
    pittore_.drawText(SullaCarta(x_, y_) + QPointF(0, tipo.misure.ascent()), AQt(testo));
  }
  x_ += LarghezzaTesto(testo);
}

bool LavoroQt::NuovaPagina() {
  return carta_->Pagine().newPage();
}

}  // namespace telarium
