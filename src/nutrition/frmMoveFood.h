#pragma once
// "Move Food": the destination category of a food that the Foods Library copies or moves.
// The caller hands over the food's name and the mode in the static strings below and finds
// Result == "complete" afterwards when the food was copied or moved.
#include <QDialog>
#include <QString>

class QListWidget;
class QPushButton;
class QLabel;

class frmMoveFood : public QDialog {
    Q_OBJECT
public:
    explicit frmMoveFood(QWidget* parent = nullptr);

    static QString FoodName;   // the food, looked up by name alone
    static QString Mode;       // "copy" or "move"
    static QString Result;     // "complete" after a copy or move

    QLabel* lblCaption = nullptr;
    QListWidget* lstGroups = nullptr;   // item data: Group_ID
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

public slots:
    void on_cmdOK_clicked();
};
