#include "gui/app/iconfallback.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>

namespace {

bool themeExists(const QString &name, const QStringList &searchPaths)
{
    for (const QString &path : searchPaths) {
        if (QFileInfo(path + QLatin1Char('/') + name + QStringLiteral("/index.theme")).isFile())
            return true;
    }
    return false;
}

} // namespace

QString fallbackIconTheme(const QPalette &palette, const QStringList &searchPaths)
{
    const QString light = QStringLiteral("breeze");
    const QString dark = QStringLiteral("breeze-dark");
    // Dark icons on a dark window are as good as none.
    const bool darkPalette = palette.color(QPalette::Window).lightness() < 128;
    if (darkPalette && themeExists(dark, searchPaths))
        return dark;
    if (themeExists(light, searchPaths))
        return light;
    return QString();
}

void installIconFallback()
{
    const QString theme = fallbackIconTheme(QGuiApplication::palette(), QIcon::themeSearchPaths());
    if (!theme.isEmpty())
        QIcon::setFallbackThemeName(theme);
}
