// The calculator: its operator state machine with the worked examples, chained operators,
// negative numbers, percent, division by zero, backspace and the coarse conversions; then the
// window driven from the keyboard.
#include <gtest/gtest.h>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>

#include "fixtures/fixture.h"
#include "strength/Calculator.h"
#include "strength/rules/calculator.h"

namespace {

// Types a sequence as the keys would: digits, "." for the point, operators, "%" and "C".
void Type(calc::Machine& m, const QString& keys)
{
    for (QChar c : keys) {
        if (c.isDigit())
            m.Digit(c.digitValue());
        else if (c == QLatin1Char('.'))
            m.Decimal();
        else if (c == QLatin1Char('%'))
            m.Percent();
        else if (c == QLatin1Char('C'))
            m.Cancel();
        else
            m.Operator(QString(c));
    }
}

QString Keys(const QString& keys)
{
    calc::Machine m;
    Type(m, keys);
    return m.Display();
}

}  // namespace

TEST(CalculatorMachine, TypingAndChainedOperators)
{
    calc::Machine m;
    EXPECT_EQ(m.Display(), "0.");
    EXPECT_EQ(m.lastInput, "NONE");
    EXPECT_EQ(m.pendingOperator, " ");
    Type(m, "12");
    EXPECT_EQ(m.Display(), "12.");
    Type(m, ".05");
    EXPECT_EQ(m.Display(), "12.05");
    EXPECT_TRUE(m.decimalEntered);

    EXPECT_EQ(Keys("2+3="), "5");
    // Each operator applies the one before it: (2 + 3) x 4 - 6 / 7.
    EXPECT_EQ(Keys("2+3x4="), "20");
    EXPECT_EQ(Keys("2+3x4-6/7="), "2");
    // The result is rounded to 4 decimals.
    EXPECT_EQ(Keys("1/3="), "0.3333");
    EXPECT_EQ(Keys("2/3="), "0.6667");
    // "=" after "=" keeps the result; a new operator goes on from it.
    EXPECT_EQ(Keys("2+3==+1="), "6");
    // Pressing two operators in a row takes the last one.
    EXPECT_EQ(Keys("8+x2="), "16");
    // A digit after "=" starts a new number.
    EXPECT_EQ(Keys("2+3=7"), "7.");
    // Leading zeros give way to the digit.
    EXPECT_EQ(Keys("007"), "7.");
    // Cancel forgets everything.
    calc::Machine c;
    Type(c, "9+4C");
    EXPECT_EQ(c.Display(), "0.");
    EXPECT_EQ(c.operandCount, 0);
    EXPECT_EQ(c.pendingOperator, " ");
    Type(c, "1+1=");
    EXPECT_EQ(c.Display(), "2");
}

TEST(CalculatorMachine, NegativesPercentCancelEntryAndBackspace)
{
    // A "-" before the first number makes it negative.
    EXPECT_EQ(Keys("-5"), "-5.");
    EXPECT_EQ(Keys("-5+2="), "-3");
    EXPECT_EQ(Keys("-.5"), "-0.5");
    // After an operator, "-" starts a negative second number.
    EXPECT_EQ(Keys("6x-2="), "-12");
    EXPECT_EQ(Keys("6--2="), "8");

    // Percent of the first operand: 200 x 10 % gives 20.
    calc::Machine p;
    Type(p, "200x10%");
    EXPECT_EQ(p.Display(), "0.1");
    EXPECT_EQ(p.pendingOperator, "%");
    EXPECT_EQ(p.lastInput, "Ops");
    Type(p, "=");
    EXPECT_EQ(p.Display(), "20");

    // Cancel entry clears the number being typed, not the pending sum.
    calc::Machine ce;
    Type(ce, "7+9");
    ce.CancelEntry();
    EXPECT_EQ(ce.Display(), "0.");
    EXPECT_EQ(ce.lastInput, "CE");
    Type(ce, "3=");
    EXPECT_EQ(ce.Display(), "10");

    // Backspace takes the last digit; one digit goes to 0.
    calc::Machine b;
    Type(b, "123");
    b.Backspace();
    EXPECT_EQ(b.Display(), "12.");
    Type(b, "4");
    EXPECT_EQ(b.Display(), "124.");
    calc::Machine one;
    Type(one, "5");
    one.Backspace();
    EXPECT_EQ(one.Display(), "0.");
    EXPECT_EQ(one.Value(), 0);
    calc::Machine result;
    Type(result, "2+3=");
    result.Backspace();
    EXPECT_EQ(result.Display(), "0");
    calc::Machine frac;
    Type(frac, "1.25");
    frac.Backspace();
    EXPECT_EQ(frac.Display(), "1.2");
}

TEST(CalculatorMachine, DivisionByZeroKeepsTheFirstOperand)
{
    calc::Machine m;
    Type(m, "5/0");
    EXPECT_FALSE(m.Operator("="));
    EXPECT_EQ(m.Display(), "5");
    EXPECT_EQ(m.firstOperand, 5);
    EXPECT_EQ(m.operandCount, 1);
    // The calculation goes on from 5.
    Type(m, "+1");
    EXPECT_TRUE(m.Operator("="));
    EXPECT_EQ(m.Display(), "6");
}

