#pragma once
// Change Amount: sets the portion of one diary row (or of one ingredient of a saved meal) and
// scales all its figures, points and calories included, by the ratio of the portions.
//
// The caller hands over the line and the row it stands for in a FoodPortion, runs the
// dialog, and replaces its selected line with NewLine() when that is not empty:
//   frmChangeAmt dialog(portion, parent); ShowModal(&dialog); line = dialog.NewLine();
#include <QDialog>
#include <QString>

class QLabel;
class QLineEdit;
class QComboBox;
class QPushButton;

// One diary line and the row it stands for.
struct FoodPortion {
    QString foodLine;   // Food_ID, Name, "amount measure", ... tab-separated
    QString foodId;
    QString mealId;     // "0" for an ingredient of a saved meal
    QString mealType;   // the saved meal's Food_ID, when mealId is "0"
    QString mealDate;   // "YYYY-MM-DD"
};

class frmChangeAmt : public QDialog {
    Q_OBJECT
public:
    explicit frmChangeAmt(const FoodPortion& portion = FoodPortion(), QWidget* parent = nullptr);

    // The changed line, "" when nothing was changed.
    const QString& NewLine() const { return m_newLine; }

    // Scales the row in the store; returns the new line or "" when no row was found. Public so
    // that the rule can be run without the dialog's fields.
    static QString ChangeAmount(const FoodPortion& portion, double newAmount, const QString& newMeasure,
                                double oldAmount, const QString& oldMeasure);

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
    FoodPortion m_portion;
    QString m_newLine;
    QString m_amount;    // what the dialog opened with
    QString m_measure;
};
