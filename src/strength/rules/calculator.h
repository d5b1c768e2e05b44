#pragma once
// The calculator's state without a window: the operator state machine of a four-function
// calculator whose display is text ("0." at rest, "5." while typing, "5" after an operator), and
// the coarse unit conversions of its list. The screen shows the display and the messages.
#include <QString>
#include <QStringList>

namespace calc {

// The conversions, in the order the list shows them.
const QStringList& ConversionNames();
// The result of a conversion by its name, rounded to 4 decimals; x unchanged for an unknown name.
double Convert(const QString& name, double x);

class Machine {
public:
    // The separator is the regional decimal separator, read once when the window opens.
    explicit Machine(const QString& separator = QStringLiteral("."));

    // Keys. Digit takes 0 to 9; Operator takes "+", "-", "x", "/" or "=".
    void Digit(int digit);
    void Decimal();
    // Returns false when a division by zero was refused (the first operand stays).
    bool Operator(const QString& key);
    void Percent();
    void Cancel();
    void CancelEntry();
    // Removes the last digit of the display; a display of one digit becomes zero.
    void Backspace();
    // Replaces the display with the conversion of its value; a line of the list is then
    // selected until the next digit, Cancel or CancelEntry.
    void Convert(const QString& name);

    // The value of the display (its leading number; "-" alone is 0).
    double Value() const;
    const QString& Display() const { return m_display; }
    bool ConversionSelected() const { return m_conversion; }

    // The state, under its own names, for tests and the screen.
    int operandCount = 0;
    QString lastInput = QStringLiteral("NONE");
    bool decimalEntered = false;
    double firstOperand = 0;
    double secondOperand = 0;
    QString pendingOperator = QStringLiteral(" ");

private:
    QString numberText(double value) const;
    QString zero() const { return QStringLiteral("0") + m_sep; }

    QString m_sep;
    QString m_display;
    bool m_conversion = false;
};

}  // namespace calc
