#pragma once

#include <QString>
#include <QStringList>

class QPalette;

// The icon theme that supplies the icon names the desktop's own theme lacks (or all of
// them where no theme is configured): Breeze, which has every name the editor asks for,
// in its dark variant under a dark palette so that its monochrome icons stay visible.
// Empty when neither variant is found in the search paths.
QString fallbackIconTheme(const QPalette &palette, const QStringList &searchPaths);

// Makes that theme Qt's fallback theme, so QIcon::fromTheme() consults it after the
// desktop's theme and its parents. Call once the application exists, before any window.
void installIconFallback();
