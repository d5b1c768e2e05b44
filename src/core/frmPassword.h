#pragma once
#include <QDialog>

class QLineEdit;
class QPushButton;

// Asks for the password of the athlete being signed in (CurrentUserPassword). Closing it
// any way but with the right password counts as a cancel (DialogCancelled).
class frmPassword : public QDialog {
    Q_OBJECT
public:
    explicit frmPassword(QWidget* parent = nullptr);

    QLineEdit* Text1 = nullptr;
    QPushButton* Command1 = nullptr;   // OK
    QPushButton* cmdCancel = nullptr;

public slots:
    void on_Text1_textChanged(const QString& text);
    void on_Command1_clicked();
    void on_cmdCancel_clicked();
};
