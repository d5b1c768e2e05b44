#pragma once
#include <QDialog>

class QLabel;
class QPushButton;

// "Note to First time Users": shown over the athlete screen when a new athlete is made.
class frmNewUser : public QDialog {
    Q_OBJECT
public:
    explicit frmNewUser(QWidget* parent = nullptr);
    static QString NoteText();

    QLabel* lblNote = nullptr;
    QPushButton* cmdClose = nullptr;
    QPushButton* Command1 = nullptr;   // Read Help

public slots:
    void on_cmdClose_clicked();
    void on_Command1_clicked();
};
