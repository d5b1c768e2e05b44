#pragma once
// The "Intervals" tab of the exercise log: a session's interval plan (SS1: set, description,
// instruction, recovery, intensity), the shared templates it can start from, and the
// session's own copy in Daily_Intervals.
#include <QDate>
#include <QWidget>

class Grid;
class QComboBox;
class QPushButton;
class QSpinBox;

class IntervalsPanel : public QWidget {
    Q_OBJECT
public:
    explicit IntervalsPanel(QWidget* parent = nullptr);

    // Fills cboIntervals with the templates' names; selects none.
    void LoadIntervals();
    // The session's plan, found by date and key: selects its template's name and fills SS1.
    void LoadSession(const QDate& date, const QString& key);
    // Replaces the session's plan with one row for each row of SS1. Run it inside the
    // session's transaction.
    void SaveSession(const QDate& date, const QString& name, const QString& key);

    // Sets the number of rows; new rows get their number in the row header.
    void SetRows(int rows);
    // Selecting a template by its line of the list.
    void SelectTemplate(int index);

    Grid* SS1 = nullptr;
    QComboBox* cboIntervals = nullptr;
    QSpinBox* Spin1 = nullptr;
    QPushButton* cmdClearIntervals = nullptr;
    QPushButton* cmdDelInterval = nullptr;
    QPushButton* cmdSaveInterval = nullptr;

    static constexpr int NameLength = 50;

signals:
    void Changed();

public slots:
    void on_cmdClearIntervals_clicked();
    void on_cmdDelInterval_clicked();
    void on_cmdSaveInterval_clicked();

private:
    void numberRows(int from);
    void changed();
    bool m_loading = false;
};
