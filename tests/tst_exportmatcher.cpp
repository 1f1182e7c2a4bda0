#include "environmententry.h"
#include "exportmatcher.h"
#include "randomlines.h"

#include <QRegExp>
#include <QtTest>

// The read grammar and the environment split without a regular-expression
// engine must give exactly what QRegExp gives with the patterns they stand for.
class TestExportMatcher : public QObject
{
    Q_OBJECT

    QRegExp exportPattern{QStringLiteral("\\bexport\\b\\s+\\b(\\w+)=(.+)\\b"), Qt::CaseSensitive,
                          QRegExp::RegExp};
    QRegExp environmentPattern{QStringLiteral("([a-zA-Z0-9_]+)=(.*)"), Qt::CaseSensitive,
                               QRegExp::RegExp};

    // "NAME|VALUE" of a line as QRegExp reads it, or "no match".
    QString byQRegExp(const QString &line)
    {
        if (exportPattern.indexIn(line) < 0)
            return QStringLiteral("no match");
        return exportPattern.cap(1) + QLatin1Char('|') + exportPattern.cap(2);
    }

    static QString byMatcher(const QString &line)
    {
        LineGrammar::ExportLineMatcher matcher;
        if (!matcher.match(line))
            return QStringLiteral("no match");
        return matcher.name() + QLatin1Char('|') + matcher.value();
    }

    // Every export of a file's bytes as QRegExp finds it in each line: lines
    // end at "\n", are decoded from UTF-8 and lose their "\r" characters.
    QStringList exportsByQRegExp(const QByteArray &bytes)
    {
        QStringList found;
        for (const QByteArray &line : bytes.split('\n')) {
            QString text = QString::fromUtf8(line.constData(), line.size());
            text.remove(QLatin1Char('\r'));
            if (exportPattern.indexIn(text) >= 0)
                found << exportPattern.cap(1) + QLatin1Char('|') + exportPattern.cap(2);
        }
        return found;
    }

    static QStringList exportsByScan(const QByteArray &bytes)
    {
        QStringList found;
        LineGrammar::forEachExport(bytes, [&](QStringView name, QStringView value) {
            found << name.toString() + QLatin1Char('|') + value.toString();
        });
        return found;
    }

    // The names alone, in the form exportsByScan gives them.
    static QStringList namesByScan(const QByteArray &bytes)
    {
        QStringList found;
        LineGrammar::forEachExportedName(bytes, [&](std::string_view name) {
            found << QString::fromUtf8(name.data(), int(name.size()));
        });
        return found;
    }

    static QStringList namesOf(const QStringList &exports)
    {
        QStringList names;
        for (const QString &found : exports)
            names << found.section(QLatin1Char('|'), 0, 0);
        return names;
    }

    // "NAME|VALUE|null" (null when the value is a null string) by QRegExp.
    QString splitByQRegExp(const QString &entry)
    {
        if (environmentPattern.indexIn(entry) < 0)
            return QStringLiteral("||null");
        const QString value = environmentPattern.cap(2);
        return environmentPattern.cap(1) + QLatin1Char('|') + value +
               (value.isNull() ? QStringLiteral("|null") : QStringLiteral("|"));
    }

