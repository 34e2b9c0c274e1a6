#include "ui/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>
#include <string>

#include "base/Translate.h"

namespace tessarin::ui {
namespace {

constexpr const char* ownFolder = ":/translations";

void install(QCoreApplication& application, const QString& catalogue, const QString& folder) {
  auto* translator = new QTranslator(&application);
  if (translator->load(QLocale(), catalogue, "_", folder)) QCoreApplication::installTranslator(translator);
}

}  // namespace

void installTranslations(QCoreApplication& application) {
  install(application, "qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  install(application, "tessarin", ownFolder);
  setTranslator([](const char* context, const char* text, int count) {
    return QCoreApplication::translate(context, text, nullptr, count).toStdString();
  });
}

void installTerminalTranslations(const QLocale& locale) {
  setTranslator([locale, catalogue = std::shared_ptr<QTranslator>()](const char* context, const char* text,
                                                                     int count) mutable {
    if (!catalogue) {
      catalogue = std::make_shared<QTranslator>();
      static_cast<void>(catalogue->load(locale, "tessarin", "_", ownFolder));
    }
    const QString translated = catalogue->translate(context, text, nullptr, count);
    return translated.isEmpty() ? std::string(text) : translated.toStdString();
  });
}

}  // namespace tessarin::ui
