#include "exercise/frmExerciseLog.h"

frmExerciseLog::frmExerciseLog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Exercise/Sports Planning and Log"));
}
