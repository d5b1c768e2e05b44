#pragma once
// Change Amount: sets the portion of one diary row (or of one ingredient of a saved meal) and
// scales all its figures, points and calories included, by the ratio of the portions.
//
// The caller hands over the line, the food, the meal and the date in the strings below, runs
// the dialog, and replaces its selected line with NewLine when that is not empty:
//   frmChangeAmt::FoodLine = line text (Food_ID, Name, "amount measure", ... tab-separated);
//   frmChangeAmt::FoodID = "123"; frmChangeAmt::MealID = "2" (or "0" for a saved meal's
//   ingredient, whose meal's Food_ID is then in MealType); frmChangeAmt::MealDate = "YYYY-MM-DD";
//   ShowModal("frmChangeAmt");
#include <QDialog>
#include <QString>

class QLabel;
class QLineEdit;
class QComboBox;
class QPushButton;

class frmChangeAmt : public QDialog {
    Q_OBJECT
public:
    explicit frmChangeAmt(QWidget* parent = nullptr);

    static QString FoodLine;
    static QString FoodID;
    static QString MealID;
    static QString MealType;   // the saved meal's Food_ID, when MealID is "0"
    static QString MealDate;
    static QString NewLine;    // the changed line, "" when nothing was changed

    // Scales the row in the store; returns the new line or "" when no row was found. Public so
    // that the rule can be run without the dialog's fields.
    static QString ChangeAmount(double newAmount, const QString& newMeasure, double oldAmount,
                                const QString& oldMeasure);

    QLabel* lblFood = nullptr;
    QLabel* lblOriginal = nullptr;     // "Original Amount"
    QLineEdit* txtAmt = nullptr;
    QComboBox* cboMeasure = nullptr;
    QPushButton* cmdChange = nullptr;
    QPushButton* cmdCancel = nullptr;

public slots:
    void on_cmdChange_clicked();
    void on_cmdCancel_clicked();

private:
    void FillUnits(const QString& measure);
    QString m_amount;    // what the dialog opened with
    QString m_measure;
};
