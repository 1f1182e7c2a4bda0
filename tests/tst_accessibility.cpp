#include "eve.h"
#include "evemodel.h"
#include "preferencesdialog.h"
#include "sandbox.h"
#include "ueditor.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QtTest>

// Every control a user can reach must say what it is: a screen reader reads a button's
// text or accessible name, and a sighted user hovering an icon-only button its tool tip.
class TestAccessibility : public QObject
{
    Q_OBJECT

    // The visible buttons of a shown window that a screen reader would call just "button",
    // and the icon-only ones without their own accessible name or tool tip.
    static QStringList unlabelledButtons(QWidget *window)
    {
        window->show();
        QStringList unlabelled;
        for (QAbstractButton *button : window->findChildren<QAbstractButton *>()) {
            if (!button->isVisible() || isItemViewPart(button))
                continue;
            const QString name = spokenName(button);
            const QString who = button->objectName().isEmpty()
                                    ? QString::fromLatin1(button->metaObject()->className())
                                    : button->objectName();
            if (name.isEmpty())
                unlabelled << who + " has no name";
            if (button->text().isEmpty() && button->accessibleName().isEmpty())
                unlabelled << who + " shows only an icon and has no accessible name";
            if (button->text().isEmpty() && button->toolTip().isEmpty())
                unlabelled << who + " shows only an icon and has no tool tip";
        }
        return unlabelled;
    }

    // A table's corner button is a widget of the view, but assistive tools get the corner
    // from the view's own table interface, as a cell, and never meet the button.
    static bool isItemViewPart(QWidget *widget)
    {
        return qobject_cast<QAbstractItemView *>(widget->parentWidget()) != nullptr;
    }

    static void expectAllLabelled(QWidget *window)
    {
        const QStringList unlabelled = unlabelledButtons(window);
        QVERIFY2(unlabelled.isEmpty(), qPrintable(unlabelled.join(QStringLiteral("; "))));
    }

    static QString spokenName(QWidget *widget)
    {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        return accessible ? accessible->text(QAccessible::Name) : QString();
    }

    static void selectFirstRow(Eve &window)
    {
        window.tableView->setCurrentIndex(window.eveModel()->index(0, 0));
    }

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment({"EDITOR=vim"});
    }
    void cleanup() { sandbox.reset(); }

    void mainWindowButtonsAreLabelled()
    {
        Eve window;
        expectAllLabelled(&window);
    }

    void newVariableDialogButtonsAreLabelled()
    {
        Eve window;
        uEditor editor(&window, 0);
        expectAllLabelled(&editor);
    }

    void editVariableDialogButtonsAreLabelled()
    {
        Eve window;
        selectFirstRow(window);
        uEditor editor(&window);
        expectAllLabelled(&editor);
    }

    void preferencesButtonsAreLabelled_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addRow("a user's session, with the system list locked") << "tester";
        QTest::addRow("a root session, with both lists open") << "root";
    }
    void preferencesButtonsAreLabelled()
    {
        QFETCH(QString, login);
        Sandbox::setUserEnvironment({"LOGNAME=" + login});
        Eve window;
        preferencesDialog dialog(&window, window.eveModel());
        expectAllLabelled(&dialog);
    }

    void preferencesListsAreNamedAfterTheirGroups()
    {
        Eve window;
        preferencesDialog dialog(&window, window.eveModel());
        dialog.show();

        QCOMPARE(spokenName(dialog.systemFilesList), dialog.groupBox_3->title());
        QCOMPARE(spokenName(dialog.userFilesList), dialog.groupBox_2->title());
    }

    void preferencesButtonsOfBothListsHaveDistinctNames()
    {
        Eve window;
        preferencesDialog dialog(&window, window.eveModel());
        dialog.show();

        QSet<QString> names;
        for (QAbstractButton *button :
             {dialog.systemUpButton, dialog.systemDownButton, dialog.systemAddButton,
              dialog.systemRemoveButton, dialog.userUpButton, dialog.userDownButton,
              dialog.userAddButton, dialog.userRemoveButton})
            names.insert(spokenName(button));
        QCOMPARE(names.size(), 8);
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
