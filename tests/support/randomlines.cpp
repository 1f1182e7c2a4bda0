#include "support/randomlines.h"

namespace {

const QStringList keywords{"export",  "exported",     "xexport",      "_export",
                           "Export",  "expor",        "\u00e9export", "export\u0301",
                           "1export", "export\u00e9", "-export"};
// What QChar::isSpace takes, and some that look like white space but are not.
const QStringList spaces{" ",  " ",  "\t", "\u00a0", "\u2003", "\u0085", "\v",
                         "\f", "\r", "\n", "\u3000", "\u2028", "\u200b", "\u1680"};
// Letters, digits and marks of many categories, '_', and the ends of the ASCII ranges.
const QStringList words{"A",          "PATH",   "x1",     "_",      "9",      "\u00e9",
                        "\u0416",     "\u540d", "\u0301", "\u0663", "\u00b2", "\u00aa",
                        "\u01c5",     "\u216b", "e",      "t",      "xport",  "\u0903",
                        "\U0001D400", "\u20dd", "Zaz_09", "\u00c0", "\u0131"};
// Neither: punctuation beside the ASCII ranges, NUL, lone surrogate halves, format characters.
const QStringList others =
    QStringList{";",      "\"", "'",      "/",      ":",      "$", "#",         "-",
                ".",      "{",  "}",      "\\",     "@",      "[", "`",         "\u00bf",
                "\u2014", "(",  "\u200d", "\u00ad", "\ufeff", "~", "\U0001F600"}
    << QString(QChar(0)) << QString(QChar(0xd800)) << QString(QChar(0xdc00));
const QStringList equalsSigns{"=", "=", "=", "==", "= "};

const QByteArrayList brokenUtf8{
    "\xff", "\xc3",         "\xe2\x82", "\xc1\xa5",         "\xed\xa0\x80",
    "\x80", "\xe0\x80\xaf", "\xf0\x9f", "\xf4\x90\x80\x80", QByteArray(1, 0)};
const QByteArrayList lineEnds{"\n", "\n", "\n", "\r\n", "\r", "\n\n", "\r\r\n"};

} // namespace

QString RandomLines::any()
{
    static const QList<const QStringList *> all{&keywords, &spaces, &words, &others, &equalsSigns};
    return pick(*all.at(below(all.size())));
}

QString RandomLines::exportLine()
{
    QString line;
    if (below(4) == 0) { // pieces of any kind in any order
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
        bytes += kind < 6 ? exportLine().toUtf8() : kind < 8 ? pick(brokenUtf8) : pick(lineEnds);
        if (below(3) == 0)
            bytes += pick(lineEnds);
    }
    return bytes;
}
