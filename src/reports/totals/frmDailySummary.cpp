#include "reports/totals/frmDailySummary.h"

#include <QApplication>
#include <algorithm>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "core/frmWebView.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/ui.h"
#include "core/widgets/Form.h"
#include "core/widgets/Grid.h"
#include "core/widgets/Theme.h"
#include "reports/totals/frmFields.h"

using namespace totals;

namespace {

// The widths kept in Summary_Display are twips of a smaller font than ours.
constexpr int kTwipsPerPixel = 11;

// The hourglass for the length of a computation.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

Grid* MakeGrid(QWidget* parent, const QString& name, const QString& accessible)
{
    auto* g = form::Named(new Grid(parent), name);
    g->setAccessibleName(accessible);
    g->setEditTriggers(QAbstractItemView::NoEditTriggers);
    return g;
}

QComboBox* MakeCombo(QWidget* parent, const QString& name)
{
    auto* c = form::Named(new QComboBox(parent), name);
    c->setMinimumContentsLength(18);
    c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return c;
}

}  // namespace

frmDailySummary::frmDailySummary(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDailySummary"));
    setWindowTitle(QStringLiteral("Daily Summary"));
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    WaitCursor wait;

    TotalsTab = form::Named(new QTabWidget(this), QStringLiteral("TotalsTab"));
    TotalsTab->addTab(buildSummaryTab(), QStringLiteral("Summary"));
    TotalsTab->addTab(buildNutritionTab(), QStringLiteral("Nutrition"));
    TotalsTab->addTab(buildExerciseTab(), QStringLiteral("Exercise"));
    TotalsTab->addTab(buildStrengthTab(), QStringLiteral("Strength"));
    TotalsTab->addTab(buildWellnessTab(), QStringLiteral("Wellness"));
    connect(TotalsTab, &QTabWidget::currentChanged, this, [this] { fillNutrients(); });
    theme::ApplyToTabs(TotalsTab);
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(TotalsTab, 1);
    layout->addLayout(bottom);

    Guard([this] {
        summary::sdTableCreate(&m_messages);
        summary::ndTableCreate(&m_messages);
        SS1Set();
        SS2Set();
        SSNutritionSet(SSNutrition);
        SSNutrientsSet(SSNutrients);
        SSExerciseSet(SSExercise);
        SSStrengthSet(SSStrength);
        for (int i = 0; i < 3; ++i) SSWellnessSet(SSWellness[i], i);
        FillNutritionFilter(cboNutrition);
        FillExerciseFilter(cboExerciseSports);
        FillStrengthFilter(cboStrength);
        FillWellnessFilters(cboReadings, cboMedication);
    });
    showMessages();
    {
        // The screen opens on the day selected on the calendar.
        QScopedValueRollback<bool> silence(m_silenceEnd, true);
        const QDate day = CalendarQDate();
        txtStartDate->setDate(day);
        txtEndDate->setDate(day);
        followDates();
    }
    DateChange();
    m_loadingScreen = false;
    connectHandlers();
    resize(1180, 680);
    CenterForm(this);
}

QWidget* frmDailySummary::datePair(QWidget* page, QDateEdit** start, QDateEdit** end, const QString& prefix, bool own)
{
    auto* box = new QWidget(page);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto make = [&](const QString& name) {
        auto* d = form::Named(new QDateEdit(box), name);
        d->setCalendarPopup(own);
        d->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
        d->setKeyboardTracking(false);
        if (!own) {
            d->setReadOnly(true);
            d->setButtonSymbols(QAbstractSpinBox::NoButtons);
            form::SetTip(d, QStringLiteral("Follows the range of the Summary tab"));
        }
        return d;
    };
    *start = make(QStringLiteral("txt") + prefix + QStringLiteral("StartDate"));
    *end = make(QStringLiteral("txt") + prefix + QStringLiteral("EndDate"));
    row->addWidget(form::Caption(own ? QStringLiteral("Start &Date") : QStringLiteral("From"), *start));
    row->addWidget(*start);
    row->addWidget(form::Caption(own ? QStringLiteral("&End Date") : QStringLiteral("To"), *end));
    row->addWidget(*end);
    return box;
}

