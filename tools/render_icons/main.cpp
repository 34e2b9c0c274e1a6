// Paints the program's icon at the sizes that icon themes have: render_icons FOLDER SIZE=DRAWING...
// writes FOLDER/SIZE.png from each drawing (SVG).

#include <QImage>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>
#include <cstdio>

namespace {

bool render(const QString& drawing, int size, const QString& picture) {
  QSvgRenderer renderer(drawing);
  if (!renderer.isValid() || size <= 0) return false;
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  return image.save(picture);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: render_icons FOLDER SIZE=DRAWING...\n");
    return 2;
  }
  for (int n = 2; n < argc; ++n) {
    const QString argument = QString::fromLocal8Bit(argv[n]);
    const QString size = argument.section('=', 0, 0);
    const QString picture = QStringLiteral("%1/%2.png").arg(QString::fromLocal8Bit(argv[1]), size);
    if (!render(argument.section('=', 1), size.toInt(), picture)) {
      std::fprintf(stderr, "render_icons: cannot paint %s\n", argv[n]);
      return 1;
    }
  }
  return 0;
}
