#include "qtsingleapplication.h"

#include <QByteArray>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <QWidget>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Frames must read the same in every build, whatever Qt's default becomes.
constexpr QDataStream::Version streamVersion = QDataStream::Qt_5_0;

// A file-name-safe key for this program and user. Kept short because the
// socket path has to fit into sockaddr_un (about 100 bytes).
QString instanceKey()
{
    QString name = QCoreApplication::applicationName().left(40);
    for (QChar &c : name) {
        const bool safe = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
                          (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
                          (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
                          c == QLatin1Char('-') || c == QLatin1Char('_') || c == QLatin1Char('.');
        if (!safe)
            c = QLatin1Char('_');
    }
    if (name.isEmpty())
        name = QStringLiteral("app");
    return QStringLiteral("qtsingleapp-%1-%2").arg(name).arg(::getuid());
}

// Where the lock may live, in the order tried: the session's runtime folder,
// private to the user; the shared temporary folder; a folder of our own in
// it, for when another user has put a file of our name there. Every start
// tries them in the same order, so all of them agree on one lock.
QStringList lockFolders()
{
    QStringList folders;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty())
        folders << runtime;
    folders << QDir::tempPath()
            << QDir::tempPath() + QLatin1Char('/') + instanceKey() + QStringLiteral(".d");
    return folders;
}

// A folder that only we can write to: made when missing, never through a link.
bool isPrivateFolder(const QString &folder)
{
    const QByteArray name = QFile::encodeName(folder);
    if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
        return false;
    struct stat info;
    return ::lstat(name.constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == ::geteuid() && (info.st_mode & 022) == 0;
}

// The lock file in the folder, opened, when it is ours: no link followed, a
// regular file of our own. -1 when the folder cannot hold it.
int openLock(const QString &path)
{
    const int fd = ::open(QFile::encodeName(path).constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    struct stat info;
    if (fd >= 0 &&
        (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) || info.st_uid != ::geteuid())) {
        ::close(fd);
        return -1;
    }
    return fd;
}

} // namespace

QtSingleApplication::QtSingleApplication(int &argc, char **argv, bool GUIenabled)
    : QApplication(argc, argv)
{
    Q_UNUSED(GUIenabled)
    const QStringList folders = lockFolders();
    for (int i = 0; i < folders.size() && m_lockFd < 0; ++i) {
        if (i == folders.size() - 1 && !isPrivateFolder(folders.at(i)))
            break;
        const QString base = folders.at(i) + QLatin1Char('/') + instanceKey();
        m_lockFd = openLock(base + QStringLiteral(".lock"));
        m_lockName = base + QStringLiteral(".lock");
        m_serverName = base + QStringLiteral(".sock");
    }
    if (m_lockFd < 0) {
        // Without a lock nothing stops a second instance: refuse to be one.
        // Said on stderr itself: Qt's messages may go to the journal instead.
        std::fprintf(stderr,
                     "%s: cannot make sure that only one instance runs: no folder of %s can hold "
                     "a lock of this user's own\n",
                     qPrintable(applicationName()), qPrintable(folders.join(QStringLiteral(", "))));
        return;
    }
    tryBecomeFirst();
}

QtSingleApplication::~QtSingleApplication()
{
    // Close (and so remove) our socket while we still hold the lock, or we
    // could delete the socket of an instance that has just taken over.
    if (m_server)
        m_server->close();
    delete m_server;
    m_server = nullptr;
    if (m_lockFd >= 0)
        ::close(m_lockFd);
}

bool QtSingleApplication::tryBecomeFirst()
{
    if (m_first)
        return true;
    if (m_lockFd < 0)
        return false;
    if (::flock(m_lockFd, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && !m_lockFailureSaid) {
            m_lockFailureSaid = true;
            std::fprintf(stderr,
                         "%s: cannot make sure that only one instance runs: cannot lock %s: %s\n",
                         qPrintable(applicationName()), qPrintable(m_lockName),
                         qPrintable(qt_error_string(errno)));
        }
        return false;
    }
    m_first = true;

    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &QtSingleApplication::acceptConnections);
    // A socket file left behind by a crashed first instance would make
    // listen() fail; the lock tells us nobody is using it any more.
    QLocalServer::removeServer(m_serverName);
    if (!m_server->listen(m_serverName))
        qWarning("QtSingleApplication: cannot listen on %s: %s", qPrintable(m_serverName),
                 qPrintable(m_server->errorString()));
    return true;
}

bool QtSingleApplication::isRunning()
{
    // Retried on every call: the other instance may have quit meanwhile.
    return !tryBecomeFirst();
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    if (!isRunning())
        return false;

    const QDeadlineTimer deadline(timeout);
    QLocalSocket socket;
    // The first instance takes the lock before it listens, so a quick second
    // start may find nobody listening yet: keep trying until the deadline.
    for (;;) {
        socket.connectToServer(m_serverName);
        if (socket.waitForConnected(int(deadline.remainingTime())))
            break;
        socket.abort();
        if (deadline.hasExpired() || !isRunning())
            return false;
        const qint64 left = deadline.remainingTime();
        QThread::msleep(left < 0 ? 20 : ulong(qMin<qint64>(left, 20)));
    }

    QByteArray frame;
    {
        QDataStream out(&frame, QIODevice::WriteOnly);
        out.setVersion(streamVersion);
        out << message.toUtf8();
    }
    if (socket.write(frame) != frame.size())
        return false;
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(int(deadline.remainingTime())))
            return false;
    }
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(int(deadline.remainingTime()));
    return true;
}

void QtSingleApplication::setActivationWindow(QWidget *aw, bool activateOnMessage)
{
    m_window = aw;
    m_activateOnMessage = activateOnMessage;
}

QWidget *QtSingleApplication::activationWindow() const
{
    return m_window;
}

void QtSingleApplication::activateWindow()
{
    if (!m_window)
        return;
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void QtSingleApplication::acceptConnections()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readMessages(socket); });
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            readMessages(socket);
            socket->deleteLater();
        });
        // The whole message may already be buffered before we get here.
        readMessages(socket);
    }
}

void QtSingleApplication::readMessages(QLocalSocket *socket)
{
    // A slot on messageReceived may spin an event loop in which the socket
    // goes away.
    const QPointer<QLocalSocket> guard(socket);
    while (guard) {
        QDataStream in(socket);
        in.setVersion(streamVersion);
        in.startTransaction();
        QByteArray data;
        in >> data;
        if (!in.commitTransaction())
            return; // incomplete: wait for the rest
        const QString message = QString::fromUtf8(data);
        emit messageReceived(message);
        if (m_activateOnMessage)
            activateWindow();
    }
}
