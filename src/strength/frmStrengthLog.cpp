#include "strength/frmStrengthLog.h"

frmStrengthLog::frmStrengthLog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Strength Training Log"));
}
