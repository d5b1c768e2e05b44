#pragma once
// Calculator, "Calculator": a four-function calculator with unit conversions.
#include <QDialog>

class Calculator : public QDialog {
    Q_OBJECT
public:
    explicit Calculator(QWidget* parent = nullptr);
};
