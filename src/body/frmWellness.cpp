#include "body/frmWellness.h"

#include "core/frmWebView.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Form.h"
#include "core/widgets/ListFill.h"
#include "core/widgets/Theme.h"
#include "reports/pages/wellnesspage.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTimeEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/QChart>

#include <memory>

namespace {

QString Msg() { return QStringLiteral("Message"); }
QString Resting() { return QStringLiteral("Resting Heart Rate - bpm"); }

QDate DateOf(const QVariant& v)
{
    if (v.metaType().id() == QMetaType::QDate)
        return v.toDate();
    if (v.metaType().id() == QMetaType::QDateTime)
        return v.toDateTime().date();
    return regional::ParseDate(v.toString());
}

// A day's readings (0) or medications (1) in the order the lists show them.
QString LinesSql(int type, const QString& date)
{
    return QStringLiteral("select * from wellness_readings where User_ID=") + CurrentUserID + QStringLiteral(" and date=#") +
           date + QStringLiteral("# and type=") + QString::number(type) + QStringLiteral(" order by reading, time");
}

QTimeEdit* TimeEntry(const QString& name, QWidget* parent)
{
    auto* t = new QTimeEdit(parent);
    t->setObjectName(name);
    // One fixed form whatever the regional settings, so the text read back from the store
    // compares equal with the entry's own.
    t->setLocale(QLocale::c());
    t->setDisplayFormat(QStringLiteral("h:mm AP"));
    return t;
}

QTreeWidget* LinesList(const QString& name, const QStringList& headers, QWidget* parent)
{
    auto* l = new QTreeWidget(parent);
    l->setObjectName(name);
    l->setRootIsDecorated(false);
    l->setHeaderLabels(headers);
    l->setSelectionMode(QAbstractItemView::SingleSelection);
    l->setTabKeyNavigation(false);
    l->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    l->header()->setStretchLastSection(false);
    l->setColumnWidth(1, 90);
    l->setColumnWidth(2, 90);
    l->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    l->header()->setSectionResizeMode(2, QHeaderView::Fixed);
    return l;
}

// A frame of the day's timed lines: its three fields (the first spanning the row), the Add,
// Remove and Clear buttons under them, and the list of lines below.
void LayOutLines(QGroupBox* frame, const QList<QPair<QString, QWidget*>>& fields, const QList<QPushButton*>& buttons,
                 QWidget* list)
{
    auto* grid = new QGridLayout(frame);
    for (int i = 0; i < fields.size(); ++i)
        form::AddRow(grid, i, fields[i].first, fields[i].second, 0, i == 0 ? 3 : 1);
    auto* row = new QHBoxLayout;
    for (QPushButton* b : buttons)
        row->addWidget(b);
    row->addStretch(1);
    grid->addLayout(row, int(fields.size()), 0, 1, 4);
    grid->addWidget(list, int(fields.size()) + 1, 0, 1, 4);
    grid->setColumnStretch(3, 1);
}

void SetLine(QTreeWidgetItem* item, const QString& name, const QString& time, const QString& amount)
{
    item->setText(0, name);
    item->setText(1, time);
    item->setText(2, amount);
}

QList<reportpages::WellnessLine> LinesOf(const QTreeWidget* list)
{
    QList<reportpages::WellnessLine> lines;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = list->topLevelItem(i);
        lines.append({item->text(0), item->text(1), item->text(2)});
    }
    return lines;
}

}  // namespace

const QStringList& frmWellness::ReadingNames()
{
    static const QStringList names = {
        QStringLiteral("Glucose - mmol/l"),          QStringLiteral("Glucose - ml/dl"),
        QStringLiteral("Body Temperature - Celcius"), QStringLiteral("Body Temperature - Farenheit"),
        QStringLiteral("Blood Pressure - sys/dias"), QStringLiteral("Blood Pressure - systolic"),
        QStringLiteral("Blood Pressure - diastolic"), QStringLiteral("Cholesterol HDL - mg/dl"),
        QStringLiteral("Cholesterol LDL - mg/dl"),   QStringLiteral("Cholesterol Total - mg/dl"),
        QStringLiteral("Resting Heart Rate - bpm"),  QStringLiteral("Weight - kg"),
        QStringLiteral("Weight - lbs"),              QStringLiteral("Triglycerides - mg/dl"),
        QStringLiteral("Uric Acid"),                 QStringLiteral("PSA"),
        QStringLiteral("Testosterone")};
    return names;
}

