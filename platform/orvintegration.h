#ifndef ORVINTEGRATION_H
#define ORVINTEGRATION_H

#include <QMenu>
#include <QString>

class QWidget;

// Remembers the program's version and one-line description for the About box;
// call it once at start-up. Also names the organisation "Orv" unless the
// program chose one, so QSettings files end up under ~/.config/Orv/.
void orvInit(const char *version, const char *description);
QString orvVersion();
QString orvDescription();

// The standard Help menu of Orv programs.
class OrvHelpMenu : public QMenu
{
    Q_OBJECT
public:
    explicit OrvHelpMenu(QWidget *parent);

private slots:
    void showAbout();
};

// The widget context help should describe: the one with keyboard focus.
QWidget *orvHelpLookForWidget();

// Shows the widget's What's This text, or failing that its tool tip.
// Does nothing for a null widget or one with neither.
void orvHelpShow(QWidget *widget);

#endif // ORVINTEGRATION_H
