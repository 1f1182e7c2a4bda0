#include "orvintegration.h"
#include "sandboxtest.h"

#include <QLineEdit>
#include <QToolTip>
#include <QWhatsThis>

class TestOrvIntegration : public SandboxTest
{
    Q_OBJECT

private slots:
    void aboutBoxNamesProgramVersionAndDescription()
    {
        orvInit("9.8.7-test", "Edits <environment> variables");
        QWidget window;
        OrvHelpMenu menu(&window);
        QCOMPARE(menu.title(), "&Help");
        answerer->addAnswer("OK");
        menu.actions().value(0)->trigger();
        QCOMPARE(answerer->seen.value(0).text, "<p><b>tst_orvintegration</b> 9.8.7-test</p>"
                                               "<p>Edits &lt;environment&gt; variables</p>");
    }

    void contextHelpShowsWhatsThisElseTheToolTip()
    {
        QWidget window;
        QLineEdit first(&window), second(&window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        second.setFocus();
        QTRY_COMPARE(orvHelpLookForWidget(), &second);
        orvHelpShow(nullptr);
        orvHelpShow(&second);
        QVERIFY2(QToolTip::text().isEmpty() && !QApplication::activePopupWidget(),
                 "nothing to show");
        second.setToolTip("tip");
        orvHelpShow(&second);
        QCOMPARE(QToolTip::text(), "tip");
        QToolTip::hideText();
        second.setWhatsThis("help");
        orvHelpShow(&second);
        QVERIFY(QApplication::activePopupWidget());
        QWhatsThis::hideText();
    }
};

ORV_SANDBOX_TEST_MAIN(TestOrvIntegration)
#include "tst_orvintegration.moc"
