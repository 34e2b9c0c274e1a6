#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

class QCoreApplication;

namespace tessarin::ui {

/// Gives the application its texts in the user's language, those of the toolkit's own dialogs and those of
/// the core included. A language without a catalogue stays English.
void installTranslations(QCoreApplication& application);

/// The same for the core's texts alone, where there is no application, as for what is written to a terminal.
/// The catalogue is read when the first text is wanted.
void installTerminalTranslations();

/// The one of the catalogues, named by their locales ("de", "pt_BR"), for somebody who reads `languages`, the
/// best first. The country counts for less than the script: "pt_BR" is for all who read Portuguese, "zh_CN"
/// for all who read simplified Chinese. Empty where English, which needs no catalogue, comes before any that
/// there is.
QString catalogueFor(const std::vector<std::string>& languages, const QStringList& catalogues);

}  // namespace tessarin::ui
