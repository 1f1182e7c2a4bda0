#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"
#include "translations.h"
#include "ueditor.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QHash>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

struct Message
{
    QString context;
    QString source;
    QString comment;
    QString translation;
    QString type; // unfinished, vanished, obsolete or empty
};

QString keyOf(const Message &message)
{
    return message.context + QLatin1Char('\x1f') + message.source + QLatin1Char('\x1f') +
           message.comment;
}

// Every message of a Qt Linguist file, keyed by context, source and comment.
QHash<QString, Message> readTs(const QString &path)
{
    QHash<QString, Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            const auto name = xml.name();
            if (name == QLatin1String("context")) {
                context.clear();
            } else if (name == QLatin1String("name")) {
                context = xml.readElementText();
            } else if (name == QLatin1String("message")) {
                message = Message();
                message.context = context;
            } else if (name == QLatin1String("source")) {
                message.source = xml.readElementText();
            } else if (name == QLatin1String("comment")) {
                message.comment = xml.readElementText();
            } else if (name == QLatin1String("translation")) {
                message.type = xml.attributes().value(QLatin1String("type")).toString();
                message.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            }
        } else if (xml.isEndElement() && xml.name() == QLatin1String("message")) {
            messages.insert(keyOf(message), message);
        }
    }
    if (xml.hasError())
        qWarning("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return messages;
}

QString keyOf(const char *context, const char *source)
{
    return keyOf({QLatin1String(context), QString::fromUtf8(source), {}, {}, {}});
}

QString committedTs(const QString &language)
{
    return QStringLiteral(ORV_TRANSLATIONS_DIR "/orv-admin-env_%1.ts").arg(language);
}

QStringList placeholders(const QString &text)
{
    QStringList found;
    auto it = QRegularExpression(QStringLiteral("%L?\\d+")).globalMatch(text);
    while (it.hasNext())
        found.append(it.next().captured());
    found.sort();
    return found;
}

// An accelerator is a single '&'; "&&" shows one ampersand.
bool hasAccelerator(QString text)
{
    return text.remove(QStringLiteral("&&")).contains(QLatin1Char('&'));
}

QStringList menuTitles(const Eve &window)
{
    QStringList titles;
    const QList<QAction *> actions = window.menuBar()->actions();
    for (const QAction *action : actions)
        titles.append(action->text());
    return titles;
}

// Triggers Reset, answers its question with No and returns what it asked.
ModalAnswerer::Seen resetQuestion(Eve &window, const QString &no)
{
    ModalAnswerer answerer(QStringList{no});
    window.actionReset->setEnabled(true);
    window.actionReset->trigger();
    if (answerer.seen.isEmpty())
        return {};
    return answerer.seen.first();
}

QString cancelText(Eve &window)
{
    uEditor dialog(&window, 0);
    return dialog.buttonBox->button(QDialogButtonBox::Cancel)->text();
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void german();
    void russian();
    void english_data();
    void english();
    void keyNames_data();
    void keyNames();
    void complete_data();
    void complete();
    void systemOrigin_data();
    void systemOrigin();

private:
    static void useLocale(const QLocale &locale);
};

void TestTranslations::useLocale(const QLocale &locale)
{
    QLocale::setDefault(locale);
    installTranslations(qApp);
}

void TestTranslations::cleanup()
{
    // A translator removes itself from the application when deleted.
    qDeleteAll(qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly));
    QLocale::setDefault(QLocale::c());
}

void TestTranslations::german()
{
    Sandbox sandbox;
    useLocale(QLocale(QStringLiteral("de_DE")));
    Eve window;

    QCOMPARE(menuTitles(window),
             QStringList({QStringLiteral("&Datei"), QStringLiteral("&Bearbeiten"),
                          QStringLiteral("&Hilfe")}));
    QCOMPARE(window.windowTitle(), QStringLiteral("Orv-Editor für Umgebungsvariablen"));
    QCOMPARE(window.actionAdd->text(), QStringLiteral("&Hinzufügen..."));
    QCOMPARE(window.eveModel()->headerData(EveModel::OriginColumn, Qt::Horizontal).toString(),
             QStringLiteral("Herkunft"));

    const ModalAnswerer::Seen seen = resetQuestion(window, QStringLiteral("Nein"));
    QCOMPARE(seen.title, QStringLiteral("Achtung!"));
    QCOMPARE(seen.text, QStringLiteral("Möchten Sie wirklich zurücksetzen?"));
    // The buttons come from Qt's own German translation.
    QCOMPARE(seen.buttons.size(), 2);
    QVERIFY(seen.buttons.contains(QStringLiteral("Ja")));
    QVERIFY(seen.buttons.contains(QStringLiteral("Nein")));
    QCOMPARE(cancelText(window), QStringLiteral("Abbrechen"));
}

void TestTranslations::russian()
{
    Sandbox sandbox;
    useLocale(QLocale(QStringLiteral("ru_RU")));
    Eve window;

    QCOMPARE(menuTitles(window), QStringList({QStringLiteral("&Файл"), QStringLiteral("&Правка"),
                                              QStringLiteral("&Справка")}));
    const ModalAnswerer::Seen seen = resetQuestion(window, QStringLiteral("Нет"));
    QCOMPARE(seen.text, QStringLiteral("Вы действительно хотите сбросить изменения?"));
    QVERIFY(seen.buttons.contains(QStringLiteral("Да")));
    QCOMPARE(cancelText(window), QStringLiteral("Отмена"));
}

