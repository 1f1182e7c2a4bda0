#include "gui/model/criticalchange.h"

#include <QCoreApplication>
#include <QMessageBox>

bool confirmCriticalChange()
{
    return QMessageBox::warning(
               nullptr, QCoreApplication::translate("EveModel", "Request of confirmation"),
               QCoreApplication::translate("EveModel",
                                           "Really change the value of system variable?"),
               QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel) == QMessageBox::Yes;
}