QWidget* frmDailySummary::buildSummaryTab()
{
    auto* page = new QWidget(this);
    lblDateRange = form::Label(QStringLiteral("lblDateRange"));
    QFont f = lblDateRange->font();
    f.setBold(true);
    lblDateRange->setFont(f);
    cmdFields[0] = form::Button(QStringLiteral("cmdFields0"), QStringLiteral("&Fields..."), QStringLiteral("Choose the columns shown"));
    cmdPrint[tabSummary] = form::Button(QStringLiteral("cmdPrint0"), QStringLiteral("&Print"));
    cmdExport[tabSummary] = form::Button(QStringLiteral("cmdExport0"), QStringLiteral("E&xport"));
    auto* top = new QHBoxLayout;
    top->addWidget(datePair(page, &txtStartDate, &txtEndDate, QString(), true));
    top->addSpacing(12);
    top->addWidget(lblDateRange, 1);
    top->addWidget(cmdFields[0]);
    top->addWidget(cmdPrint[tabSummary]);
    top->addWidget(cmdExport[tabSummary]);

    // The group headings stand in a strip of their own over the day table and follow its
    // column widths and its scrolling.
    SS1Groups = form::Named(new QTableWidget(1, 0, page), QStringLiteral("SS1Groups"));
    SS1Groups->setAccessibleName(QStringLiteral("Column groups"));
    SS1Groups->horizontalHeader()->hide();
    // An empty row header as wide as the day table's keeps the groups over their columns.
    SS1Groups->setVerticalHeaderLabels({QString()});
    SS1Groups->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    SS1Groups->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    SS1Groups->setEditTriggers(QAbstractItemView::NoEditTriggers);
    SS1Groups->setFocusPolicy(Qt::NoFocus);
    SS1Groups->setSelectionMode(QAbstractItemView::NoSelection);
    SS1Groups->setFixedHeight(SS1Groups->verticalHeader()->defaultSectionSize() + 2);
    SS1 = MakeGrid(page, QStringLiteral("SS1"), QStringLiteral("Day table"));
    connect(SS1->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int logical, int, int size) { SS1Groups->setColumnWidth(logical, size); });
    connect(SS1->verticalHeader(), &QHeaderView::geometriesChanged, this,
            [this] { SS1Groups->verticalHeader()->setFixedWidth(SS1->verticalHeader()->width()); });
    connect(SS1->horizontalScrollBar(), &QScrollBar::valueChanged, SS1Groups->horizontalScrollBar(), &QScrollBar::setValue);
    SS2 = MakeGrid(page, QStringLiteral("SS2"), QStringLiteral("Calorie balance"));
    SS2->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);

    auto* v = new QVBoxLayout(page);
    v->addLayout(top);
    auto* table = new QVBoxLayout;
    table->setSpacing(0);
    table->addWidget(SS1Groups);
    table->addWidget(SS1, 1);
    v->addLayout(table, 1);
    v->addWidget(form::Caption(QStringLiteral("Calorie &balance"), SS2));
    v->addWidget(SS2);
    return page;
}

