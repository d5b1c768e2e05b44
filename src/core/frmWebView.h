#pragma once
#include <QDialog>
#include <functional>

class PageView;
class QComboBox;
class QPushButton;

// "Print Preview": shows the page named by ReportFile from the program's folder, prints it
// with "Page N of M" on every sheet, saves a copy and changes the font size.
class frmWebView : public QDialog {
    Q_OBJECT
public:
    explicit frmWebView(QWidget* parent = nullptr);

    // Set by whoever shows a generated page while the preview is up.
    static inline bool PreviewOpen = false;
    // Set while a help page is shown: the viewer then offers no sharing.
    static inline bool HelpOpen = false;
    // Sharing of an exchange page; the exchange installs it. cmdSend is shown only when set.
    static inline std::function<void(frmWebView*)> SendPage;

    // Shows a page of the program's folder in the viewer, modally, as a help page.
    static void ShowHelp(const QString& fileName);

    PageView* browser = nullptr;
    QComboBox* cboFontSize = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdSend = nullptr;
    QPushButton* cmdClose = nullptr;

    // Copies `from` to `to` with each size="n" moved by `steps`, kept within 1 to 7.
    static bool HtmlEdit(const QString& from, const QString& to, int steps);
    QString PagePath() const;

public slots:
    void on_cmdPrint_clicked();
    void on_cmdSave_clicked();
    void on_cmdSend_clicked();
    void on_cmdClose_clicked();
    void on_cboFontSize_currentIndexChanged(int index);

private:
    bool m_loading = true;
};
