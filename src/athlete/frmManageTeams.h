#pragma once
// Manage Teams: which teams (coaches) an athlete belongs to.
#include <QDialog>

class QComboBox;
class QListWidget;
class QPushButton;

class frmManageTeams : public QDialog {
    Q_OBJECT
public:
    explicit frmManageTeams(QWidget* parent = nullptr);
    void LoadAthletes();
    void LoadGroups();
    void LoadAssociations();

    QComboBox* Combo1 = nullptr;
    QListWidget* lstGroups = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_cmdSave_clicked();
};
