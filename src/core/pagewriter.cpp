#include "core/pagewriter.h"

#include "core/routines.h"
#include "core/shared.h"
#include "core/store/storeerror.h"

namespace page {

namespace {
// The error number of a file the system cannot write.
constexpr int FileAccessError = 75;

[[noreturn]] void Fail(const QFile& file)
{
    throw StoreError(FileAccessError,
                     QStringLiteral("Path/File access error: %1 (%2)").arg(file.fileName(), file.errorString()));
}
}  // namespace

QString Escape(const QString& text) { return text.toHtmlEscaped(); }

QString FileName(const QString& base)
{
    QString name = base;
    name.remove(QLatin1Char('/'));
    name.remove(QLatin1Char('\\'));
    if (!name.endsWith(QLatin1String(".htm"), Qt::CaseInsensitive))
        name += QStringLiteral(".htm");
    return name;
}

QString Path(const QString& fileName) { return ProgramFile(fileName); }

namespace table {

QString Open()
{
    return QStringLiteral("<table border=1 CELLSPACING=0 CELLPADDING=0 width=100% align=center >");
}

QString Close() { return QStringLiteral("</table>"); }

QString CellText(const QString& value)
{
    return value.isEmpty() ? QStringLiteral("&nbsp;") : Escape(value);
}

QString HeadingRow(const QStringList& captions, int textColumns)
{
    QString row = QStringLiteral("<tr bgcolor=\"#CCCCCC\">");
    for (int i = 0; i < captions.size(); ++i) {
        if (i < textColumns)
            row += QStringLiteral("<td><font size=\"1\">") + CellText(captions[i]) + QStringLiteral("</font></td>");
        else
            row += QStringLiteral("<td><center><font size=\"1\">") + CellText(captions[i]) +
                   QStringLiteral("</font></center></td>");
    }
    return row + QStringLiteral("</tr>");
}

namespace {
QString BodyCell(bool number, const QString& value, bool bold)
{
    const QString text = bold && !value.isEmpty() ? QStringLiteral("<b>") + Escape(value) + QStringLiteral("</b>")
                                                  : CellText(value);
    return (number ? QStringLiteral("<td align=right width=\"40\"><font size=\"1\">")
                   : QStringLiteral("<td align=left width=\"120\"><font size=\"1\">")) +
           text + QStringLiteral("</font></td>");
}

QString BodyRow(const QStringList& values, int textColumns, bool bold)
{
    QString row = QStringLiteral("<tr>");
    for (int i = 0; i < values.size(); ++i)
        row += BodyCell(i >= textColumns, values[i], bold);
    return row + QStringLiteral("</tr>");
}
}  // namespace

QString TextCell(const QString& value) { return BodyCell(false, value, false); }
QString NumberCell(const QString& value) { return BodyCell(true, value, false); }
QString Row(const QStringList& values, int textColumns) { return BodyRow(values, textColumns, false); }
QString BoldRow(const QStringList& values, int textColumns) { return BodyRow(values, textColumns, true); }

}  // namespace table

PageWriter::PageWriter(const QString& fileName) : m_fileName(fileName), m_file(page::Path(fileName))
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        Fail(m_file);
    ReportFile = fileName;
}

PageWriter::~PageWriter()
{
    if (!m_closed)
        m_file.close();
}

void PageWriter::Line(const QString& text)
{
    QByteArray bytes = text.toUtf8();
    bytes += '\n';
    if (m_file.write(bytes) != bytes.size())
        Fail(m_file);
}

void PageWriter::Lines(const QStringList& lines)
{
    for (const QString& l : lines)
        Line(l);
}

void PageWriter::Break() { Line(PageBreak); }

void PageWriter::Close()
{
    Line(QStringLiteral("</body></html>"));
    if (!m_file.flush())
        Fail(m_file);
    m_file.close();
    m_closed = true;
}

}  // namespace page
