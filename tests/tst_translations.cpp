#include "eve.h"
#include "modalanswerer.h"
#include "sandbox.h"
#include "translations.h"

#include <QMenuBar>
#include <QtTest>

class TestTranslations : public QObject
{
    Q_OBJECT
private slots:
    void window_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("texts"); // menus | a question | its buttons
        const char *english = "&File &Edit &Tools &Help|Do you really want to reset?|Yes No";
        QTest::newRow("C") << "C" << english;
        QTest::newRow("fr, which only Qt has") << "fr_FR" << english;
        QTest::newRow("de")
            << "de_DE"
            << "&Datei &Bearbeiten E&xtras &Hilfe|Möchten Sie wirklich zurücksetzen?|Ja Nein";
        QTest::newRow("ru")
            << "ru_RU"
            << "&Файл &Правка С&ервис &Справка|Вы действительно хотите сбросить изменения?|Да Нет";
    }
    void window()
    {
        QFETCH(QString, locale);
        Sandbox sandbox;
        qDeleteAll(qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly));
        QLocale::setDefault(QLocale(locale));
        installTranslations(qApp);
        Eve window;
        QStringList menus, keys;
        for (const QAction *menu : window.menuBar()->actions())
            menus << menu->text();
        ModalAnswerer answerer;
        answerer.addAction([](QWidget *box) { box->close(); }); // as No
        window.actionReset->setEnabled(true);
        window.actionReset->trigger();
        const ModalAnswerer::Seen box = answerer.seen.value(0);
        QTEST(menus.join(' ') + '|' + box.text + '|' + box.buttons.join(' '), "texts");
        for (const QAction *action : {window.actionSave, window.actionAdd, window.actionDelete})
            keys << action->shortcut().toString();
        QCOMPARE(keys, QStringList({"Ctrl+S", "Ins", "Del"})); // translated, still key names
    }
    // lupdate merges the texts of the sources into copies of ours: each must be finished.
    void complete()
    {
        Sandbox sandbox;
        const auto placeholders = [](const QString &text) {
            QStringList found;
            for (auto it = QRegularExpression("%L?\\d+").globalMatch(text); it.hasNext();)
                found << it.next().captured();
            found.sort();
            return found;
        };
        const QRegularExpression message(
            "(?s)(?:<name>(.*?)</name>)?\\s*<message.*?<source>(.*?)"
            "</source>.*?<translation( type=\"\\w+\")?>(.*?)</translation>");
        QStringList wrong;
        for (const QString language : {"de", "ru"}) {
            const QString ts = Sandbox::home() + "/" + language + ".ts";
            QVERIFY(QFile::copy(ORV_TRANSLATIONS_DIR "/orv-admin-env_" + language + ".ts", ts));
            const QStringList args{"-silent", "-no-obsolete", "@" ORV_TR_INPUT_LIST, "-ts", ts};
            QCOMPARE(QProcess::execute(ORV_LUPDATE, args), 0);
            QString context;
            QHash<QString, QString> origin;
            for (auto it = message.globalMatch(Sandbox::readFile(ts)); it.hasNext();) {
                const QRegularExpressionMatch m = it.next();
                context = m.captured(1).isEmpty() ? context : m.captured(1);
                const QString source = m.captured(2), translation = m.captured(4);
                if (!m.captured(3).isEmpty() || translation.isEmpty() ||
                    placeholders(source) != placeholders(translation))
                    wrong << language + " " + context + ": " + source;
                if (source == "System")
                    origin[context] = translation;
            }
            // Eve tells environment-only variables by the origin EveModel gave them.
            if (origin.value("Eve").isEmpty() || origin.value("Eve") != origin.value("EveModel"))
                wrong << language + " System: " + origin.values().join(" / ");
        }
        QCOMPARE(wrong, QStringList());
    }
};

ORV_SANDBOX_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
