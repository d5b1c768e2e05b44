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
