#include "core/export/dotenv.h"

#include "core/shell/characters.h"

#include <algorithm>

namespace {

bool isPlain(QChar c)
{
    return ShellCharacters::isNameChar(c) || QStringLiteral("/.:,@%+-").contains(c);
}

} // namespace

Result<QList<DotEnv::Entry>> DotEnv::parse(const QByteArray &bytes, const QString &path)
{
    QList<Entry> entries;
    const QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    for (int number = 1; number <= lines.size(); ++number) {
        QString line = lines.at(number - 1);
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1String("export ")))
            line = line.mid(7).trimmed();
        const int equals = line.indexOf(QLatin1Char('='));
        const QString name = line.left(equals).trimmed();
        const auto bad = [&](const QString &why) {
            return Failure{path, Failure::Step::Read, tr("line %1: %2").arg(number).arg(why)};
        };
        if (equals <= 0 || !ShellCharacters::isName(name))
            return bad(tr("not NAME=VALUE"));
        QString rest = line.mid(equals + 1).trimmed();
        QString value;
        if (rest.startsWith(QLatin1Char('"'))) {
            int i = 1;
            for (; i < rest.size() && rest.at(i) != QLatin1Char('"'); ++i) {
                if (rest.at(i) != QLatin1Char('\\') || i + 1 >= rest.size()) {
                    value += rest.at(i);
                    continue;
                }
                const QChar next = rest.at(++i);
                value += next == QLatin1Char('n')   ? QChar(QLatin1Char('\n'))
                         : next == QLatin1Char('t') ? QChar(QLatin1Char('\t'))
                                                    : next;
            }
            if (i >= rest.size())
                return bad(tr("the double quote is not closed"));
        } else if (rest.startsWith(QLatin1Char('\''))) {
            const int close = rest.indexOf(QLatin1Char('\''), 1);
            if (close < 0)
                return bad(tr("the single quote is not closed"));
            value = rest.mid(1, close - 1);
        } else {
            const int comment = rest.indexOf(QLatin1String(" #"));
            value = (comment < 0 ? rest : rest.left(comment)).trimmed();
        }
        entries.append({name, value, number});
    }
    return entries;
}

QString DotEnv::line(const QString &name, const QString &value)
{
    if (std::all_of(value.cbegin(), value.cend(), isPlain))
        return name + QLatin1Char('=') + value;
    QString escaped;
    for (const QChar c : value) {
        if (c == QLatin1Char('\n'))
            escaped += QLatin1String("\\n");
        else if (c == QLatin1Char('\t'))
            escaped += QLatin1String("\\t");
        else if (c == QLatin1Char('"') || c == QLatin1Char('\\') || c == QLatin1Char('$'))
            escaped += QLatin1Char('\\') + QString(c);
        else
            escaped += c;
    }
    return name + QStringLiteral("=\"") + escaped + QLatin1Char('"');
}
