#include "orvintegration.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QToolTip>
#include <QWhatsThis>
#include <QWidget>

namespace {

struct OrvInfo
{
    QString version;
    QString description;
};

OrvInfo &info()
{
    static OrvInfo instance;
    return instance;
}

} // namespace

void orvInit(const char *version, const char *description)
{
    info().version = QString::fromUtf8(version);
    info().description = QString::fromUtf8(description);
    if (QCoreApplication::organizationName().isEmpty())
        QCoreApplication::setOrganizationName(QStringLiteral("Orv"));
}

QString orvVersion()
{
    return info().version;
}

QString orvDescription()
{
    return info().description;
}

OrvHelpMenu::OrvHelpMenu(QWidget *parent)
    : QMenu(parent)
{
    setTitle(tr("&Help"));
    QAction *about = addAction(tr("About..."));
    connect(about, &QAction::triggered, this, &OrvHelpMenu::showAbout);
}

void OrvHelpMenu::showAbout()
{
    // Rich text for the bold name; escape the rest so odd characters in a
    // description cannot turn into markup.
    const QString text = QStringLiteral("<p><b>%1</b> %2</p><p>%3</p>")
                             .arg(QCoreApplication::applicationName().toHtmlEscaped(),
                                  orvVersion().toHtmlEscaped(), orvDescription().toHtmlEscaped());
    QMessageBox::about(parentWidget(),
                       tr("About %1").arg(QGuiApplication::applicationDisplayName()), text);
}

QWidget *orvHelpLookForWidget()
{
    return QApplication::focusWidget();
}

void orvHelpShow(QWidget *widget)
{
    if (!widget)
        return;
    const QString whatsThis = widget->whatsThis();
    const QString toolTip = widget->toolTip();
    if (whatsThis.isEmpty() && toolTip.isEmpty())
        return;
    const QPoint centre = widget->mapToGlobal(widget->rect().center());
    if (!whatsThis.isEmpty())
        QWhatsThis::showText(centre, whatsThis, widget);
    else
        QToolTip::showText(centre, toolTip, widget);
}
