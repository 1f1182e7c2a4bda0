#include "orvintegration.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWhatsThis>

#include <functional>

namespace {

// Calls the handler on the next modal widget to appear, from within its own
// event loop, so no test ever waits on a dialog.
void answerModal(const std::function<void(QWidget *)> &handler)
{
    auto *timer = new QTimer(qApp);
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, handler] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            timer->stop();
            timer->deleteLater();
            handler(modal);
        }
    });
    timer->start();
}

QList<QWidget *> visiblePopups()
{
    QList<QWidget *> popups;
    const QList<QWidget *> widgets = QApplication::topLevelWidgets();
    for (QWidget *w : widgets) {
        if (w->isVisible() && w->windowType() == Qt::Popup)
            popups.append(w);
    }
    return popups;
}

} // namespace

class TestOrvIntegration : public QObject
{
    Q_OBJECT
private slots:
    void initKeepsStrings();
    void initSetsOrganisationOnlyWhenUnset_data();
    void initSetsOrganisationOnlyWhenUnset();
    void helpMenu();
    void aboutBox();
    void lookForWidget_data();
    void lookForWidget();
    void show_data();
    void show();
    void cleanup();
};

void TestOrvIntegration::initKeepsStrings()
{
    QByteArray version("1.2.3");
    QByteArray description("Edits environment variables");
    orvInit(version.constData(), description.constData());
    // Copies, not pointers to the caller's buffers.
    version.fill('?');
    description.fill('?');
    QCOMPARE(orvVersion(), QStringLiteral("1.2.3"));
    QCOMPARE(orvDescription(), QStringLiteral("Edits environment variables"));
}

void TestOrvIntegration::initSetsOrganisationOnlyWhenUnset_data()
{
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QString>("expected");

    QTest::newRow("unset") << QString() << QStringLiteral("Orv");
    QTest::newRow("chosen by the program") << QStringLiteral("Acme") << QStringLiteral("Acme");
}

void TestOrvIntegration::initSetsOrganisationOnlyWhenUnset()
{
    QFETCH(QString, preset);
    QFETCH(QString, expected);

    QCoreApplication::setOrganizationName(preset);
    orvInit("1", "d");
    QCOMPARE(QCoreApplication::organizationName(), expected);
    QCoreApplication::setOrganizationName(QString());
}

void TestOrvIntegration::helpMenu()
{
    QWidget window;
    OrvHelpMenu menu(&window);
    QCOMPARE(menu.title(), QStringLiteral("&Help"));
    QCOMPARE(menu.actions().size(), 1);
    QCOMPARE(menu.actions().constFirst()->text(), QStringLiteral("About..."));
}

void TestOrvIntegration::aboutBox()
{
    orvInit("9.8.7-test", "Edits environment variables");
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Environment Editor"));
    QWidget window;
    OrvHelpMenu menu(&window);

    QString title;
    QString text;
    QPointer<QWidget> parent;
    bool answered = false;
    answerModal([&](QWidget *modal) {
        auto *box = qobject_cast<QMessageBox *>(modal);
        if (!box) {
            modal->close();
            return;
        }
        title = box->windowTitle();
        text = box->text();
        parent = box->parentWidget();
        answered = true;
        box->buttons().constFirst()->click();
    });
    menu.actions().constFirst()->trigger();

    QVERIFY(answered);
    QCOMPARE(title, QStringLiteral("About Environment Editor"));
    QVERIFY2(text.contains(QCoreApplication::applicationName()), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("9.8.7-test")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("Edits environment variables")), qPrintable(text));
    QCOMPARE(parent.data(), &window);
}

void TestOrvIntegration::lookForWidget_data()
{
    QTest::addColumn<int>("focused");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
}

void TestOrvIntegration::lookForWidget()
{
    QFETCH(int, focused);

    QWidget window;
    QLineEdit *edits[] = {new QLineEdit(&window), new QLineEdit(&window)};
    edits[1]->move(0, 40);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edits[focused]->setFocus();
    QTRY_COMPARE(orvHelpLookForWidget(), edits[focused]);
}

void TestOrvIntegration::show_data()
{
    QTest::addColumn<bool>("nullWidget");
    QTest::addColumn<QString>("whatsThis");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("shownToolTip");
    QTest::addColumn<bool>("shownWhatsThis");

    QTest::newRow("no widget") << true << QString() << QString() << QString() << false;
    QTest::newRow("no texts") << false << QString() << QString() << QString() << false;
    QTest::newRow("tool tip") << false << QString() << QStringLiteral("Variable name")
                              << QStringLiteral("Variable name") << false;
    QTest::newRow("what's this wins") << false << QStringLiteral("The name of the variable")
                                      << QStringLiteral("Variable name") << QString() << true;
}

void TestOrvIntegration::show()
{
    QFETCH(bool, nullWidget);
    QFETCH(QString, whatsThis);
    QFETCH(QString, toolTip);
    QFETCH(QString, shownToolTip);
    QFETCH(bool, shownWhatsThis);

    QWidget window;
    window.resize(200, 100);
    window.setWhatsThis(whatsThis);
    window.setToolTip(toolTip);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(QToolTip::text().isEmpty());
    QVERIFY(visiblePopups().isEmpty());

    orvHelpShow(nullWidget ? nullptr : &window);

    QCOMPARE(QToolTip::text(), shownToolTip);
    QCOMPARE(QToolTip::isVisible(), !shownToolTip.isEmpty());
    // What's This text shows in a popup of its own.
    QCOMPARE(visiblePopups().size(), shownWhatsThis ? 1 : 0);
}

void TestOrvIntegration::cleanup()
{
    QWhatsThis::hideText();
    QToolTip::hideText();
    // Both go away through deferred deletion.
    QTRY_VERIFY(QToolTip::text().isEmpty());
    QTRY_VERIFY(visiblePopups().isEmpty());
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Keep settings and scratch files away from the real system.
    QTemporaryDir sandbox;
    if (!sandbox.isValid())
        return 1;
    const QString root = sandbox.path();
    for (const char *dir : {"home", "config", "runtime", "tmp"}) {
        if (!QDir(root).mkdir(QString::fromLatin1(dir)))
            return 1;
    }
    QFile::setPermissions(root + QStringLiteral("/runtime"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", QFile::encodeName(root + QStringLiteral("/home")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(root + QStringLiteral("/config")));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root + QStringLiteral("/runtime")));
    qputenv("TMPDIR", QFile::encodeName(root + QStringLiteral("/tmp")));

    QApplication app(argc, argv);
    TestOrvIntegration test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_orvintegration.moc"
