#include "exercise/frmSelections.h"

frmSelections::frmSelections(Use use, QWidget* parent) : QDialog(parent), m_use(use)
{
    setWindowTitle(QStringLiteral("Manage Selection Fields"));
}
