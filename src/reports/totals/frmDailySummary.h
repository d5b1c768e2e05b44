#pragma once
#include <QDialog>

// "Daily Summary": a range of days turned into totals.
class frmDailySummary : public QDialog {
    Q_OBJECT
public:
    explicit frmDailySummary(QWidget* parent = nullptr);
};
