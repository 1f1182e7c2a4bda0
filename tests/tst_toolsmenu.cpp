#include "eve.h"
#include "sandbox.h"
#include "toolsmenu.h"

#include <QMenuBar>
#include <QtTest>

class TestToolsMenu : public QObject
{
    Q_OBJECT

private slots:
    void init() { sandbox.reset(new Sandbox); }
    void cleanup() { sandbox.reset(); }

    void sitsBeforeTheHelpMenu()
    {
        Eve window;
        ToolsMenu::of(&window);

        QStringList titles;
        for (const QAction *menu : window.menuBar()->actions())
            titles << menu->text();
        QCOMPARE(titles, QStringList({"&File", "&Edit", "&Tools", "&Help"}));
    }

    void isMadeOnlyOnce()
    {
        Eve window;
        ToolsMenu *first = ToolsMenu::of(&window);

        QCOMPARE(ToolsMenu::of(&window), first);
        QCOMPARE(window.menuBar()->actions().size(), 4);
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestToolsMenu)
#include "tst_toolsmenu.moc"
