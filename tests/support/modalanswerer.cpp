#include "modalanswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QMessageBox>

namespace {

QString plain(QString text)
{
    return text.remove(QLatin1Char('&'));
}

QList<QAbstractButton *> buttonsOf(QWidget *widget)
{
    if (auto *box = qobject_cast<QMessageBox *>(widget))
        return box->buttons();
    if (auto *buttonBox = widget->findChild<QDialogButtonBox *>())
        return buttonBox->buttons();
    return {};
}

} // namespace

ModalAnswerer::ModalAnswerer(const QStringList &answers)
{
    for (const QString &answer : answers)
        addAnswer(answer);
    connect(&timer, &QTimer::timeout, this, &ModalAnswerer::poll);
    timer.start(10);
}

void ModalAnswerer::addAnswer(const QString &buttonText)
{
    addAction([buttonText](QWidget *widget) { clickButton(widget, buttonText); });
}

void ModalAnswerer::addAction(const Action &action)
{
    actions.append(action);
}

bool ModalAnswerer::clickButton(QWidget *widget, const QString &text)
{
    const QList<QAbstractButton *> buttons = buttonsOf(widget);
    for (QAbstractButton *button : buttons) {
        if (plain(button->text()).compare(text, Qt::CaseInsensitive) == 0) {
            button->click();
            return true;
        }
    }
    return false;
}

void ModalAnswerer::poll()
{
    QWidget *widget = QApplication::activeModalWidget();
    if (!widget || actions.isEmpty() || !widget->isVisible())
        return;
    handled.removeAll(QPointer<QWidget>());
    for (const QPointer<QWidget> &done : qAsConst(handled)) {
        if (done == widget)
            return;
    }
    handled.append(widget);

    Seen record;
    record.className = QLatin1String(widget->metaObject()->className());
    record.title = widget->windowTitle();
    if (auto *box = qobject_cast<QMessageBox *>(widget))
        record.text = box->text();
    const QList<QAbstractButton *> buttons = buttonsOf(widget);
    for (QAbstractButton *button : buttons)
        record.buttons.append(plain(button->text()));
    seen.append(record);

    const Action action = actions.takeFirst();
    action(widget);
}
