#pragma once

#include "core/reach/formattedline.h"

#include <QCoreApplication>
#include <QStringList>

// A line of fish (`set -gx NAME VALUE`). A value of a variable whose name
// ends in PATH becomes a list, one element per colon-separated part, which
// fish exports joined with colons again. References work as in
// EnvironmentDFormat: a `$NAME` or `${NAME}` whose NAME is in `references`
// becomes fish's "$NAME" (a whole element naming a PATH-like variable stays
// bare, so that its list is spliced in); every other character is quoted.
class FishFormat
{
    Q_DECLARE_TR_FUNCTIONS(FishFormat)

public:
    static bool isPathList(const QString &name);
    static FormattedLine line(const QString &name, const QString &value,
                              const QStringList &references = {});
    // One fish word that stands for `text` as it is: bare when that is safe,
    // otherwise in single quotes, a line break as \n between them.
    static QString quoted(const QString &text);
};
