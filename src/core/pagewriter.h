#pragma once
// Report pages. Every printable thing is first written as an HTML page in a file of the
// program's folder, then shown and printed by the page view (frmWebView). This is the one
// writer every page uses: it opens the file, writes line by line, escapes what a name could
// break, and knows the page-break directive. No window here.
#include <QFile>
#include <QString>
#include <QStringList>

namespace page {

// On a line of its own: starts a new sheet when printing and shows nothing on screen.
inline const QString PageBreak = QStringLiteral("<WxPrinter PageBreak>");

// Text put into a page: "&", "<", ">" and '"' become entities, so a name such as
// "Curl <EZ> & Press" shows as written and cannot open a tag.
QString Escape(const QString& text);

// The file of a page from a base name: every "/" and "\" removed (an exercise's name can be
// part of it), ".htm" added unless the base already ends so.
QString FileName(const QString& base);

// The full path of a page file in the program's folder.
QString Path(const QString& fileName);

// Writes one page. Opening replaces the file and makes it the shared ReportFile; a file
// that cannot be written throws StoreError (75, with the path and the reason), which the
// caller's handler shows.
// The table idiom of the daily pages: a bordered table the width of the sheet, a grey
// heading row, small text. Captions and values are escaped here.
namespace table {
// "<table border=1 CELLSPACING=0 CELLPADDING=0 width=100% align=center >"
QString Open();
// "</table>"
QString Close();
// The grey heading row: the first `textColumns` captions as text cells, the rest centred as
// the captions of number columns.
QString HeadingRow(const QStringList& captions, int textColumns);
// Body cells: text to the left (width 120), numbers to the right (width 40). An empty value
// is written as a blank so the cell keeps its border.
QString TextCell(const QString& value);
QString NumberCell(const QString& value);
// One body row of `textColumns` text cells followed by number cells.
QString Row(const QStringList& values, int textColumns);
// A row in bold, e.g. a meal's total: the same cells with each value bold.
QString BoldRow(const QStringList& values, int textColumns);
// The text of a cell: escaped, "&nbsp;" when empty.
QString CellText(const QString& value);
}  // namespace table

class PageWriter {
public:
    explicit PageWriter(const QString& fileName);
    ~PageWriter();
    PageWriter(const PageWriter&) = delete;
    PageWriter& operator=(const PageWriter&) = delete;

    // One line of page text, as given (no escaping), with the line end.
    void Line(const QString& text);
    // Several lines.
    void Lines(const QStringList& lines);
    // The page-break directive on its own line.
    void Break();
    // Ends the page with "</body></html>" and closes the file; throws on a write failure.
    void Close();

    QString FileName() const { return m_fileName; }
    QString Path() const { return m_file.fileName(); }

private:
    QString m_fileName;
    QFile m_file;
    bool m_closed = false;
};

}  // namespace page
