#include "cli/toolmain.h"

#include "core/i18n/translations.h"

#include <QCoreApplication>
#include <QFile>

int runTool(int argc, char *argv[], ToolRun run)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Orv"));
    QCoreApplication::setApplicationName(QStringLiteral("orv-admin-env"));
    installTranslations(&app);

    QFile out;
    QFile err;
    out.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered);
    err.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered);
    return run(app.arguments().mid(1), &out, &err);
}
