#pragma once
// Calculator, "Calculator": a four-function calculator with unit conversions. It touches no
// table; its only output is the display Readout.
#include <QDialog>
#include <QList>

#include "strength/rules/calculator.h"

class QComboBox;
class QLineEdit;
class QPushButton;

class Calculator : public QDialog {
    Q_OBJECT
public:
    explicit Calculator(QWidget* parent = nullptr);

    // Controls, under the system's names.
    QLineEdit* Readout = nullptr;
    QList<QPushButton*> Number;       // 0 to 9
    QList<QPushButton*> Operator;     // "+", "-", "x", "/", "="
    QPushButton* cmdDecimal = nullptr;
    QPushButton* Percent = nullptr;
    QPushButton* Cancel = nullptr;
    QPushButton* CancelEntry = nullptr;
    QPushButton* cmdClose = nullptr;
    QComboBox* Combo1 = nullptr;      // the conversions

    const calc::Machine& State() const { return m_calc; }

public slots:
    void on_Number_clicked(int index);
    void on_Operator_clicked(int index);
    void on_cmdDecimal_clicked();
    void on_Percent_clicked();
    void on_Cancel_clicked();
    void on_CancelEntry_clicked();
    void on_Combo1_activated(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildUi();
    void ShowReadout();
    // The keys the calculator takes over; true when the key was used.
    bool takeKey(QKeyEvent* event);

    calc::Machine m_calc;
};
