#include "core/frmWebView.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/PageView.h"

#include <QComboBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QStringDecoder>
#include <QVBoxLayout>

namespace {
constexpr int MediumSize = 2;   // index of "Medium" in cboFontSize
}

frmWebView::frmWebView(QWidget* parent, WebViewOptions options) : QDialog(parent), m_options(std::move(options))
{
    // The font size set below while building is no choice of the user.
    const QScopedValueRollback<bool> loading(m_loading, true);
    setObjectName(QStringLiteral("frmWebView"));
    setWindowTitle(QStringLiteral("Print Preview"));
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    setSizeGripEnabled(true);

    browser = new PageView(this);
    cboFontSize = new QComboBox(this);
    cboFontSize->setObjectName(QStringLiteral("cboFontSize"));
    cboFontSize->addItems({QStringLiteral("Smallest"), QStringLiteral("Smaller"), QStringLiteral("Medium"),
                           QStringLiteral("Larger"), QStringLiteral("Largest")});
    auto* lblFont = new QLabel(QStringLiteral("&Font Size:"), this);
    lblFont->setBuddy(cboFontSize);

    auto makeButton = [this](const char* name, const QString& caption) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        return b;
    };
    cmdPrint = makeButton("cmdPrint", QStringLiteral("&Print"));
    cmdPdf = makeButton("cmdPdf", QStringLiteral("Print to P&DF..."));
    cmdPdf->setToolTip(QStringLiteral("Print this page to a PDF file"));
    cmdSave = makeButton("cmdSave", QStringLiteral("&Save"));
    cmdSend = makeButton("cmdSend", QStringLiteral("&Share on the Web"));
    cmdClose = makeButton("cmdClose", QStringLiteral("&Close"));

    auto* bar = new QHBoxLayout;
    bar->addWidget(cmdPrint);
    bar->addWidget(cmdPdf);
    bar->addWidget(cmdSave);
    bar->addWidget(cmdSend);
    bar->addSpacing(12);
    bar->addWidget(lblFont);
    bar->addWidget(cboFontSize);
    bar->addStretch();
    bar->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(browser, 1);

    cboFontSize->setCurrentIndex(MediumSize);
    QMetaObject::connectSlotsByName(this);

    cmdSend->setVisible(!m_options.help && static_cast<bool>(m_options.sendPage));
    browser->LoadFile(PagePath());
    if (m_options.help && !browser->PageTitle().isEmpty())
        setWindowTitle(browser->PageTitle());
    resize(820, 640);
    setMinimumSize(360, 240);
    CenterForm(this);
}

QString frmWebView::PagePath() const
{
    QString name = m_options.file.isEmpty() ? ReportFile : m_options.file;
    name.remove('/');
    name.remove('\\');
    return ProgramFile(name);
}

void frmWebView::ShowHelp(const QString& fileName)
{
    WebViewOptions help;
    help.file = fileName;
    help.help = true;
    frmWebView viewer(ui::MainWindow(), help);
    ShowModal(&viewer);
}

void ShowReport(const QString& fileName)
{
    ReportFile = fileName;
    const QScopedValueRollback<bool> open(PreviewOpen, true);
    frmWebView viewer(ui::MainWindow());
    ShowModal(&viewer);
}

void frmWebView::on_cmdPrint_clicked()
{
    QPrinter& printer = ProgramPrinter();
    const QString title = browser->PageTitle();
    printer.setDocName(title.isEmpty() ? (m_options.file.isEmpty() ? ReportFile : m_options.file) : title);
    if (!PrintDialog(&printer)) return;
    QString error;
    if (browser->Print(&printer, &error))
        MsgBox(QStringLiteral("Report printed."), vbInformation, QStringLiteral("Message"));
    else
        MsgBox(QStringLiteral("Error trying to print.Error:") + error, vbInformation, QStringLiteral("Message"));
}

void frmWebView::on_cmdPdf_clicked()
{
    FileDialogOptions o;
    o.save = true;
    o.folder = ProgramFolder();
    QString base = m_options.file.isEmpty() ? ReportFile : m_options.file;
    base.remove(QRegularExpression(QStringLiteral("\\.html?$"), QRegularExpression::CaseInsensitiveOption));
    o.fileName = base + QStringLiteral(".pdf");
    o.defaultExt = QStringLiteral("pdf");
    o.filter = QStringLiteral("PDF File|*.pdf");
    QString target = FileDialog(o);
    if (target.isEmpty()) return;
    if (!target.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) target += QStringLiteral(".pdf");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(target);
    printer.setPageLayout(ProgramPrinter().pageLayout());
    const QString title = browser->PageTitle();
    printer.setDocName(title.isEmpty() ? base : title);
    QString error;
    if (browser->Print(&printer, &error))
        MsgBox(QStringLiteral("Report printed."), vbInformation, QStringLiteral("Message"));
    else
        MsgBox(QStringLiteral("Error trying to print.Error:") + error, vbInformation, QStringLiteral("Message"));
}

void frmWebView::on_cmdSave_clicked()
{
    FileDialogOptions o;
    o.save = true;
    o.folder = ProgramFolder();
    o.defaultExt = QStringLiteral("html");
    o.filter = QStringLiteral("Html File|*.html");
    const QString target = FileDialog(o);
    if (target.isEmpty()) return;
    if (QFile::exists(target)) QFile::remove(target);
    if (!QFile::copy(PagePath(), target))
        MsgBox(QStringLiteral("Error saving the page to ") + target, vbInformation, QStringLiteral("Error"));
}

void frmWebView::on_cmdSend_clicked()
{
    if (m_options.sendPage) m_options.sendPage(this);
}

void frmWebView::on_cmdClose_clicked() { accept(); }

bool frmWebView::HtmlEdit(const QString& from, const QString& to, int steps)
{
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly)) return false;
    // Read and written byte for byte, so the page keeps its own encoding.
    const QString text = QString::fromLatin1(in.readAll());
    in.close();
    static const QRegularExpression size(QStringLiteral("size=\"(\\d+)\""), QRegularExpression::CaseInsensitiveOption);
    QString out;
    qsizetype pos = 0;
    auto it = size.globalMatch(text);
    while (it.hasNext()) {
        const auto m = it.next();
        out += text.mid(pos, m.capturedStart() - pos);
        const int n = qBound(1, m.captured(1).toInt() + steps, 7);
        out += QStringLiteral("size=\"") + QString::number(n) + '"';
        pos = m.capturedEnd();
    }
    out += text.mid(pos);
    QFile o(to);
    if (!o.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    o.write(out.toLatin1());
    return true;
}

void frmWebView::on_cboFontSize_currentIndexChanged(int index)
{
    if (m_loading || index < 0) return;
    // The source page stays as it is; the viewer shows a copy with the sizes moved.
    const QString temp = ProgramFile(QStringLiteral("tempfile.htm"));
    if (index == MediumSize || !HtmlEdit(PagePath(), temp, index - MediumSize)) browser->LoadFile(PagePath());
    else browser->LoadFile(temp);
    // A page that sets no sizes of its own is shown in a smaller or larger default font.
    if (!browser->PageHtml().contains(QStringLiteral("size="), Qt::CaseInsensitive)) {
        QFont f = browser->font();
        f.setPointSizeF(f.pointSizeF() * (1.0 + 0.15 * (index - MediumSize)));
        browser->document()->setDefaultFont(f);
    }
}