QString frmWellness::TimeText(const QTime& t) { return QLocale::c().toString(t, QStringLiteral("h:mm AP")); }

frmWellness::frmWellness(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmWellness"));
    setWindowTitle(QStringLiteral("Wellness"));
    auto loading = std::make_unique<QScopedValueRollback<bool>>(m_loading, true);

    Tab1 = new QTabWidget(this);
    Tab1->setObjectName(QStringLiteral("Tab1"));
    Tab1->addTab(buildWellnessTab(), QStringLiteral("Wellness"));
    Tab1->addTab(buildHistoryTab(), QStringLiteral("History"));
    theme::ApplyToTabs(Tab1);

    cmdPrint = form::Button(QStringLiteral("cmdPrint"), QStringLiteral("&Print"), QStringLiteral("Print this day's record"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("Close"));
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(cmdPrint);
    bottom->addStretch(1);
    bottom->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Tab1, 1);
    layout->addLayout(bottom);

    QMetaObject::connectSlotsByName(this);
    for (auto* e : {txtFeelWell, txtAccomplish, txtSleep, TxtWakeup})
        connect(e, &QLineEdit::textChanged, this, [this] { journalChanged(); });
    for (auto* g : {m_feelWell, m_accomplish})
        connect(g, &QButtonGroup::buttonToggled, this, [this] { journalChanged(); });
    // The history draws itself when shown.
    connect(Tab1, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_loading && index == 1) Guard([this] { Graph(); });
    });
    connect(cboGraph, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_loading) Guard([this] { Graph(); });
    });

    const QDate day = CalendarQDate();
    cboDate->setDate(day);
    txtStartDate->setDate(QDate::currentDate().addMonths(-1));
    txtEndDate->setDate(QDate::currentDate());
    loading.reset();
    Guard([this, day] { LoadWellness(day); });
    for (auto* b : findChildren<QPushButton*>())
        b->setAutoDefault(false);
    resize(900, 640);
    CenterForm(this);
}

