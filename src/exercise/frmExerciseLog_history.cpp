// The "History" tab of the exercise log: totals of the item's sessions over a range of dates
// and their chart.
#include "exercise/frmExerciseLog.h"

#include "calendar/calendarstore.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Form.h"
#include "exercise/rules/exercisecalc.h"

#include <QtCharts/QAbstractAxis>
#include <QtCharts/QChart>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

QWidget* frmExerciseLog::buildHistoryTab()
{
    auto* page = new QWidget(this);
    txtStart = form::Named(new QDateEdit(page), QStringLiteral("txtStart"));
    txtEnd = form::Named(new QDateEdit(page), QStringLiteral("txtEnd"));
    for (auto* d : {txtStart, txtEnd}) {
        d->setCalendarPopup(true);
        d->setDisplayFormat(QStringLiteral("MMM d, yyyy"));
    }
    cboHistUnit = form::Named(new QComboBox(page), QStringLiteral("cboHistUnit"));
    cboHistUnit->setMinimumWidth(100);

    auto* fraTotals = new QGroupBox(QStringLiteral("Totals"), page);
    auto* tg = new QGridLayout(fraTotals);
    auto total = [fraTotals](const QString& name) {
        auto* e = form::Named(new QLineEdit(fraTotals), name);
        e->setReadOnly(true);
        e->setMaximumWidth(90);
        e->setAlignment(Qt::AlignRight);
        return e;
    };
    txtWorkouts = total(QStringLiteral("txtWorkouts"));
    txtTTime = total(QStringLiteral("txtTTime"));
    txtDist = total(QStringLiteral("txtDist"));
    txtAvgSpeed = total(QStringLiteral("txtAvgSpeed"));
    txtInt = total(QStringLiteral("txtInt"));
    form::AddRow(tg, 0, QStringLiteral("&From"), txtStart);
    form::AddRow(tg, 1, QStringLiteral("&To"), txtEnd);
    form::AddRow(tg, 2, QStringLiteral("&Unit"), cboHistUnit);
    form::AddRow(tg, 3, QStringLiteral("Workouts"), txtWorkouts);
    form::AddRow(tg, 4, QStringLiteral("Total Time (hours)"), txtTTime);
    form::AddRow(tg, 5, QStringLiteral("Total Distance"), txtDist);
    lblAvgSpeed = new QLabel(QStringLiteral("/h"), fraTotals);
    lblAvgSpeed->setObjectName(QStringLiteral("lblAvgSpeed"));
    lblAvgSpeed->setBuddy(txtAvgSpeed);
    tg->addWidget(lblAvgSpeed, 6, 0);
    tg->addWidget(txtAvgSpeed, 6, 1);
    form::AddRow(tg, 7, QStringLiteral("Average Intensity"), txtInt);

    auto* fraZones = new QGroupBox(QStringLiteral("Total Time in HR Zones"), page);
    auto* zg = new QGridLayout(fraZones);
    for (int i = 0; i < 5; ++i) {
        txtHistZone[i] = form::Named(new QLineEdit(fraZones), QStringLiteral("txtHistZone_%1").arg(i));
        txtHistZone[i]->setReadOnly(true);
        txtHistZone[i]->setMaximumWidth(90);
        form::AddRow(zg, i, QStringLiteral("Zone %1").arg(i + 1), txtHistZone[i]);
    }

    auto* left = new QVBoxLayout;
    left->addWidget(fraTotals);
    left->addWidget(fraZones);
    left->addStretch(1);

    cboGraph = form::Named(new QComboBox(page), QStringLiteral("cboGraph"));
    cboStyle = form::Named(new QComboBox(page), QStringLiteral("cboStyle"));
    cmdPrintGraph = form::Button(QStringLiteral("cmdPrintGraph"), QStringLiteral("Print Gra&ph"));
    cmdPrintGraph->setText(QStringLiteral("Print Graph"));
    cmdZoomIn = form::Button(QStringLiteral("cmdZoomIn"), QStringLiteral("Zoom &In"),
                             QStringLiteral("Show half as many sessions; drag a rectangle over the chart to zoom to it"));
    cmdZoomOut = form::Button(QStringLiteral("cmdZoomOut"), QStringLiteral("Zoom O&ut"),
                              QStringLiteral("Show every session again (or click the right button on the chart)"));
    Chart1 = form::Named(new Chart(page), QStringLiteral("Chart1"));
    Chart1->setAccessibleName(QStringLiteral("History chart"));
    Chart1->SetStyle(Chart::Bar);
    Chart1->SetLegendVisible(false);
    Chart1->setMinimumSize(420, 300);
    auto* bar = new QHBoxLayout;
    bar->addWidget(form::Caption(QStringLiteral("&Graph"), cboGraph));
    bar->addWidget(cboGraph, 1);
    bar->addWidget(form::Caption(QStringLiteral("St&yle"), cboStyle));
    bar->addWidget(cboStyle);
    bar->addWidget(cmdZoomIn);
    bar->addWidget(cmdZoomOut);
    bar->addWidget(cmdPrintGraph);
    auto* right = new QVBoxLayout;
    right->addLayout(bar);
    right->addWidget(Chart1, 1);

    auto* h = new QHBoxLayout(page);
    h->addLayout(left);
    h->addLayout(right, 1);
    return page;
}

void frmExerciseLog::historyTabShown()
{
    Guard([this] {
        ShowHistory();
        if (!m_historyShown) {
            m_historyShown = true;
            if (cboGraph->currentIndex() < 0) {
                cboGraph->setCurrentIndex(0);   // draws through its change
                return;
            }
        }
        if (cboGraph->currentIndex() >= 0)
            RefreshExerciseGraph(cboGraph->currentIndex());
    });
}

