#pragma once
// "Move Food": the destination category of a food that the Foods Library copies or moves.
// The caller hands over the food's name and whether it moves or copies; Completed() tells
// afterwards whether the food was copied or moved.
#include <QDialog>
#include <QString>

class QListWidget;
class QPushButton;
class QLabel;

class frmMoveFood : public QDialog {
    Q_OBJECT
public:
    enum Mode { Copy, Move };
    // `foodName`: the food, looked up by name alone.
    explicit frmMoveFood(const QString& foodName = QString(), Mode mode = Copy, QWidget* parent = nullptr);

    // Whether the food was copied or moved.
    bool Completed() const { return m_completed; }

    QLabel* lblCaption = nullptr;
    QListWidget* lstGroups = nullptr;   // item data: Group_ID
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

public slots:
    void on_cmdOK_clicked();

private:
    QString m_foodName;
    Mode m_mode;
    bool m_completed = false;
};
