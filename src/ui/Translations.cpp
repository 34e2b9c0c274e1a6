#include "ui/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <string>

#include "base/Translate.h"

namespace tessarin::ui {
namespace {

void install(QCoreApplication& application, const QString& catalogue, const QString& folder) {
  auto* translator = new QTranslator(&application);
  if (translator->load(QLocale(), catalogue, "_", folder)) QCoreApplication::installTranslator(translator);
}

}  // namespace

void installTranslations(QCoreApplication& application) {
  install(application, "qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  install(application, "tessarin", ":/translations");
  setTranslator([](const char* context, const char* text, int count) {
    return QCoreApplication::translate(context, text, nullptr, count).toStdString();
  });
}

}  // namespace tessarin::ui
