#pragma once
// Everything that shows a window goes through here: message boxes, modal screens, file and
// printer dialogs. In the program these show Qt dialogs; a test replaces the hooks with a
// script that answers them and records every message.
#include <QString>
#include <QStringList>
#include <QDate>
#include <functional>

class QWidget;
class QDialog;
class QPrinter;
class QComboBox;
class QListWidget;

// Buttons, icons and answers of a message box, as the system numbers them.
enum MsgBoxStyle : int {
    vbOKOnly = 0, vbOKCancel = 1, vbAbortRetryIgnore = 2, vbYesNoCancel = 3, vbYesNo = 4, vbRetryCancel = 5,
    vbCritical = 16, vbQuestion = 32, vbExclamation = 48, vbInformation = 64
};
enum MsgBoxResult : int { vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7 };

struct FileDialogOptions {
    bool save = false;
    QString title;
    QString folder;         // start folder
    QString fileName;       // proposed name
    QString defaultExt;     // without the dot
    QString filter;         // "Text (*.txt)|*.txt|All (*.*)|*.*" or Qt's own form
    int filterIndex = 1;
    bool mustExist = false;
};

namespace ui {

struct Hooks {
    std::function<int(const QString& prompt, int style, const QString& title)> msgBox;
    std::function<int(QDialog* dialog)> showModal;                 // runs a dialog, returns its result
    std::function<QString(const FileDialogOptions&)> fileDialog;    // "" when cancelled
    std::function<bool(QPrinter* printer)> printDialog;             // false when cancelled
    std::function<void(const QString& screen, QWidget* widget)> showScreen; // a modeless screen
};

Hooks& CurrentHooks();
// Installs the Qt dialogs (the program's hooks).
void InstallQtHooks();

// The main window, parent and centre of every dialog.
void SetMainWindow(QWidget* w);
QWidget* MainWindow();

// Screens by name, so a subsystem can open a screen of one above it.
using ScreenFactory = std::function<QWidget*(QWidget* parent)>;
void RegisterScreen(const QString& name, ScreenFactory factory);
bool HasScreen(const QString& name);
// Creates the screen with the given parent without showing it; nullptr when unknown.
QWidget* CreateScreen(const QString& name, QWidget* parent);
// Creates the screen and, if it is a dialog, runs it modally and deletes it. Returns the
// dialog's result, or -1 when no screen of that name exists.
int ShowModal(const QString& name);
// Shows a screen without a modal loop (the main window's children); returns it.
QWidget* ShowScreen(const QString& name);

}  // namespace ui

// The system's names for the hooks.
int MsgBox(const QString& prompt, int style = vbOKOnly, const QString& title = QString());
int ShowModal(QDialog* dialog);
int ShowModal(const QString& screenName);
QString FileDialog(const FileDialogOptions& options);
bool PrintDialog(QPrinter* printer);

// Shows "Error" with the text of the exception being handled; used by handlers that have no
// guard of their own, so that a failing statement never ends the program.
void ShowError(const std::exception& e);
// Runs f; a StoreError or other exception is shown by ShowError and the program goes on.
// The shared recordsets that f opened and left open are closed, and a wait cursor is taken
// down, so the next handler starts clean.
bool Guard(const std::function<void()>& f);

// Puts a window in the middle of the main window; a Left or Top below 0 becomes 0.
void CenterForm(QWidget* window);
// Clears the selection, then selects the first entry whose text equals.
void SelectListItem(QComboBox* list, const QString& text);
void SelectListItem(QListWidget* list, const QString& text);

// The day selected in the day planner, "YYYY-MM-DD"; the planner provides it.
QString CalendarDate();
QDate CalendarQDate();
void SetCalendarDateProvider(std::function<QDate()> provider);
