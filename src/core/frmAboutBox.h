#pragma once
#include <QDialog>

class QLabel;
class QPushButton;

// "About Orvantis": the product and its version.
class frmAboutBox : public QDialog {
    Q_OBJECT
public:
    explicit frmAboutBox(QWidget* parent = nullptr);

    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    QPushButton* cmdOK = nullptr;

public slots:
    void on_cmdOK_clicked();
};
