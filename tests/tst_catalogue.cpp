#include "evemodel.h"
#include "sandboxtest.h"

// A record as loading hands it to the catalogue; its Vip shows whether the
// catalogue wrote one.
static QStringList recordOf(const QString &name)
{
    return {name, "value", "System", "", "local", "kept", ""};
}

class TestCatalogue : public SandboxTest
{
    Q_OBJECT

private slots:
    void describesEveryWellKnownVariable_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("critical");
        QTest::addColumn<QString>("description");
        QFile file(QFINDTESTDATA("catalogue.tsv"));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        QStringList names; // the first entry of a name wins; a later one is never reached
        while (!file.atEnd()) {
            const QStringList entry = QString::fromUtf8(file.readLine()).chopped(1).split('\t');
            if (entry.size() != 3 || names.contains(entry[0]))
                continue;
            names << entry[0];
            const bool critical = entry[1] == "critical";
            QTest::addRow("%s is described and %s", qPrintable(entry[0]),
                          critical ? "marked critical" : "keeps its mark")
                << entry[0] << critical << entry[2];
        }
        QCOMPARE(names.size(), 66);
    }
    void describesEveryWellKnownVariable()
    {
        QFETCH(QString, name);
        QFETCH(bool, critical);
        QStringList record = recordOf(name);
        EveModel().describeKnownVariable(record);
        QTEST(record.at(EveModel::DescriptionColumn), "description");
        QCOMPARE(record.at(EveModel::VipColumn), critical ? "true" : "kept");
    }

    void leavesOtherNamesAlone_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addRow("a name the catalogue lacks") << "EDITOR";
        QTest::addRow("a known name in other letter case") << "Path";
        QTest::addRow("a known name with a trailing space") << "PATH ";
    }
    void leavesOtherNamesAlone()
    {
        QFETCH(QString, name);
        QStringList record = recordOf(name);
        EveModel().describeKnownVariable(record);
        QCOMPARE(record, recordOf(name));
    }
};

ORV_SANDBOX_TEST_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
