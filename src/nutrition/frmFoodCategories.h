#pragma once
// "Food Categories": the categories of `food_groups` by library type; adding and deleting
// (a category is deleted with its foods).
#include <QDialog>

class QComboBox;
class QListWidget;
class QLineEdit;
class QPushButton;

class frmFoodCategories : public QDialog {
    Q_OBJECT
public:
    explicit frmFoodCategories(QWidget* parent = nullptr);

    void LoadTypes();
    void LoadGroups();

    QComboBox* cboType = nullptr;
    QListWidget* lstGroups = nullptr;   // item data: Group_ID
    QLineEdit* txtGroup = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_cmdAdd_clicked();
    void on_cmdDelete_clicked();
};