void TestTranslations::english_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addRow("C") << QLocale::c();
    QTest::addRow("en_US") << QLocale(QStringLiteral("en_US"));
    // Qt has French texts, we have none: Qt's must not mix in.
    QTest::addRow("fr_FR") << QLocale(QStringLiteral("fr_FR"));
}

void TestTranslations::english()
{
    Sandbox sandbox;
    QFETCH(QLocale, locale);
    useLocale(locale);
    QVERIFY(qApp->findChildren<QTranslator *>().isEmpty());
    Eve window;

    QCOMPARE(menuTitles(window), QStringList({QStringLiteral("&File"), QStringLiteral("&Edit"),
                                              QStringLiteral("&Help")}));
    QCOMPARE(window.windowTitle(), QStringLiteral("Orv environment variable editor"));
    const ModalAnswerer::Seen seen = resetQuestion(window, QStringLiteral("No"));
    QCOMPARE(seen.title, QStringLiteral("Attention!"));
    QCOMPARE(seen.text, QStringLiteral("Do you really want to reset?"));
    QCOMPARE(seen.buttons.size(), 2);
    QVERIFY(seen.buttons.contains(QStringLiteral("Yes")));
    QCOMPARE(cancelText(window), QStringLiteral("Cancel"));
}

void TestTranslations::keyNames_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addRow("de") << "de_DE";
    QTest::addRow("ru") << "ru_RU";
}

// Shortcut texts go through the translation and must stay key names.
void TestTranslations::keyNames()
{
    Sandbox sandbox;
    QFETCH(QString, locale);
    useLocale(QLocale(locale));
    Eve window;
    QCOMPARE(window.actionSave->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    QCOMPARE(window.actionAdd->shortcut(), QKeySequence(Qt::Key_Insert));
    QCOMPARE(window.actionDelete->shortcut(), QKeySequence(Qt::Key_Delete));
}

void TestTranslations::complete_data()
{
    QTest::addColumn<QString>("language");
    QTest::addRow("ru") << "ru";
    QTest::addRow("de") << "de";
}

// Every text of the sources as lupdate sees it now must have a finished
// translation, so that a new text without one fails here.
void TestTranslations::complete()
{
    Sandbox sandbox;
    QFETCH(QString, language);

    const QString current = Sandbox::home() + QStringLiteral("/current.ts");
    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(QStringLiteral(ORV_LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral("-no-obsolete"),
                   QStringLiteral("-locations"), QStringLiteral("none"),
                   QStringLiteral("@" ORV_TR_INPUT_LIST), QStringLiteral("-ts"), current});
    QVERIFY2(lupdate.waitForFinished(-1), qPrintable(lupdate.errorString()));
    QVERIFY2(lupdate.exitStatus() == QProcess::NormalExit && lupdate.exitCode() == 0,
             lupdate.readAll().constData());

    const QHash<QString, Message> texts = readTs(current);
    QVERIFY(texts.contains(keyOf("MainWindow", "&File")));
    QVERIFY(texts.contains(keyOf("OrvHelpMenu", "&Help")));

    const QHash<QString, Message> translated = readTs(committedTs(language));
    QVERIFY(!translated.isEmpty());
    for (const Message &text : texts) {
        const QString where = text.context + QStringLiteral(": ") + text.source;
        const auto found = translated.constFind(keyOf(text));
        QVERIFY2(found != translated.constEnd(), qPrintable(where + QStringLiteral(" missing")));
        const Message &message = found.value();
        QVERIFY2(message.type.isEmpty(), qPrintable(where + QStringLiteral(" is ") + message.type));
        QVERIFY2(!message.translation.isEmpty(), qPrintable(where + QStringLiteral(" is empty")));
        QVERIFY2(placeholders(message.translation) == placeholders(text.source),
                 qPrintable(where + QStringLiteral(" changes the placeholders")));
        QVERIFY2(message.translation.count(QLatin1Char('\n')) ==
                     text.source.count(QLatin1Char('\n')),
                 qPrintable(where + QStringLiteral(" changes the line breaks")));
        QVERIFY2(hasAccelerator(message.translation) == hasAccelerator(text.source),
                 qPrintable(where + QStringLiteral(" changes the accelerator")));
    }
}

void TestTranslations::systemOrigin_data()
{
    complete_data();
}

// The main window recognises environment-only variables by comparing their
// origin with its own "System", which the model wrote.
void TestTranslations::systemOrigin()
{
    Sandbox sandbox;
    QFETCH(QString, language);
    const QHash<QString, Message> translated = readTs(committedTs(language));
    const Message window = translated.value(keyOf("Eve", "System"));
    const Message model = translated.value(keyOf("EveModel", "System"));
    QVERIFY(!window.translation.isEmpty());
    QCOMPARE(window.translation, model.translation);
}

ORV_SANDBOX_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