QWidget* frmDailySummary::buildNutritionTab()
{
    auto* page = new QWidget(this);
    cboNutrition = MakeCombo(page, QStringLiteral("cboNutrition"));
    cmdFields[1] = form::Button(QStringLiteral("cmdFields1"), QStringLiteral("&Fields..."), QStringLiteral("Choose the nutrients shown"));
    cmdPrint[tabNutrition] = form::Button(QStringLiteral("cmdPrint1"), QStringLiteral("&Print"));
    cmdExport[tabNutrition] = form::Button(QStringLiteral("cmdExport1"), QStringLiteral("E&xport"));
    auto* top = new QHBoxLayout;
    top->addWidget(datePair(page, &txtNutStartDate, &txtNutEndDate, QStringLiteral("Nut"), false));
    top->addSpacing(12);
    top->addWidget(form::Caption(QStringLiteral("&Meal"), cboNutrition));
    top->addWidget(cboNutrition);
    top->addStretch(1);
    top->addWidget(cmdFields[1]);
    top->addWidget(cmdPrint[tabNutrition]);
    top->addWidget(cmdExport[tabNutrition]);
    SSNutrition = MakeGrid(page, QStringLiteral("SSNutrition"), QStringLiteral("Nutrition"));
    SSNutrients = MakeGrid(page, QStringLiteral("SSNutrients"), QStringLiteral("Nutrients"));
    NutritionPages = form::Named(new QTabWidget(page), QStringLiteral("NutritionPages"));
    NutritionPages->addTab(SSNutrition, QStringLiteral("Nutrition"));
    NutritionPages->addTab(SSNutrients, QStringLiteral("Nutrients"));
    theme::ApplyToTabs(NutritionPages);
    connect(NutritionPages, &QTabWidget::currentChanged, this, [this] { fillNutrients(); });
    auto* v = new QVBoxLayout(page);
    v->addLayout(top);
    v->addWidget(NutritionPages, 1);
    return page;
}

QWidget* frmDailySummary::buildExerciseTab()
{
    auto* page = new QWidget(this);
    cboExerciseSports = MakeCombo(page, QStringLiteral("cboExerciseSports"));
    cmdPrint[tabExercise] = form::Button(QStringLiteral("cmdPrint2"), QStringLiteral("&Print"));
    cmdExport[tabExercise] = form::Button(QStringLiteral("cmdExport2"), QStringLiteral("E&xport"));
    auto* top = new QHBoxLayout;
    top->addWidget(datePair(page, &txtExeStartDate, &txtExeEndDate, QStringLiteral("Exe"), false));
    top->addSpacing(12);
    top->addWidget(form::Caption(QStringLiteral("Exe&rcise/Sport"), cboExerciseSports));
    top->addWidget(cboExerciseSports);
    top->addStretch(1);
    top->addWidget(cmdPrint[tabExercise]);
    top->addWidget(cmdExport[tabExercise]);
    SSExercise = MakeGrid(page, QStringLiteral("SSExercise"), QStringLiteral("Exercise/Sports"));
    auto* v = new QVBoxLayout(page);
    v->addLayout(top);
    v->addWidget(SSExercise, 1);
    return page;
}

QWidget* frmDailySummary::buildStrengthTab()
{
    auto* page = new QWidget(this);
    cboStrength = MakeCombo(page, QStringLiteral("cboStrength"));
    cmdPrint[tabStrength] = form::Button(QStringLiteral("cmdPrint3"), QStringLiteral("&Print"));
    cmdExport[tabStrength] = form::Button(QStringLiteral("cmdExport3"), QStringLiteral("E&xport"));
    auto* top = new QHBoxLayout;
    top->addWidget(datePair(page, &txtStrStartDate, &txtStrEndDate, QStringLiteral("Str"), false));
    top->addSpacing(12);
    top->addWidget(form::Caption(QStringLiteral("&Workout"), cboStrength));
    top->addWidget(cboStrength);
    top->addStretch(1);
    top->addWidget(cmdPrint[tabStrength]);
    top->addWidget(cmdExport[tabStrength]);
    SSStrength = MakeGrid(page, QStringLiteral("SSStrength"), QStringLiteral("Strength Training"));
    auto* v = new QVBoxLayout(page);
    v->addLayout(top);
    v->addWidget(SSStrength, 1);
    return page;
}

