#include "randomlines.h"

#include <QStringList>

namespace {

const QStringList keywords{"export",       "exported", "xexport",      "_export",
                           "Export",       "expor",    "\u00e9export", "export\u0301",
                           "export\u00e9", "1export",  "-export"};

// QChar::isSpace characters, and a few that look like white space but are not.
const QStringList spaces{" ",  " ",  "\t", "\u00a0", "\u2003", "\u0085", "\v",
                         "\f", "\r", "\n", "\u3000", "\u2028", "\u200b", "\u1680"};

// Letters, digits and marks of several categories, and '_'.
const QStringList words{"A",      "PATH",   "x1",           "_",      "9",      "\u00e9",
                        "\u0416", "\u540d", "\u0301",       "\u0663", "\u00b2", "\u00aa",
                        "\u01c5", "\u216b", "\U0001D400",   "e",      "t",      "xport",
                        "\u0903", "\u20dd", "Abc_def_1234", "\u00c0", "\u0131"};

// Neither word characters nor white space.
const QStringList others{";",
                         "\"",
                         "'",
                         "/",
                         ":",
                         "$",
                         "#",
                         "-",
                         ".",
                         "{",
                         "}",
                         "\\",
                         "\u00bf",
                         "\u2014",
                         QString(QChar(0)),
                         "\U0001F600",
                         "(",
                         QString(QChar(0xd800)),
                         QString(QChar(0xdc00)),
                         "\u200d",
                         "\u00ad",
                         "\ufeff",
                         "~"};

const QStringList equalsSigns{"=", "=", "=", "==", "= "};

// Byte sequences a start-up file may hold besides valid UTF-8 text.
const QList<QByteArray> brokenBytes{
    "\xff", "\xc3",         "\xe2\x82",     "\xc1\xa5", "\xed\xa0\x80",     "\xf4\x90\x80\x80",
    "\x80", "\xe0\x80\xaf", "\xf0\x9f\x98", "\xc3\xa9", QByteArray(1, '\0')};
const QList<QByteArray> lineEnds{"\n", "\n", "\n", "\r\n", "\r", "\n\n", "\r\r\n"};

const QStringList nameParts{"A", "z", "0", "_",  "PATH", "é", "-",
                            ".", " ", "%", "\n", "Ж",    "(", "+"};
const QStringList valueParts{"", "x", "=", "==", " ", "/usr/bin", "\n", "é", "$HOME", "\t", "A=1"};

} // namespace

QString RandomLines::exportLine()
{
    const auto pick = [this](const QStringList &from) {
        return from.at(below(from.size()));
    };
    static const QList<const QStringList *> all{&keywords, &spaces, &words, &others, &equalsSigns};
    const auto any = [&] {
        return pick(*all.at(below(all.size())));
    };

    QString line;
    if (below(4) == 0) {
        // Pieces of any kind in any order.
        for (int n = below(12); n >= 0; --n)
            line += any();
        return line;
    }
    // Mostly the shape of an export, each part now and then replaced or left out.
    const auto part = [&](const QStringList &kind, int least, int most) {
        for (int n = least + below(most - least + 1); n > 0; --n)
            line += below(10) == 0 ? any() : pick(kind);
    };
    part(others, 0, 2);
    line += below(3) != 0 ? QStringLiteral("export") : pick(keywords);
    part(spaces, 1, 2);
    part(words, 1, 3);
    part(equalsSigns, 1, 1);
    for (int n = below(6); n > 0; --n)
        line += below(3) == 0 ? pick(words) : any();
    if (below(4) == 0)
        line += exportLine().left(below(40));
    return line;
}

QByteArray RandomLines::fileBytes()
{
    QByteArray bytes;
    for (int n = below(8); n >= 0; --n) {
        const int kind = below(10);
        if (kind < 6)
            bytes += exportLine().toUtf8();
        else if (kind < 8)
            bytes += brokenBytes.at(below(brokenBytes.size()));
        else
            bytes += lineEnds.at(below(lineEnds.size()));
        if (below(3) == 0)
            bytes += lineEnds.at(below(lineEnds.size()));
    }
    return bytes;
}

QString RandomLines::environmentEntry()
{
    QString entry;
    for (int n = below(4); n >= 0; --n)
        entry += nameParts.at(below(nameParts.size()));
    if (below(6) != 0)
        entry += QLatin1Char('=');
    for (int n = below(4); n > 0; --n)
        entry += valueParts.at(below(valueParts.size()));
    return entry;
}
