#pragma once
// frmSelections, "Manage Selection Fields": named pick lists (DefaultUnits) that exercise forms
// place as list cells. Opened from the form library to pick a field, or as a plain manager.
#include <QDialog>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

class frmSelections : public QDialog {
    Q_OBJECT
public:
    enum Use { Manage, PickForForm };
    explicit frmSelections(Use use = Manage, QWidget* parent = nullptr);
    // After "&OK": the field's name, a tab and "selection"; "" when the dialog was closed otherwise.
    QString Result() const { return m_result; }

    // The longest item a field may hold.
    static constexpr int MaxItemLength = 15;

    // Fills cboSelect with every field that has items.
    void FillFields();

    // Controls, under the system's names.
    QComboBox* cboSelect = nullptr;
    QPlainTextEdit* txtSelect = nullptr;
    QLabel* lblHint = nullptr;
    QPushButton* cmdNew = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_cboSelect_chosen(int index);
    void on_cmdSave_clicked();
    void on_cmdNew_clicked();
    void on_cmdDelete_clicked();
    void on_cmdOK_clicked();

protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    void buildUi();
    void fieldsChanged();
    QString fieldName() const;

    Use m_use;
    QString m_result;
    bool m_loading = false;
};
