#pragma once

class QCoreApplication;
class QLocale;

namespace tessarin::ui {

/// Gives the application its texts in the user's language, those of the toolkit's own dialogs and those of
/// the core included. A language without a catalogue stays English.
void installTranslations(QCoreApplication& application);

/// The same for the core's texts alone, where there is no application, as for what is written to a terminal.
/// The catalogue is read when the first text is wanted.
void installTerminalTranslations(const QLocale& locale);

}  // namespace tessarin::ui