QWidget* frmWellness::buildWellnessTab()
{
    auto* page = new QWidget(this);

    cboDate = form::LongDate(QStringLiteral("cboDate"), page);
    auto* dateRow = new QHBoxLayout;
    dateRow->addWidget(form::Caption(QStringLiteral("Da&y"), cboDate));
    dateRow->addWidget(cboDate);
    dateRow->addStretch(1);

    // The journal: two questions with their reasons, sleep and wake-up.
    auto question = [&](const QString& title, QRadioButton** opt, QButtonGroup*& group, const QString& optName,
                        QLineEdit*& reason, const QString& reasonName, const QString& reasonCaption) {
        auto* box = new QGroupBox(title, page);
        opt[0] = form::Named(new QRadioButton(QStringLiteral("Yes"), box), optName + QStringLiteral("_0"));
        opt[1] = form::Named(new QRadioButton(QStringLiteral("No"), box), optName + QStringLiteral("_1"));
        group = new QButtonGroup(box);
        group->addButton(opt[0], 0);
        group->addButton(opt[1], 1);
        reason = form::Edit(reasonName, 255);
        auto* g = new QGridLayout(box);
        g->addWidget(opt[0], 0, 0);
        g->addWidget(opt[1], 0, 1);
        g->setColumnStretch(2, 1);
        form::AddRow(g, 1, reasonCaption, reason, 0, 3);
        return box;
    };
    QGroupBox* fraFeel = question(QStringLiteral("Did you &feel well today?"), opt1, m_feelWell, QStringLiteral("opt1"),
                                  txtFeelWell, QStringLiteral("txtFeelWell"), QStringLiteral("&Reason"));
    QGroupBox* fraGoals = question(QStringLiteral("Did you accomplish your goals?"), opt2, m_accomplish,
                                   QStringLiteral("opt2"), txtAccomplish, QStringLiteral("txtAccomplish"),
                                   QStringLiteral("If no, &why not?"));
    // The radio buttons of a question are reached from its reason: Shift+Tab, then the arrows.
    opt2[0]->setAccessibleName(QStringLiteral("Accomplished the goals: Yes"));
    opt2[1]->setAccessibleName(QStringLiteral("Accomplished the goals: No"));
    opt1[0]->setAccessibleName(QStringLiteral("Felt well: Yes"));
    opt1[1]->setAccessibleName(QStringLiteral("Felt well: No"));

    txtSleep = form::Edit(QStringLiteral("txtSleep"), 10, 80, QStringLiteral("Hours of sleep, such as 7.5"));
    TxtWakeup = form::Edit(QStringLiteral("TxtWakeup"), 50, 120, QStringLiteral("The time you woke up"));
    auto* restRow = new QHBoxLayout;
    restRow->addWidget(form::Caption(QStringLiteral("&Hours of Sleep"), txtSleep));
    restRow->addWidget(txtSleep);
    restRow->addSpacing(20);
    restRow->addWidget(form::Caption(QStringLiteral("Wa&keup Time"), TxtWakeup));
    restRow->addWidget(TxtWakeup);
    restRow->addStretch(1);

    cmdLastWellness = form::Button(QStringLiteral("cmdLastWellness"), QStringLiteral("Get Last Wellness Record"),
                                   QStringLiteral("Start this day from the last record"));
    cmdNew = form::Button(QStringLiteral("cmdNew"), QStringLiteral("&Clear"));
    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"));
    cmdDelete = form::Button(QStringLiteral("cmdDelete"), QStringLiteral("&Delete"),
                             QStringLiteral("Delete this day's record; its readings stay"));
    auto* commands = new QHBoxLayout;
    commands->addWidget(cmdLastWellness);
    commands->addStretch(1);
    commands->addWidget(cmdNew);
    commands->addWidget(cmdSave);
    commands->addWidget(cmdDelete);

    // Readings of the day.
    auto* fraReadings = new QGroupBox(QStringLiteral("Readings"), page);
    cboReading = form::Named(new QComboBox(fraReadings), QStringLiteral("cboReading"));
    cboReading->setEditable(true);
    cboReading->addItems(ReadingNames());
    cboReading->setCurrentIndex(-1);
    cboReading->setMinimumContentsLength(22);
    txtTime = TimeEntry(QStringLiteral("txtTime"), fraReadings);
    txtReading = form::Edit(QStringLiteral("txtReading"), 20, 90);
    cmdAddReading = form::Button(QStringLiteral("cmdAddReading"), QStringLiteral("&Add"),
                                 QStringLiteral("Add the reading, or replace the selected one"));
    cmdDelReading = form::Button(QStringLiteral("cmdDelReading"), QStringLiteral("Remo&ve"),
                                 QStringLiteral("Remove the selected reading"));
    cmdClearReading = form::Button(QStringLiteral("cmdClearReading"), QStringLiteral("C&lear"));
    lstReadings = LinesList(QStringLiteral("lstReadings"),
                            {QStringLiteral("Reading"), QStringLiteral("Time"), QStringLiteral("Value")}, fraReadings);
    lstReadings->setAccessibleName(QStringLiteral("Readings of the day"));
    LayOutLines(fraReadings, {{QStringLiteral("R&eading"), cboReading}, {QStringLiteral("&Time"), txtTime},
                              {QStringLiteral("Val&ue"), txtReading}},
                {cmdAddReading, cmdDelReading, cmdClearReading}, lstReadings);

    // Medications of the day.
    auto* fraMeds = new QGroupBox(QStringLiteral("Medications"), page);
    txtMed = form::Edit(QStringLiteral("txtMed"), 50);
    txtMedTime = TimeEntry(QStringLiteral("txtMedTime"), fraMeds);
    txtDose = form::Edit(QStringLiteral("txtDose"), 50, 120);
    cmdAddMed = form::Button(QStringLiteral("cmdAddMed"), QStringLiteral("Add &Medication"),
                             QStringLiteral("Add the medication, or replace the selected one"));
    cmdDelMed = form::Button(QStringLiteral("cmdDelMed"), QStringLiteral("Rem&ove"),
                             QStringLiteral("Remove the selected medication"));
    cmdClearmed = form::Button(QStringLiteral("cmdClearmed"), QStringLiteral("C&lear"));
    lstMeds = LinesList(QStringLiteral("lstMeds"),
                        {QStringLiteral("Medication"), QStringLiteral("Time"), QStringLiteral("Dosage")}, fraMeds);
    lstMeds->setAccessibleName(QStringLiteral("Medications of the day"));
    LayOutLines(fraMeds, {{QStringLiteral("Medicatio&n"), txtMed}, {QStringLiteral("T&ime"), txtMedTime},
                          {QStringLiteral("Dosa&ge"), txtDose}},
                {cmdAddMed, cmdDelMed, cmdClearmed}, lstMeds);

    auto* questions = new QHBoxLayout;
    questions->addWidget(fraFeel, 1);
    questions->addWidget(fraGoals, 1);
    auto* lists = new QHBoxLayout;
    lists->addWidget(fraReadings, 1);
    lists->addWidget(fraMeds, 1);

    auto* v = new QVBoxLayout(page);
    v->addLayout(dateRow);
    v->addLayout(questions);
    v->addLayout(restRow);
    v->addLayout(commands);
    v->addLayout(lists, 1);

    // Tab goes through the journal, then the readings, then the medications.
    QWidget::setTabOrder(cboDate, opt1[0]);
    QWidget::setTabOrder(opt1[0], opt1[1]);
    QWidget::setTabOrder(opt1[1], txtFeelWell);
    QWidget::setTabOrder(txtFeelWell, opt2[0]);
    QWidget::setTabOrder(opt2[0], opt2[1]);
    QWidget::setTabOrder(opt2[1], txtAccomplish);
    QWidget::setTabOrder(txtAccomplish, txtSleep);
    QWidget::setTabOrder(txtSleep, TxtWakeup);
    QWidget::setTabOrder(TxtWakeup, cmdLastWellness);
    QWidget::setTabOrder(cmdLastWellness, cmdNew);
    QWidget::setTabOrder(cmdNew, cmdSave);
    QWidget::setTabOrder(cmdSave, cmdDelete);
    QWidget::setTabOrder(cmdDelete, cboReading);
    QWidget::setTabOrder(cboReading, txtTime);
    QWidget::setTabOrder(txtTime, txtReading);
    QWidget::setTabOrder(txtReading, cmdAddReading);
    QWidget::setTabOrder(cmdAddReading, cmdDelReading);
    QWidget::setTabOrder(cmdDelReading, cmdClearReading);
    QWidget::setTabOrder(cmdClearReading, lstReadings);
    QWidget::setTabOrder(lstReadings, txtMed);
    QWidget::setTabOrder(txtMed, txtMedTime);
    QWidget::setTabOrder(txtMedTime, txtDose);
    QWidget::setTabOrder(txtDose, cmdAddMed);
    QWidget::setTabOrder(cmdAddMed, cmdDelMed);
    QWidget::setTabOrder(cmdDelMed, cmdClearmed);
    QWidget::setTabOrder(cmdClearmed, lstMeds);
    return page;
}

