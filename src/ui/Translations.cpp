#include "ui/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

#include "base/Translate.h"
#include "base/UserLanguages.h"

namespace tessarin::ui {
namespace {

constexpr const char* ownFolder = ":/translations";
constexpr const char* ownName = "tessarin";

/// Those of the files "NAME_LOCALE.qm".
QStringList catalogues(const QString& folder, const QString& name) {
  QStringList locales;
  for (const QString& file : QDir(folder).entryList({name + "_*.qm"}))
    locales.push_back(file.sliced(name.size() + 1).chopped(3));
  return locales;
}

/// Whether there is one, and it could be read.
bool load(QTranslator& translator, const QString& folder, const QString& name) {
  const QString locale = catalogueFor(userLanguages(), catalogues(folder, name));
  return !locale.isEmpty() && translator.load(name + "_" + locale, folder);
}

void install(QCoreApplication& application, const QString& folder, const QString& name) {
  auto* translator = new QTranslator(&application);
  if (load(*translator, folder, name)) QCoreApplication::installTranslator(translator);
}

}  // namespace

QString catalogueFor(const std::vector<std::string>& languages, const QStringList& catalogues) {
  for (const std::string& language : languages) {
    const QLocale wanted(QString::fromStdString(language));
    if (wanted.language() == QLocale::English) break;
    QString found;
    for (const QString& catalogue : catalogues) {
      const QLocale offered(catalogue);
      if (offered.language() != wanted.language() || offered.script() != wanted.script()) continue;
      if (found.isEmpty() || offered.territory() == wanted.territory()) found = catalogue;
    }
    if (!found.isEmpty()) return found;
  }
  return {};
}

void installTranslations(QCoreApplication& application) {
  install(application, QLibraryInfo::path(QLibraryInfo::TranslationsPath), "qtbase");
  install(application, ownFolder, ownName);
  setTranslator([](const char* context, const char* text, int count) {
    return QCoreApplication::translate(context, text, nullptr, count).toStdString();
  });
}

void installTerminalTranslations() {
  setTranslator(
      [catalogue = std::shared_ptr<QTranslator>()](const char* context, const char* text, int count) mutable {
        if (!catalogue) {
          catalogue = std::make_shared<QTranslator>();
          static_cast<void>(load(*catalogue, ownFolder, ownName));
        }
        const QString translated = catalogue->translate(context, text, nullptr, count);
        return translated.isEmpty() ? std::string(text) : translated.toStdString();
      });
}

}  // namespace tessarin::ui