QWidget* frmDailySummary::buildWellnessTab()
{
    auto* page = new QWidget(this);
    cmdPrint[tabWellness] = form::Button(QStringLiteral("cmdPrint4"), QStringLiteral("&Print"));
    cmdExport[tabWellness] = form::Button(QStringLiteral("cmdExport4"), QStringLiteral("E&xport"));
    auto* top = new QHBoxLayout;
    top->addWidget(datePair(page, &txtWelStartDate, &txtWelEndDate, QStringLiteral("Wel"), false));
    top->addStretch(1);
    top->addWidget(cmdPrint[tabWellness]);
    top->addWidget(cmdExport[tabWellness]);

    static const char* const kOpt[3] = {"&Yes", "&No", "Show &All"};
    static const char* const kAcc[3] = {"Y&es", "N&o", "Show A&ll"};
    auto options = [&](QWidget* parent, const QString& title, const QString& name, QRadioButton* (&opt)[3], const char* const (&captions)[3]) {
        auto* box = form::Named(new QGroupBox(title, parent), name + QStringLiteral("Box"));
        auto* h = new QHBoxLayout(box);
        for (int i = 0; i < 3; ++i) {
            opt[i] = form::Named(new QRadioButton(QString::fromLatin1(captions[i]), box), name + QString::number(i));
            h->addWidget(opt[i]);
        }
        opt[2]->setChecked(true);
        return box;
    };
    auto* feel = new QWidget(page);
    auto* fh = new QHBoxLayout;
    fh->addWidget(options(feel, QStringLiteral("Feel Well?"), QStringLiteral("optFeelWell"), optFeelWell, kOpt));
    fh->addWidget(options(feel, QStringLiteral("Accomplished Goals?"), QStringLiteral("optAccomp"), optAccomp, kAcc));
    fh->addStretch(1);
    SSWellness[0] = MakeGrid(feel, QStringLiteral("SSWellness0"), QStringLiteral("Feel Well"));
    auto* fv = new QVBoxLayout(feel);
    fv->addLayout(fh);
    fv->addWidget(SSWellness[0], 1);

    auto listPage = [&](QComboBox** combo, const QString& comboName, const QString& caption, int index, const QString& accessible) {
        auto* w = new QWidget(page);
        *combo = MakeCombo(w, comboName);
        auto* h = new QHBoxLayout;
        h->addWidget(form::Caption(caption, *combo));
        h->addWidget(*combo);
        h->addStretch(1);
        SSWellness[index] = MakeGrid(w, QStringLiteral("SSWellness%1").arg(index), accessible);
        auto* v = new QVBoxLayout(w);
        v->addLayout(h);
        v->addWidget(SSWellness[index], 1);
        return w;
    };
    WellnessPages = form::Named(new QTabWidget(page), QStringLiteral("WellnessPages"));
    WellnessPages->addTab(feel, QStringLiteral("Feel Well"));
    WellnessPages->addTab(listPage(&cboReadings, QStringLiteral("cboReadings"), QStringLiteral("&Reading"), 1, QStringLiteral("Readings")),
                          QStringLiteral("Readings"));
    WellnessPages->addTab(listPage(&cboMedication, QStringLiteral("cboMedication"), QStringLiteral("Medica&tion"), 2,
                                   QStringLiteral("Medication")),
                          QStringLiteral("Medication"));
    theme::ApplyToTabs(WellnessPages);
    auto* v = new QVBoxLayout(page);
    v->addLayout(top);
    v->addWidget(WellnessPages, 1);
    return page;
}

