#pragma once
#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;

// "Create Athlete": a wizard of two pages, name and sex, then the main purpose. Finish adds
// the User_Info row and sets CurrentUserID; Cancel sets DialogCancelled.
class frmCreateAthelete1 : public QDialog {
    Q_OBJECT
public:
    explicit frmCreateAthelete1(QWidget* parent = nullptr);

    QStackedWidget* Pages = nullptr;
    QLineEdit* Text1 = nullptr;        // name
    QRadioButton* optFemale = nullptr;
    QRadioButton* optMale = nullptr;
    QComboBox* Combo1 = nullptr;       // purpose
    QPushButton* cmdBack = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdNext = nullptr;    // "&Next >", "&Finish" on the last page

    static const QStringList& Purposes();

public slots:
    void on_Text1_textChanged(const QString&);
    void on_optFemale_toggled(bool);
    void on_optMale_toggled(bool);
    void on_Combo1_currentIndexChanged(int);
    void on_cmdBack_clicked();
    void on_cmdNext_clicked();
    void on_cmdCancel_clicked();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void ShowPage(int page);
    void EnableNext();
    bool NameExists(const QString& name);
    void Finish();
};
