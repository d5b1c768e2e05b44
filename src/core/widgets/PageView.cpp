#include "core/widgets/PageView.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStringDecoder>
#include <QTextDocument>

namespace {
const QRegularExpression& BreakDirective()
{
    static const QRegularExpression re(QStringLiteral("<\\s*WxPrinter\\s+PageBreak\\s*>"),
                                       QRegularExpression::CaseInsensitiveOption);
    return re;
}

// Block elements that can carry a page break of their own.
const QRegularExpression& BlockTag()
{
    static const QRegularExpression re(
        QStringLiteral("<(p|div|table|h[1-6]|ul|ol|center|pre|blockquote|dl)(\\s[^>]*)?>"),
        QRegularExpression::CaseInsensitiveOption);
    return re;
}

QString ReadPage(const QByteArray& data)
{
    auto enc = QStringConverter::encodingForHtml(data);
    if (!enc) {
        // No declaration: UTF-8 when it decodes cleanly, otherwise the system's 8-bit text.
        QStringDecoder utf8(QStringDecoder::Utf8);
        const QString text = utf8(data);
        if (!utf8.hasError()) return text;
        return QString::fromLatin1(data);
    }
    QStringDecoder dec(*enc);
    return dec(data);
}
}  // namespace

PageView::PageView(QWidget* parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("browser"));
    setOpenExternalLinks(true);
    setOpenLinks(true);
}

QString PageView::ScreenHtml(const QString& html)
{
    QString out = html;
    out.remove(BreakDirective());
    return out;
}

QString PageView::PrintHtml(const QString& html)
{
    QString out;
    qsizetype pos = 0;
    auto it = BreakDirective().globalMatch(html);
    while (it.hasNext()) {
        const auto m = it.next();
        if (m.capturedStart() < pos) continue;
        out += html.mid(pos, m.capturedStart() - pos);
        pos = m.capturedEnd();
        // The next block element (before any further directive) starts the new sheet.
        const auto next = BreakDirective().match(html, pos);
        const qsizetype limit = next.hasMatch() ? next.capturedStart() : html.size();
        const auto tag = BlockTag().match(html, pos);
        if (tag.hasMatch() && tag.capturedStart() < limit) {
            const QString name = tag.captured(1);
            QString attrs = tag.captured(2);
            static const QRegularExpression styleAttr(QStringLiteral("style\\s*=\\s*([\"'])"),
                                                      QRegularExpression::CaseInsensitiveOption);
            const auto sm = styleAttr.match(attrs);
            if (sm.hasMatch())
                attrs.insert(sm.capturedEnd(), QStringLiteral("page-break-before:always;"));
            else
                attrs += QStringLiteral(" style=\"page-break-before:always\"");
            out += html.mid(pos, tag.capturedStart() - pos);
            out += '<' + name + attrs + '>';
            pos = tag.capturedEnd();
        } else if (limit < html.size() || html.mid(pos).trimmed().size() > 0) {
            // Text without a block of its own: a paragraph of no height carries the break.
            out += QStringLiteral("<p style=\"page-break-before:always;margin:0\"></p>");
        }
    }
    out += html.mid(pos);
    return out;
}

bool PageView::LoadFile(const QString& path)
{
    m_path = path;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        m_html.clear();
        clear();
        return false;
    }
    m_html = ReadPage(f.readAll());
    const QString folder = QFileInfo(path).absolutePath();
    setSearchPaths({folder});
    document()->setBaseUrl(QUrl::fromLocalFile(folder + '/'));
    setHtml(ScreenHtml(m_html));
    return true;
}

QString PageView::PageTitle() const
{
    static const QRegularExpression re(QStringLiteral("<title>(.*?)</title>"),
                                       QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const auto m = re.match(m_html);
    return m.hasMatch() ? m.captured(1).trimmed() : QString();
}

void PageView::doSetSource(const QUrl& name, QTextDocument::ResourceType type)
{
    // Links between local pages go through LoadFile, so directives never show.
    QUrl url = name;
    if (url.isRelative() && !m_path.isEmpty())
        url = QUrl::fromLocalFile(QFileInfo(m_path).absolutePath() + '/').resolved(name);
    if (url.isLocalFile() && type != QTextDocument::ImageResource) {
        const QString file = url.toLocalFile();
        const QString suffix = QFileInfo(file).suffix().toLower();
        if ((suffix == QLatin1String("htm") || suffix == QLatin1String("html")) && QFileInfo::exists(file)) {
            if (QFileInfo(file).absoluteFilePath() != QFileInfo(m_path).absoluteFilePath() || m_html.isEmpty())
                LoadFile(file);
            if (url.hasFragment()) scrollToAnchor(url.fragment());
            else verticalScrollBar()->setValue(0);
            return;
        }
    }
    QTextBrowser::doSetSource(name, type);
}

int PageView::PrintPages(QPrinter* printer, const QString& html, const QString& folder, QString* error)
{
    QTextDocument doc;
    doc.documentLayout()->setPaintDevice(printer);
    if (!folder.isEmpty()) doc.setBaseUrl(QUrl::fromLocalFile(folder + '/'));
    doc.setHtml(PrintHtml(html));

    QPainter painter;
    if (!painter.begin(printer)) {
        if (error) *error = QStringLiteral("The printer could not be started.");
        return -1;
    }
    const QRectF area = printer->pageRect(QPrinter::DevicePixel);
    QFont footerFont(QStringLiteral("Arial"), 8);
    const QFontMetricsF fm(footerFont, printer);
    const double footer = fm.height() * 2.5;
    const QSizeF body(area.width(), area.height() - footer);
    doc.setPageSize(body);
    // A page whose tables are wider than the sheet (fixed column widths add up) is printed
    // smaller, so that no column falls off the right edge.
    double scale = 1.0;
    const double wide = doc.documentLayout()->documentSize().width();
    if (wide > body.width() + 1.0) {
        scale = body.width() / wide;
        doc.setPageSize(QSizeF(wide, body.height() / scale));
    }
    const QSizeF sheet = doc.pageSize();

    const int pages = doc.pageCount();
    for (int page = 0; page < pages; ++page) {
        if (page > 0 && !printer->newPage()) {
            painter.end();
            if (error) *error = QStringLiteral("The printer refused a new page.");
            return -1;
        }
        painter.save();
        painter.scale(scale, scale);
        painter.translate(0, -page * sheet.height());
        QAbstractTextDocumentLayout::PaintContext ctx;
        ctx.clip = QRectF(0, page * sheet.height(), sheet.width(), sheet.height());
        painter.setClipRect(ctx.clip);
        doc.documentLayout()->draw(&painter, ctx);
        painter.restore();

        painter.setFont(footerFont);
        painter.setPen(Qt::black);
        const QString text = QStringLiteral("Page ") + QString::number(page + 1) + QStringLiteral(" of ") + QString::number(pages);
        painter.drawText(QRectF(0, body.height(), body.width(), footer), Qt::AlignCenter, text);
    }
    painter.end();
    return pages;
}

bool PageView::Print(QPrinter* printer, QString* error) const
{
    const QString folder = m_path.isEmpty() ? QString() : QFileInfo(m_path).absolutePath();
    const QString html = m_html.isEmpty() ? toHtml() : m_html;
    return PrintPages(printer, html, folder, error) >= 0;
}

QPrinter& ProgramPrinter()
{
    static QPrinter printer(QPrinter::HighResolution);
    return printer;
}
