#include "body/frmWellness.h"

frmWellness::frmWellness(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmWellness"));
    setWindowTitle(QStringLiteral("Wellness"));
}