void frmExerciseLog::historyChanged()
{
    if (m_loading)
        return;
    lblAvgSpeed->setText(cboHistUnit->currentText() + QStringLiteral("/h"));
    if (TabTop->currentIndex() != HistoryTab)
        return;
    Guard([this] {
        ShowHistory();
        if (cboGraph->currentIndex() >= 0)
            RefreshExerciseGraph(cboGraph->currentIndex());
    });
}

void frmExerciseLog::ShowHistory()
{
    SqlText = QStringLiteral("select * from daily_exercise where User_ID='") + CurrentUserID + QStringLiteral("' and name='") +
              SqlQuote(m_name) + QStringLiteral("' and date between #") + SqlDate(txtStart->date()) +
              QStringLiteral("# and #") + SqlDate(txtEnd->date()) + QStringLiteral("# order by date");
    const QString unit = cboHistUnit->currentText();
    double distance = 0;
    double hours = 0;
    double intensity = 0;
    QList<QPair<double, QString>> rows;
    // Read the rows first: the conversion has recordsets of its own.
    const long count = ForEachRow(UserRS, SqlText, [&rows, &hours, &intensity](Recordset& rs) {
        rows << qMakePair(Val(rs.Field(QStringLiteral("Distance"))), Str(rs.Field(QStringLiteral("DistanceUnit"))));
        hours += gethours(Str(rs.Field(QStringLiteral("duration"))));
        intensity += Val(rs.Field(QStringLiteral("Intensity")));
    });
    if (count == 0)
        return;
    txtWorkouts->setText(QString::number(count));
    for (const auto& r : rows)
        distance += ConvertSpeed(r.first, r.second, unit);
    txtTTime->setText(NumberText(regional::Round(hours, 2)));
    txtDist->setText(NumberText(regional::Round(distance, 2)));
    if (distance != 0 && hours != 0)
        txtAvgSpeed->setText(NumberText(regional::Round(distance / hours, 2)));
    if (intensity != 0)
        txtInt->setText(NumberText(regional::Round(intensity / count, 0)));
}

void frmExerciseLog::RefreshExerciseGraph(int view)
{
    if (view < 0 || view >= cboGraph->count())
        return;
    SqlText = QStringLiteral("select * from daily_exercise where User_ID='") + CurrentUserID + QStringLiteral("' and name='") +
              SqlQuote(m_name) + QStringLiteral("' and date between #") + SqlDate(txtStart->date()) +
              QStringLiteral("# and #") + SqlDate(txtEnd->date()) + QStringLiteral("# order by date, starttime");
    struct Row {
        QDate date;
        double distance;
        QString unit;
        double hours, intensity, heart;
    };
    QList<Row> rows;
    ForEachRow(UserRS, SqlText, [&rows](Recordset& rs) {
        rows << Row{FieldDate(rs.Field(QStringLiteral("Date"))), Val(rs.Field(QStringLiteral("Distance"))),
                    Str(rs.Field(QStringLiteral("DistanceUnit"))), gethours(Str(rs.Field(QStringLiteral("duration")))),
                    Val(rs.Field(QStringLiteral("Intensity"))), Val(rs.Field(QStringLiteral("StartHeart")))};
    });
    const QString unit = cboHistUnit->currentText();
    QStringList labels;
    QVector<double> values;
    for (const Row& r : rows) {
        double y = 0;
        switch (view) {
        case 0: y = ConvertSpeed(r.distance, r.unit, unit); break;
        case 1: y = r.hours > 0 ? ConvertSpeed(r.distance, r.unit, unit) / r.hours : 0; break;
        case 2: y = r.hours; break;
        case 3: y = r.intensity; break;
        default: y = r.heart; break;
        }
        labels << r.date.toString(QStringLiteral("dd-MM-yy"));
        values << y;
    }
    QString title = m_name + QStringLiteral(" - ") + cboGraph->itemText(view);
    if (view == 0)
        title += QStringLiteral(" (") + unit + QStringLiteral(")");
    else if (view == 1)
        title += QStringLiteral(" (") + lblAvgSpeed->text() + QStringLiteral(")");
    // Qt Charts keeps drawing an axis that had no series unless it was hidden first; the chart
    // replaces its axes on every change.
    auto hideAxes = [this] {
        for (QAbstractAxis* axis : Chart1->GetChart()->axes())
            axis->setVisible(false);
    };
    hideAxes();
    Chart1->SetTitle(title);
    hideAxes();
    Chart1->SetSeriesNames({cboGraph->itemText(view)});
    hideAxes();
    Chart1->SetData(labels, {values});
    if (!values.isEmpty()) {
        const double top = *std::max_element(values.cbegin(), values.cend()) * 1.1;
        if (top > 0)
            Chart1->SetView(0, int(values.size()), 0, top);
    }
}

void frmExerciseLog::SetupScrollBars()
{
    // The chart's own scroll bar pans a zoomed view; a wheel over it moves a session at a time.
    Chart1->setToolTip(QStringLiteral("Drag a rectangle to zoom in, click the right button to zoom out"));
}

void frmExerciseLog::CreateZoomActions()
{
    cmdZoomIn->setEnabled(true);
    cmdZoomOut->setEnabled(true);
}

void frmExerciseLog::on_cmdZoomIn_clicked()
{
    const int count = Chart1->VisibleCount();
    if (count <= 1)
        return;
    const int half = std::max(1, count / 2);
    Chart1->SetView(Chart1->FirstVisible() + (count - half) / 2, half, Chart1->ViewLow(), Chart1->ViewHigh());
}

void frmExerciseLog::on_cmdZoomOut_clicked()
{
    Chart1->ZoomOut();
}

void frmExerciseLog::on_cmdPrintGraph_clicked() { Chart1->Print(); }