QWidget* frmWellness::buildHistoryTab()
{
    auto* page = new QWidget(this);
    cboGraph = form::Named(new QComboBox(page), QStringLiteral("cboGraph"));
    cboGraph->addItem(QStringLiteral("Hours of Sleep"));
    cboGraph->addItems(ReadingNames());
    txtStartDate = form::Named(new QDateEdit(page), QStringLiteral("txtStartDate"));
    txtStartDate->setCalendarPopup(true);
    txtEndDate = form::Named(new QDateEdit(page), QStringLiteral("txtEndDate"));
    txtEndDate->setCalendarPopup(true);
    cmdGraph = form::Button(QStringLiteral("cmdGraph"), QStringLiteral("&Refresh"));
    cmdPrintGraph = form::Button(QStringLiteral("cmdPrintGraph"), QStringLiteral("Print &Graph"));
    Chart1 = form::Named(new Chart(page), QStringLiteral("Chart1"));
    Chart1->setAccessibleName(QStringLiteral("History graph"));
    Chart1->SetStyle(Chart::Line);
    Chart1->SetLegendVisible(false);

    auto* row = new QHBoxLayout;
    auto caption = [](const QString& text, QWidget* buddy) {
        QLabel* l = form::Caption(text, buddy);
        l->setMinimumWidth(l->sizeHint().width() + 2);   // a short caption is never squeezed
        return l;
    };
    row->addWidget(caption(QStringLiteral("&Item"), cboGraph));
    row->addWidget(cboGraph, 1);
    row->addWidget(caption(QStringLiteral("&From"), txtStartDate));
    row->addWidget(txtStartDate);
    row->addWidget(caption(QStringLiteral("&To"), txtEndDate));
    row->addWidget(txtEndDate);
    row->addWidget(cmdGraph);
    row->addWidget(cmdPrintGraph);
    auto* v = new QVBoxLayout(page);
    v->addLayout(row);
    v->addWidget(Chart1, 1);
    return page;
}

