#include "support/modalanswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QMessageBox>

static QList<QAbstractButton *> buttonsOf(QWidget *widget)
{
    if (auto *box = qobject_cast<QMessageBox *>(widget))
        return box->buttons();
    if (auto *buttonBox = widget->findChild<QDialogButtonBox *>())
        return buttonBox->buttons();
    return {};
}

ModalAnswerer::ModalAnswerer(const QStringList &answers)
{
    for (const QString &answer : answers)
        addAnswer(answer);
    connect(&timer, &QTimer::timeout, this, &ModalAnswerer::poll);
    timer.start(10);
}

bool ModalAnswerer::clickButton(QWidget *widget, const QString &text)
{
    for (QAbstractButton *button : buttonsOf(widget)) {
        if (button->text().remove(QLatin1Char('&')).compare(text, Qt::CaseInsensitive) == 0) {
            button->click();
            return true;
        }
    }
    return false;
}

void ModalAnswerer::poll()
{
    QWidget *widget = QApplication::activeModalWidget();
    if (!widget || !widget->isVisible() || handled.contains(widget))
        return;
    if (actions.isEmpty()) {
        if (auto *dialog = qobject_cast<QDialog *>(widget); dialog && rejectUnanswered) {
            const auto *box = qobject_cast<QMessageBox *>(widget);
            unanswered << widget->windowTitle() + QStringLiteral(": ") +
                              (box ? box->text() : QString());
            dialog->done(QDialog::Rejected);
        }
        return;
    }
    handled.append(widget);
    Seen record{QLatin1String(widget->metaObject()->className()), widget->windowTitle(), {}, {}};
    if (auto *box = qobject_cast<QMessageBox *>(widget))
        record.text = box->text();
    for (QAbstractButton *button : buttonsOf(widget))
        record.buttons.append(button->text().remove(QLatin1Char('&')));
    seen.append(record);
    actions.takeFirst()(widget);
    // An answer that left its window open would leave the test waiting on it.
    if (auto *dialog = qobject_cast<QDialog *>(widget); dialog && dialog->isVisible()) {
        unanswered << widget->windowTitle() + QStringLiteral(": still open after its answer");
        dialog->done(QDialog::Rejected);
    }
}