void frmDailySummary::connectHandlers()
{
    connect(txtStartDate, &QDateEdit::dateChanged, this, [this] { startDateChanged(); });
    connect(txtEndDate, &QDateEdit::dateChanged, this, [this] { endDateChanged(); });
    connect(cboNutrition, &QComboBox::currentIndexChanged, this, [this] { nutritionFilterChanged(); });
    connect(cboExerciseSports, &QComboBox::currentIndexChanged, this, [this] { exerciseFilterChanged(); });
    connect(cboStrength, &QComboBox::currentIndexChanged, this, [this] { strengthFilterChanged(); });
    connect(cboReadings, &QComboBox::currentIndexChanged, this, [this] { readingsFilterChanged(); });
    connect(cboMedication, &QComboBox::currentIndexChanged, this, [this] { medicationFilterChanged(); });
    for (QRadioButton* o : optFeelWell)
        connect(o, &QRadioButton::toggled, this, [this](bool on) { if (on) feelWellFilterChanged(); });
    for (QRadioButton* o : optAccomp)
        connect(o, &QRadioButton::toggled, this, [this](bool on) { if (on) feelWellFilterChanged(); });
    connect(cmdFields[0], &QPushButton::clicked, this, [this] { OpenFields(frmFields::pageSummary); });
    connect(cmdFields[1], &QPushButton::clicked, this, [this] { OpenFields(frmFields::pageNutrients); });
    for (int t = 0; t < 5; ++t) {
        connect(cmdPrint[t], &QPushButton::clicked, this, [this, t] { PrintTab(t); });
        connect(cmdExport[t], &QPushButton::clicked, this, [this, t] { ExportTable(t); });
    }
}

Range frmDailySummary::CurrentRange() const
{
    Range r;
    r.start = txtStartDate->date();
    r.end = txtEndDate->date();
    r.days = summary::tdays(r.start, r.end);
    return r;
}

// ---- the range ----

