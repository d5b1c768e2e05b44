#pragma once
// frmStrengthLog, "Strength Training Log": one strength workout of one day, planned and recorded, a row per set.
#include <QDialog>

class frmStrengthLog : public QDialog {
    Q_OBJECT
public:
    explicit frmStrengthLog(QWidget* parent = nullptr);
};
