#pragma once
#include <QMainWindow>

class QToolBar;

// The frame window of the program: menus, the button bar, the theme colour. It holds no
// data of its own; every screen opens from here or from the day planner.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(QWidget* parent = nullptr);
    ~frmMain() override;

    // Window/State as the system writes it: 0 normal, 1 minimised, 2 maximised.
    int WindowStateValue() const;
    // Writes State, Left, Top, Height and Width (twips) to the Window section.
    void SaveWindowPlacement() const;

    // The last step of start-up, once the sign-in window is gone: disables itemOpen, enables
    // itemClose and clears Loading.
    void AfterSignIn();

    QToolBar* Picture1 = nullptr;   // the button bar, shown only while an athlete is signed in

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Form_Load();
    void Form_Unload();
    bool m_unloaded = false;
};

// Twips to pixels and back, at the screen's logical resolution.
int TwipsToPixels(double twips);
double PixelsToTwips(int pixels);
