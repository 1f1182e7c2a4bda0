#include "eve.h"
#include "evemodel.h"
#include "iconfallback.h"
#include "preferencesdialog.h"
#include "sandbox.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

class TestIconFallback : public QObject
{
    Q_OBJECT

    static QPalette paletteWithWindow(const QColor &window)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        return palette;
    }

    // A theme in the search path `root` with one 16 px PNG per icon name.
    static void makeTheme(const QString &root, const QString &theme, const QStringList &icons)
    {
        const QString dir = root + '/' + theme;
        Sandbox::writeFile(dir + "/index.theme", "[Icon Theme]\nName=" + theme.toUtf8() +
                                                     "\nDirectories=16x16/actions\n\n"
                                                     "[16x16/actions]\nSize=16\nType=Fixed\n");
        QDir().mkpath(dir + "/16x16/actions");
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(Qt::darkBlue);
        for (const QString &icon : icons)
            QVERIFY(image.save(dir + "/16x16/actions/" + icon + ".png"));
    }

    // The icon themes this system has installed, as a desktop session would search them.
    static QStringList systemThemePaths()
    {
        QString dataDirs = qEnvironmentVariable("XDG_DATA_DIRS");
        if (dataDirs.isEmpty())
            dataDirs = "/usr/local/share:/usr/share";
        QStringList paths;
        for (const QString &dir : dataDirs.split(':', Qt::SkipEmptyParts))
            paths << dir + "/icons";
        return paths;
    }

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        QIcon::setFallbackSearchPaths({}); // no unthemed icons from /usr/share/pixmaps
    }
    void cleanup() { sandbox.reset(); }

    void choosesTheVariantForThePalette_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("expected");
        const QColor light(239, 240, 241);
        const QColor dark(49, 54, 59);
        const QStringList both{"breeze", "breeze-dark"};
        QTest::addRow("a light palette takes Breeze") << light << both << "breeze";
        QTest::addRow("a dark palette takes Breeze Dark") << dark << both << "breeze-dark";
        QTest::addRow("a light palette does not take Breeze Dark")
            << light << QStringList{"breeze-dark"} << "";
        QTest::addRow("a dark palette without Breeze Dark takes Breeze")
            << dark << QStringList{"breeze"} << "breeze";
        QTest::addRow("without Breeze there is no fallback of ours")
            << light << QStringList{"Adwaita"} << "";
    }
    void choosesTheVariantForThePalette()
    {
        QFETCH(QColor, window);
        QFETCH(QStringList, installed);
        QFETCH(QString, expected);
        QTemporaryDir first;
        QTemporaryDir second;
        // Each theme in a search path of its own: every path counts, not just the first.
        for (int i = 0; i < installed.size(); ++i)
            makeTheme(i == 0 ? first.path() : second.path(), installed[i], {"list-add"});

        QCOMPARE(fallbackIconTheme(paletteWithWindow(window), {first.path(), second.path()}),
                 expected);
    }

    void fillsWhatTheDesktopThemeLacksAndNoMore()
    {
        QTemporaryDir themes;
        makeTheme(themes.path(), "desktop", {"list-add", "list-remove"});
        makeTheme(themes.path(), "breeze", {"configure", "list-remove"});
        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setThemeName("desktop");
        QIcon::setFallbackThemeName("hicolor");

        installIconFallback();
        Eve window;

        QCOMPARE(QIcon::fallbackThemeName(), QString("breeze"));
        QVERIFY2(!window.actionPreferences->icon().isNull(), "configure comes from the fallback");
        QVERIFY(!window.actionAdd->icon().isNull());
        QVERIFY2(window.actionReset->icon().isNull(), "no theme has document-revert");
    }

    void recommendedThemeHasEveryIconTheEditorUses()
    {
        QIcon::setThemeSearchPaths(systemThemePaths());
        QIcon::setThemeName("hicolor"); // a desktop without a theme of its own
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

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestIconFallback)
#include "tst_iconfallback.moc"
