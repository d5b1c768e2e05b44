#pragma once
// The session questionnaire: how the workout went, one row of Daily_Psych per session. The
// "Psychology" tab of the exercise log and of the strength log; the two differ in the wording
// of two questions and in how the strength log stores its first answer.
#include <QDate>
#include <QWidget>

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QRadioButton;
class QTextEdit;

class PsychPanel : public QWidget {
    Q_OBJECT
public:
    enum Wording { ExerciseLog, StrengthLog };
    explicit PsychPanel(Wording wording, QWidget* parent = nullptr);

    // Reads the session's answers; with no row nothing changes. `name` as the session has it
    // (its quotes are doubled here).
    void LoadPsych(const QDate& date, const QString& name, const QString& key);
    // Replaces the session's row: delete, then add. Run it inside the session's transaction.
    void SavePsych(const QDate& date, const QString& name, const QString& key);

    static constexpr int Ratings = 7;
    // A pair of options: [0] "Yes", [1] "No".
    QRadioButton* optGoals[2] = {};
    QRadioButton* optSleep[2] = {};
    QRadioButton* optDoubt[2] = {};
    QRadioButton* optVis[2] = {};
    QRadioButton* optun[2] = {};
    QComboBox* cboRating[Ratings] = {};
    QLineEdit* txtGoals = nullptr;
    QLineEdit* txtDifferent = nullptr;
    QLineEdit* txtDoubt = nullptr;
    QLineEdit* txtControlLevel = nullptr;
    QLineEdit* txtVis = nullptr;
    QLineEdit* txtUnforseen = nullptr;
    QLineEdit* txtRating = nullptr;

    Wording GetWording() const { return m_wording; }

signals:
    // Any answer changed by the user (not by LoadPsych).
    void Changed();

private:
    QButtonGroup* pair(QRadioButton* (&opt)[2], const QString& name);
    void setAnswer(QRadioButton* (&opt)[2], const QVariant& stored);
    void changed();

    Wording m_wording;
    bool m_loading = false;
    QButtonGroup* m_groups[5] = {};
};
