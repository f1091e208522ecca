#include "platform/qt/qt_surface.h"

#include <QPainter>
#include <limits>

#include <gtest/gtest.h>

#include "platform/qt/qt_text.h"

namespace telarium {
namespace {

class SurfaceTest : public ::testing::Test {
 protected:
  SurfaceTest() {
    surface.Sfondo(0x00FF00);
    surface.Ridimensiona({60, 40}, 1);
    surface.Pulisci();
  }

  QColor At(int x, int y) { return surface.Immagine().pixelColor(x, y); }
  int Count(const QColor& color) {
    int count = 0;
    const QImage& image = surface.Immagine();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, y) == color;
    }
    return count;
  }

  SuperficieQt surface;
};

constexpr Colore Red = 0x0000FF;

TEST_F(SurfaceTest, TheBitmapHasAllOfItOrAPartInDevicePixels) {
  for (const int ratio : {1, 2}) {
    surface.Ridimensiona({60, 40}, ratio);
    surface.Pulisci();
    surface.RiquadroPieno(10, 20, 19, 29, Red);
    const auto picture = [&](const std::optional<Zona>& part) {
      const std::string bytes = surface.Bitmap(part);
      EXPECT_TRUE(bytes.starts_with("BM"));
      return QImage::fromData(QByteArray::fromStdString(bytes), "BMP");
    };
    const QImage all = picture(std::nullopt);
    EXPECT_EQ(all.size(), QSize(60, 40) * ratio);
    EXPECT_EQ(all.pixelColor(10 * ratio, 20 * ratio), QColor(Qt::red));
    EXPECT_EQ(all.pixelColor(10 * ratio - 1, 20 * ratio), QColor(Qt::green));
    const QImage part = picture(Zona{10, 20, 10, 10});
    EXPECT_EQ(part.size(), QSize(10, 10) * ratio);
    for (const QPoint corner : {QPoint(0, 0), QPoint(10 * ratio - 1, 10 * ratio - 1)})
      EXPECT_EQ(part.pixelColor(corner), QColor(Qt::red));
    EXPECT_EQ(picture(Zona{-5, 30, 1000, 1000}).size(), QSize(60, 10) * ratio) << "what there is";
  }
}

TEST_F(SurfaceTest, BoxesTakeBothTheirCornersAtEveryScale) {
  struct Case {
    double ratio, x1, y1, x2, y2;
    int outline, filled;  // pixels
  };
  for (const Case& one : {Case{1, 10, 10, 19, 14, 26, 50}, Case{2, 10, 10, 19, 14, 4 * 26, 200},
                          Case{1, 19, 14, 10, 10, 26, 50},        // corners the other way round
                          Case{1, 5, 5, 5, 5, 1, 1},              // one pixel
                          Case{1, 9.5, 9.5, 18.6, 13.7, 26, 50},  // to the nearest pixel
                          Case{1.5, 10, 10, 19, 14, 4 * 15 + 4 * 4, 15 * 8}}) {
    surface.Ridimensiona({60, 40}, one.ratio);
    surface.Pulisci();
    surface.RiquadroPieno(one.x1, one.y1, one.x2, one.y2, Red);
    EXPECT_EQ(Count(Qt::red), one.filled) << one.ratio << ' ' << one.x1;
    surface.Pulisci();
    surface.Riquadro(one.x1, one.y1, one.x2, one.y2, Red);
    EXPECT_EQ(Count(Qt::red), one.outline) << one.ratio << ' ' << one.x1;
  }
  surface.Ridimensiona({60, 40}, 1);
  surface.Pulisci();
  surface.Riquadro(10, 10, 19, 14, 0x123456);
  EXPECT_EQ(At(10, 10), QColor(0x56, 0x34, 0x12)) << "red is in the low byte";
  EXPECT_EQ(At(19, 14), QColor(0x56, 0x34, 0x12));
  EXPECT_EQ(At(11, 11), QColor(Qt::green));
}

TEST_F(SurfaceTest, TextStandsBelowItsPositionAndMovesIt) {
  surface.Carattere("Arial");
  surface.CorpoCarattere(15);  // 20 pixels
  EXPECT_NEAR(surface.LarghezzaTesto("A"), 20 * 0.667, 0.8);
  EXPECT_NEAR(surface.AltezzaTesto("A"), 20 * 1.117, 1.2);
  EXPECT_NEAR(surface.LarghezzaTesto("\xC0"), surface.LarghezzaTesto("A"), 0.01) << "A grave";
  for (const std::string text : {"iW", "ii", "WW"})  // whatever was measured before
    EXPECT_NEAR(surface.LarghezzaTesto(text),
                surface.LarghezzaTesto(text.substr(0, 1)) + surface.LarghezzaTesto(text.substr(1)),
                0.1);
  surface.Posizione(5, 3);
  surface.Scrivi("AB");
  EXPECT_NEAR(surface.PosizioneX(), 5 + surface.LarghezzaTesto("AB"), 0.01);
  EXPECT_EQ(surface.PosizioneY(), 3);
  QRect ink;
  const QImage& image = surface.Immagine();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y).green() < 100) ink |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_NEAR(ink.left(), 5, 1.5);
  EXPECT_NEAR(ink.bottom(), 3 + 20 * 0.905, 1.5) << "the base line";
  EXPECT_NEAR(ink.height(), 20 * 0.716, 2) << "capitals";
  const double plain = surface.LarghezzaTesto("ORIZZONTALI");
  surface.Grassetto(true);
  EXPECT_GT(surface.LarghezzaTesto("ORIZZONTALI"), plain);
}

