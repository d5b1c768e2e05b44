#include "strength/Calculator.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/routines.h"
#include "core/ui.h"
#include "core/widgets/Form.h"

namespace {
const QStringList kOperators = {QStringLiteral("+"), QStringLiteral("-"), QStringLiteral("x"), QStringLiteral("/"),
                                QStringLiteral("=")};
}

Calculator::Calculator(QWidget* parent) : QDialog(parent), m_calc(GetProfile(QStringLiteral("sDecimal")))
{
    setObjectName(QStringLiteral("Calculator"));
    setWindowTitle(QStringLiteral("Calculator"));
    buildUi();
    Combo1->addItems(calc::ConversionNames());
    Combo1->setCurrentIndex(-1);
    ShowReadout();
    CenterForm(this);
}

void Calculator::buildUi()
{
    Readout = form::Named(new QLineEdit, QStringLiteral("Readout"), QStringLiteral("The display"));
    Readout->setReadOnly(true);
    Readout->setFocusPolicy(Qt::NoFocus);
    Readout->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Readout->setAccessibleName(QStringLiteral("Display"));
    QFont big = Readout->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    Readout->setFont(big);

    auto* keys = new QGridLayout;
    for (int i = 0; i <= 9; ++i) {
        auto* b = form::Button(QStringLiteral("Number%1").arg(i), QString::number(i));
        Number << b;
        connect(b, &QPushButton::clicked, this, [this, i] { on_Number_clicked(i); });
    }
    const QStringList tips = {QStringLiteral("Add"), QStringLiteral("Subtract"), QStringLiteral("Multiply"),
                              QStringLiteral("Divide"), QStringLiteral("Equals")};
    for (int i = 0; i < kOperators.size(); ++i) {
        auto* b = form::Button(QStringLiteral("Operator%1").arg(i), kOperators[i], tips[i]);
        Operator << b;
        connect(b, &QPushButton::clicked, this, [this, i] { on_Operator_clicked(i); });
    }
    cmdDecimal = form::Button(QStringLiteral("cmdDecimal"), GetProfile(QStringLiteral("sDecimal")),
                              QStringLiteral("Decimal point"));
    Percent = form::Button(QStringLiteral("Percent"), QStringLiteral("%"), QStringLiteral("Percent"));
    Cancel = form::Button(QStringLiteral("Cancel"), QStringLiteral("&C"), QStringLiteral("Clear the calculation"));
    CancelEntry = form::Button(QStringLiteral("CancelEntry"), QStringLiteral("C&E"), QStringLiteral("Clear the entry"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("Cl&ose"));

    // 7 8 9 /   4 5 6 x   1 2 3 -   0 . % +   C CE =
    const int digitRow[10] = {3, 2, 2, 2, 1, 1, 1, 0, 0, 0};
    const int digitCol[10] = {0, 0, 1, 2, 0, 1, 2, 0, 1, 2};
    for (int i = 0; i <= 9; ++i)
        keys->addWidget(Number[i], digitRow[i], digitCol[i]);
    keys->addWidget(Operator[3], 0, 3);
    keys->addWidget(Operator[2], 1, 3);
    keys->addWidget(Operator[1], 2, 3);
    keys->addWidget(Operator[0], 3, 3);
    keys->addWidget(cmdDecimal, 3, 1);
    keys->addWidget(Percent, 3, 2);
    keys->addWidget(Cancel, 4, 0);
    keys->addWidget(CancelEntry, 4, 1);
    keys->addWidget(Operator[4], 4, 2, 1, 2);
    // The keys share the room the window gives them.
    QList<QPushButton*> all = Number + Operator;
    all << cmdDecimal << Percent << Cancel << CancelEntry;
    for (QPushButton* b : all) {
        b->setMinimumHeight(32);
        b->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    }

    Combo1 = form::Named(new QComboBox, QStringLiteral("Combo1"),
                         QStringLiteral("Convert the displayed value"));
    Combo1->setPlaceholderText(QStringLiteral("Choose a conversion"));
    Combo1->setMaxVisibleItems(18);

    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(cmdClose);

    auto* main = new QVBoxLayout(this);
    main->addWidget(Readout);
    main->addLayout(keys, 1);
    main->addWidget(form::Caption(QStringLiteral("Con&versions:"), Combo1));
    main->addWidget(Combo1);
    main->addLayout(bottom);

    connect(cmdDecimal, &QPushButton::clicked, this, &Calculator::on_cmdDecimal_clicked);
    connect(Percent, &QPushButton::clicked, this, &Calculator::on_Percent_clicked);
    connect(Cancel, &QPushButton::clicked, this, &Calculator::on_Cancel_clicked);
    connect(CancelEntry, &QPushButton::clicked, this, &Calculator::on_CancelEntry_clicked);
    connect(Combo1, &QComboBox::activated, this, &Calculator::on_Combo1_activated);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);

    // Typed keys reach the calculator whichever of its controls has the focus.
    for (QWidget* w : findChildren<QWidget*>())
        w->installEventFilter(this);

    setMinimumSize(260, 330);
    resize(300, 380);
}

