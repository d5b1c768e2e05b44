#include "core/ui.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/storeerror.h"

#include <array>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QHash>
#include <QListWidget>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>

namespace {
QWidget* g_mainWindow = nullptr;
QHash<QString, ui::ScreenFactory>& Registry()
{
    static QHash<QString, ui::ScreenFactory> r;
    return r;
}
std::function<QDate()>& DateProvider()
{
    static std::function<QDate()> p;
    return p;
}

QString AppTitle() { return QStringLiteral("Orvantis"); }

int QtMsgBox(const QString& prompt, int style, const QString& title)
{
    QMessageBox box(ui::MainWindow());
    box.setWindowTitle(title.isEmpty() ? AppTitle() : title);
    box.setText(prompt);
    switch (style & 0x70) {
    case vbCritical: box.setIcon(QMessageBox::Critical); break;
    case vbQuestion: box.setIcon(QMessageBox::Question); break;
    case vbExclamation: box.setIcon(QMessageBox::Warning); break;
    case vbInformation: box.setIcon(QMessageBox::Information); break;
    default: box.setIcon(QMessageBox::NoIcon); break;
    }
    struct B { QMessageBox::StandardButton b; int result; };
    QList<B> buttons;
    switch (style & 0x07) {
    case vbOKCancel: buttons = {{QMessageBox::Ok, vbOK}, {QMessageBox::Cancel, vbCancel}}; break;
    case vbAbortRetryIgnore: buttons = {{QMessageBox::Abort, vbAbort}, {QMessageBox::Retry, vbRetry}, {QMessageBox::Ignore, vbIgnore}}; break;
    case vbYesNoCancel: buttons = {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}, {QMessageBox::Cancel, vbCancel}}; break;
    case vbYesNo: buttons = {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}}; break;
    case vbRetryCancel: buttons = {{QMessageBox::Retry, vbRetry}, {QMessageBox::Cancel, vbCancel}}; break;
    default: buttons = {{QMessageBox::Ok, vbOK}}; break;
    }
    QMessageBox::StandardButtons set;
    for (const B& b : buttons) set |= b.b;
    box.setStandardButtons(set);
    // The second button is the default only when the style asks (256); otherwise the first.
    box.setDefaultButton(buttons[(style & 256) && buttons.size() > 1 ? 1 : 0].b);
    const auto clicked = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const B& b : buttons)
        if (b.b == clicked) return b.result;
    return buttons.size() > 1 ? buttons.last().result : vbOK;
}

// "Text (*.txt)|*.txt|All|*.*" to Qt's "Text (*.txt);;All (*.*)"; a filter already in Qt's form stays.
QStringList QtFilters(const QString& filter)
{
    if (!filter.contains('|')) return filter.split(";;", Qt::SkipEmptyParts);
    const QStringList parts = filter.split('|');
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString caption = parts[i].trimmed();
        const QString pattern = parts[i + 1].trimmed();
        if (!caption.contains('(')) caption += " (" + pattern + ")";
        else if (!caption.contains(pattern)) caption = caption.left(caption.indexOf('(')).trimmed() + " (" + pattern + ")";
        out << caption;
    }
    return out;
}

QString QtFileDialog(const FileDialogOptions& o)
{
    QFileDialog dlg(ui::MainWindow(), o.title, o.folder);
    dlg.setAcceptMode(o.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dlg.setFileMode(o.save ? QFileDialog::AnyFile : (o.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile));
    const QStringList filters = QtFilters(o.filter);
    if (!filters.isEmpty()) {
        dlg.setNameFilters(filters);
        const int idx = qBound(0, o.filterIndex - 1, int(filters.size()) - 1);
        dlg.selectNameFilter(filters[idx]);
    }
    if (!o.defaultExt.isEmpty()) dlg.setDefaultSuffix(o.defaultExt);
    if (!o.fileName.isEmpty()) dlg.selectFile(o.fileName);
    if (dlg.exec() != QDialog::Accepted || dlg.selectedFiles().isEmpty()) return QString();
    return dlg.selectedFiles().first();
}
}  // namespace

