#pragma once

#include <QStringList>

namespace LineGrammar {

// Splits one entry of the process environment into [NAME, VALUE] as
// QRegExp("([a-zA-Z0-9_]+)=(.*)") does, found anywhere in the entry: NAME is
// the first run of ASCII letters, digits and '_' that an "=" follows, VALUE
// all after that "=". Both are empty when no such run exists.
QStringList nameAndValue(const QString &entry);

} // namespace LineGrammar