QString frmWellness::GetLocalDate() const { return cboDate->date().toString(QStringLiteral("yyyy-MM-dd")); }

void frmWellness::clearWellness()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    // Neither answer chosen: the group lets both go only while not exclusive.
    for (auto* g : {m_feelWell, m_accomplish}) {
        g->setExclusive(false);
        for (auto* b : g->buttons())
            b->setChecked(false);
        g->setExclusive(true);
    }
    txtFeelWell->clear();
    txtAccomplish->clear();
    txtSleep->clear();
    TxtWakeup->clear();
    lstReadings->clear();
    lstMeds->clear();
    clearReadingEntry();
    clearMedEntry();
}

void frmWellness::clearReadingEntry()
{
    cboReading->setCurrentIndex(-1);
    cboReading->setEditText(QString());
    txtTime->setTime(QTime(0, 0));
    txtReading->clear();
    lstReadings->clearSelection();
    lstReadings->setCurrentItem(nullptr);
}

void frmWellness::clearMedEntry()
{
    txtMed->clear();
    txtMedTime->setTime(QTime(0, 0));
    txtDose->clear();
    lstMeds->clearSelection();
    lstMeds->setCurrentItem(nullptr);
}

void frmWellness::loadLines(QTreeWidget* list, int type, const QDate& date)
{
    list->clear();
    SqlText = LinesSql(type, date.toString(QStringLiteral("yyyy-MM-dd")));
    const QString amount = type == 0 ? QStringLiteral("Value") : QStringLiteral("dose");
    listfill::FillList(list, UserRS, SqlText, [&amount](QTreeWidget* l, Recordset& rs) {
        SetLine(new QTreeWidgetItem(l), Str(rs.Field(QStringLiteral("Reading"))), Str(rs.Field(QStringLiteral("time"))),
                Str(rs.Field(amount)));
    });
}

void frmWellness::LoadWellness(const QDate& date)
{
    QScopedValueRollback<bool> loading(m_loading, true);
    clearWellness();
    SqlText = QStringLiteral("select * from Wellness where User_ID='") + CurrentUserID + QStringLiteral("' and date=#") +
              date.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral("#");
    const bool found = FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        opt1[Val(rs.Field(QStringLiteral("FeelWell"))) != 0 ? 0 : 1]->setChecked(true);
        opt2[Val(rs.Field(QStringLiteral("Accomplish"))) != 0 ? 0 : 1]->setChecked(true);
        txtFeelWell->setText(Str(rs.Field(QStringLiteral("txtFeelWell"))));
        txtAccomplish->setText(Str(rs.Field(QStringLiteral("txtAccomplish"))));
        txtSleep->setText(Str(rs.Field(QStringLiteral("sleep"))));
        TxtWakeup->setText(Str(rs.Field(QStringLiteral("wakeup"))));
    });
    loadLines(lstReadings, 0, date);
    loadLines(lstMeds, 1, date);
    cmdDelete->setEnabled(found);
    cmdSave->setEnabled(false);
}

