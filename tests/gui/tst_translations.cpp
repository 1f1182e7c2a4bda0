#include "core/i18n/translations.h"
#include "gui/app/eve.h"
#include "support/sandboxtest.h"

class TestTranslations : public SandboxTest
{
    Q_OBJECT

private slots:
    // German texts from our translation, the buttons from Qt's.
    void windowFollowsTheLocale()
    {
        QLocale::setDefault(QLocale("de_DE"));
        installTranslations(qApp);
        Eve window;
        answerer->addAction([](QWidget *box) { box->close(); }); // as No
        window.actionReset->setEnabled(true);
        window.actionReset->trigger();
        QCOMPARE(answerer->seen.value(0).text, "Möchten Sie wirklich zurücksetzen?");
        QCOMPARE(answerer->seen.value(0).buttons, QStringList({"Ja", "Nein"}));
        // The window tells environment-only variables by the origin the model gave them.
        QCOMPARE(QCoreApplication::translate("Eve", "System"),
                 QCoreApplication::translate("EveModel", "System"));
    }

    // lupdate merges the texts of the sources into copies of our files: each
    // text must have a finished translation with the same placeholders.
    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addRow("German") << "de";
        QTest::addRow("Russian") << "ru";
    }
    void everyTextIsTranslated()
    {
        QFETCH(QString, language);
        const QString ts = Sandbox::home() + "/copy.ts";
        QVERIFY(QFile::copy(ORV_TRANSLATIONS_DIR "/orv-admin-env_" + language + ".ts", ts));
        const QStringList arguments{"-silent", "-no-obsolete", "@" ORV_TR_INPUT_LIST, "-ts", ts};
        QCOMPARE(QProcess::execute(ORV_LUPDATE, arguments), 0);
        const auto placeholders = [](const QString &text) {
            QStringList found;
            for (auto it = QRegularExpression("%L?\\d+").globalMatch(text); it.hasNext();)
                found << it.next().captured();
            found.sort();
            return found;
        };
        const QRegularExpression message("(?s)<message.*?<source>(.*?)</source>.*?"
                                         "<translation( type=\"\\w+\")?>(.*?)</translation>");
        QStringList untranslated;
        for (auto it = message.globalMatch(Sandbox::readFile(ts)); it.hasNext();) {
            const QRegularExpressionMatch m = it.next();
            if (!m.captured(2).isEmpty() || m.captured(3).isEmpty() ||
                placeholders(m.captured(1)) != placeholders(m.captured(3)))
                untranslated << m.captured(1);
        }
        QCOMPARE(untranslated, QStringList());
    }
};

ORV_SANDBOX_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
