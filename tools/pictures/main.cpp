#include <QApplication>
#include <QDir>
#include <cstdio>
#include <string_view>
#include <utility>

#include "Palettes.h"
#include "PopupPictures.h"
#include "WindowPictures.h"
#include "ui/Translations.h"

/// Paints every window and every state of the popup, light, dark and in high contrast or in one of these,
/// into a folder: pictures FOLDER [PALETTE]. The scale is that of QT_SCALE_FACTOR, the language that of the
/// locale. Fails where a text is cut off.
int main(int argc, char** argv) {
  using namespace tessarin::pictures;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  QApplication application(argc, argv);
  tessarin::ui::installTranslations(application);
  QApplication::setStyle("Fusion");
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc < 2 || argc > 3 || !QDir().mkpath(argv[1])) {
    std::fprintf(stderr, "usage: pictures FOLDER [light|dark|contrast]\n");
    return 2;
  }
  const double scale = application.devicePixelRatio();
  const std::pair<const char*, QPalette> palettes[] = {
      {"light", lightPalette()}, {"dark", darkPalette()}, {"contrast", highContrastPalette()}};
  bool isGood = true;
  for (const auto& [name, palette] : palettes) {
    if (argc == 3 && std::string_view(argv[2]) != name) continue;
    QApplication::setPalette(palette);
    const QString prefix = QStringLiteral("%1/%2-%3x-").arg(QString::fromLocal8Bit(argv[1]), name).arg(scale);
    isGood = savePopups(prefix, palette, scale) && saveWindows(prefix, TESSARIN_RESOURCES) && isGood;
  }
  if (!isGood) std::fprintf(stderr, "pictures: not all in %s are as they should be\n", argv[1]);
  return isGood ? 0 : 1;
}
