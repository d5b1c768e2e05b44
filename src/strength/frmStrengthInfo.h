#pragma once
// frmStrengthInfo, "Exercise Information": one exercise's description, instruction and picture.
#include <QDialog>
#include <QString>

class frmStrengthInfo : public QDialog {
    Q_OBJECT
public:
    explicit frmStrengthInfo(const QString& exercise, QWidget* parent = nullptr);
};
