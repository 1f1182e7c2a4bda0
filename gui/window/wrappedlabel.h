#pragma once

#include <QString>

class QLabel;
class QWidget;

// A label for sentences: plain text, wrapped, selectable with the mouse.
QLabel *wrappedLabel(const QString &text, QWidget *parent);
