#include "strength/frmStrengthInfo.h"

frmStrengthInfo::frmStrengthInfo(const QString& exercise, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Exercise Information"));
}
