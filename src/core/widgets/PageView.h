#pragma once
// Shows a page written as an .htm file and prints it on paper or to PDF. The line
// "<WxPrinter PageBreak>" starts a new sheet when printing and shows nothing on screen;
// every printed sheet carries the footer "Page N of M".
#include <QTextBrowser>

class QPrinter;
class QTextDocument;

class PageView : public QTextBrowser {
    Q_OBJECT
public:
    explicit PageView(QWidget* parent = nullptr);

    // Loads a page from a file; pictures and links are found beside it. False (and an empty
    // view) when the file cannot be read.
    bool LoadFile(const QString& path);
    // The page's text as read from the file, directives included.
    const QString& PageHtml() const { return m_html; }
    QString FilePath() const { return m_path; }
    // The <title> of the page, "" without one.
    QString PageTitle() const;

    // Prints the loaded page. Returns false with a description in *error on failure.
    bool Print(QPrinter* printer, QString* error = nullptr) const;

    // The page for the screen: each page-break directive removed.
    static QString ScreenHtml(const QString& html);
    // The page for paper: each page-break directive moved onto the next block as a CSS
    // page break, so the new sheet starts with that block and no blank line.
    static QString PrintHtml(const QString& html);
    // Lays html out on the printer's pages and prints it with the footer; returns the
    // number of sheets printed, or -1 with *error set.
    static int PrintPages(QPrinter* printer, const QString& html, const QString& folder, QString* error = nullptr);

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

private:
    QString m_html;
    QString m_path;
};

// The printer of the program: Printer Setup chooses it, every page prints on it.
QPrinter& ProgramPrinter();
