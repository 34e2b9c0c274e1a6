#pragma once

class QCoreApplication;

namespace tessarin::ui {

/// Gives the application its texts in the user's language, those of the toolkit's own dialogs and those of
/// the core included. A language without a catalogue stays English.
void installTranslations(QCoreApplication& application);

}  // namespace tessarin::ui