void frmDailySummary::startDateChanged()
{
    if (m_loadingScreen) return;
    const QDate start = txtStartDate->date(), end = txtEndDate->date();
    // Only the start date warns of a long range; the end date never asks.
    if (start.daysTo(end) > 31 &&
        MsgBox(QStringLiteral("Warning, this date range may take a while to calculate, do you wish to continue?"),
               vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;
    if (end < start) {
        MsgBox(QStringLiteral("Please select a start date before the end date"), vbInformation, QStringLiteral("Message"));
        return;
    }
    {
        WaitCursor wait;
        DateChange();
    }
    followDates();
}

void frmDailySummary::endDateChanged()
{
    if (m_loadingScreen || m_silenceEnd) return;
    if (txtEndDate->date() < txtStartDate->date()) {
        MsgBox(QStringLiteral("Please select an end date after the start date"), vbInformation, QStringLiteral("Message"));
        return;
    }
    DateChange();
    followDates();
}

void frmDailySummary::followDates()
{
    for (QDateEdit* d : {txtNutStartDate, txtExeStartDate, txtStrStartDate, txtWelStartDate}) d->setDate(txtStartDate->date());
    for (QDateEdit* d : {txtNutEndDate, txtExeEndDate, txtStrEndDate, txtWelEndDate}) d->setDate(txtEndDate->date());
}

void frmDailySummary::cutBack()
{
    SS1->SetMaxRows(3);
    for (Grid* g : {SSNutrition, SSNutrients, SSExercise, SSStrength}) g->SetMaxRows(4);
    SSWellness[0]->SetMaxRows(3);
    SSWellness[1]->SetMaxRows(4);
    SSWellness[2]->SetMaxRows(4);
}

void frmDailySummary::DateChange()
{
    const QDate start = txtStartDate->date(), end = txtEndDate->date();
    if (SqlDate(start) == SqlDate(end))
        lblDateRange->setText(regional::FormatDate(start, QStringLiteral("Long Date")));
    else
        lblDateRange->setText(regional::FormatDate(start, QStringLiteral("MMM DD, YYYY")) + QStringLiteral("  to  ") +
                              regional::FormatDate(end, QStringLiteral("MMM DD, YYYY")));
    cutBack();
    LoadTotals();
}

void frmDailySummary::LoadTotals()
{
    QScopedValueRollback<bool> computing(m_computing, true);
    WaitCursor wait;
    const Range range = CurrentRange();
    Guard([&] {
        nutritionInfo(SSNutrition, nullptr, cboNutrition->currentText(), range, m_balance);
        summary::SetCaloriesEaten(m_strip, m_balance.caloriesEaten);
    });
    nutrientsDue();
    m_balance.caloriesBurned = 0;
    summaryTable();
    Guard([&] { exerciseSports(SSExercise, cboExerciseSports->currentText(), range, m_balance); });
    Guard([&] {
        strengthTraining(SSStrength, cboStrength->currentText(), range, m_balance);
        writeStrip();
    });
    Guard([&] { wellnessFeelWell(SSWellness[0], yesNo(optFeelWell), yesNo(optAccomp), range); });
    Guard([&] { wellnessReadings(SSWellness[1], cboReadings->currentText(), range); });
    Guard([&] { wellnessMedication(SSWellness[2], cboMedication->currentText(), range); });
    summary::ApplyUnit(m_strip, CurrentUserID, &m_messages);
    stripToGrid();
    showMessages();
}

// ---- the Summary tab ----

void frmDailySummary::SS1Set()
{
    m_columns = summary::ShownColumns();
    m_groups = summary::GroupHeadings(m_columns);
    SS1->SetMaxCols(int(m_columns.size()));
    QStringList captions;
    for (const auto& c : m_columns) captions << c.name;
    SS1->SetColumnHeaders(captions);
    SS1->SetMaxRows(3);
    SS1->SetText(1, 0, QStringLiteral("Total"));
    SS1->SetText(2, 0, QStringLiteral("Average"));
    SS1->SetText(3, 0, QString());
    SS1Groups->clearSpans();
    SS1Groups->setColumnCount(int(m_columns.size()));
    int first = 0;
    for (int c = 0; c < m_columns.size(); ++c) {
        SS1->setColumnWidth(c, m_columns[c].width / kTwipsPerPixel);
        SS1Groups->setColumnWidth(c, m_columns[c].width / kTwipsPerPixel);
        if (c > 0 && m_groups[c] != m_groups[c - 1]) first = c;
        if (c == m_columns.size() - 1 || m_groups[c + 1] != m_groups[c]) {
            auto* item = new QTableWidgetItem(m_groups[c]);
            item->setTextAlignment(Qt::AlignCenter);
            QFont f = item->font();
            f.setBold(true);
            item->setFont(f);
            SS1Groups->setItem(0, first, item);
            if (c > first) SS1Groups->setSpan(0, first, 1, c - first + 1);
        }
    }
}

void frmDailySummary::summaryTable()
{
    WaitCursor wait;
    summary::DayTable table;
    Guard([&] {
        const Range range = CurrentRange();
        // tmpDate is written day by day: one transaction, so no statement waits for the disk.
        StoreTransaction transaction(UserConn);
        table = summary::summaryTable(CurrentUserID, range.start, range.end, &m_messages);
        transaction.Commit();
    });
    showMessages();
    SS1->setUpdatesEnabled(false);
    SS1->BeginUpdate();
    SS1->SetMaxRows(3 + int(table.rows.size()));
    for (int c = 1; c <= SS1->MaxCols(); ++c) {
        SS1->SetText(1, c, c - 1 < table.total.size() ? table.total[c - 1] : QString());
        SS1->SetText(2, c, c - 1 < table.average.size() ? table.average[c - 1] : QString());
    }
    for (int r = 0; r < table.rows.size(); ++r) {
        const QStringList& cells = table.rows[r];
        SS1->SetText(4 + r, 0, QString());
        for (int c = 0; c < cells.size() && c < SS1->MaxCols(); ++c) SS1->SetText(4 + r, c + 1, cells[c]);
    }
    SS1->EndUpdate();
    SS1->setUpdatesEnabled(true);
}

void frmDailySummary::SS2Set()
{
    summary::SS2Set(m_strip);
    SS2->SetMaxCols(7);
    SS2->SetMaxRows(2);
    QStringList headings;
    for (const QString& h : m_strip.heading) headings << h;
    SS2->SetColumnHeaders(headings);
    SS2->SetText(1, 0, QStringLiteral("Total"));
    SS2->SetText(2, 0, QStringLiteral("Average"));
    SS2->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    SS2->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter | Qt::Alignment(Qt::TextWordWrap));
    SS2->horizontalHeader()->setMinimumHeight(2 * SS2->fontMetrics().height() + 8);
    SS2->setFixedHeight(SS2->horizontalHeader()->minimumHeight() + 2 * SS2->verticalHeader()->defaultSectionSize() + 6);
}

void frmDailySummary::writeStrip()
{
    const Range range = CurrentRange();
    double total = 0, average = 0;
    summary::BmrSums(range.start, range.end, &total, &average, &m_messages);
    summary::FillStrip(m_strip, m_balance, range.days, total, average);
    stripToGrid();
}

void frmDailySummary::stripToGrid()
{
    for (int c = 0; c < 7; ++c) {
        SS2->SetText(0, c + 1, m_strip.heading[c]);
        SS2->SetText(1, c + 1, m_strip.cell[0][c]);
        SS2->SetText(2, c + 1, m_strip.cell[1][c]);
    }
}

void frmDailySummary::showMessages()
{
    const summary::Messages messages = m_messages;
    m_messages.clear();
    for (const summary::Message& m : messages) {
        if (m.error)
            MsgBox(m.text, vbCritical, QStringLiteral("Error"));
        else
            MsgBox(m.text);
    }
}

// ---- the filters ----

YesNoFilter frmDailySummary::yesNo(QRadioButton* const (&opt)[3]) const
{
    if (opt[0]->isChecked()) return YesNoFilter::Yes;
    if (opt[1]->isChecked()) return YesNoFilter::No;
    return YesNoFilter::All;
}

void frmDailySummary::nutritionFilterChanged()
{
    if (m_loadingScreen || m_computing) return;
    Guard([this] {
        nutritionInfo(SSNutrition, nullptr, cboNutrition->currentText(), CurrentRange(), m_balance);
        // The meal reaches the strip's intake, and stays there until the next range.
        summary::SetCaloriesEaten(m_strip, m_balance.caloriesEaten);
        stripToGrid();
    });
    nutrientsDue();
}

void frmDailySummary::exerciseFilterChanged()
{
    if (m_loadingScreen || m_computing) return;
    Guard([this] { exerciseSports(SSExercise, cboExerciseSports->currentText(), CurrentRange(), m_balance); });
}

void frmDailySummary::strengthFilterChanged()
{
    if (m_loadingScreen || m_computing) return;
    // The strip is written again with the calories and hours as they stand, added to once more.
    Guard([this] {
        strengthTraining(SSStrength, cboStrength->currentText(), CurrentRange(), m_balance);
        writeStrip();
    });
    showMessages();
}

void frmDailySummary::feelWellFilterChanged()
{
    if (m_loadingScreen || m_computing) return;
    Guard([this] { wellnessFeelWell(SSWellness[0], yesNo(optFeelWell), yesNo(optAccomp), CurrentRange()); });
}

void frmDailySummary::readingsFilterChanged()
{
    if (m_loadingScreen || m_computing) return;
    Guard([this] { wellnessReadings(SSWellness[1], cboReadings->currentText(), CurrentRange()); });
}

void frmDailySummary::medicationFilterChanged()
{
    if (m_loadingScreen || m_computing) return;
    Guard([this] { wellnessMedication(SSWellness[2], cboMedication->currentText(), CurrentRange()); });
}

// ---- fields, print and export ----

void frmDailySummary::OpenFields(int page)
{
    frmFields fields(this, frmFields::Page(page));
    if (ShowModal(&fields) != QDialog::Accepted) return;
    QScopedValueRollback<bool> computing(m_computing, true);
    Guard([this] { SS1Set(); });
    summaryTable();
    Guard([this] {
        SSNutrientsSet(SSNutrients);
        nutritionInfo(SSNutrition, nullptr, cboNutrition->currentText(), CurrentRange(), m_balance);
        summary::SetCaloriesEaten(m_strip, m_balance.caloriesEaten);
        stripToGrid();
    });
    nutrientsDue();
}

void frmDailySummary::nutrientsDue()
{
    m_nutrientsDue = true;
    if (TotalsTab->currentIndex() == tabNutrition && NutritionPages->currentIndex() == 1)
        fillNutrients();
}

void frmDailySummary::fillNutrients()
{
    if (!m_nutrientsDue || TotalsTab->currentIndex() != tabNutrition || NutritionPages->currentIndex() != 1)
        return;
    m_nutrientsDue = false;
    // The same rows as the Nutrition page; the strip keeps what that page left.
    Balance unused;
    Guard([&] { nutritionInfo(nullptr, SSNutrients, cboNutrition->currentText(), CurrentRange(), unused); });
}

Grid* frmDailySummary::GridInFront(int tab) const
{
    switch (tab) {
    case tabSummary: return SS1;
    case tabNutrition: return NutritionPages->currentIndex() == 1 ? SSNutrients : SSNutrition;
    case tabExercise: return SSExercise;
    case tabStrength: return SSStrength;
    default: return SSWellness[std::clamp(WellnessPages->currentIndex(), 0, 2)];
    }
}

void frmDailySummary::PrintTab(int tab)
{
    const Range range = CurrentRange();
    auto chosen = [](QComboBox* c, const QString& all) { return c->currentIndex() <= 0 ? all : c->currentText(); };
    auto yesNoText = [this](QRadioButton* const (&opt)[3]) {
        const YesNoFilter f = yesNo(opt);
        return f == YesNoFilter::Yes ? QStringLiteral("Yes") : f == YesNoFilter::No ? QStringLiteral("No") : QStringLiteral("All");
    };
    QString file;
    const bool ok = Guard([&] {
        switch (tab) {
        case tabSummary: file = PrintSummary(SS1, m_groups, SS2, range); break;
        case tabNutrition:
            if (NutritionPages->currentIndex() == 1)
                file = PrintNutrients(SSNutrients, chosen(cboNutrition, QStringLiteral("All meals")), range);
            else
                file = PrintNutrition(SSNutrition, chosen(cboNutrition, QStringLiteral("All meals")), range);
            break;
        case tabExercise: file = PrintExercise(SSExercise, chosen(cboExerciseSports, QStringLiteral("All exercise/sports")), range); break;
        case tabStrength: file = PrintStrength(SSStrength, chosen(cboStrength, QStringLiteral("All Strength Training")), range); break;
        default: {
            const int page = std::clamp(WellnessPages->currentIndex(), 0, 2);
            QString description;
            if (page == 0)
                description = QStringLiteral("Feel Well: ") + yesNoText(optFeelWell) + QLatin1Char('\n') +
                              QStringLiteral("Accomplished Goals: ") + yesNoText(optAccomp);
            else if (page == 1)
                description = chosen(cboReadings, QStringLiteral("All Readings"));
            else
                description = chosen(cboMedication, QStringLiteral("All Medication"));
            file = PrintWellness(SSWellness[page], page, description, range);
        }
        }
    });
    if (ok && !file.isEmpty()) ShowReport(file);
}

void frmDailySummary::ExportTable(int tab)
{
    const Range range = CurrentRange();
    QString name = CurrentUserName;
    name.remove(QLatin1Char(','));
    FileDialogOptions options;
    options.save = true;
    options.filter = QStringLiteral("Text file|*.txt");
    options.defaultExt = QStringLiteral("txt");
    options.folder = ProgramFolder();
    options.fileName = ProgramFile(name + QLatin1Char(' ') + range.start.toString(QStringLiteral("yyyyMMdd")) + QStringLiteral(" to ") +
                                   range.end.toString(QStringLiteral("yyyyMMdd")) + QStringLiteral(".txt"));
    const QString path = FileDialog(options);
    if (path.isEmpty()) return;
    // A failing export is told by the log; the message follows in any case.
    GridInFront(tab)->ExportToText(path, ProgramFile(QStringLiteral("export.log")), QStringLiteral("\t"), QStringLiteral("\r"));
    MsgBox(QStringLiteral("Export Complete."), vbInformation, QStringLiteral("Message"));
}