void frmWellness::SaveWellness()
{
    RecordsetScope scope(UserRS);
    SqlText = QStringLiteral("select * from Wellness where User_ID='") + CurrentUserID + QStringLiteral("' and date=#") +
              GetLocalDate() + QStringLiteral("#");
    UserRS.Open(SqlText);
    if (UserRS.Eof()) {
        UserRS.AddNew();
        UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
        UserRS.SetField(QStringLiteral("Date"), cboDate->date());
    }
    // With neither answer chosen the stored one stays.
    if (opt1[0]->isChecked())
        UserRS.SetField(QStringLiteral("FeelWell"), true);
    else if (opt1[1]->isChecked())
        UserRS.SetField(QStringLiteral("FeelWell"), false);
    if (opt2[0]->isChecked())
        UserRS.SetField(QStringLiteral("Accomplish"), true);
    else if (opt2[1]->isChecked())
        UserRS.SetField(QStringLiteral("Accomplish"), false);
    UserRS.SetField(QStringLiteral("txtFeelWell"), txtFeelWell->text().trimmed());
    UserRS.SetField(QStringLiteral("txtAccomplish"), txtAccomplish->text().trimmed());
    UserRS.SetField(QStringLiteral("sleep"), Val(txtSleep->text()));
    UserRS.SetField(QStringLiteral("wakeup"), TxtWakeup->text().trimmed());
    UserRS.Update();
    UserRS.Close();
}

void frmWellness::journalChanged()
{
    if (m_loading)
        return;
    cmdSave->setEnabled(true);
}

void frmWellness::setRestingHeartRate(double value)
{
    SqlText = QStringLiteral("select * from hrm_info where User_ID ='") + CurrentUserID + QStringLiteral("'");
    FirstRow(UserRS, SqlText, [value](Recordset& rs) {
        rs.SetField(QStringLiteral("RESTING_HR"), value);
        rs.Update();
    });
}

void frmWellness::on_cmdAddReading_clicked()
{
    Guard([this] {
        const QString name = cboReading->currentText().trimmed();
        if (name.isEmpty())
            return;
        const QString date = GetLocalDate();
        const QString time = TimeText(txtTime->time());
        const double value = Val(txtReading->text());
        QTreeWidgetItem* selected = lstReadings->currentItem();
        if (selected && !selected->isSelected())
            selected = nullptr;
        if (selected) {
            // Every row of the line's time goes, medications of that time too.
            SqlText = QStringLiteral("delete * from wellness_readings where User_ID=") + CurrentUserID +
                      QStringLiteral(" and Date=#") + date + QStringLiteral("# and time='") +
                      SqlQuote(selected->text(1)) + QStringLiteral("'");
            UserConn.Execute(SqlText);
        }
        {
            RecordsetScope scope(UserRS);
            UserRS.Open(QStringLiteral("wellness_readings"));
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("User_ID"), Val(CurrentUserID));
            UserRS.SetField(QStringLiteral("Reading"), name);
            UserRS.SetField(QStringLiteral("Date"), cboDate->date());
            UserRS.SetField(QStringLiteral("time"), time);
            UserRS.SetField(QStringLiteral("Value"), value);
            UserRS.SetField(QStringLiteral("Type"), 0);
            UserRS.Update();
        }
        if (selected) {
            // Other readings and medications of that time went with it: show the day's lines
            // as they now stand.
            QScopedValueRollback<bool> loading(m_loading, true);
            loadLines(lstReadings, 0, cboDate->date());
            loadLines(lstMeds, 1, cboDate->date());
        } else {
            SetLine(new QTreeWidgetItem(lstReadings), name, time, Str(QVariant(value)));
        }
        if (name == Resting())
            setRestingHeartRate(value);
        clearReadingEntry();
    });
}

void frmWellness::on_cmdAddMed_clicked()
{
    Guard([this] {
        const QString name = txtMed->text().trimmed();
        if (name.isEmpty())
            return;
        const QString time = TimeText(txtMedTime->time());
        const QString dose = txtDose->text().trimmed();
        SqlText = QStringLiteral("delete * from wellness_readings where User_ID=") + CurrentUserID +
                  QStringLiteral(" and Date=#") + GetLocalDate() + QStringLiteral("# and time='") + SqlQuote(time) +
                  QStringLiteral("' and Reading='") + SqlQuote(name) + QStringLiteral("'");
        UserConn.Execute(SqlText);
        {
            RecordsetScope scope(UserRS);
            UserRS.Open(QStringLiteral("wellness_readings"));
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("User_ID"), Val(CurrentUserID));
            UserRS.SetField(QStringLiteral("Reading"), name);
            UserRS.SetField(QStringLiteral("Date"), cboDate->date());
            UserRS.SetField(QStringLiteral("time"), time);
            UserRS.SetField(QStringLiteral("dose"), dose);
            UserRS.SetField(QStringLiteral("Type"), 1);
            UserRS.Update();
        }
        // The selected line is replaced; otherwise a line of the same medication and time,
        // whose row the statement above removed; otherwise a new line.
        QTreeWidgetItem* line = lstMeds->currentItem();
        if (line && !line->isSelected())
            line = nullptr;
        for (int i = 0; !line && i < lstMeds->topLevelItemCount(); ++i) {
            QTreeWidgetItem* item = lstMeds->topLevelItem(i);
            if (item->text(0).compare(name, Qt::CaseInsensitive) == 0 && item->text(1) == time)
                line = item;
        }
        SetLine(line ? line : new QTreeWidgetItem(lstMeds), name, time, dose);
        clearMedEntry();
    });
}

