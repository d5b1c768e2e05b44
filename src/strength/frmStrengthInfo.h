#pragma once
// frmStrengthInfo, "Exercise Information": one exercise's description, instruction and picture.
#include <QDialog>
#include <QString>

class QLabel;

// The picture of an exercise: a file of the program's "Images" folder. ShowExercisePicture
// shows it in the browser and returns true when the file is there; otherwise the browser is
// blanked and false returned. An empty name blanks the browser too.
QString ExercisePicturePath(const QString& image);
bool ShowExercisePicture(QLabel* browser, const QString& image);

class frmStrengthInfo : public QDialog {
    Q_OBJECT
public:
    // Opened with the exercise's name as it is stored (quotes not doubled).
    explicit frmStrengthInfo(const QString& exercise, QWidget* parent = nullptr);

    QLabel* lblDescription = nullptr;
    QLabel* lblInstruction = nullptr;
    QLabel* WebBrowser1 = nullptr;    // the picture
};
