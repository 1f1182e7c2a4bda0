#include "core/i18n/translations.h"
#include "core/version.h"
#include "gui/app/eve.h"
#include "gui/app/iconfallback.h"
#include "gui/app/nodisplay.h"
#include "platform/orvintegration.h"
#include "platform/qtsingleapplication.h"

#include <QIcon>

int main(int argc, char *argv[])
{
    // Without a display Qt would abort inside the constructor; say so and stop instead.
    NoDisplayGuard noDisplay;
    // The editor draws no OpenGL. Without this, Qt prepares the first window
    // for OpenGL children, and choosing a GLX visual loads the GL driver:
    // the largest single cost of a start (about half of it under Xvfb).
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    QtSingleApplication app(argc, argv, true);
    noDisplay.release();
    // A second start brings the running editor forward and gives up.
    if (app.isRunning()) {
        app.sendMessage(QStringLiteral("raise"), 5000);
        return 1;
    }

    orvInit(ORV_ADMIN_ENV_VERSION,
            "Orv-admin-env provides easy and convenient way to manage environment variables.");
    installTranslations(&app);
    installIconFallback();
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("utilities-terminal"), QIcon()));

    Eve *window = new Eve;
    app.setActivationWindow(window, true);
    window->show();
    const int result = app.exec();
    delete window;
    return result;
}
