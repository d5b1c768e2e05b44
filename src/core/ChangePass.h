#pragma once
#include <QDialog>

class QLineEdit;
class QPushButton;

// "Change Password" of the signed-in athlete.
class ChangePass : public QDialog {
    Q_OBJECT
public:
    explicit ChangePass(QWidget* parent = nullptr);

    QLineEdit* Text1 = nullptr;   // password
    QLineEdit* Text2 = nullptr;   // confirmation
    QPushButton* Command1 = nullptr;   // save
    QPushButton* cmdCancel = nullptr;

public slots:
    void on_Text1_textChanged(const QString& text);
    void on_Text2_textChanged(const QString& text);
    void on_Command1_clicked();
    void on_cmdCancel_clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void EnableSave();
};
