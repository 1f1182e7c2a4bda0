#include "modalanswerer.h"
#include "orvintegration.h"
#include "sandbox.h"

#include <QLineEdit>
#include <QToolTip>
#include <QWhatsThis>
#include <QtTest>

// What orvHelpShow() shows: the tool tip, and whether a What's This popup is open.
static QString shownFor(QWidget *widget)
{
    orvHelpShow(widget);
    const QString shown = QToolTip::text() + '|' + (QApplication::activePopupWidget() ? "1" : "0");
    QWhatsThis::hideText();
    QToolTip::hideText();
    const auto hidden = [] {
        return QToolTip::text().isEmpty() && !QApplication::activePopupWidget();
    };
    return QTest::qWaitFor(hidden) ? shown : shown + " (stays)";
}

class TestOrvIntegration : public QObject
{
    Q_OBJECT
private slots:
    void helpMenu()
    {
        orvInit("9.8.7-test", "Edits environment variables");
        QWidget window;
        OrvHelpMenu menu(&window);
        QCOMPARE(menu.actions().size(), 1);
        QCOMPARE(menu.title() + ' ' + menu.actions()[0]->text(), "&Help About...");
        ModalAnswerer answerer({"OK"});
        menu.actions().value(0)->trigger();
        QCOMPARE(answerer.seen.size(), 1);
        for (const char *part : {"tst_orvintegration", "9.8.7-test", "Edits environment variables"})
            QVERIFY2(answerer.seen[0].text.contains(part), qPrintable(answerer.seen[0].text));
    }
    void contextHelp()
    {
        QWidget window;
        QLineEdit first(&window), second(&window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        second.setFocus();
        QTRY_COMPARE(orvHelpLookForWidget(), &second);
        QStringList shown{shownFor(&window)};
        window.setToolTip("tip");
        shown << shownFor(nullptr) << shownFor(&window);
        window.setWhatsThis("help");
        shown << shownFor(&window);
        QCOMPARE(shown, QStringList({"|0", "|0", "tip|0", "|1"}));
    }
};

ORV_SANDBOX_TEST_MAIN(TestOrvIntegration)
#include "tst_orvintegration.moc"
