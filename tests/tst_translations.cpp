#include "eve.h"
#include "sandboxtest.h"
#include "translations.h"

#include <QMenuBar>

class TestTranslations : public SandboxTest
{
    Q_OBJECT

private slots:
    void windowFollowsTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("menus");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("buttons");
        const auto row = [](const char *name, const char *locale, const char *menus,
                            const char *question, const char *buttons) {
            QTest::newRow(name) << locale << menus << question << buttons;
        };
        const char *english = "&File &Edit &Tools &Help", *reset = "Do you really want to reset?";
        row("C", "C", english, reset, "Yes No");
        row("French, which only Qt has", "fr_FR", english, reset, "Yes No");
        row("German", "de_DE", "&Datei &Bearbeiten E&xtras &Hilfe",
            "Möchten Sie wirklich zurücksetzen?", "Ja Nein");
        row("Russian", "ru_RU", "&Файл &Правка С&ервис &Справка",
            "Вы действительно хотите сбросить изменения?", "Да Нет");
    }
    void windowFollowsTheLocale()
    {
        QFETCH(QString, locale);
        qDeleteAll(qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly));
        QLocale::setDefault(QLocale(locale));
        installTranslations(qApp);
        Eve window;
        QStringList menus;
        for (const QAction *menu : window.menuBar()->actions())
            menus << menu->text();
        QTEST(menus.join(' '), "menus");
        answerer->addAction([](QWidget *box) { box->close(); }); // as No
        window.actionReset->setEnabled(true);
        window.actionReset->trigger();
        QTEST(answerer->seen.value(0).text, "question");
        QTEST(answerer->seen.value(0).buttons.join(' '), "buttons");
        QCOMPARE(window.actionAdd->shortcut().toString(), "Ins"); // still the key's name
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
