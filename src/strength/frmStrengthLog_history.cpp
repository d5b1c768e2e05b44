// The "History" tab of the strength log: weight lifted or reps done per day over a range of
// dates, for the athlete's workouts, one muscle group or one exercise, and its chart.
#include "strength/frmStrengthLog.h"

#include "calendar/calendarstore.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Form.h"
#include "strength/rules/strengthlog.h"

#include <QtCharts/QAbstractAxis>
#include <QtCharts/QChart>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QVBoxLayout>

QWidget* frmStrengthLog::buildHistoryTab()
{
    auto* page = new QWidget(this);
    txtStart = form::Named(new QDateEdit(page), QStringLiteral("txtStart"));
    txtEnd = form::Named(new QDateEdit(page), QStringLiteral("txtEnd"));
    for (auto* d : {txtStart, txtEnd}) {
        d->setCalendarPopup(true);
        d->setDisplayFormat(QStringLiteral("MMM d, yyyy"));
    }
    cboReport = form::Named(new QComboBox(page), QStringLiteral("cboReport"));
    cbofield = form::Named(new QComboBox(page), QStringLiteral("cbofield"));
    cbofield->setMinimumContentsLength(16);
    cbofield->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lbltype = form::Caption(QStringLiteral("&Muscle Group"), cbofield);
    lbltype->setObjectName(QStringLiteral("lbltype"));
    cboStyle = form::Named(new QComboBox(page), QStringLiteral("cboStyle"));
    cmdZoomIn = form::Button(QStringLiteral("cmdZoomIn"), QStringLiteral("Zoom &In"),
                             QStringLiteral("Show half as many days; drag a rectangle over the chart to zoom to it"));
    cmdZoomOut = form::Button(QStringLiteral("cmdZoomOut"), QStringLiteral("Zoom O&ut"),
                              QStringLiteral("Show every day again (or click the right button on the chart)"));
    cmdPrintGraph = form::Button(QStringLiteral("cmdPrintGraph"), QStringLiteral("Print Gra&ph"));
    Chart1 = form::Named(new Chart(page), QStringLiteral("Chart1"));
    Chart1->setAccessibleName(QStringLiteral("History chart"));
    Chart1->SetStyle(Chart::Bar);
    Chart1->SetLegendVisible(false);
    Chart1->setMinimumSize(420, 280);
    Chart1->setToolTip(QStringLiteral("Drag a rectangle to zoom in, click the right button to zoom out"));

    auto* range = new QHBoxLayout;
    range->addWidget(form::Caption(QStringLiteral("&From"), txtStart));
    range->addWidget(txtStart);
    QLabel* toCaption = form::Caption(QStringLiteral("&To"), txtEnd);
    toCaption->setMinimumWidth(toCaption->sizeHint().width() + 6);
    range->addWidget(toCaption);
    range->addWidget(txtEnd);
    range->addStretch(1);
    auto* bar = new QHBoxLayout;
    bar->addWidget(form::Caption(QStringLiteral("&Report"), cboReport));
    bar->addWidget(cboReport);
    bar->addWidget(lbltype);
    bar->addWidget(cbofield);
    bar->addWidget(form::Caption(QStringLiteral("St&yle"), cboStyle));
    bar->addWidget(cboStyle);
    bar->addStretch(1);
    bar->addWidget(cmdZoomIn);
    bar->addWidget(cmdZoomOut);
    bar->addWidget(cmdPrintGraph);
    auto* v = new QVBoxLayout(page);
    v->addLayout(range);
    v->addLayout(bar);
    v->addWidget(Chart1, 1);

    for (auto* d : {txtStart, txtEnd})
        connect(d, &QDateEdit::dateChanged, this, [this] {
            if (!m_loading) Guard([this] { RefreshStrengthGraph(); });
        });
    connect(cboReport, &QComboBox::currentIndexChanged, this, [this] { reportChanged(); });
    connect(cbofield, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_loading) Guard([this] { RefreshStrengthGraph(); });
    });
    connect(cboStyle, &QComboBox::currentIndexChanged, this, [this](int style) {
        if (m_loading || style < 0) return;
        Chart1->SetStyle(style == 1 ? Chart::Line : Chart::Bar);
        Guard([this] { RefreshStrengthGraph(); });
    });
    return page;
}

void frmStrengthLog::SetupHistory()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    cboReport->clear();
    cboReport->addItems(strengthlog::ReportNames());
    cboReport->setCurrentIndex(-1);
    cboStyle->clear();
    cboStyle->addItems({QStringLiteral("Bar"), QStringLiteral("Line")});
    cboStyle->setCurrentIndex(0);
    lbltype->hide();
    cbofield->hide();
    txtStart->setDate(QDate::currentDate());
    txtEnd->setDate(QDate::currentDate());
}