void frmWellness::on_cmdDelReading_clicked()
{
    Guard([this] {
        QTreeWidgetItem* item = lstReadings->currentItem();
        if (!item || !item->isSelected())
            return;
        SqlText = QStringLiteral("delete * from wellness_readings where User_ID=") + CurrentUserID +
                  QStringLiteral(" and date=#") + GetLocalDate() + QStringLiteral("# and reading='") +
                  SqlQuote(item->text(0)) + QStringLiteral("' and time='") + SqlQuote(item->text(1)) +
                  QStringLiteral("' and type=0");
        UserConn.Execute(SqlText);
        delete item;
        clearReadingEntry();
    });
}

void frmWellness::on_cmdDelMed_clicked()
{
    Guard([this] {
        QTreeWidgetItem* item = lstMeds->currentItem();
        if (!item || !item->isSelected())
            return;
        SqlText = QStringLiteral("delete * from wellness_readings where User_ID=") + CurrentUserID +
                  QStringLiteral(" and date=#") + GetLocalDate() + QStringLiteral("# and reading='") +
                  SqlQuote(item->text(0)) + QStringLiteral("' and time='") + SqlQuote(item->text(1)) +
                  QStringLiteral("' and type=1");
        UserConn.Execute(SqlText);
        delete item;
        clearMedEntry();
    });
}

void frmWellness::on_cmdClearReading_clicked() { clearReadingEntry(); }

void frmWellness::on_cmdClearmed_clicked() { clearMedEntry(); }

void frmWellness::on_lstReadings_itemClicked(QTreeWidgetItem* item, int)
{
    if (!item)
        return;
    const int index = cboReading->findText(item->text(0));
    if (index >= 0)
        cboReading->setCurrentIndex(index);
    else
        cboReading->setEditText(item->text(0));
    const QTime t = regional::ParseTime(item->text(1));
    if (t.isValid())
        txtTime->setTime(t);
    txtReading->setText(item->text(2));
}

void frmWellness::on_lstMeds_itemClicked(QTreeWidgetItem* item, int)
{
    if (!item)
        return;
    txtMed->setText(item->text(0));
    const QTime t = regional::ParseTime(item->text(1));
    if (t.isValid())
        txtMedTime->setTime(t);
    txtDose->setText(item->text(2));
}

void frmWellness::on_cmdLastWellness_clicked()
{
    Guard([this] {
        SqlText = QStringLiteral("select * from wellness where User_ID='") + CurrentUserID +
                  QStringLiteral("' order by date desc");
        QDate last;
        FirstRow(UserRS, SqlText, [&last](Recordset& rs) { last = DateOf(rs.Field(QStringLiteral("Date"))); });
        if (!last.isValid())
            return;
        const QDate current = cboDate->date();
        clearWellness();
        LoadWellness(last);
        // The newest record is this very day: it is shown as it is, nothing is copied onto itself.
        if (last != current) {
            const QString date = current.toString(QStringLiteral("yyyy-MM-dd"));
            auto copy = [&](QTreeWidget* list, int type) {
                for (int i = 0; i < list->topLevelItemCount(); ++i) {
                    const QTreeWidgetItem* item = list->topLevelItem(i);
                    RecordsetScope scope(UserRS);
                    SqlText = QStringLiteral("select * from wellness_readings where User_ID=") + CurrentUserID +
                              QStringLiteral(" and date=#") + date + QStringLiteral("# and type=") +
                              QString::number(type) + QStringLiteral(" and reading = '") + SqlQuote(item->text(0)) +
                              QStringLiteral("'");
                    UserRS.Open(SqlText);
                    UserRS.AddNew();
                    UserRS.SetField(QStringLiteral("User_ID"), Val(CurrentUserID));
                    UserRS.SetField(QStringLiteral("Date"), current);
                    UserRS.SetField(QStringLiteral("time"), item->text(1));
                    UserRS.SetField(QStringLiteral("Reading"), item->text(0));
                    if (type == 0)
                        UserRS.SetField(QStringLiteral("Value"), Val(item->text(2)));
                    else
                        UserRS.SetField(QStringLiteral("dose"), item->text(2));
                    UserRS.SetField(QStringLiteral("Type"), type);
                    UserRS.Update();
                }
            };
            copy(lstReadings, 0);
            copy(lstMeds, 1);
        }
        on_cmdSave_clicked();
        cmdDelete->setEnabled(false);
    });
}

