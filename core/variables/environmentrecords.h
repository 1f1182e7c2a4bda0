#pragma once

#include <QList>
#include <QStringList>

// The table's rows made from the process environment, in the order the
// platform gives it: one record per entry that has a name, with Origin
// `systemOrigin`, Scope "local", and Description and Vip from the catalogue,
// overridden by what the settings store for the name.
QList<QStringList> environmentRecords(const QString &systemOrigin);
