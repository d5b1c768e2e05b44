#pragma once
#include <QDialog>
#include <functional>

class QComboBox;
class QLabel;
class QPushButton;

// "Sign In": lists the athletes, signs one in, adds and removes athletes and finds the
// store files when they have moved. Shown modally at start and after every sign out.
class frmOpen : public QDialog {
    Q_OBJECT
public:
    explicit frmOpen(QWidget* parent = nullptr);

    QComboBox* Combo1 = nullptr;      // athletes, User_ID as item data
    QPushButton* Command1 = nullptr;  // sign in
    QPushButton* command3 = nullptr;  // remove
    QPushButton* command4 = nullptr;  // add
    QPushButton* Command5 = nullptr;  // Locate Database
    QLabel* lblVersion = nullptr;

    void LoadUsers();
    void OpenAndLoadUsers();

    // Ends the process after a fatal error (a store file gone). Tests replace it.
    static inline std::function<void()> Terminate;
    // Opens the stores (OpenDatabases when not set). Tests replace it.
    static inline std::function<void()> OpenStores;

    // The version the window and the About box show.
    static QString VersionText(const QString& gap);

public slots:
    void on_Combo1_currentIndexChanged(int index);
    void on_Command1_clicked();
    void on_command3_clicked();
    void on_command4_clicked();
    void on_Command5_clicked();

protected:
    void reject() override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    enum class Guard { SignIn, Add };
    void Form_Load();
    // Runs one statement under the window's error rule: number 53 ends the process with
    // its message, any other error is noted and the run goes on with the next statement.
    template <class F> void Step(F&& f);
    void Fatal(const QString& description);
    // The window's own closing (not the close box).
    void Unload();
    void RefillAfterRemove();
    // Adds an entry per athlete of the statement (Name, User_ID); returns the rows read.
    long AddAthletes(const QString& sql);

    Guard m_guard = Guard::SignIn;
    bool m_ended = false;
    bool m_unloading = false;
    QString m_lastError;
};