void frmWellness::on_cmdNew_clicked() { clearWellness(); }

void frmWellness::on_cmdSave_clicked()
{
    Guard([this] {
        SaveWellness();
        cmdSave->setEnabled(false);
        cmdDelete->setEnabled(true);
        MsgBox(QStringLiteral("Record Saved."), vbInformation, Msg());
    });
}

void frmWellness::on_cmdDelete_clicked()
{
    Guard([this] {
        if (MsgBox(QStringLiteral("Delete this Wellness record?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
            return;
        SqlText = QStringLiteral("delete * from wellness where User_ID='") + CurrentUserID + QStringLiteral("' and date=#") +
                  GetLocalDate() + QStringLiteral("#");
        UserConn.Execute(SqlText);
        // The day's readings and medications stay, and are shown still.
        LoadWellness(cboDate->date());
    });
}

void frmWellness::PrintWellness()
{
    const QString file = reportpages::WellnessPage(cboDate->date(), LinesOf(lstReadings), LinesOf(lstMeds));
    ShowReport(file);
}

void frmWellness::on_cmdPrint_clicked() { Guard([this] { PrintWellness(); }); }

void frmWellness::on_cmdClose_clicked() { reject(); }

void frmWellness::on_cboDate_dateChanged(const QDate& date)
{
    if (m_loading)
        return;
    Guard([this, date] { LoadWellness(date); });
}

void frmWellness::on_cmdGraph_clicked() { Guard([this] { Graph(); }); }

void frmWellness::on_cmdPrintGraph_clicked() { Chart1->Print(); }

void frmWellness::Graph()
{
    const QString item = cboGraph->currentText();
    if (item.isEmpty())
        return;
    const QDate from = txtStartDate->date();
    const QDate to = txtEndDate->date();
    const QString range = QStringLiteral(" and date between #") + from.toString(QStringLiteral("yyyy-MM-dd")) +
                          QStringLiteral("# and #") + to.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral("#");
    QString yField;
    if (cboGraph->currentIndex() == 0) {
        SqlText = QStringLiteral("select sleep, date from wellness where User_ID='") + CurrentUserID + QStringLiteral("'") +
                  range + QStringLiteral(" order by Date asc");
        yField = QStringLiteral("sleep");
    } else {
        SqlText = QStringLiteral("select * from wellness_readings where User_ID=") + CurrentUserID + range +
                  QStringLiteral(" and reading='") + SqlQuote(item) + QStringLiteral("' order by Date asc");
        yField = QStringLiteral("Value");
    }
    // Points at their days, labelled with the short date.
    QVector<QDateTime> times;
    QVector<double> values;
    ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
        times << QDateTime(DateOf(rs.Field(QStringLiteral("date"))), QTime(0, 0));
        values << Val(rs.Field(yField));
    });
    // Qt Charts 6.4 keeps drawing an axis that had no series once it is removed, unless it
    // was hidden first; the chart replaces its axes on every change.
    auto hideAxes = [this] {
        for (QAbstractAxis* axis : Chart1->GetChart()->axes())
            axis->setVisible(false);
    };
    hideAxes();
    Chart1->SetTitle(item + QStringLiteral(" - ") + regional::ShortDate(from) + QStringLiteral(" - ") +
                     regional::ShortDate(to));
    hideAxes();
    Chart1->SetSeriesNames({item});
    hideAxes();
    Chart1->SetTimedData(times, {values});
}
