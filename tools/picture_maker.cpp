#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

// Makes a picture file from an SVG at its own size, or as a square of SIDE pixels. JPEG has a white
// ground, PNG none.
//   picture_maker IN.svg OUT.jpg|OUT.png [SIDE]
int main(int argc, char** argv) {
  if (argc != 3 && argc != 4) {
    std::fputs("usage: picture_maker IN.svg OUT.jpg|OUT.png [SIDE]\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QString from = QString::fromLocal8Bit(argv[1]);
  const QString to = QString::fromLocal8Bit(argv[2]);
  const int side = argc == 4 ? QByteArray(argv[3]).toInt() : 0;
  QGuiApplication application(argc, argv);  // texts in the SVG need its fonts
  QSvgRenderer renderer(from);
  const bool transparent = to.endsWith(QLatin1String(".png"));
  QImage picture(side > 0 ? QSize(side, side) : renderer.defaultSize(),
                 transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  picture.fill(transparent ? Qt::transparent : Qt::white);
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  renderer.render(&painter);
  painter.end();
  constexpr int jpegQuality = 92;
  if (!renderer.isValid() || !picture.save(to, nullptr, transparent ? -1 : jpegQuality)) {
    std::fprintf(stderr, "picture_maker: cannot make %s from %s\n", argv[2], argv[1]);
    return 1;
  }
  return 0;
}