void Calculator::ShowReadout()
{
    Readout->setText(m_calc.Display());
    if (!m_calc.ConversionSelected() && Combo1->currentIndex() >= 0)
        Combo1->setCurrentIndex(-1);
}

void Calculator::on_Number_clicked(int index)
{
    m_calc.Digit(index);
    ShowReadout();
    Operator[4]->setFocus();
}

void Calculator::on_Operator_clicked(int index)
{
    if (!m_calc.Operator(kOperators[index]))
        MsgBox(QStringLiteral("Can't divide by zero"), vbOKOnly + vbExclamation, QStringLiteral("Calculator"));
    ShowReadout();
}

void Calculator::on_cmdDecimal_clicked()
{
    m_calc.Decimal();
    ShowReadout();
}

void Calculator::on_Percent_clicked()
{
    m_calc.Percent();
    ShowReadout();
}

void Calculator::on_Cancel_clicked()
{
    m_calc.Cancel();
    ShowReadout();
}

void Calculator::on_CancelEntry_clicked()
{
    m_calc.CancelEntry();
    ShowReadout();
}

void Calculator::on_Combo1_activated(int index)
{
    if (index < 0)
        return;
    m_calc.Convert(Combo1->itemText(index));
    ShowReadout();
}

bool Calculator::takeKey(QKeyEvent* event)
{
    const int key = event->key();
    const QString text = event->text();
    if (key == Qt::Key_Backspace) {
        m_calc.Backspace();
        ShowReadout();
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter || text == QLatin1String("=")) {
        on_Operator_clicked(4);
    } else if (key == Qt::Key_Escape) {
        on_Cancel_clicked();
    } else if (text == QLatin1String("*")) {
        on_Operator_clicked(2);
    } else if (text == QLatin1String("+")) {
        on_Operator_clicked(0);
    } else if (text == QLatin1String("-")) {
        on_Operator_clicked(1);
    } else if (text == QLatin1String("/")) {
        on_Operator_clicked(3);
    } else if (text == QLatin1String("%")) {
        on_Percent_clicked();
    } else if (text == QLatin1String(".") || text == QLatin1String(",")) {
        on_cmdDecimal_clicked();
    } else if (text.size() == 1 && text.at(0) >= QLatin1Char('0') && text.at(0) <= QLatin1Char('9')) {
        on_Number_clicked(text.at(0).unicode() - '0');
    } else {
        return false;
    }
    return true;
}

bool Calculator::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && !(static_cast<QKeyEvent*>(event)->modifiers() & Qt::AltModifier)) {
        // An open list of conversions keeps its own keys.
        if (Combo1->view() && Combo1->view()->isVisible())
            return false;
        if (takeKey(static_cast<QKeyEvent*>(event)))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

void Calculator::keyPressEvent(QKeyEvent* event)
{
    if (!(event->modifiers() & Qt::AltModifier) && takeKey(event))
        return;
    QDialog::keyPressEvent(event);
}
