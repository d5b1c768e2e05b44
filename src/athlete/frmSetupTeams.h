#pragma once
// Setup Coaches: the list of teams (coaches, groups) that athletes can belong to.
#include <QDialog>

class QLineEdit;
class QListWidget;
class QPushButton;

class frmSetupTeams : public QDialog {
    Q_OBJECT
public:
    explicit frmSetupTeams(QWidget* parent = nullptr);
    void loadGroups();

    QListWidget* lstGroups = nullptr;
    QLineEdit* txtName = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_cmdAdd_clicked();
    void on_cmdDelete_clicked();
};
