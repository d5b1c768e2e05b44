#pragma once
// Conditioning Test: the distance covered in 12 minutes gives the athlete's condition.
#include <QDialog>

class QComboBox;
class QPushButton;
class QTreeWidget;

class frmCondition : public QDialog {
    Q_OBJECT
public:
    explicit frmCondition(QWidget* parent = nullptr);
    // The condition list that closing the window sets.
    void SetTarget(QComboBox* condition) { m_target = condition; }

    QTreeWidget* lstCondition = nullptr;
    QPushButton* cmdClose = nullptr;

    void done(int result) override;

private:
    QComboBox* m_target = nullptr;
};
