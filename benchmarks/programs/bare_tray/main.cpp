// The least that a program with a tray item does in this toolkit: what our own start is measured against.
#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>
#include <QTimer>
#include <cstdio>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QPixmap picture(22, 22);
  picture.fill(Qt::black);
  QMenu menu;
  menu.addAction("Quit", &application, &QApplication::quit);
  QSystemTrayIcon icon(picture);
  icon.setContextMenu(&menu);
  icon.show();
  QTimer::singleShot(0, &application, [] {
    std::puts("ready");
    std::fflush(stdout);
  });
  return QApplication::exec();
}