namespace ui {

Hooks& CurrentHooks()
{
    static Hooks hooks;
    return hooks;
}

// A dialog opens centred over its parent window and wholly on the parent's screen: a window
// manager would keep it there, and without one Qt leaves a dialog wider than the space beside
// a window near the screen's edge partly off the screen.
void PlaceInsideScreen(QDialog* d)
{
    QWidget* parent = d->parentWidget() ? d->parentWidget()->window() : MainWindow();
    QScreen* screen = parent ? parent->screen() : QGuiApplication::primaryScreen();
    if (!screen) return;
    const QRect avail = screen->availableGeometry();
    d->ensurePolished();
    QSize size = d->testAttribute(Qt::WA_Resized) ? d->size() : d->sizeHint().expandedTo(d->minimumSize());
    size = size.boundedTo(avail.size());
    if (size != d->size()) d->resize(size);
    const QPoint centre = parent && parent->isVisible() ? parent->frameGeometry().center() : avail.center();
    QRect r(QPoint(0, 0), size);
    r.moveCenter(centre);
    r.moveLeft(qBound(avail.left(), r.left(), avail.right() - r.width() + 1));
    r.moveTop(qBound(avail.top(), r.top(), avail.bottom() - r.height() + 1));
    d->move(r.topLeft());
}

void InstallQtHooks()
{
    Hooks& h = CurrentHooks();
    h.msgBox = QtMsgBox;
    h.showModal = [](QDialog* d) {
        PlaceInsideScreen(d);
        return d->exec();
    };
    h.fileDialog = QtFileDialog;
    h.printDialog = [](QPrinter* p) {
        QPrintDialog dlg(p, MainWindow());
        return dlg.exec() == QDialog::Accepted;
    };
    h.showScreen = [](const QString&, QWidget* w) {
        w->show();
        w->raise();
        w->activateWindow();
    };
}

void SetMainWindow(QWidget* w) { g_mainWindow = w; }
QWidget* MainWindow() { return g_mainWindow; }

void RegisterScreen(const QString& name, ScreenFactory factory) { Registry().insert(name.toLower(), std::move(factory)); }
bool HasScreen(const QString& name) { return Registry().contains(name.toLower()); }

QWidget* CreateScreen(const QString& name, QWidget* parent)
{
    auto it = Registry().constFind(name.toLower());
    if (it == Registry().constEnd()) return nullptr;
    QWidget* w = (*it)(parent);
    if (w) w->setObjectName(name);
    return w;
}

int ShowModal(const QString& name)
{
    auto it = Registry().constFind(name.toLower());
    if (it == Registry().constEnd()) return -1;
    QWidget* w = (*it)(MainWindow());
    if (!w) return -1;
    w->setObjectName(name);
    if (auto* dlg = qobject_cast<QDialog*>(w)) {
        const int r = ::ShowModal(dlg);
        delete dlg;
        return r;
    }
    w->setAttribute(Qt::WA_DeleteOnClose);
    if (CurrentHooks().showScreen) CurrentHooks().showScreen(name, w);
    else w->show();
    return 0;
}

QWidget* ShowScreen(const QString& name)
{
    auto it = Registry().constFind(name.toLower());
    if (it == Registry().constEnd()) return nullptr;
    QWidget* w = (*it)(MainWindow());
    if (!w) return nullptr;
    w->setObjectName(name);
    if (CurrentHooks().showScreen) CurrentHooks().showScreen(name, w);
    else w->show();
    return w;
}

}  // namespace ui

int MsgBox(const QString& prompt, int style, const QString& title)
{
    auto& h = ui::CurrentHooks();
    if (!h.msgBox) return (style & 0x07) == vbYesNo ? vbNo : vbOK;
    return h.msgBox(prompt, style, title.isEmpty() ? QStringLiteral("Orvantis") : title);
}

int ShowModal(QDialog* dialog)
{
    auto& h = ui::CurrentHooks();
    if (!h.showModal) return dialog->exec();
    return h.showModal(dialog);
}

int ShowModal(const QString& screenName) { return ui::ShowModal(screenName); }

QString FileDialog(const FileDialogOptions& options)
{
    auto& h = ui::CurrentHooks();
    return h.fileDialog ? h.fileDialog(options) : QString();
}

bool PrintDialog(QPrinter* printer)
{
    auto& h = ui::CurrentHooks();
    return h.printDialog ? h.printDialog(printer) : false;
}

void ShowError(const std::exception& e)
{
    QString text;
    if (auto* se = dynamic_cast<const StoreError*>(&e))
        text = se->Description();
    else
        text = QString::fromUtf8(e.what());
    MsgBox(text, vbCritical, QStringLiteral("Error"));
}

namespace {
// The shared recordsets a handler may leave open when it fails half-way.
std::array<Recordset*, 7> SharedRecordsets()
{
    return {&UserRS, &UserRS2, &UserRS3, &UserRS4, &LibraryRS, &LibraryRS2, &LibraryRS3};
}
}  // namespace

bool Guard(const std::function<void()>& f)
{
    // What was open before the handler stays as it is (an outer walk may still be reading it);
    // what the handler opened is closed at the error edge, so the next handler can open it.
    std::array<bool, 7> wasOpen{};
    const auto shared = SharedRecordsets();
    for (size_t i = 0; i < shared.size(); ++i) wasOpen[i] = shared[i]->IsOpen();
    try {
        f();
        return true;
    } catch (const std::exception& e) {
        for (size_t i = 0; i < shared.size(); ++i)
            if (!wasOpen[i]) shared[i]->Close();
        while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
        ShowError(e);
    }
    return false;
}

void CenterForm(QWidget* window)
{
    if (!window) return;
    QWidget* main = ui::MainWindow();
    QRect ref;
    if (main && main->isVisible() && main != window)
        ref = main->frameGeometry();
    else if (QScreen* s = QGuiApplication::primaryScreen())
        ref = s->availableGeometry();
    else
        return;
    int left = ref.left() + (ref.width() - window->frameGeometry().width()) / 2;
    int top = ref.top() + (ref.height() - window->frameGeometry().height()) / 2;
    window->move(qMax(0, left), qMax(0, top));
}

void SelectListItem(QComboBox* list, const QString& text)
{
    list->setCurrentIndex(-1);
    for (int i = 0; i < list->count(); ++i)
        if (list->itemText(i) == text) {
            list->setCurrentIndex(i);
            return;
        }
}

void SelectListItem(QListWidget* list, const QString& text)
{
    list->setCurrentRow(-1);
    list->clearSelection();
    for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->text() == text) {
            list->setCurrentRow(i);
            return;
        }
}

QDate CalendarQDate()
{
    auto& p = DateProvider();
    QDate d = p ? p() : QDate();
    return d.isValid() ? d : QDate::currentDate();
}

QString CalendarDate() { return CalendarQDate().toString(QStringLiteral("yyyy-MM-dd")); }

void SetCalendarDateProvider(std::function<QDate()> provider) { DateProvider() = std::move(provider); }

#include "core/plannerlink.h"

PlannerLink& Planner()
{
    static PlannerLink link;
    return link;
}
