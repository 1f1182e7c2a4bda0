#include "evemodel.h"
#include "linefile.h"
#include "linegrammar.h"

#include <QFile>
#include <QMessageBox>
#include <QSettings>

bool EveModel::save()
{
    const QString system = tr("System");
    const QList<QStringList> snapshot = rows;
    for (const QStringList &row : snapshot) {
        if (row.value(PreviousColumn).isEmpty())
            continue;
        const QString name = row.value(VariableColumn);

        // Stored first, so the description survives a file that cannot be written.
        {
            QSettings settings;
            settings.beginGroup(QStringLiteral("variables/") + name);
            settings.setValue(QStringLiteral("description"), row.value(DescriptionColumn));
            settings.setValue(QStringLiteral("vip"), row.value(VipColumn));
            settings.endGroup();
        }

        // A variable that a file already exports goes back to that file; new
        // and environment-only ones go to the user's or the system-wide file.
        QString target = localFile;
        if (rootSession && row.value(ScopeColumn) == QLatin1String("global"))
            target = globalFile;
        const QString fallback = target;
        if (row.value(OriginColumn) != system)
            target = row.value(OriginColumn);

        QFile file(target);
        if (!openForRewrite(file)) {
            file.setFileName(fallback);
            if (!openForRewrite(file)) {
                QMessageBox::warning(
                    nullptr, tr("Warning!"),
                    tr("Couldn't open file %1 for saving variable %2").arg(fallback, name),
                    QMessageBox::Ok);
                return false;
            }
        }
        const QString value = LineGrammar::quoteValue(row.value(ValueColumn));
        rewriteLines(file, [&name, &value](QStringList &lines) {
            LineGrammar::writeAssignment(lines, name, value);
        });
    }

    for (QStringList &row : rows) {
        if (row.size() > PreviousColumn)
            row[PreviousColumn].clear();
    }

    for (const QStringList &row : qAsConst(deletedRows)) {
        const QString origin = row.value(OriginColumn);
        if (origin == system)
            continue;
        const QString name = row.value(VariableColumn);
        QFile file(origin);
        if (!openForRewrite(file)) {
            QMessageBox::warning(
                nullptr, tr("Warning!"),
                tr("Couldn't open file %1 for deleting variable %2").arg(origin, name),
                QMessageBox::Ok);
            continue;
        }
        rewriteLines(file, [&name](QStringList &lines) { LineGrammar::blankExport(lines, name); });
    }
    deletedRows.clear();
    return true;
}