void frmStrengthLog::historyTabShown()
{
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        txtStart->setDate(QDate::currentDate());
        txtEnd->setDate(QDate::currentDate());
    }
    if (cboReport->currentIndex() < 0) {
        cboReport->setCurrentIndex(0);   // draws through its change
        return;
    }
    Guard([this] { RefreshStrengthGraph(); });
}

void frmStrengthLog::reportChanged()
{
    if (m_loading)
        return;
    const int view = cboReport->currentIndex();
    Guard([this, view] {
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            const QString column = strengthlog::ReportFilterColumn(view);
            cbofield->clear();
            if (!column.isEmpty()) {
                // Every athlete's names, as the log has them.
                SqlText = QStringLiteral("select distinct ") + column + QStringLiteral(" from daily_weights");
                ForEachRow(UserRS, SqlText, [this](Recordset& rs) {
                    const QString name = Str(rs.Field(0));
                    if (!name.isEmpty()) cbofield->addItem(name);
                });
                cbofield->setCurrentIndex(cbofield->count() > 0 ? 0 : -1);
                lbltype->setText(QStringLiteral("&") + strengthlog::ReportFilterWord(view));
            }
            lbltype->setVisible(!column.isEmpty());
            cbofield->setVisible(!column.isEmpty());
        }
        RefreshStrengthGraph();
    });
}

void frmStrengthLog::RefreshStrengthGraph()
{
    const int view = cboReport->currentIndex();
    if (view < 0)
        return;
    const QString column = strengthlog::ReportFilterColumn(view);
    QString filter;
    if (!column.isEmpty())
        filter = QStringLiteral(" and ") + column + QStringLiteral("='") + SqlQuote(cbofield->currentText()) +
                 QStringLiteral("'");
    const QString athlete = QStringLiteral("User_ID='") + CurrentUserID + QStringLiteral("'");
    QList<QDate> days;
    SqlText = QStringLiteral("select distinct date from daily_weights where ") + athlete + QStringLiteral(" and date between #") +
              SqlDate(txtStart->date()) + QStringLiteral("# and #") + SqlDate(txtEnd->date()) + QStringLiteral("#") + filter +
              QStringLiteral(" order by date");
    ForEachRow(UserRS, SqlText, [&days](Recordset& rs) { days << FieldDate(rs.Field(0)); });

    QStringList labels;
    QVector<double> values;
    for (const QDate& day : days) {
        const QString onDay = athlete + filter + QStringLiteral(" and date=#") + SqlDate(day) + QStringLiteral("#");
        double y = 0;
        if (strengthlog::WeightReport(view)) {
            QList<QPair<double, double>> sets;
            ForEachRow(UserRS, QStringLiteral("select reps, weight from daily_weights where ") + onDay,
                       [&sets](Recordset& rs) { sets << qMakePair(Val(rs.Field(0)), Val(rs.Field(1))); });
            y = strengthlog::WeightLifted(sets);
        } else {
            FirstRow(UserRS, QStringLiteral("select sum(reps) as reps2 from daily_weights where ") + onDay,
                     [&y](Recordset& rs) { y = Val(rs.Field(QStringLiteral("reps2"))); });
        }
        labels << day.toString(QStringLiteral("dd-MM-yy"));
        values << y;
    }
    QString title = cboReport->itemText(view);
    if (!column.isEmpty())
        title += QStringLiteral(" - ") + cbofield->currentText();
    if (strengthlog::WeightReport(view))
        title += QStringLiteral(" (") + m_unit + QStringLiteral(")");
    // Qt Charts keeps drawing an axis that had no series unless it was hidden first.
    auto hideAxes = [this] {
        for (QAbstractAxis* axis : Chart1->GetChart()->axes())
            axis->setVisible(false);
    };
    hideAxes();
    Chart1->SetTitle(title);
    hideAxes();
    Chart1->SetSeriesNames({cboReport->itemText(view)});
    hideAxes();
    Chart1->SetData(labels, {values});
    const double top = strengthlog::AxisTop(QList<double>(values.cbegin(), values.cend()));
    if (top > 0)
        Chart1->SetView(0, int(values.size()), 0, top);
}

void frmStrengthLog::on_cmdZoomIn_clicked()
{
    const int count = Chart1->VisibleCount();
    if (count <= 1)
        return;
    const int half = std::max(1, count / 2);
    Chart1->SetView(Chart1->FirstVisible() + (count - half) / 2, half, Chart1->ViewLow(), Chart1->ViewHigh());
}

void frmStrengthLog::on_cmdZoomOut_clicked() { Chart1->ZoomOut(); }

void frmStrengthLog::on_cmdPrintGraph_clicked() { Chart1->Print(); }