    static QString splitByFunction(const QString &entry)
    {
        const QStringList pair = LineGrammar::nameAndValue(entry);
        return pair.at(0) + QLatin1Char('|') + pair.at(1) +
               (pair.at(1).isNull() ? QStringLiteral("|null") : QStringLiteral("|"));
    }

private slots:
    void readsLinesAsQRegExpDoes_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("expected"); // "NAME|VALUE" or "no match"
        QTest::addRow("a commented-out export is read like a live one") << "# export EDITOR=vim"
                                                                        << "EDITOR|vim";
        QTest::addRow("a longer word than export does not match") << "exported A=1"
                                                                  << "no match";
        QTest::addRow("a letter before export makes a longer word") << "xexport A=1"
                                                                    << "no match";
        QTest::addRow("a combining mark after export makes a longer word") << "export\u0301 A=1"
                                                                           << "no match";
        QTest::addRow("export needs white space after it") << "exportA=1"
                                                           << "no match";
        QTest::addRow("the value runs to the end of the line") << "export A=1 B=2"
                                                               << "A|1 B=2";
        QTest::addRow("a closing double quote is dropped, the opening one kept")
            << "export PATH=\"/usr/bin:$PATH\""
            << "PATH|\"/usr/bin:$PATH";
        QTest::addRow("trailing punctuation is dropped") << "export A=x;"
                                                         << "A|x";
        QTest::addRow("a value of only non-word characters does not match") << "export A=/"
                                                                            << "no match";
        QTest::addRow("a value starting with non-word characters keeps them") << "export A=/bin"
                                                                              << "A|/bin";
        QTest::addRow("a second equals sign belongs to the value") << "export A==b"
                                                                   << "A|=b";
        QTest::addRow("tabs and spaces after export are all skipped") << "export \t  A=1"
                                                                      << "A|1";
        QTest::addRow("a no-break space separates like a space") << "export\u00a0A=1"
                                                                 << "A|1";
        QTest::addRow("a name that white space interrupts does not match") << "export A B=1"
                                                                           << "no match";
        QTest::addRow("a second export is read when the first fails") << "export =x; export B=2"
                                                                      << "B|2";
        QTest::addRow("Cyrillic letters are word characters")
            << "export \u0418\u041c\u042f=\u0434\u0430"
            << "\u0418\u041c\u042f|\u0434\u0430";
        QTest::addRow("a combining mark belongs to the name") << "export e\u0301=1"
                                                              << "e\u0301|1";
        QTest::addRow("the halves of a surrogate pair are no word characters")
            << "export A=x\U0001D400"
            << "A|x";
        QTest::addRow("an empty line does not match") << ""
                                                      << "no match";
    }
    void readsLinesAsQRegExpDoes()
    {
        QFETCH(QString, line);
        QFETCH(QString, expected);
        QCOMPARE(byQRegExp(line), expected);
        QCOMPARE(byMatcher(line), expected);
    }

    // A million lines in CI; bench_exportmatcher runs many more.
    void readsRandomLinesAsQRegExpDoes()
    {
        RandomLines lines(20240613);
        int matches = 0;
        for (int i = 0; i < 1000000; ++i) {
            const QString line = lines.exportLine();
            const QString expected = byQRegExp(line);
            const QString actual = byMatcher(line);
            if (actual != expected) {
                // Percent-encoded, as the lines hold control characters.
                const QString shown = QString::fromLatin1(line.toUtf8().toPercentEncoding(" =$#"));
                QFAIL(qPrintable(QStringLiteral("line %1 \"%2\": QRegExp gives \"%3\", the matcher "
                                                "\"%4\"")
                                     .arg(i)
                                     .arg(shown, expected, actual)));
            }
            matches += expected != QLatin1String("no match");
        }
        // Both outcomes must be common, or the lines test little.
        QVERIFY2(matches > 250000 && matches < 750000, qPrintable(QString::number(matches)));
    }

    void findsTheExportsOfEveryLineOfAFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("expected");
        QTest::addRow("lines end at a line feed, with or without a carriage return before it")
            << QByteArray("export A=1\r\nexport B=2\nexport C=3")
            << QStringList{"A|1", "B|2", "C|3"};
        QTest::addRow("a carriage return inside a line is dropped before matching")
            << QByteArray("exp\rort A=1\nexport B=x\ry\n") << QStringList{"A|1", "B|xy"};
        QTest::addRow("broken UTF-8 is no word character")
            << QByteArray("\xff"
                          "export A=1\nexport \xc3 B=1\n")
            << QStringList{"A|1"};
        QTest::addRow("a NUL byte is part of the line")
            << QByteArray("export A=b\0c\n", 13)
            << QStringList{QStringLiteral("A|b") + QChar(0) + "c"};
        QTest::addRow("an empty file has no exports") << QByteArray() << QStringList();
    }
    void findsTheExportsOfEveryLineOfAFile()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, expected);
        QCOMPARE(exportsByQRegExp(bytes), expected);
        QCOMPARE(exportsByScan(bytes), expected);
        QCOMPARE(namesByScan(bytes), namesOf(expected));
    }

    void findsTheExportsOfRandomFiles()
    {
        RandomLines lines(7321);
        for (int i = 0; i < 50000; ++i) {
            const QByteArray bytes = lines.fileBytes();
            const QStringList expected = exportsByQRegExp(bytes);
            const QStringList actual = exportsByScan(bytes);
            const QStringList names = namesByScan(bytes);
            if (actual != expected || names != namesOf(expected)) {
                QFAIL(qPrintable(
                    QStringLiteral(
                        "file %1 (%2): QRegExp gives \"%3\", the scans \"%4\" and \"%5\"")
                        .arg(i)
                        .arg(QString::fromLatin1(bytes.toPercentEncoding()),
                             expected.join(QLatin1Char(',')), actual.join(QLatin1Char(',')),
                             names.join(QLatin1Char(',')))));
            }
        }
    }

    void splitsEnvironmentEntriesAsQRegExpDoes_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("expected"); // "NAME|VALUE|", "|null" for a null value
        QTest::addRow("a plain entry") << "PATH=/usr/bin:/bin"
                                       << "PATH|/usr/bin:/bin|";
        QTest::addRow("an empty value is a null string, as QRegExp gives it") << "NAME="
                                                                              << "NAME||null";
        QTest::addRow("the name is the run of name characters before the first equals sign")
            << "A-B=1"
            << "B|1|";
        QTest::addRow("the value keeps further equals signs and line breaks") << "F=a=b\nc"
                                                                              << "F|a=b\nc|";
        QTest::addRow("an entry without an equals sign") << "novalue"
                                                         << "||null";
        QTest::addRow("an entry without a name") << "=x"
                                                 << "||null";
        QTest::addRow("a non-ASCII letter is no name character") << "\u00e9=1"
                                                                 << "||null";
        QTest::addRow("an equals sign without a name before a later assignment") << "-=y B=2"
                                                                                 << "B|2|";
    }
    void splitsEnvironmentEntriesAsQRegExpDoes()
    {
        QFETCH(QString, entry);
        QFETCH(QString, expected);
        QCOMPARE(splitByQRegExp(entry), expected);
        QCOMPARE(splitByFunction(entry), expected);
    }

    void splitsRandomEnvironmentEntriesAsQRegExpDoes()
    {
        RandomLines lines(99);
        for (int i = 0; i < 200000; ++i) {
            const QString entry = lines.environmentEntry();
            QCOMPARE(splitByFunction(entry), splitByQRegExp(entry));
        }
    }
};

QTEST_GUILESS_MAIN(TestExportMatcher)
#include "tst_exportmatcher.moc"