TEST_F(SurfaceTest, MeasuresDoNotDependOnTheScale) {
  surface.CorpoCarattere(31.4);
  const double width = surface.LarghezzaTesto("Telaio");
  const double height = surface.AltezzaTesto("Telaio");
  surface.Ridimensiona({60, 40}, 2);
  EXPECT_EQ(surface.LarghezzaTesto("Telaio"), width);
  EXPECT_EQ(surface.AltezzaTesto("Telaio"), height);
}

TEST_F(SurfaceTest, DrawingForTheScreenAloneLeavesThePersistentPicture) {
  surface.RiquadroPieno(0, 0, 9, 9, Red);
  surface.DisegnoPersistente(false);
  surface.RiquadroPieno(20, 0, 29, 9, Red);
  EXPECT_EQ(Count(Qt::red), 200);
  surface.RiquadroPieno(40, 0, 49, 9, Red);  // still only noted
  surface.DisegnoPersistente(true);
  EXPECT_EQ(Count(Qt::red), 100);
  surface.DisegnoPersistente(false);
  surface.Pulisci();
  surface.DisegnoPersistente(true);
  EXPECT_EQ(Count(Qt::red), 100) << "nor does clearing the screen";
}

TEST_F(SurfaceTest, PaintsLateWhatItWouldPaintAtOnce) {
  const auto draw = [](SuperficieQt& target, bool atOnce) {
    for (int i = 0; i < 25'000; ++i) {  // more than it notes down
      target.RiquadroPieno(i % 50, i % 30, i % 50 + i % 7, i % 30 + 2, i * 977);
      if (i % 100 == 0) {
        target.CorpoCarattere(5 + i % 45);  // more types than it keeps
        target.Posizione(i % 40, i % 20);
        target.Scrivi("Q");
      }
      if (atOnce) target.Immagine();
    }
  };
  SuperficieQt other;
  other.Ridimensiona({60, 40}, 1);
  other.Pulisci();
  surface.Sfondo(0xC0C0C0);
  surface.Pulisci();
  draw(surface, false);
  draw(other, true);
  EXPECT_EQ(surface.Immagine(), other.Immagine());
}

TEST_F(SurfaceTest, TellsAChangeOnceUntilItIsCopied) {
  int changes = 0;
  surface.Immagine();
  surface.QuandoCambia([&] { ++changes; });
  surface.Riquadro(0, 0, 5, 5, Red);
  surface.Pulisci();
  surface.Scrivi("x");
  EXPECT_EQ(changes, 1);
  QImage target(60, 40, QImage::Format_RGB32);
  {
    QPainter painter(&target);
    surface.Copia(painter);
  }
  EXPECT_EQ(target, surface.Immagine());
  surface.Pulisci();
  EXPECT_EQ(changes, 2);
}

TEST_F(SurfaceTest, KeepsWhatWasDrawnWhenItsSizeChanges) {
  surface.RiquadroPieno(0, 0, 9, 9, Red);
  surface.Ridimensiona({100, 80}, 1);
  EXPECT_EQ(Count(Qt::red), 100);
  EXPECT_EQ(At(90, 70), QColor(Qt::green));
  surface.Ridimensiona({5, 5}, 1);
  EXPECT_EQ(Count(Qt::red), 25);
  surface.Ridimensiona({0, 0}, 1);
  surface.Riquadro(0, 0, 9, 9, Red);
  EXPECT_EQ(surface.LarghezzaSuperficie(), 0);
}

TEST_F(SurfaceTest, StaysSafeWithAnyNumber) {
  for (const double value :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1e300,
        1e18, -5.0, 0.0, 32767.0 * 32767.0}) {
    surface.Riquadro(value, 1, 2, -value, Red);
    surface.RiquadroPieno(-value, value, value, -value, Red);
    surface.CorpoCarattere(value);
    surface.Posizione(value, value);
    surface.Scrivi("AB");
    EXPECT_GE(surface.LarghezzaTesto("AB"), 0) << value;
    EXPECT_LT(surface.LarghezzaTesto("AB"), 5000) << value;
    EXPECT_LT(surface.AltezzaTesto("A"), 5000) << value;
    surface.Immagine();
  }
}

TEST(QtText, ComesBackByteByByteAndOnlyTheCodePageIsLost) {
  std::string all;
  for (int i = 0; i < 256; ++i)
    all += static_cast<char>(i);
  EXPECT_EQ(DaQt(AQt(all)), all);
  EXPECT_EQ(AQt("\x80 \xE8"), QStringLiteral("\u20AC \u00E8"));
  EXPECT_EQ(DaQt(QStringLiteral("\u4E16\u00E8")), "?\xE8");
  EXPECT_EQ(PercorsoDaQt(PercorsoAQt("/a/\xC3\xA8.tlrm")), Percorso("/a/\xC3\xA8.tlrm"));
}

}  // namespace
}  // namespace telarium
