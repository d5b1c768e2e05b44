#include "exercise/frmHRM.h"

frmHRM::frmHRM(const HrmSession& session, QWidget* parent) : QDialog(parent), m_session(session)
{
    setWindowTitle(QStringLiteral("Heart Rate Monitor"));
}