TEST(CalculatorMachine, ConversionsAndTheRegionalSeparator)
{
    const QStringList names = calc::ConversionNames();
    ASSERT_EQ(names.size(), 18);
    EXPECT_EQ(names.first(), "Inches to Centimeters");
    EXPECT_EQ(names.at(4), "Kilometres to Miles");
    EXPECT_EQ(names.at(14), "Fahrenheit to Celcius");
    EXPECT_EQ(names.last(), "Litres to Gallons(US)");

    // The coarse factors stand as they are.
    EXPECT_DOUBLE_EQ(calc::Convert("Fahrenheit to Celcius", 100), 37.4);
    EXPECT_DOUBLE_EQ(calc::Convert("Celcius to Fahrenheit", 100), 212);
    EXPECT_DOUBLE_EQ(calc::Convert("Centimeters to Inches", 100), 39);
    EXPECT_DOUBLE_EQ(calc::Convert("Inches to Centimeters", 10), 25.4);
    EXPECT_DOUBLE_EQ(calc::Convert("Pounds to Kg", 100), 45.4545);
    EXPECT_DOUBLE_EQ(calc::Convert("Kg to Pounds", 100), 220);
    EXPECT_DOUBLE_EQ(calc::Convert("Ounces to Grams", 2), 56.7);
    EXPECT_DOUBLE_EQ(calc::Convert("Grams to Ounces", 100), 3.5);
    EXPECT_DOUBLE_EQ(calc::Convert("Kilojoules to KCal", 1000), 239.0057);
    EXPECT_DOUBLE_EQ(calc::Convert("KCal to Kilojoules", 100), 418.4);
    EXPECT_DOUBLE_EQ(calc::Convert("Grams to Kg", 1500), 1.5);
    EXPECT_DOUBLE_EQ(calc::Convert("Kg to Grams", 1.5), 1500);
    EXPECT_DOUBLE_EQ(calc::Convert("Gallons(US) to Litres", 2), 7.5708);
    EXPECT_DOUBLE_EQ(calc::Convert("Litres to Gallons(US)", 10), 2.6417);
    EXPECT_DOUBLE_EQ(calc::Convert("Fluid Ounce to milliliters", 2), 59.147);
    EXPECT_DOUBLE_EQ(calc::Convert("Milliliters to Fluid Ounce", 100), 3.3814);

    // Miles and kilometres are not reciprocal: 10 there and back gives 10.0631.
    calc::Machine m;
    Type(m, "10");
    m.Convert("Miles to Kilometres");
    EXPECT_EQ(m.Display(), "16.2");
    EXPECT_TRUE(m.ConversionSelected());
    m.Convert("Kilometres to Miles");
    EXPECT_EQ(m.Display(), "10.0631");
    // A digit after a conversion starts a new number and leaves the list.
    Type(m, "3");
    EXPECT_EQ(m.Display(), "3.");
    EXPECT_FALSE(m.ConversionSelected());

    // A comma separator is used throughout.
    calc::Machine eu(QStringLiteral(","));
    EXPECT_EQ(eu.Display(), "0,");
    Type(eu, "1.5");
    EXPECT_EQ(eu.Display(), "1,5");
    Type(eu, "x3=");
    EXPECT_EQ(eu.Display(), "4,5");
}

class CalculatorScreen : public StoreTest {};

TEST_F(CalculatorScreen, KeyboardButtonsAndTheConversionList)
{
    Calculator c;
    EXPECT_EQ(c.Readout->text(), "0.");
    ASSERT_EQ(c.Combo1->count(), 18);
    EXPECT_EQ(c.Combo1->currentIndex(), -1);

    QTest::keyClicks(&c, "12+30");
    EXPECT_EQ(c.Readout->text(), "30.");
    QTest::keyClick(&c, Qt::Key_Return);
    EXPECT_EQ(c.Readout->text(), "42");
    QTest::keyClicks(&c, "*2");
    QTest::keyClick(&c, Qt::Key_Enter);
    EXPECT_EQ(c.Readout->text(), "84");
    QTest::keyClicks(&c, "/4,5");
    EXPECT_EQ(c.Readout->text(), "4.5");
    QTest::keyClick(&c, Qt::Key_Backspace);
    EXPECT_EQ(c.Readout->text(), "4.");
    QTest::keyClick(&c, Qt::Key_Return);
    EXPECT_EQ(c.Readout->text(), "21");
    QTest::keyClick(&c, Qt::Key_Escape);
    EXPECT_EQ(c.Readout->text(), "0.");

    // Keys typed on a focused button reach the calculator too.
    QTest::keyClicks(c.Number[7], "5/0");
    QTest::keyClick(c.Number[7], Qt::Key_Return);
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().text, "Can't divide by zero");
    EXPECT_EQ(Ui().LastMessage().title, "Calculator");
    EXPECT_EQ(Ui().LastMessage().icon, vbExclamation);
    EXPECT_EQ(c.Readout->text(), "5");

    // The buttons: 100 through "Fahrenheit to Celcius".
    c.Cancel->click();
    c.Number[1]->click();
    c.Number[0]->click();
    c.Number[0]->click();
    const int line = c.Combo1->findText("Fahrenheit to Celcius");
    c.Combo1->setCurrentIndex(line);
    emit c.Combo1->activated(line);
    EXPECT_EQ(c.Readout->text(), "37.4");
    // The next digit clears the list's selection.
    c.Number[2]->click();
    EXPECT_EQ(c.Readout->text(), "2.");
    EXPECT_EQ(c.Combo1->currentIndex(), -1);
    c.CancelEntry->click();
    EXPECT_EQ(c.Readout->text(), "0.");
}
