#include <QApplication>
#include <QDir>
#include <cstdio>
#include <utility>

#include "Palettes.h"
#include "PopupPictures.h"
#include "WindowPictures.h"
#include "ui/Translations.h"

/// Paints every window and every state of the popup, light, dark and in high contrast, into a folder:
/// pictures FOLDER. The scale is that of QT_SCALE_FACTOR.
int main(int argc, char** argv) {
  using namespace tessarin::pictures;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  QApplication application(argc, argv);
  tessarin::ui::installTranslations(application);
  QApplication::setStyle("Fusion");
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 2 || !QDir().mkpath(argv[1])) {
    std::fprintf(stderr, "usage: pictures FOLDER\n");
    return 2;
  }
  const double scale = application.devicePixelRatio();
  const std::pair<const char*, QPalette> palettes[] = {
      {"light", lightPalette()}, {"dark", darkPalette()}, {"contrast", highContrastPalette()}};
  for (const auto& [name, palette] : palettes) {
    QApplication::setPalette(palette);
    const QString prefix = QStringLiteral("%1/%2-%3x-").arg(QString::fromLocal8Bit(argv[1]), name).arg(scale);
    if (!savePopups(prefix, palette, scale) || !saveWindows(prefix, TESSARIN_RESOURCES)) {
      std::fprintf(stderr, "pictures: cannot write into %s\n", argv[1]);
      return 1;
    }
  }
  return 0;
}
