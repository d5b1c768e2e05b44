#pragma once
#include <QColor>
#include <QHash>
#include <QMainWindow>
#include <QMap>
#include <functional>

class QAction;
class QMenu;
class QToolBar;
class QToolButton;

// The frame window of the program: menus, the button bar, the theme colour. It holds no
// data of its own; every screen opens from here or from the day planner.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(QWidget* parent = nullptr);
    ~frmMain() override;

    // Window/State as the system writes it: 0 normal, 1 minimised, 2 maximised.
    int WindowStateValue() const;
    // Writes State, Left, Top, Height and Width (twips) to the Window section: the frame's
    // position and the inner size, the rectangle that loading applies.
    void SaveWindowPlacement() const;
    // Brings a window whose frame is on no screen back onto the nearest one (no larger than it).
    static void KeepOnScreen(QWidget* window);

    // The last step of start-up, once the sign-in window is gone: disables itemOpen, enables
    // itemClose and clears Loading. From here on the program runs in its message loop.
    void AfterSignIn();
    bool MessageLoopRunning() const { return m_loopRunning; }

    // The day planner, always filling the main window while an athlete is signed in.
    void OpenPlanner();
    void ClosePlanner();
    QWidget* PlannerWidget() const { return m_planner; }

    void ShowButtonBar(bool visible);
    // The menus of the logs, enabled once a new athlete is made.
    void EnableAthleteMenus();

    // A menu entry by its name ("itemOpen", "itmColorGreen", ...); nullptr when unknown.
    QAction* Item(const QString& name) const { return m_items.value(name); }
    QMenu* Menu(const QString& name) const { return m_menus.value(name); }
    // The enabled state of every entry and button that opens a screen by name, anew.
    void UpdateEntries();

    // Entries whose work is a procedure of another subsystem (import, export, backup) are
    // registered here by that subsystem; until then they are disabled.
    static void RegisterMenuAction(const QString& entry, std::function<void()> action);
    static bool HasMenuAction(const QString& entry);

    // The back colours of the File menu: entry name and colour value.
    struct BackColor {
        const char* entry;
        const char* caption;
        long color;
    };
    static const QList<BackColor>& BackColors();
    void SetBackColor(long color);

    QToolBar* Picture1 = nullptr;          // the button bar, shown only while an athlete is signed in
    QMap<int, QToolButton*> FB1;           // its buttons by the system's index
    QAction* itemOpen = nullptr;
    QAction* itemClose = nullptr;

public slots:
    void itemClose_Click();                // Sign out
    void FB1_Click(int index);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // Moves a normal window that reaches past its screen's edge back inside it.
    void FitOnScreen();
    bool m_fitAfterPlanner = false;
    void Form_Load();
    void Form_Unload();
    void BuildMenus();
    void BuildButtonBar();
    QAction* AddEntry(QMenu* menu, const QString& name, const QString& caption);
    void OpenEntry(const QString& entry, const QString& screen, int after, const QString& kind);
    bool OpenScreen(const QString& screen, int after);
    void ShowHelpPage(const QString& file);

    bool m_unloaded = false;
    bool m_loopRunning = false;
    QWidget* m_planner = nullptr;
    QHash<QString, QAction*> m_items;
    QHash<QString, QMenu*> m_menus;
    QHash<QAction*, QString> m_screenOf;   // entries that open a screen by name
    QHash<QAction*, QString> m_procOf;     // entries that run a registered procedure
    QHash<int, QString> m_buttonScreen;    // buttons that open a screen by name
};

// Twips to pixels and back, at the screen's logical resolution.
int TwipsToPixels(double twips);
double PixelsToTwips(int pixels);

// A stored colour value as a colour (the athlete's colour is read through Theme).
QColor WinColor(long value);

// Red, green and blue as a Windows colour value.
constexpr long RGB(int r, int g, int b) { return long(r) + long(g) * 256 + long(b) * 65536; }
