#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class QWidget;

// Answers modal message boxes and dialogs from a timer, so that no test ever
// waits on one. Each modal widget that appears takes the next answer: a button
// text (matched without '&', ignoring case) or a function that acts on it.
class ModalAnswerer : public QObject
{
    Q_OBJECT

public:
    struct Seen
    {
        QString className;
        QString title;
        QString text;        // a message box's text
        QStringList buttons; // a message box's or button box's buttons, '&' removed
    };
    using Action = std::function<void(QWidget *)>;

    explicit ModalAnswerer(const QStringList &answers = {});
    void addAnswer(const QString &text)
    {
        addAction([text](QWidget *widget) { clickButton(widget, text); });
    }
    void addAction(const Action &action) { actions.append(action); }

    QList<Seen> seen;
    int pending() const { return actions.size(); }

    // When set, a modal widget that comes with no answer left is rejected and
    // listed in `unanswered` ("title: text"), so that a test fails instead of
    // waiting on it. A dialog that its answer left open is rejected and listed
    // too, set or not.
    bool rejectUnanswered = false;
    QStringList unanswered;

    // Clicks the named button of a message box or dialog button box.
    static bool clickButton(QWidget *widget, const QString &text);

private:
    void poll();

    QTimer timer;
    QList<Action> actions;
    QList<QPointer<QWidget>> handled;
};
