#include "platform/qt/qt_surface.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/qt_colour.h"
#include "platform/qt/qt_coordinates.h"
#include "platform/qt/qt_fonts.h"
#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

constexpr int PuntiPerMetro = 3780;  // 96 to the inch: 1 point is 96/72 logical pixels
constexpr std::size_t MaxDisegni = 20'000;
constexpr std::size_t MaxTipi = 32;

}  // namespace

struct SuperficieQt::Tipo {
  std::string famiglia;
  double punti;
  bool grassetto;
  bool corsivo;
  QFont font;
  QFontMetricsF misure;
  mutable std::array<double, 256> larghezze;  // of single characters; negative: not known yet

  Tipo(const std::string& famiglia_, double punti_, bool grassetto_, bool corsivo_)
      : famiglia(famiglia_),
        punti(punti_),
        grassetto(grassetto_),
        corsivo(corsivo_),
        font(FontDi(famiglia_, punti_, grassetto_, corsivo_)),
        misure(font, Campione()) {
    larghezze.fill(-1);
  }

  // Measures are those of the surface's resolution, whatever the screen's.
  static QImage* Campione() {
    static QImage campione = [] {
      QImage immagine(1, 1, QImage::Format_RGB32);
      immagine.setDotsPerMeterX(PuntiPerMetro);
      immagine.setDotsPerMeterY(PuntiPerMetro);
      return immagine;
    }();
    return &campione;
  }

  bool Invisibile() const { return !CorpoVisibile(punti); }

  double Larghezza(std::string_view testo) const {
    if (Invisibile()) return 0;
    if (testo.size() != 1) return misure.horizontalAdvance(AQt(testo));
    double& larghezza = larghezze[static_cast<unsigned char>(testo.front())];
    if (larghezza < 0) larghezza = misure.horizontalAdvance(AQt(testo));
    return larghezza;
  }
};

struct SuperficieQt::Disegno {
  enum Specie : std::uint8_t { Contorno, Pieno, Testo } specie;
  double x1, y1, x2 = 0, y2 = 0;
  Colore colore = ColoreNero;
  const Tipo* tipo = nullptr;
  std::size_t inizio = 0, lunghezza = 0;  // in testi_
};

SuperficieQt::SuperficieQt() = default;
SuperficieQt::~SuperficieQt() = default;

void SuperficieQt::Ridimensiona(QSize misura, double rapporto) {
  Dipingi();
  misura_ = misura;
  rapporto_ = rapporto;
  persistente_ = Adattata(persistente_);
  if (schermo_) schermo_ = Adattata(*schermo_);
  Segnala();
}

QImage SuperficieQt::NuovaImmagine() const {
  const QSizeF intera = QSizeF(misura_) * rapporto_;
  QImage nuova(std::max(1, static_cast<int>(std::ceil(intera.width()))),
               std::max(1, static_cast<int>(std::ceil(intera.height()))), QImage::Format_RGB32);
  nuova.setDotsPerMeterX(PuntiPerMetro);
  nuova.setDotsPerMeterY(PuntiPerMetro);
  nuova.fill(sfondo_);
  return nuova;
}

QImage SuperficieQt::Adattata(const QImage& vecchia) const {
  QImage nuova = NuovaImmagine();
  if (!vecchia.isNull()) QPainter(&nuova).drawImage(0, 0, vecchia);
  return nuova;
}

const QImage& SuperficieQt::Immagine() {
  Dipingi();
  segnalato_ = false;
  return Corrente();
}

void SuperficieQt::Copia(QPainter& pittore) {
  QImage immagine = Immagine();  // shares the pixels
  immagine.setDevicePixelRatio(rapporto_);
  pittore.setCompositionMode(QPainter::CompositionMode_Source);
  pittore.drawImage(QPointF(0, 0), immagine);
}

void SuperficieQt::Segnala() {
  if (std::exchange(segnalato_, true) || !cambia_) return;
  cambia_();
}

void SuperficieQt::Annota(const Disegno& disegno) {
  disegni_.push_back(disegno);
  if (disegni_.size() >= MaxDisegni) Dipingi();
  Segnala();
}

void SuperficieQt::Pulisci() {
  disegni_.clear();
  testi_.clear();
  daPulire_ = true;
  Segnala();
}

void SuperficieQt::Sfondo(Colore colore) {
  sfondo_ = ColoreQt(colore);
}

Colore SuperficieQt::Sfondo() const {
  return ColoreDaQt(sfondo_);
}

std::string SuperficieQt::Bitmap(const std::optional<Zona>& parte) {
  QImage immagine = Immagine();  // shares the pixels
  if (parte) {
    const QRectF zona(parte->sinistra * rapporto_, parte->cima * rapporto_,
                      parte->larghezza * rapporto_, parte->altezza * rapporto_);
    immagine = immagine.copy(zona.toAlignedRect() & immagine.rect());
  }
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  immagine.save(&file, "BMP");
  return file.data().toStdString();
}

void SuperficieQt::Riquadro(double x1, double y1, double x2, double y2, Colore colore) {
  Annota({Disegno::Contorno, x1, y1, x2, y2, colore});
}

void SuperficieQt::RiquadroPieno(double x1, double y1, double x2, double y2, Colore colore) {
  Annota({Disegno::Pieno, x1, y1, x2, y2, colore});
}

