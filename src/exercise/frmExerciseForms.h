#pragma once
// frmExerciseForms, "Exercise/Sports Library": the exercise and sport items of the calendar, by
// category, each with its description, history, icon and form of fields.
#include <QDialog>
#include <QStringList>

class QComboBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class Grid;

class frmExerciseForms : public QDialog {
    Q_OBJECT
public:
    explicit frmExerciseForms(QWidget* parent = nullptr);

    // Columns of the form grid SS1.
    enum GridColumn { gcName = 1, gcInfo = 2, gcUnits = 3 };
    // A form holds at most this many rows; the test is "more than", so one more can be added.
    static constexpr int MaxTemplateRows = 50;

    // Procedures of the screen.
    void FormatGrid();
    void FormatData();
    void loadunits(int row, const QString& unit);
    void saveExercise();
    // The category the options show: "Training" or "Sports".
    QString Category() const;

    // Controls, under the system's names.
    QRadioButton* optTraining = nullptr;
    QRadioButton* optSports = nullptr;
    QListWidget* lstEndurance = nullptr;
    QLineEdit* txtExerciseName = nullptr;
    QPlainTextEdit* txtComments = nullptr;    // "Description"
    QPlainTextEdit* txtHistory = nullptr;
    QComboBox* cboImage = nullptr;
    Grid* SS1 = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdDeleteField = nullptr;
    QPushButton* cmdUp = nullptr;
    QPushButton* cmdDown = nullptr;
    QPushButton* cmdNew = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_opt_changed();
    void on_lstEndurance_changed();
    void on_SS1_edited(int row, int col);
    void on_cmdAdd_clicked();
    void on_cmdDeleteField_clicked();
    void on_cmdUp_clicked();
    void on_cmdDown_clicked();
    void on_cmdNew_clicked();
    void on_cmdSave_clicked();
    void on_cmdDelete_clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // One row of the form as the grid holds it, to move rows around.
    struct FieldRow {
        QString name, formula, info, units;
        int infoType = 0, unitsType = 0;
        QStringList items;
    };
    void buildUi();
    void fillList();
    void loadItem();
    void clearForm();
    void changed();
    void limitText(QPlainTextEdit* edit, int chars);
    void addImage(int image);
    void moveBlock(int by);
    FieldRow readRow(int row) const;
    void writeRow(int row, const FieldRow& field);
    void plainCellKey(int row, int col, QObject* editor, const QString& text);

    bool m_loading = false;
};
