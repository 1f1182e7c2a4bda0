#include "gui/app/nodisplay.h"

#include <QByteArray>
#include <QList>

#include <cstdio>
#include <cstdlib>
#include <utility>

const char noDisplayMessage[] =
    "cannot open a display: start the editor from a desktop session, or with xvfb-run";

namespace {

// A message kept with copies of its context, whose pointers do not outlive the call.
struct HeldMessage
{
    QtMsgType type;
    QByteArray file;
    int line;
    QByteArray function;
    QByteArray category;
    QString text;
};

QtMessageHandler previousHandler = nullptr;
bool installed = false;
QList<HeldMessage> held;

void holdOrFail(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (isDisplayFailure(type, message)) {
        // Qt aborts once this handler returns; the held warnings only repeat the cause.
        std::fputs(noDisplayMessage, stderr);
        std::fputc('\n', stderr);
        std::fflush(stderr);
        std::_Exit(2);
    }
    if (type == QtFatalMsg) {
        previousHandler(type, context, message);
        return;
    }
    held.append({type, QByteArray(context.file), context.line, QByteArray(context.function),
                 QByteArray(context.category), message});
}

} // namespace

bool isDisplayFailure(QtMsgType type, const QString &message)
{
    return type == QtFatalMsg &&
           (message.contains(QLatin1String("platform plugin"), Qt::CaseInsensitive) ||
            message.contains(QLatin1String("connect to display"), Qt::CaseInsensitive));
}

NoDisplayGuard::NoDisplayGuard()
{
    // One guard at a time: the held messages and the previous handler are process-wide.
    Q_ASSERT(!installed);
    installed = true;
    held.clear();
    previousHandler = qInstallMessageHandler(holdOrFail);
}

NoDisplayGuard::~NoDisplayGuard()
{
    release();
}

void NoDisplayGuard::release()
{
    if (!active)
        return;
    active = false;
    qInstallMessageHandler(previousHandler);
    installed = false;
    const auto text = [](const QByteArray &bytes) {
        return bytes.isNull() ? nullptr : bytes.constData();
    };
    const QList<HeldMessage> messages = std::exchange(held, {});
    for (const HeldMessage &message : messages) {
        const QMessageLogContext context(text(message.file), message.line, text(message.function),
                                         text(message.category));
        previousHandler(message.type, context, message.text);
    }
}
