#ifndef QTSINGLEAPPLICATION_H
#define QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QPointer>
#include <QString>

class QLocalServer;
class QLocalSocket;
class QWidget;

// One running instance per user and program. The first instance holds a lock
// on a file in the user's runtime folder ($XDG_RUNTIME_DIR, else the temporary
// folder, else a private folder of ours in it) and listens on a local socket
// there; later ones find the lock taken and can hand their request (e.g.
// "raise") to the first one with sendMessage(). The kernel drops the lock
// when its owner ends in any way, so a crash never blocks the next start.
// Where no folder can hold a lock of the user's own, every start counts as a
// second one and says why: two instances never run.
class QtSingleApplication : public QApplication
{
    Q_OBJECT
public:
    // GUIenabled is kept for source compatibility; the GUI is always on.
    QtSingleApplication(int &argc, char **argv, bool GUIenabled = true);
    ~QtSingleApplication() override;

    bool isRunning();
    bool sendMessage(const QString &message, int timeout = 5000);

    void setActivationWindow(QWidget *aw, bool activateOnMessage = true);
    QWidget *activationWindow() const;

public slots:
    void activateWindow();

signals:
    void messageReceived(const QString &message);

private:
    bool tryBecomeFirst();
    void acceptConnections();
    void readMessages(QLocalSocket *socket);

    QString m_serverName;
    QString m_lockName;
    int m_lockFd = -1;
    QLocalServer *m_server = nullptr;
    bool m_first = false;
    bool m_lockFailureSaid = false;
    QPointer<QWidget> m_window;
    bool m_activateOnMessage = false;
};

#endif // QTSINGLEAPPLICATION_H
