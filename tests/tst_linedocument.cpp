#include "linedocument.h"
#include "linegrammar.h"

#include <QRandomGenerator>
#include <QRegExp>
#include <QtTest>

namespace {

// The save's edits as the patterns state them, one file rewrite per edit:
// read the lines (a '\r' before the line end dropped, every '\r' gone from
// the text), replace, write every line with "\n", unchanged lines with their
// bytes.
struct Edit
{
    QString name;
    QString value; // null: blank the variable's export instead
};

QByteArray editOneAtATime(QByteArray bytes, const QList<Edit> &edits)
{
    for (const Edit &edit : edits) {
        QByteArrayList raw = bytes.split('\n');
        if (bytes.isEmpty() || bytes.endsWith('\n'))
            raw.removeLast();
        QStringList text;
        for (QByteArray &line : raw) {
            if (line.endsWith('\r'))
                line.chop(1);
            text << QString::fromUtf8(line).remove('\r');
        }
        QStringList lines = text;
        if (edit.value.isNull()) {
            const QRegExp rx("export.*" + edit.name + "=.*");
            for (QString &line : lines)
                line.replace(rx, " ");
        } else {
            const QString assignment = edit.name + '=' + edit.value;
            const QRegExp rx(edit.name + "=.*");
            int holding = 0;
            for (QString &line : lines)
                holding += line.replace(rx, assignment).contains(assignment, Qt::CaseInsensitive);
            if (holding == 0)
                lines.prepend("export " + assignment);
        }
        const int added = lines.size() - text.size();
        bytes.clear();
        for (int i = 0; i < lines.size(); ++i) {
            const bool unchanged = i >= added && lines[i] == text[i - added];
            bytes += (unchanged ? raw[i - added] : lines[i].toUtf8()) + '\n';
        }
    }
    return bytes;
}

QByteArray editInMemory(const QByteArray &bytes, const QList<Edit> &edits)
{
    LineDocument document = LineDocument::fromBytes(bytes);
    for (const Edit &edit : edits) {
        if (edit.value.isNull())
            document.blankExport(edit.name);
        else
            document.writeAssignment(edit.name, edit.value);
    }
    return document.toBytes();
}

// Pieces that random lines and edits are made of: several "export" words,
// names that end in the same letters, a name with pattern characters, quotes,
// line breaks and carriage returns in values, bytes that are not UTF-8.
const QStringList namePieces{"PATH", "TH", "MANPATH", "A", "a", "A.B", "EXPORT", "e\u00e9", ""};
const QStringList linePieces{"export ", "export", " ",   "=",  "PATH", "TH",   "MAN",
                             "A",       "a",      "x",   "#",  "\t",   ";",    "\"",
                             "\r",      "\u00e9", "A.B", "B=", "1 ",   "exp ", "\U0001F600"};
const QStringList valuePieces{"1", "x y", "\"q\"", "a\nb", "c\r", "\r\n", "2\\1", "", "\u00e9"};

QString pick(QRandomGenerator &random, const QStringList &pieces, int most)
{
    QString text;
    for (int n = random.bounded(most + 1); n > 0; --n)
        text += pieces.at(random.bounded(pieces.size()));
    return text;
}

QByteArray randomFile(QRandomGenerator &random)
{
    QByteArray bytes;
    for (int n = random.bounded(8); n > 0; --n) {
        bytes += pick(random, linePieces, 7).toUtf8();
        if (random.bounded(10) == 0)
            bytes += "\xff";
        bytes += random.bounded(6) == 0 ? "\r\n" : "\n";
    }
    if (random.bounded(4) == 0)
        bytes += pick(random, linePieces, 3).toUtf8(); // no final line end
    return bytes;
}

} // namespace

class TestLineDocument : public QObject
{
    Q_OBJECT

private slots:
    void editsAFile_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value"); // null: blank the export
        QTest::addColumn<QByteArray>("after");

        QTest::addRow("an assignment in another letter case counts as present")
            << QByteArray("export foo=2\n") << "FOO"
            << "2" << QByteArray("export foo=2\n");
        QTest::addRow("a line break in a value starts a new line")
            << QByteArray("export A=1\n") << "A"
            << "x\ny" << QByteArray("export A=x\ny\n");
        QTest::addRow("a name with pattern characters is a pattern")
            << QByteArray("export AxB=1\n") << "A.B"
            << "2" << QByteArray("export A.B=2\n");
        QTest::addRow("a deletion leaves a name that comes before the export")
            << QByteArray("A=1; export B=2\n") << "A" << QString()
            << QByteArray("A=1; export B=2\n");
    }
    void editsAFile()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, name);
        QFETCH(QString, value);

        const QByteArray after = editInMemory(before, {{name, value}});

        QTEST(after, "after");
        QCOMPARE(after, editOneAtATime(before, {{name, value}}));
    }

    // Many edits in one document, with and without its index, against one
    // rewrite per edit.
    void manyEditsGiveTheBytesOfOneRewriteEach()
    {
        QRandomGenerator random(20261123);
        for (int round = 0; round < 2000; ++round) {
            const QByteArray before = randomFile(random);
            QList<Edit> edits;
            for (int n = 1 + random.bounded(10); n > 0; --n) {
                const QString name = namePieces.at(random.bounded(namePieces.size()));
                const QString value = random.bounded(4) == 0
                                          ? QString()
                                          : LineGrammar::quoteValue(pick(random, valuePieces, 3));
                edits.append({name, value});
            }
            const QByteArray expected = editOneAtATime(before, edits);
            const QByteArray actual = editInMemory(before, edits);
            if (actual != expected) {
                QStringList steps;
                for (const Edit &edit : edits)
                    steps << (edit.value.isNull() ? "blank " + edit.name
                                                  : edit.name + '=' + edit.value);
                qWarning() << "file" << before << "edits" << steps;
            }
            QCOMPARE(actual, expected);
        }
    }

    void lineEditsMatchThePatterns()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 100000; ++round) {
            const QString line = pick(random, linePieces, 9);
            const QString name = namePieces.at(random.bounded(namePieces.size()));

            const LineGrammar::LineEdits edits(name);
            QString rewritten = line;
            edits.rewriteAssignment(rewritten, name + "=v");
            QCOMPARE(rewritten, QString(line).replace(QRegExp(name + "=.*"), name + "=v"));

            QString blanked = line;
            edits.blankExport(blanked);
            QCOMPARE(blanked, QString(line).replace(QRegExp("export.*" + name + "=.*"), " "));
        }
    }
};

QTEST_APPLESS_MAIN(TestLineDocument)
#include "tst_linedocument.moc"
