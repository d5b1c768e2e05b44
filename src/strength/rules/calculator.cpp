#include "strength/rules/calculator.h"

#include <functional>
#include <utility>
#include <vector>

#include "core/regional.h"
#include "core/store/value.h"

namespace calc {

namespace {

// Coarse on purpose: these are the calculator's own factors and are not to be corrected
// (0.39, 0.55 and 1.62 are rounded, and kilometres and miles are not reciprocal).
const std::vector<std::pair<QString, std::function<double(double)>>>& Table()
{
    static const std::vector<std::pair<QString, std::function<double(double)>>> table = {
        {QStringLiteral("Inches to Centimeters"), [](double x) { return x * 2.54; }},
        {QStringLiteral("Centimeters to Inches"), [](double x) { return x * 0.39; }},
        {QStringLiteral("Kilojoules to KCal"), [](double x) { return x / 4.184; }},
        {QStringLiteral("KCal to Kilojoules"), [](double x) { return x * 4.184; }},
        {QStringLiteral("Kilometres to Miles"), [](double x) { return x * 0.62118; }},
        {QStringLiteral("Miles to Kilometres"), [](double x) { return x * 1.62; }},
        {QStringLiteral("Pounds to Kg"), [](double x) { return x / 2.2; }},
        {QStringLiteral("Kg to Pounds"), [](double x) { return x * 2.2; }},
        {QStringLiteral("Ounces to Grams"), [](double x) { return x * 28.35; }},
        {QStringLiteral("Grams to Ounces"), [](double x) { return x * 0.035; }},
        {QStringLiteral("Fluid Ounce to milliliters"), [](double x) { return x * 29.5735; }},
        {QStringLiteral("Milliliters to Fluid Ounce"), [](double x) { return x / 29.5735; }},
        {QStringLiteral("Grams to Kg"), [](double x) { return x / 1000; }},
        {QStringLiteral("Kg to Grams"), [](double x) { return x * 1000; }},
        {QStringLiteral("Fahrenheit to Celcius"), [](double x) { return (x - 32) * 0.55; }},
        {QStringLiteral("Celcius to Fahrenheit"), [](double x) { return x * 1.8 + 32; }},
        {QStringLiteral("Gallons(US) to Litres"), [](double x) { return x * 3.7854; }},
        {QStringLiteral("Litres to Gallons(US)"), [](double x) { return x / 3.7854; }},
    };
    return table;
}

bool IsDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

}  // namespace

const QStringList& ConversionNames()
{
    static const QStringList names = [] {
        QStringList n;
        for (const auto& line : Table())
            n << line.first;
        return n;
    }();
    return names;
}

double Convert(const QString& name, double x)
{
    for (const auto& line : Table())
        if (line.first == name)
            return regional::Round(line.second(x), 4);
    return x;
}

Machine::Machine(const QString& separator) : m_sep(separator.isEmpty() ? QStringLiteral(".") : separator)
{
    m_display = zero();
}

QString Machine::numberText(double value) const
{
    QString text = NumberText(value);
    if (m_sep != QLatin1String("."))
        text.replace(QLatin1Char('.'), m_sep);
    return text;
}

double Machine::Value() const
{
    QString text = m_display;
    if (m_sep != QLatin1String("."))
        text.replace(m_sep, QStringLiteral("."));
    return Val(text);
}

void Machine::Digit(int digit)
{
    const QString d = QString::number(digit);
    if (lastInput != QLatin1String("NUMS") || m_conversion) {
        m_conversion = false;
        m_display = zero();
        decimalEntered = false;
    }
    if (decimalEntered) {
        m_display += d;
    } else {
        // The digit goes in front of the separator that ends the display; a lone 0 gives way.
        QString whole = m_display.endsWith(m_sep) ? m_display.left(m_display.size() - m_sep.size()) : m_display;
        QString sign;
        if (whole.startsWith(QLatin1Char('-'))) {
            sign = QStringLiteral("-");
            whole.remove(0, 1);
        }
        if (whole == QLatin1String("0"))
            whole.clear();
        m_display = sign + whole + d + m_sep;
    }
    if (lastInput == QLatin1String("NEG"))
        m_display = QStringLiteral("-") + m_display;
    lastInput = QStringLiteral("NUMS");
}

void Machine::Decimal()
{
    if (lastInput == QLatin1String("NEG"))
        m_display = QStringLiteral("-0") + m_sep;
    else if (lastInput != QLatin1String("NUMS"))
        m_display = zero();
    decimalEntered = true;
    lastInput = QStringLiteral("NUMS");
}

bool Machine::Operator(const QString& key)
{
    bool divided = true;
    if (lastInput == QLatin1String("NUMS"))
        ++operandCount;
    if (operandCount == 0) {
        if (key == QLatin1String("-") && lastInput != QLatin1String("NEG")) {
            m_display = QStringLiteral("-") + m_display;
            lastInput = QStringLiteral("NEG");
        }
    } else if (operandCount == 1) {
        firstOperand = Value();
        if (key == QLatin1String("-") && lastInput != QLatin1String("NUMS") && pendingOperator != QLatin1String("=")) {
            m_display = QStringLiteral("-");
            lastInput = QStringLiteral("NEG");
        }
    } else if (operandCount == 2) {
        secondOperand = Value();
        if (pendingOperator == QLatin1String("+"))
            firstOperand += secondOperand;
        else if (pendingOperator == QLatin1String("-"))
            firstOperand -= secondOperand;
        else if (pendingOperator == QLatin1String("x"))
            firstOperand *= secondOperand;
        else if (pendingOperator == QLatin1String("/")) {
            if (secondOperand == 0)
                divided = false;
            else
                firstOperand /= secondOperand;
        } else if (pendingOperator == QLatin1String("="))
            firstOperand = secondOperand;
        else if (pendingOperator == QLatin1String("%"))
            firstOperand *= secondOperand;
        m_display = numberText(regional::Round(firstOperand, 4));
        operandCount = 1;
    }
    if (lastInput != QLatin1String("NEG")) {
        lastInput = QStringLiteral("OPS");
        pendingOperator = key;
    }
    return divided;
}

void Machine::Percent()
{
    m_display = numberText(Value() / 100);
    lastInput = QStringLiteral("Ops");
    pendingOperator = QStringLiteral("%");
    decimalEntered = true;
    ++operandCount;
}

void Machine::Cancel()
{
    m_display = zero();
    operandCount = 0;
    decimalEntered = false;
    lastInput = QStringLiteral("NONE");
    pendingOperator = QStringLiteral(" ");
    m_conversion = false;
}

void Machine::CancelEntry()
{
    m_display = zero();
    decimalEntered = false;
    lastInput = QStringLiteral("CE");
    m_conversion = false;
}

void Machine::Backspace()
{
    int last = -1;
    for (int i = m_display.size() - 1; i >= 0; --i)
        if (IsDigit(m_display.at(i))) {
            last = i;
            break;
        }
    if (last < 0)
        return;
    QString rest = m_display;
    rest.remove(last, 1);
    bool anyDigit = false;
    for (QChar c : rest)
        anyDigit = anyDigit || IsDigit(c);
    if (!anyDigit)
        m_display = m_display.endsWith(m_sep) ? zero() : QStringLiteral("0");
    else
        m_display = rest;
}

void Machine::Convert(const QString& name)
{
    m_display = numberText(calc::Convert(name, Value()));
    m_conversion = true;
}

}  // namespace calc
