#pragma once
#include <QDialog>
#include <functional>

class PageView;
class QComboBox;
class QPushButton;

class frmWebView;

// What the viewer shows and offers, given by whoever opens it.
struct WebViewOptions {
    // The page, a file of the program's folder; empty: the page named by ReportFile.
    QString file;
    // A help page: captioned with the page's title, and no sharing.
    bool help = false;
    // Sharing of an exchange page; cmdSend is shown only when set (never for help).
    std::function<void(frmWebView*)> sendPage;
};

// "Print Preview": shows a page from the program's folder (by default the one named by
// ReportFile), prints it with "Page N of M" on every sheet, on a printer or to a PDF file,
// saves a copy and changes the font size.
class frmWebView : public QDialog {
    Q_OBJECT
public:
    explicit frmWebView(QWidget* parent = nullptr, WebViewOptions options = {});

    // Shows a page of the program's folder in the viewer, modally, as a help page.
    static void ShowHelp(const QString& fileName);

    const WebViewOptions& Options() const { return m_options; }
    bool HelpOpen() const { return m_options.help; }

    PageView* browser = nullptr;
    QComboBox* cboFontSize = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdPdf = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdSend = nullptr;
    QPushButton* cmdClose = nullptr;

    // Copies `from` to `to` with each size="n" moved by `steps`, kept within 1 to 7.
    static bool HtmlEdit(const QString& from, const QString& to, int steps);
    QString PagePath() const;

public slots:
    void on_cmdPrint_clicked();
    // Prints the page to a PDF file chosen through the file dialog, with the same footer and
    // messages as the printer.
    void on_cmdPdf_clicked();
    void on_cmdSave_clicked();
    void on_cmdSend_clicked();
    void on_cmdClose_clicked();
    void on_cboFontSize_currentIndexChanged(int index);

private:
    WebViewOptions m_options;
    bool m_loading = false;
};

// Shows the report page `fileName` of the program's folder in "Print Preview", modally, as
// ReportFile, with PreviewOpen set while it shows.
void ShowReport(const QString& fileName);
