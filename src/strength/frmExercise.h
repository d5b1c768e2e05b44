#pragma once
// frmExercise, "Exercise Library": edits the strength exercises workouts are built from. The
// library is shared by every athlete of the database.
#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

class frmExercise : public QDialog {
    Q_OBJECT
public:
    explicit frmExercise(QWidget* parent = nullptr);

    // Procedures of the screen.
    void clearform();
    void EnableSave();
    void LoadExercise();
    void Loadexercises();
    void loadlist();
    void SetCombos();

    // Controls, under the system's names.
    QRadioButton* optExercise[2] = {nullptr, nullptr};   // exercises, stretches
    QListWidget* list1 = nullptr;
    QLabel* Label2 = nullptr;
    QLineEdit* txtExercise = nullptr;
    QComboBox* cboMuscleGroup = nullptr;
    QComboBox* cboType = nullptr;
    QComboBox* cboLift = nullptr;
    QLineEdit* txtLift = nullptr;
    QComboBox* cboEquipment = nullptr;
    QCheckBox* chkBeginner = nullptr;
    QCheckBox* chkIntermediate = nullptr;
    QCheckBox* chkAdvanced = nullptr;
    QPlainTextEdit* txtDesc = nullptr;
    QPlainTextEdit* txtInstruction = nullptr;
    QLineEdit* txtImage = nullptr;
    QPushButton* Command1 = nullptr;          // choosing a picture
    QLabel* WebBrowser1 = nullptr;            // the picture
    QPushButton* cmdNew = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdAssociate = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_optExercise_changed();
    void on_list1_clicked();
    void on_Command1_clicked();
    void on_cmdNew_clicked();
    void on_cmdSave_clicked();
    void on_cmdDelete_clicked();
    void on_cmdAssociate_clicked();

private:
    void buildUi();
    void fieldChanged();
    // The selected line of the list, or nullptr.
    class QListWidgetItem* selectedLine() const;

    bool m_loading = false;
};
