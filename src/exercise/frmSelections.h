#pragma once
// frmSelections, "Manage Selection Fields": named pick lists (DefaultUnits) that exercise forms
// place as list cells. Opened from the form library to pick a field, or as a plain manager.
#include <QDialog>

class frmSelections : public QDialog {
    Q_OBJECT
public:
    enum Use { Manage, PickForForm };
    explicit frmSelections(Use use = Manage, QWidget* parent = nullptr);
    // After "&OK": the field's name, a tab and "selection"; "" when the dialog was closed otherwise.
    QString Result() const { return m_result; }

private:
    Use m_use;
    QString m_result;
};
