#pragma once
// The Foods Library view: the library of plain foods and restaurant menus, by category or by
// search, with a food's serving, calories, points, its nutrient grid against the RDA and the
// pie of where its energy comes from. New, Save, Delete, Copy and Move of foods.
#include <QDialog>
#include <QString>

class QComboBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class Grid;
class Chart;

class frmFoods : public QDialog {
    Q_OBJECT
public:
    // `foodName`: a food handed in by the caller; the view opens showing it.
    explicit frmFoods(QWidget* parent = nullptr, const QString& foodName = QString());

    // Columns of lstFoods, and of the nutrient grid SS1.
    enum ListColumn { colFood = 0, colAmount = 1, colGroup = 2, colGroupID = 3, colFoodID = 4 };
    enum GridColumn { gcNutrient = 1, gcAmount = 2, gcPercent = 3, gcRDA = 4, gcRDAValue = 5 };
    // Grid row N holds `foods` position FoodsOffset + N (the calories row of Nutrients is skipped).
    static constexpr int FoodsOffset = 6;

    // Procedures of the view.
    void FormatGrid();
    void FillUnits(const QString& measure);
    double GetUnit(const QString& name);
    void GetUnits(QComboBox* combo, const QString& unit);
    void LoadFoodData();
    void ListCategory();
    void SearchFoods();

    // Controls, under the system's names.
    QPushButton* cmdFoodType[2] = {};     // "Foods", "Menus"
    QComboBox* cboGroups = nullptr;
    QLineEdit* txtSearch = nullptr;
    QPushButton* cmdSearch = nullptr;
    QTreeWidget* lstFoods = nullptr;
    QLineEdit* txtFood = nullptr;
    QLineEdit* txtAmount = nullptr;
    QComboBox* cboMeasure = nullptr;
    QLineEdit* txtData[2] = {};           // (0) points, (1) calories
    QPushButton* cmdCalcKJ = nullptr;
    Grid* SS1 = nullptr;
    Chart* Chart1 = nullptr;
    QPushButton* cmdNew = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdCopy = nullptr;
    QPushButton* cmdMove = nullptr;
    QPushButton* cmdCategories = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_cmdFoodType_clicked(int index);
    void on_cboGroups_changed(int index);
    void on_cmdSearch_clicked();
    void on_lstFoods_changed();
    void on_SS1_edited(int row, int col);
    void on_cmdCalcKJ_clicked();
    void on_cmdSave_clicked();
    void on_cmdDelete_clicked();
    void on_cmdNew_clicked();
    void on_cmdCopy_clicked();
    void on_cmdMove_clicked();
    void on_cmdCategories_clicked();

private:
    void buildUi();
    void fieldChanged();
    void clearForm();
    void copyOrMove(bool move);
    void showFood(const QString& name);
    QTreeWidgetItem* selectedLine() const;
    void selectFoodId(long foodId);
    void fitGroupColumn();

    bool m_loading = false;
    bool m_fromSearch = false;     // lstFoods holds search lines (with groups), not a category
};
