#include "eve.h"
#include "evemodel.h"
#include "preferencesdialog.h"
#include "sandbox.h"
#include "ueditor.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QtTest>

// Every control says what it is: a screen reader reads a button's text or accessible name,
// a sighted user hovering an icon-only button its tool tip.
class TestAccessibility : public QObject
{
    Q_OBJECT

    static QString spokenName(QWidget *widget)
    {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        return accessible ? accessible->text(QAccessible::Name) : QString();
    }

private slots:
    void init() { sandbox.reset(new Sandbox); }
    void cleanup() { sandbox.reset(); }

    void everyVisibleButtonSaysWhatItIs()
    {
        Eve window;
        window.tableView->setCurrentIndex(window.eveModel()->index(0, 0));
        uEditor newVariable(&window, 0);
        uEditor editVariable(&window);
        preferencesDialog preferences(&window, window.eveModel());

        const QList<QWidget *> windows{&window, &newVariable, &editVariable, &preferences};
        QStringList unlabelled;
        for (QWidget *shown : windows) {
            shown->show();
            for (QAbstractButton *button : shown->findChildren<QAbstractButton *>()) {
                // Assistive tools meet a table's corner button as a cell of the table.
                if (!button->isVisible() || !button->text().isEmpty() ||
                    qobject_cast<QAbstractItemView *>(button->parentWidget()))
                    continue;
                const QString who = shown->objectName() + ": " + button->objectName();
                if (button->accessibleName().isEmpty())
                    unlabelled << who + " shows only an icon and has no accessible name";
                if (button->toolTip().isEmpty())
                    unlabelled << who + " shows only an icon and has no tool tip";
            }
        }
        QVERIFY2(unlabelled.isEmpty(), qPrintable(unlabelled.join("; ")));
    }

    void preferencesListsAreNamedAfterTheirGroups()
    {
        Eve window;
        preferencesDialog dialog(&window, window.eveModel());

        QCOMPARE(spokenName(dialog.systemFilesList), dialog.groupBox_3->title());
        QCOMPARE(spokenName(dialog.userFilesList), dialog.groupBox_2->title());
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
