#pragma once

class QCoreApplication;

// Installs the program's translation for the language of QLocale() and,
// with it, Qt's own one for that language (standard buttons and dialogs);
// the application owns both. Call once, before any window is built. Without a
// translation of ours, as under the C locale, every text stays English.
void installTranslations(QCoreApplication *app);
