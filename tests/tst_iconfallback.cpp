#include "eve.h"
#include "iconfallback.h"
#include "preferencesdialog.h"
#include "sandbox.h"

#include <QTemporaryDir>
#include <QtTest>

class TestIconFallback : public QObject
{
    Q_OBJECT

private slots:
    void choosesTheVariantForThePalette_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("expected");
        const QColor light(239, 240, 241), dark(49, 54, 59);
        QTest::addRow("a dark palette takes Breeze Dark")
            << dark << QStringList{"breeze", "breeze-dark"} << "breeze-dark";
        QTest::addRow("a light palette does not take Breeze Dark")
            << light << QStringList{"breeze-dark"} << "";
        QTest::addRow("a dark palette without Breeze Dark takes Breeze")
            << dark << QStringList{"breeze"} << "breeze";
    }
    void choosesTheVariantForThePalette()
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
        Sandbox sandbox;
        QIcon::setThemeSearchPaths({"/usr/local/share/icons", "/usr/share/icons"});
        QIcon::setThemeName("hicolor");    // a desktop without a theme of its own
        QIcon::setFallbackSearchPaths({}); // no unthemed icons from /usr/share/pixmaps
        if (fallbackIconTheme(QPalette(), QIcon::themeSearchPaths()).isEmpty())
            QSKIP("Breeze is not installed (Debian package breeze-icon-theme)");
        installIconFallback();
        Eve window;
        preferencesDialog dialog(&window, window.eveModel());

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

ORV_SANDBOX_TEST_MAIN(TestIconFallback)
#include "tst_iconfallback.moc"