void SuperficieQt::Carattere(std::string_view nome) {
  famiglia_ = nome;
  tipo_ = nullptr;
}

void SuperficieQt::CorpoCarattere(double punti) {
  punti_ = punti;
  tipo_ = nullptr;
}

void SuperficieQt::Grassetto(bool grassetto) {
  grassetto_ = grassetto;
  tipo_ = nullptr;
}

void SuperficieQt::Corsivo(bool corsivo) {
  corsivo_ = corsivo;
  tipo_ = nullptr;
}

const SuperficieQt::Tipo& SuperficieQt::TipoCorrente() const {
  if (tipo_) return *tipo_;
  const auto trovato = std::find_if(tipi_.begin(), tipi_.end(), [this](const auto& tipo) {
    return tipo->punti == punti_ && tipo->grassetto == grassetto_ && tipo->corsivo == corsivo_ &&
           tipo->famiglia == famiglia_;
  });
  if (trovato == tipi_.end()) {
    // Noted texts point to their types.
    if (tipi_.size() >= MaxTipi && disegni_.empty()) tipi_.clear();
    tipi_.push_back(std::make_unique<Tipo>(famiglia_, punti_, grassetto_, corsivo_));
    tipo_ = tipi_.back().get();
  } else {
    tipo_ = trovato->get();
  }
  return *tipo_;
}

double SuperficieQt::LarghezzaTesto(std::string_view testo) const {
  return TipoCorrente().Larghezza(testo);
}

double SuperficieQt::AltezzaTesto(std::string_view) const {
  const Tipo& tipo = TipoCorrente();
  return tipo.Invisibile() ? 0 : tipo.misure.ascent() + tipo.misure.descent();
}

void SuperficieQt::Posizione(double x, double y) {
  x_ = x;
  y_ = y;
}

void SuperficieQt::Scrivi(std::string_view testo) {
  const Tipo& tipo = TipoCorrente();
  if (!tipo.Invisibile()) {
    Disegno disegno{Disegno::Testo, x_, y_};
    disegno.tipo = &tipo;
    disegno.inizio = testi_.size();
    disegno.lunghezza = testo.size();
    testi_ += testo;
    Annota(disegno);
  }
  x_ += LarghezzaTesto(testo);
}

void SuperficieQt::DisegnoPersistente(bool persistente) {
  if (persistente == !schermo_) return;
  if (persistente) {
    Pulisci();  // of what is noted nothing shall reach the persistent picture
    daPulire_ = false;
    schermo_.reset();
  } else {
    Dipingi();
    schermo_ = persistente_;
  }
  Segnala();
}

void SuperficieQt::Dipingi() {
  if (persistente_.isNull()) persistente_ = NuovaImmagine();
  QImage& immagine = Corrente();
  if (std::exchange(daPulire_, false)) immagine.fill(sfondo_);
  if (disegni_.empty()) return;
  QPainter pittore(&immagine);
  pittore.setRenderHint(QPainter::TextAntialiasing);
  pittore.setPen(Qt::black);
  for (const Disegno& disegno : disegni_) {
    if (disegno.specie == Disegno::Testo) {
      DipingiTesto(pittore, disegno);
    } else {
      DipingiRiquadro(pittore, disegno);
    }
  }
  disegni_.clear();
  testi_.clear();
}

// Both corners belong to the box: it takes the device pixels from the first one's left top to the
// second one's right bottom.
void SuperficieQt::DipingiRiquadro(QPainter& pittore, const Disegno& disegno) const {
  const auto pixel = [this](double coordinata) {
    return static_cast<int>(std::floor(CoordinataSicura(coordinata) * rapporto_ + 0.5));
  };
  const auto [x1, x2] = std::minmax({CoordinataSicura(disegno.x1), CoordinataSicura(disegno.x2)});
  const auto [y1, y2] = std::minmax({CoordinataSicura(disegno.y1), CoordinataSicura(disegno.y2)});
  const int sinistra = pixel(x1);
  const int cima = pixel(y1);
  const int larghezza = pixel(x2 + 1) - sinistra;
  const int altezza = pixel(y2 + 1) - cima;
  const QColor colore = ColoreQt(disegno.colore);
  const int linea = std::max(1, static_cast<int>(std::lround(rapporto_)));
  pittore.resetTransform();
  if (disegno.specie == Disegno::Pieno || larghezza <= 2 * linea || altezza <= 2 * linea) {
    pittore.fillRect(sinistra, cima, larghezza, altezza, colore);
    return;
  }
  pittore.fillRect(sinistra, cima, larghezza, linea, colore);
  pittore.fillRect(sinistra, cima + altezza - linea, larghezza, linea, colore);
  pittore.fillRect(sinistra, cima, linea, altezza, colore);
  pittore.fillRect(sinistra + larghezza - linea, cima, linea, altezza, colore);
}

void SuperficieQt::DipingiTesto(QPainter& pittore, const Disegno& disegno) const {
  const Tipo& tipo = *disegno.tipo;
  pittore.resetTransform();
  pittore.scale(rapporto_, rapporto_);
  pittore.setFont(tipo.font);
  const std::string_view testo(testi_.data() + disegno.inizio, disegno.lunghezza);
  pittore.drawText(
      QPointF(CoordinataSicura(disegno.x1), CoordinataSicura(disegno.y1) + tipo.misure.ascent()),
      AQt(testo));
}

}  // namespace telarium
