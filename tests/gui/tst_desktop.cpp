#include "gui/app/eve.h"
#include "gui/app/iconfallback.h"
#include "gui/dialogs/preferencesdialog.h"
#include "gui/dialogs/ueditor.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/windowhelpers.h"

#include <QAccessible>
#include <QTemporaryDir>

// Ready for a desktop: every button says what it is, to a screen reader and
// on hovering, and every icon comes from the theme or a fallback theme.
class TestDesktop : public SandboxTest
{
    Q_OBJECT

private slots:
    void everyVisibleButtonSaysWhatItIs()
    {
        Eve window;
        window.tableView->setCurrentIndex(modelOf(window)->index(0, 0));
        uEditor newVariable(&window, 0);
        uEditor editVariable(&window);
        preferencesDialog preferences(&window, modelOf(window));
        QStringList unlabelled;
        for (QWidget *shown :
             QList<QWidget *>{&window, &newVariable, &editVariable, &preferences}) {
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
        preferencesDialog dialog(&window, modelOf(window));
        const auto spokenName = [](QWidget *widget) {
            return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        };
        QCOMPARE(spokenName(dialog.systemFilesList), dialog.groupBox_3->title());
        QCOMPARE(spokenName(dialog.userFilesList), dialog.groupBox_2->title());
    }

    void fallbackThemeFitsThePalette_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("expected");
        const QColor light(239, 240, 241), dark(49, 54, 59);
        QTest::addRow("a dark palette takes Breeze Dark")
            << dark << QStringList{"breeze", "breeze-dark"} << "breeze-dark";
        QTest::addRow("a light palette takes Breeze beside Breeze Dark")
            << light << QStringList{"breeze-dark", "breeze"} << "breeze";
        QTest::addRow("a dark palette without Breeze Dark takes Breeze")
            << dark << QStringList{"breeze"} << "breeze";
    }
    void fallbackThemeFitsThePalette()
    {
        QFETCH(QColor, window);
        QFETCH(QStringList, installed);
        // Each theme in a search path of its own: every path counts, not just the first.
        QTemporaryDir first, second;
        for (int i = 0; i < installed.size(); ++i) {
            const QString path = i == 0 ? first.path() : second.path();
            Sandbox::writeFile(path + '/' + installed[i] + "/index.theme", "[Icon Theme]\n");
        }
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        QTEST(fallbackIconTheme(palette, {first.path(), second.path()}), "expected");
    }

    void theRecommendedThemeHasEveryIconTheEditorUses()
    {
        QIcon::setThemeSearchPaths({"/usr/local/share/icons", "/usr/share/icons"});
        QIcon::setThemeName("hicolor");    // a desktop without a theme of its own
        QIcon::setFallbackSearchPaths({}); // no unthemed icons from /usr/share/pixmaps
        if (fallbackIconTheme(QPalette(), QIcon::themeSearchPaths()).isEmpty())
            QSKIP("Breeze is not installed (Debian package breeze-icon-theme)");
        installIconFallback();
        Eve window;
        preferencesDialog dialog(&window, modelOf(window));
        QStringList missing;
        for (QAction *action : window.findChildren<QAction *>(QRegularExpression("^action")))
            if (action->icon().isNull())
                missing << action->objectName();
        for (QPushButton *button :
             dialog.findChildren<QPushButton *>(QRegularExpression("Button$")))
            if (button->icon().isNull())
                missing << button->objectName();
        if (QIcon::fromTheme("utilities-terminal").isNull())
            missing << "the application icon";
        // SVG themes need Qt's SVG icon engine (Debian package libqt5svg5).
        QVERIFY2(missing.isEmpty(), qPrintable("no icon: " + missing.join(", ")));
    }
};

ORV_SANDBOX_TEST_MAIN(TestDesktop)
#include "tst_desktop.moc"
