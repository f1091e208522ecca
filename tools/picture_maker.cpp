#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

// Makes a picture file from an SVG at its own size: picture_maker IN.svg OUT.jpg
int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: picture_maker IN.svg OUT.jpg\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QString from = QString::fromLocal8Bit(argv[1]);
  const QString to = QString::fromLocal8Bit(argv[2]);
  QGuiApplication application(argc, argv);  // texts in the SVG need its fonts
  QSvgRenderer renderer(from);
  QImage picture(renderer.defaultSize(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  renderer.render(&painter);
  painter.end();
  constexpr int quality = 92;
  if (!renderer.isValid() || !picture.save(to, "JPG", quality)) {
    std::fprintf(stderr, "picture_maker: cannot make %s from %s\n", argv[2], argv[1]);
    return 1;
  }
  return 0;
}
