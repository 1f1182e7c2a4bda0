#include "eve.h"
#include "orvintegration.h"
#include "qtsingleapplication.h"
#include "translations.h"

#include <QIcon>

int main(int argc, char *argv[])
{
    QtSingleApplication app(argc, argv, true);
    // A second start brings the running editor forward and gives up.
    if (app.isRunning()) {
        app.sendMessage(QStringLiteral("raise"), 5000);
        return 1;
    }

    orvInit("1.1.1",
            "Orv-admin-env provides easy and convenient way to manage environment variables.");
    installTranslations(&app);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("utilities-terminal"), QIcon()));

    Eve *window = new Eve;
    app.setActivationWindow(window, true);
    window->show();
    const int result = app.exec();
    delete window;
    return result;
}
