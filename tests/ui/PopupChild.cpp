#include "ui/PopupChild.h"

#include <QApplication>
#include <cstdlib>
#include <cstring>

#include "platform/qt/QtScreens.h"
#include "ui/PopupContents.h"
#include "ui/PopupWindow.h"

namespace tessarin::testing {
namespace {
constexpr const char* childOption = "--show-popup";
}

bool isPopupChild(int argc, char** argv) {
  return argc == 5 && std::strcmp(argv[1], childOption) == 0;
}

int runPopupChild(int argc, char** argv) {
  QApplication application(argc, argv);
  ui::QtScreens screens;
  ui::PopupWindow window(screens);
  const PopupContent content = popupWithRows(std::atoi(argv[2]));
  const QSizeF size = sizeOf(content);
  window.show(content, {std::atof(argv[3]), std::atof(argv[4]), size.width(), size.height()});
  window.onRowClicked([&](int) { window.setWindowTitle(clickedTitle); });
  return QApplication::exec();
}

ChildProcess startPopupChild(const std::string& displayVariable, int rows, Point origin) {
  return ChildProcess({"/proc/self/exe", childOption, std::to_string(rows), std::to_string(origin.x),
                       std::to_string(origin.y)},
                      {displayVariable, "QT_QPA_PLATFORM=xcb"});
}

}  // namespace tessarin::testing
