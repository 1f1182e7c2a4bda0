#include "cli/env/envtool.h"
#include "core/i18n/translations.h"

#include <QCoreApplication>
#include <QFile>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    // The editor's names, which decide its settings and the folder of copies.
    QCoreApplication::setOrganizationName(QStringLiteral("Orv"));
    QCoreApplication::setApplicationName(QStringLiteral("orv-admin-env"));
    installTranslations(&app);

    QFile out;
    QFile err;
    out.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered);
    err.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered);
    return EnvTool::run(app.arguments().mid(1), &out, &err);
}
