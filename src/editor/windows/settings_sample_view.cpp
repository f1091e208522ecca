#include "editor/windows/settings_sample_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "platform/qt/qt_dialog.h"

namespace telarium {
namespace {

constexpr int Terra = 2;                // pixels of white ground between cells and frame
constexpr double PixelPerPollice = 96;  // 1 point is 96/72 logical pixels
constexpr int Punta = 3;                // radius of a leader line's mark, pixels
constexpr int Sporgenza = 10;           // pixels by which a letter may leave its own measures
const QColor ColoreCornice(128, 0, 0);
const QColor ColoreGuida(0x2F, 0x6F, 0xB5);

QFrame* Forma(const QString& nome, const QColor& fondo, const QColor& bordo, QWidget* genitore) {
  QFrame* forma = Chiamato(nome, new QFrame(genitore));
  QPalette colori = forma->palette();
  colori.setColor(QPalette::Window, fondo);
  colori.setColor(QPalette::WindowText, bordo);
  forma->setPalette(colori);
  forma->setAutoFillBackground(true);
  forma->setFrameStyle(QFrame::Box | QFrame::Plain);
  return forma;
}

void DaiCorpo(QLabel& etichetta, double punti) {
  QFont font = etichetta.font();
  font.setPointSizeF(punti * PixelPerPollice / etichetta.logicalDpiY());
  etichetta.setFont(font);
  etichetta.adjustSize();
}

struct CasellaDelCampione {
  QFrame* CampioneSchema::*controllo;
  const char* nome;
  int colonna, riga;
};

// The white squares below the first row.
constexpr CasellaDelCampione caselle[] = {
    {&CampioneSchema::Shape2, "Shape2", 0, 1},   {&CampioneSchema::Shape4, "Shape4", 1, 1},
    {&CampioneSchema::Shape5, "Shape5", 2, 1},   {&CampioneSchema::Shape6, "Shape6", 3, 1},
    {&CampioneSchema::Shape12, "Shape12", 4, 1}, {&CampioneSchema::Shape8, "Shape8", 0, 2},
    {&CampioneSchema::Shape13, "Shape13", 1, 2}, {&CampioneSchema::Shape14, "Shape14", 2, 2},
    {&CampioneSchema::Shape7, "Shape7", 3, 2},   {&CampioneSchema::Shape15, "Shape15", 4, 2},
};
// In the last row: the largest letters, which hang down from the first, do not end in the black.
constexpr CasellaDelCampione nere[] = {
    {&CampioneSchema::Shape10, "Shape10", 0, 2},
    {&CampioneSchema::Shape11, "Shape11", 3, 2},
};

}  // namespace

CampioneSchema::CampioneSchema(int latoInPixel, const QString& carattere, QWidget* genitore)
    : QWidget(genitore), lato_(latoInPixel * TwipPerPixelDelCampione) {
  setObjectName(u"Campione");
  setFixedSize(ColonneDelCampione * latoInPixel + 2 * Margine,
               RigheDelCampione * latoInPixel + 2 * Margine);
  CreaCaselle();
  CreaScritte(carattere);
  Line5 = Forma(QStringLiteral("Line5"), ColoreCornice, ColoreCornice, this);
  Line6 = Forma(QStringLiteral("Line6"), ColoreCornice, ColoreCornice, this);
}

QPoint CampioneSchema::InPixel(const PuntoInTwip& punto) const {
  return (QPointF(punto.x, punto.y) / TwipPerPixelDelCampione).toPoint() + QPoint(Margine, Margine);
}

// Both edges belong to a shape, so that neighbours share the line between them.
QRect CampioneSchema::InPixel(const RettangoloInTwip& rettangolo) const {
  const auto [x, y, larghezza, altezza] = rettangolo;
  return {InPixel(PuntoInTwip{x, y}), InPixel(PuntoInTwip{x + larghezza, y + altezza})};
}

QRect CampioneSchema::AreaDelleCelle() const {
  return InPixel({0, 0, ColonneDelCampione * lato_, RigheDelCampione * lato_});
}

void CampioneSchema::CreaCaselle() {
  for (int i = 0; i < ColonneDelCampione; ++i) {
    const auto k = static_cast<std::size_t>(i);
    Shape1[k] = Forma(NomeInSerie("Shape1", i), Qt::white, Qt::black, this);
    Shape1[k]->setGeometry(InPixel(CellaDelCampione(i, 0, lato_)));
  }
  for (const auto& [controllo, nome, colonna, riga] : caselle) {
    this->*controllo = Forma(QLatin1StringView(nome), Qt::white, Qt::black, this);
    (this->*controllo)->setGeometry(InPixel(CellaDelCampione(colonna, riga, lato_)));
  }
  for (const auto& [controllo, nome, colonna, riga] : nere)
    this->*controllo = Forma(QLatin1StringView(nome), Qt::black, Qt::black, this);
}

void CampioneSchema::CreaScritte(const QString& carattere) {
  constexpr QStringView lettere = u"QWERT";
  const auto scritta = [&](const QString& nome, const QString& testo) {
    QLabel* etichetta = Chiamato(nome, new QLabel(testo, this));
    QFont font = etichetta->font();
    font.setFamilies({carattere});
    etichetta->setFont(font);
    QPalette colori = etichetta->palette();
    colori.setColor(QPalette::WindowText, Qt::black);
    etichetta->setPalette(colori);
    etichetta->setAlignment(Qt::AlignCenter);
    return etichetta;
  };
  // Numbers stand on top of letters.
  for (int i = 0; i < ColonneDelCampione; ++i) {
    const auto k = static_cast<std::size_t>(i);
    Label1[k] = scritta(NomeInSerie("Label1", i), lettere.mid(i, 1).toString());
    Label1[k]->setMargin(Sporgenza);
  }
  for (int i = 0; i < ColonneDelCampione; ++i)
    Label3[static_cast<std::size_t>(i)] = scritta(NomeInSerie("Label3", i), QString::number(i + 1));
}

void CampioneSchema::Mostra(const ValoriDelCampione& valori) {
  for (const auto& [controllo, nome, colonna, riga] : nere) {
    (this->*controllo)
        ->setGeometry(InPixel(QuadratoNelCampione(CellaDelCampione(colonna, riga, lato_),
                                                  valori.percentualeRiquadro)));
  }
  for (int i = 0; i < ColonneDelCampione; ++i) {
    const RettangoloInTwip cella = CellaDelCampione(i, 0, lato_);
    QLabel& lettera = *Label1[static_cast<std::size_t>(i)];
    QLabel& numero = *Label3[static_cast<std::size_t>(i)];
    DaiCorpo(lettera, CorpoNelCampione(cella, valori.altezzaCaratteri));
    lettera.move(InPixel(PostoDellaLettera(cella, valori.distanzaDaCentro,
                                           lettera.width() * TwipPerPixelDelCampione,
                                           lettera.height() * TwipPerPixelDelCampione)));
    DaiCorpo(numero, CorpoNelCampione(cella, valori.altezzaNumeri));
    numero.move(InPixel(PostoDelNumero(cella, valori.distanzaDaSpigolo)));
  }
  MostraCornice(valori.spessoreBordo);
}

// As in the real grid: outward from the ground, so that the cells keep their place.
void CampioneSchema::MostraCornice(int spessore) {
  const QRect celle = AreaDelleCelle();
  const int cima = celle.top() - Terra - spessore;
  const int destra = celle.right() + 1 + Terra;
  Line5->setGeometry(celle.left(), cima, destra + spessore - celle.left(), spessore);
  Line6->setGeometry(destra, cima, spessore, celle.bottom() + 1 - cima);
}

QRect CampioneSchema::Inchiostro(const QLabel& etichetta) {
  const QFontMetrics misure(etichetta.font(), &etichetta);
  const QPoint base(
      etichetta.x() + (etichetta.width() - misure.horizontalAdvance(etichetta.text())) / 2,
      etichetta.y() + (etichetta.height() - misure.height()) / 2 + misure.ascent());
  return misure.tightBoundingRect(etichetta.text()).translated(base);
}

void CampioneSchema::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(AreaDelleCelle().adjusted(0, -Terra, Terra, 0), Qt::white);
}

LineaGuida::LineaGuida(QWidget* genitore) : QWidget(genitore) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineaGuida::Traccia(QPoint inizio, QPoint fine, bool conPunta) {
  const QPoint margine(Punta + 1, Punta + 1);
  const QPoint angolo(std::min(inizio.x(), fine.x()), std::min(inizio.y(), fine.y()));
  const QPoint opposto(std::max(inizio.x(), fine.x()), std::max(inizio.y(), fine.y()));
  setGeometry(QRect(angolo - margine, opposto + margine));
  // The middle of a pixel, so that the line is one pixel wide and not two half ones.
  const QPointF centro(0.5, 0.5);
  inizio_ = inizio - pos() + centro;
  fine_ = fine - pos() + centro;
  conPunta_ = conPunta;
  update();
}

void LineaGuida::paintEvent(QPaintEvent*) {
  QPainter pittore(this);
  pittore.setPen(QPen(ColoreGuida, 1));
  pittore.drawLine(inizio_, fine_);
  if (!conPunta_) return;
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(ColoreGuida);
  pittore.drawEllipse(fine_, Punta, Punta);
}

}  // namespace telarium
