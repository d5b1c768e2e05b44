#include "strength/Calculator.h"

Calculator::Calculator(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Calculator"));
}
