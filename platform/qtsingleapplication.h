#ifndef QTSINGLEAPPLICATION_H
#define QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QPointer>
#include <QString>

#include <memory>

class QLocalServer;
class QLocalSocket;
class QLockFile;
class QWidget;

// One running instance per user and program. The first instance holds a lock
// file and listens on a local socket; later ones find the lock taken and can
// hand their request (e.g. "raise") to the first one with sendMessage().
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
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer *m_server = nullptr;
    bool m_first = false;
    QPointer<QWidget> m_window;
    bool m_activateOnMessage = false;
};

#endif // QTSINGLEAPPLICATION_H
