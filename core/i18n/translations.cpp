#include "core/i18n/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

void installTranslations(QCoreApplication *app)
{
    // The .qm files live in the static core library; without a reference the
    // linker would leave their resource data out of the program.
    Q_INIT_RESOURCE(orv_admin_env_translations);

    auto *own = new QTranslator(app);
    if (!own->load(QLocale(), QStringLiteral("orv-admin-env"), QStringLiteral("_"),
                   QStringLiteral(":/translations"))) {
        // Our texts stay English, so Qt's stay English too: no mixed dialogs.
        delete own;
        return;
    }

    // Qt's texts (standard buttons, file dialog) in the language ours was
    // found for, which a list of preferred languages could otherwise split.
    auto *qt = new QTranslator(app);
    if (qt->load(QLocale(own->language()), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
    // Installed last, so it is asked first.
    QCoreApplication::installTranslator(own);
}
