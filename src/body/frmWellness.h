#pragma once
#include <QDialog>

// "Wellness": the day's health journal.
class frmWellness : public QDialog {
    Q_OBJECT
public:
    explicit frmWellness(QWidget* parent = nullptr);
};
