#include "body/frmWeighIn.h"
#include "core/widgets/Theme.h"
#include "body/weighincalc.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/store/transaction.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Form.h"
#include "core/widgets/ListFill.h"

#include <QtCharts/QAbstractAxis>
#include <QtCharts/QChart>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>

std::function<void(const QString& date)>& ReportWeighInLink()
{
    static std::function<void(const QString&)> link;
    return link;
}

namespace {

const char* const MeasureNames[14] = {"Neck",          "Shoulders",   "Chest",      "Stomach",     "Waist",
                                      "Hips",          "Bicep Left",  "Bicep Right", "Forearm Left", "Forearm Right",
                                      "Thigh Left",    "Thigh Right", "Calf Left",  "Calf Right"};
const char* const SkinfoldNames[7] = {"chest", "abs", "triceps", "thigh", "subscapular", "suprailiac", "axillary"};
// Named columns after the fourteen girths, with the field that holds each.
const char* const SkinfoldColumns[7] = {"sf1", "sf2", "sf3", "sf4", "sf5", "sf6", "sf7"};

QString Msg() { return QStringLiteral("Message"); }

QString NumberText(const QVariant& v)
{
    return IsNull(v) ? QString() : Str(v);
}

QDate DateOf(const QVariant& v)
{
    if (v.metaType().id() == QMetaType::QDate)
        return v.toDate();
    if (v.metaType().id() == QMetaType::QDateTime)
        return v.toDateTime().date();
    return regional::ParseDate(v.toString());
}

}  // namespace

frmWeighIn::frmWeighIn(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmWeighIn"));
    setWindowTitle(QStringLiteral("Weigh In"));
    auto loading = std::make_unique<QScopedValueRollback<bool>>(m_loading, true);

    Tab1 = new QTabWidget(this);
    Tab1->setObjectName(QStringLiteral("Tab1"));
    // The figures are many: their tab scrolls when the window is made small.
    auto* figures = new QScrollArea(this);
    figures->setObjectName(QStringLiteral("scrWeighIn"));
    figures->setWidgetResizable(true);
    figures->setFrameShape(QFrame::NoFrame);
    figures->setWidget(buildWeighInTab());
    Tab1->addTab(figures, QStringLiteral("Weigh In"));
    Tab1->addTab(buildPhotoTab(), QStringLiteral("Photo"));
    Tab1->addTab(buildHistoryTab(), QStringLiteral("History"));
    theme::ApplyToTabs(Tab1);

    cmdPreviewExercise = new QPushButton(QStringLiteral("&Print"), this);
    cmdPreviewExercise->setObjectName(QStringLiteral("cmdPreviewExercise"));
    FB1 = new QPushButton(QStringLiteral("Ca&lculator"), this);
    FB1->setObjectName(QStringLiteral("FB1"));
    FB1->setToolTip(QStringLiteral("Calculator"));
    cmdClose = new QPushButton(QStringLiteral("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(cmdPreviewExercise);
    bottom->addWidget(FB1);
    bottom->addStretch(1);
    bottom->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Tab1, 1);
    layout->addLayout(bottom);

    QMetaObject::connectSlotsByName(this);
    for (auto* e : txtData)
        connect(e, &QLineEdit::textChanged, this, [this] { fieldChanged(); });
    for (auto* e : txtGoal)
        connect(e, &QLineEdit::textChanged, this, [this] { fieldChanged(); });
    for (auto* e : {txtHeight, txtBMR, txtBMI, txtVo2, txtBFMeasure, txtPhoto})
        connect(e, &QLineEdit::textChanged, this, [this] { fieldChanged(); });
    connect(cboCondition, &QComboBox::currentIndexChanged, this, [this] { fieldChanged(); });
    // The history draws itself when shown and when its range changes.
    connect(Tab1, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_loading && index == 2) Guard([this] { Graph(); });
    });
    for (auto* d : {txtStartDate, txtEndDate})
        connect(d, &QDateEdit::dateChanged, this, [this] {
            if (!m_loading && Tab1->currentIndex() == 2) Guard([this] { Graph(); });
        });

    Guard([this] {
        loadProfile();
        setLabels();
        loadGoals();
        LoadDates();
        loadmonths();
    });
    const QDate day = CalendarQDate();
    cboDate->setDate(day);
    loading.reset();
    Guard([this, day] {
        for (int i = 0; i < lstWeighIns->count(); ++i)
            if (lstWeighIns->item(i)->data(Qt::UserRole).toDate() == day)
                lstWeighIns->setCurrentRow(i);
        LoadWeighIn(day);
    });
    for (auto* b : findChildren<QPushButton*>())
        b->setAutoDefault(false);
    resize(1000, 680);
    CenterForm(this);
}

QWidget* frmWeighIn::buildWeighInTab()
{
    auto* page = new QWidget(this);

    cboDate = form::LongDate(QStringLiteral("cboDate"), page);
    auto* lblDate = new QLabel(QStringLiteral("&Date"), page);
    lblDate->setBuddy(cboDate);

    lstWeighIns = new QListWidget(page);
    lstWeighIns->setObjectName(QStringLiteral("lstWeighIns"));
    lstWeighIns->setToolTip(QStringLiteral("Select a weigh in to view past information."));
    auto* lblPast = new QLabel(QStringLiteral("Past &Weigh Ins"), page);
    lblPast->setBuddy(lstWeighIns);

    cmdLastWeighIn = new QPushButton(QStringLiteral("&Get Last Weigh In"), page);
    cmdLastWeighIn->setObjectName(QStringLiteral("cmdLastWeighIn"));
    cmdSave = new QPushButton(QStringLiteral("&Save"), page);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdDelete = new QPushButton(QStringLiteral("De&lete"), page);
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));

    auto* left = new QVBoxLayout;
    left->addWidget(lblDate);
    left->addWidget(cboDate);
    left->addWidget(lblPast);
    left->addWidget(lstWeighIns, 1);
    left->addWidget(cmdLastWeighIn);
    left->addWidget(cmdSave);
    left->addWidget(cmdDelete);

    for (int i = 0; i < DataFields; ++i) {
        txtData[i] = new QLineEdit(page);
        txtData[i]->setObjectName(QStringLiteral("txtData_%1").arg(i));
        txtData[i]->setMaximumWidth(90);
    }
    for (int i = 0; i < GoalFields; ++i) {
        txtGoal[i] = new QLineEdit(page);
        txtGoal[i]->setObjectName(QStringLiteral("txtGoal_%1").arg(i));
        txtGoal[i]->setMaximumWidth(90);
    }

    // Girths with their goals.
    fraMeasurements = new QGroupBox(QStringLiteral("Measurements - inches"), page);
    fraMeasurements->setObjectName(QStringLiteral("fraMeasurements"));
    auto* mg = new QGridLayout(fraMeasurements);
    mg->addWidget(new QLabel(QStringLiteral("Actual"), fraMeasurements), 0, 1);
    mg->addWidget(new QLabel(QStringLiteral("Goal"), fraMeasurements), 0, 2);
    for (int i = 0; i < 14; ++i) {
        form::AddRow(mg, i + 1, QString::fromLatin1(MeasureNames[i]).prepend(QLatin1Char('&')), txtData[i]);
        mg->addWidget(txtGoal[i], i + 1, 2);
        txtGoal[i]->setAccessibleName(QString::fromLatin1(MeasureNames[i]) + QStringLiteral(" goal"));
        m_lengthLabels[i] = new QLabel(fraMeasurements);
        mg->addWidget(m_lengthLabels[i], i + 1, 3);
    }
    mg->setRowStretch(15, 1);

    // Body figures.
    auto* fraBody = new QGroupBox(QStringLiteral("Conditioning"), page);
    auto* bg = new QGridLayout(fraBody);
    txtHeight = new QLineEdit(fraBody);
    txtHeight->setObjectName(QStringLiteral("txtHeight"));
    txtBMR = new QLineEdit(fraBody);
    txtBMR->setObjectName(QStringLiteral("txtBMR"));
    txtBMI = new QLineEdit(fraBody);
    txtBMI->setObjectName(QStringLiteral("txtBMI"));
    txtVo2 = new QLineEdit(fraBody);
    txtVo2->setObjectName(QStringLiteral("txtVo2"));
    txtBFMeasure = new QLineEdit(fraBody);
    txtBFMeasure->setObjectName(QStringLiteral("txtBFMeasure"));
    cboCondition = new QComboBox(fraBody);
    cboCondition->setObjectName(QStringLiteral("cboCondition"));
    cboCondition->addItems(weighin::ConditionList());
    cboCondition->setCurrentIndex(-1);
    lblSex = new QLabel(fraBody);
    lblSex->setObjectName(QStringLiteral("lblSex"));
    lblWeight = new QLabel(QStringLiteral("lbs"), fraBody);
    lblWeight->setObjectName(QStringLiteral("lblWeight"));
    m_goalWeightUnit = new QLabel(fraBody);
    calcbmi = new QPushButton(QStringLiteral("Calc"), fraBody);
    calcbmi->setObjectName(QStringLiteral("calcbmi"));
    calcbmi->setToolTip(QStringLiteral("Calculate the body mass index"));
    Command2 = new QPushButton(QStringLiteral("Calc"), fraBody);
    Command2->setObjectName(QStringLiteral("Command2"));
    Command2->setToolTip(QStringLiteral("Calculate the BMR"));
    command3 = new QPushButton(QStringLiteral("Calc"), fraBody);
    command3->setObjectName(QStringLiteral("command3"));
    command3->setToolTip(QStringLiteral("Calculate the body fat"));

    int r = 0;
    auto addRow = [&](const QString& caption, QWidget* field, QWidget* goal, QWidget* extra) {
        form::AddRow(bg, r, caption, field);
        if (goal) bg->addWidget(goal, r, 2);
        if (extra) bg->addWidget(extra, r, 3);
        ++r;
    };
    bg->addWidget(new QLabel(QStringLiteral("Actual"), fraBody), r, 1);
    bg->addWidget(new QLabel(QStringLiteral("Goal"), fraBody), r, 2);
    ++r;
    txtGoal[14]->setAccessibleName(QStringLiteral("Weight goal"));
    txtGoal[15]->setAccessibleName(QStringLiteral("Body fat goal"));
    addRow(QStringLiteral("W&eight"), txtData[14], txtGoal[14], lblWeight);
    addRow(QStringLiteral("&Height"), txtHeight, nullptr, nullptr);
    addRow(QStringLiteral("Body &Fat %"), txtData[15], txtGoal[15], command3);
    addRow(QStringLiteral("&Method"), txtBFMeasure, nullptr, nullptr);
    addRow(QStringLiteral("C&ondition"), cboCondition, nullptr, nullptr);
    addRow(QStringLiteral("&BMR"), txtBMR, nullptr, Command2);
    addRow(QStringLiteral("BM&I"), txtBMI, nullptr, calcbmi);
    addRow(QStringLiteral("&VO2max"), txtVo2, nullptr, nullptr);
    auto* sexCaption = new QLabel(QStringLiteral("Sex"), fraBody);
    bg->addWidget(sexCaption, r, 0);
    bg->addWidget(lblSex, r, 1);

    auto* fraSkin = new QGroupBox(QStringLiteral("Skinfolds"), page);
    auto* sg = new QGridLayout(fraSkin);
    for (int i = 0; i < 7; ++i) {
        form::AddRow(sg, i, QString::fromLatin1(SkinfoldNames[i]), txtData[16 + i]);
        m_skinLabels[i] = new QLabel(fraSkin);
        sg->addWidget(m_skinLabels[i], i, 2);
    }

    auto* right = new QVBoxLayout;
    right->addWidget(fraBody);
    right->addWidget(fraSkin);
    right->addStretch(1);

    auto* h = new QHBoxLayout(page);
    h->addLayout(left, 1);
    h->addWidget(fraMeasurements);
    h->addLayout(right);
    return page;
}

QWidget* frmWeighIn::buildPhotoTab()
{
    auto* page = new QWidget(this);
    Picture1 = new QLabel(page);
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture1->setAlignment(Qt::AlignCenter);
    Picture1->setMinimumSize(320, 320);
    Picture1->setFrameShape(QFrame::StyledPanel);
    txtPhoto = new QLineEdit(page);
    txtPhoto->setObjectName(QStringLiteral("txtPhoto"));
    txtPhoto->setReadOnly(true);
    auto* l = new QLabel(QStringLiteral("P&hoto"), page);
    l->setBuddy(txtPhoto);
    Command1 = new QPushButton(QStringLiteral("&Browse..."), page);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setToolTip(QStringLiteral("Select an image to associate with this exercise."));
    SSCommand1 = new QPushButton(QStringLiteral("&Remove Photo"), page);
    SSCommand1->setObjectName(QStringLiteral("SSCommand1"));
    auto* row = new QHBoxLayout;
    row->addWidget(l);
    row->addWidget(txtPhoto, 1);
    row->addWidget(Command1);
    row->addWidget(SSCommand1);
    auto* v = new QVBoxLayout(page);
    v->addWidget(Picture1, 1);
    v->addLayout(row);
    return page;
}

QWidget* frmWeighIn::buildHistoryTab()
{
    auto* page = new QWidget(this);
    cboGraph = new QComboBox(page);
    cboGraph->setObjectName(QStringLiteral("cboGraph"));
    txtStartDate = new QDateEdit(page);
    txtStartDate->setObjectName(QStringLiteral("txtStartDate"));
    txtStartDate->setCalendarPopup(true);
    txtEndDate = new QDateEdit(page);
    txtEndDate->setObjectName(QStringLiteral("txtEndDate"));
    txtEndDate->setCalendarPopup(true);
    cmdGraph = new QPushButton(QStringLiteral("&Graph"), page);
    cmdGraph->setObjectName(QStringLiteral("cmdGraph"));
    cmdPrintGraph = new QPushButton(QStringLiteral("Print Gra&ph"), page);
    cmdPrintGraph->setObjectName(QStringLiteral("cmdPrintGraph"));
    Chart1 = new Chart(page);
    Chart1->setObjectName(QStringLiteral("Chart1"));
    Chart1->setAccessibleName(QStringLiteral("History graph"));
    Chart1->SetStyle(Chart::Line);
    Chart1->SetLegendVisible(false);

    auto* row = new QHBoxLayout;
    auto* l1 = new QLabel(QStringLiteral("&Item"), page);
    l1->setBuddy(cboGraph);
    auto* l2 = new QLabel(QStringLiteral("&From"), page);
    l2->setBuddy(txtStartDate);
    auto* l3 = new QLabel(QStringLiteral("&To"), page);
    l3->setBuddy(txtEndDate);
    row->addWidget(l1);
    row->addWidget(cboGraph, 1);
    row->addWidget(l2);
    row->addWidget(txtStartDate);
    row->addWidget(l3);
    row->addWidget(txtEndDate);
    row->addWidget(cmdGraph);
    row->addWidget(cmdPrintGraph);
    auto* v = new QVBoxLayout(page);
    v->addLayout(row);
    v->addWidget(Chart1, 1);
    return page;
}

QString frmWeighIn::GetLocalDate() const { return cboDate->date().toString(QStringLiteral("yyyy-MM-dd")); }

void frmWeighIn::loadProfile()
{
    SqlText = QStringLiteral("select * from User_Info where User_ID=") + CurrentUserID;
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        lblSex->setText(Str(rs.Field(QStringLiteral("sex"))));
        m_height = Val(rs.Field(QStringLiteral("Height")));
        m_ideal = Val(rs.Field(QStringLiteral("IdealWeight")));
        m_age = Val(rs.Field(QStringLiteral("age")));
        m_targetWeight = Val(rs.Field(QStringLiteral("TargetWeight")));
        m_targetBodyFat = Val(rs.Field(QStringLiteral("TargetBodyFat")));
        m_units = Str(rs.Field(QStringLiteral("personal_measurements")));
    });
}

void frmWeighIn::setLabels()
{
    const weighin::UnitLabels u = weighin::LabelsFor(m_units);
    fraMeasurements->setTitle(u.frame);
    lblWeight->setText(u.weight);
    for (auto* l : m_lengthLabels)
        l->setText(u.length);
    for (auto* l : m_skinLabels)
        l->setText(u.skinfold);
}

void frmWeighIn::loadGoals()
{
    SqlText = QStringLiteral("select * from WeighIn_goals where User_ID='") + CurrentUserID + QStringLiteral("'");
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        const int n = std::min(GoalFields, rs.FieldCount() - 1);
        for (int i = 0; i < n; ++i)
            txtGoal[i]->setText(NumberText(rs.Field(i + 1)));
    });
    txtGoal[14]->setText(m_targetWeight ? Str(QVariant(m_targetWeight)) : QString());
    txtGoal[15]->setText(m_targetBodyFat ? Str(QVariant(m_targetBodyFat)) : QString());
}

void frmWeighIn::LoadDates()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    lstWeighIns->clear();
    SqlText = QStringLiteral("select distinct date from WeighIn where User_ID='") + CurrentUserID +
              QStringLiteral("' order by date desc");
    listfill::FillList(lstWeighIns, UserRS, SqlText, [](QListWidget* list, Recordset& rs) {
        const QDate d = DateOf(rs.Field(0));
        auto* item = new QListWidgetItem(regional::ShortDate(d), list);
        item->setData(Qt::UserRole, d);
    });
}

void frmWeighIn::loadmonths()
{
    // The history's item list: three named figures, then the fourteen girths, each shown in
    // words with its column as the item's data.
    cboGraph->blockSignals(true);
    cboGraph->clear();
    cboGraph->addItem(QStringLiteral("Weight"), QStringLiteral("weight"));
    cboGraph->addItem(QStringLiteral("Height"), QStringLiteral("height"));
    cboGraph->addItem(QStringLiteral("Bodyfat"), QStringLiteral("bodyfat"));
    SqlText = QStringLiteral("select * from WeighIn where User_ID='0'");
    {
        RecordsetScope scope(UserRS);
        UserRS.Open(SqlText);
        for (int i = 2; i <= 15 && i < UserRS.FieldCount(); ++i)
            cboGraph->addItem(weighin::ColumnCaption(UserRS.FieldName(i)), UserRS.FieldName(i));
    }
    cboGraph->setCurrentIndex(0);
    cboGraph->blockSignals(false);

    // The range runs from the first weigh-in (or a month back) to today.
    QDate first = QDate::currentDate().addMonths(-1);
    if (lstWeighIns->count() > 0) {
        const QDate d = lstWeighIns->item(lstWeighIns->count() - 1)->data(Qt::UserRole).toDate();
        if (d.isValid() && d < first) first = d;
    }
    txtStartDate->setDate(first);
    txtEndDate->setDate(QDate::currentDate());
}

void frmWeighIn::clearform()
{
    for (auto* e : txtData)
        e->clear();
    txtHeight->clear();
    txtBMR->clear();
    txtBMI->clear();
    txtVo2->clear();
    txtBFMeasure->clear();
    txtPhoto->clear();
    Picture1->clear();
    cboCondition->setCurrentIndex(-1);
}

void frmWeighIn::LoadWeighIn(const QDate& date)
{
    QScopedValueRollback<bool> loading(m_loading, true);
    clearform();
    SqlText = QStringLiteral("select * from WeighIn where User_ID='") + CurrentUserID + QStringLiteral("' and date=#") +
              date.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral("#");
    const bool found = FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        for (int i = 0; i < 14; ++i) {
            const double v = Val(rs.Field(i + 2));
            if (v > 0)
                txtData[i]->setText(Str(rs.Field(i + 2)));
        }
        txtData[14]->setText(NumberText(rs.Field(QStringLiteral("weight"))));
        const double height = Val(rs.Field(QStringLiteral("Height")));
        txtHeight->setText(height == 0 ? Str(QVariant(m_height)) : Str(rs.Field(QStringLiteral("Height"))));
        txtData[15]->setText(NumberText(rs.Field(QStringLiteral("BodyFat"))));
        cboCondition->setCurrentIndex(cboCondition->findText(Str(rs.Field(QStringLiteral("Condition"))).trimmed()));
        const QVariant bmr = rs.Field(QStringLiteral("BMR"));
        txtBMR->setText(IsNull(bmr) ? QString() : regional::FormatNumber(Val(bmr), QStringLiteral("0000")));
        txtBMI->setText(NumberText(rs.Field(QStringLiteral("BMI"))));
        txtVo2->setText(NumberText(rs.Field(QStringLiteral("Vo2"))));
        txtBFMeasure->setText(Str(rs.Field(QStringLiteral("BodyFatMeasure"))));
        for (int i = 0; i < 7; ++i)
            txtData[16 + i]->setText(NumberText(rs.Field(QString::fromLatin1(SkinfoldColumns[i]))));
        txtPhoto->setText(Str(rs.Field(QStringLiteral("Photo"))).trimmed());
        showPhoto(txtPhoto->text());
    });
    cmdDelete->setEnabled(found);

    SqlText = QStringLiteral("select * from User_Info where User_ID=") + CurrentUserID;
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        if (Val(txtGoal[14]->text()) == 0)
            txtGoal[14]->setText(NumberText(rs.Field(QStringLiteral("TargetWeight"))));
        if (cboCondition->currentText().isEmpty()) {
            const QVariant c = rs.Field(QStringLiteral("Current_Condition"));
            if (!IsNull(c)) {
                const int index = int(Val(c));
                if (index >= 0 && index < cboCondition->count())
                    cboCondition->setCurrentIndex(index);
            }
        }
    });
    cmdSave->setEnabled(false);
}

void frmWeighIn::showPhoto(const QString& path)
{
    Picture1->clear();
    if (path.isEmpty())
        return;
    QPixmap pm(path);
    if (pm.isNull()) {
        Picture1->setText(QStringLiteral("The picture %1 cannot be shown.").arg(QFileInfo(path).fileName()));
        return;
    }
    Picture1->setPixmap(pm.scaled(Picture1->size().expandedTo(QSize(320, 320)), Qt::KeepAspectRatio,
                                  Qt::SmoothTransformation));
}

void frmWeighIn::fieldChanged()
{
    if (m_loading)
        return;
    cmdSave->setEnabled(true);
}

void frmWeighIn::on_calcbmi_clicked()
{
    const double weight = Val(txtData[14]->text());
    const auto bmi = weighin::CalcBMI(weight, m_height, lblWeight->text() == QLatin1String("lbs"));
    if (!bmi)
        return;
    txtBMI->setText(Str(QVariant(*bmi)));
    cmdSave->setEnabled(true);
}

void frmWeighIn::on_Command2_clicked()
{
    const double weight = Val(txtData[14]->text());
    const auto bmr = weighin::CalcBMR(weight, lblWeight->text() == QLatin1String("kg"), lblSex->text(), m_age,
                                      cboCondition->currentText());
    if (!bmr)
        return;
    txtBMR->setText(weighin::FormatBMR(*bmr));
    cmdSave->setEnabled(true);
}

void frmWeighIn::on_command3_clicked()
{
    const auto fat = weighin::CalcBodyFat(Val(txtData[14]->text()), m_ideal);
    if (!fat)
        return;
    txtData[15]->setText(Str(QVariant(*fat)));
    cmdSave->setEnabled(true);
}

void frmWeighIn::on_cmdLastWeighIn_clicked()
{
    Guard([this] {
        SqlText = QStringLiteral("select * from WeighIn where User_ID='") + CurrentUserID +
                  QStringLiteral("' order by date desc");
        QDate last;
        FirstRow(UserRS, SqlText, [&last](Recordset& rs) { last = DateOf(rs.Field(QStringLiteral("Date"))); });
        if (!last.isValid())
            return;
        LoadWeighIn(last);
        cmdSave->setEnabled(true);
        cmdDelete->setEnabled(true);
    });
}

void frmWeighIn::on_cmdSave_clicked()
{
    Guard([this] {
        // The goals and the weigh-in are kept together or not at all.
        StoreTransaction transaction(UserConn);
        RecordsetScope scope(UserRS);
        SqlText = QStringLiteral("select * from WeighIn_Goals where User_ID='") + CurrentUserID + QStringLiteral("'");
        UserRS.Open(SqlText);
        if (UserRS.Eof()) {
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
        }
        for (int i = 0; i < GoalFields; ++i)
            UserRS.SetField(i + 1, Val(txtGoal[i]->text()));
        UserRS.Update();
        UserRS.Close();

        const QString date = GetLocalDate();
        SqlText = QStringLiteral("select * from WeighIn where User_ID='") + CurrentUserID + QStringLiteral("' and date=#") +
                  date + QStringLiteral("#");
        UserRS.Open(SqlText);
        if (UserRS.Eof()) {
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
            UserRS.SetField(QStringLiteral("Date"), cboDate->date());
        }
        for (int i = 0; i < 14; ++i)
            UserRS.SetField(i + 2, Val(txtData[i]->text()));
        UserRS.SetField(QStringLiteral("weight"), Val(txtData[14]->text()));
        UserRS.SetField(QStringLiteral("Height"), Val(txtHeight->text()));
        UserRS.SetField(QStringLiteral("BodyFat"), Val(txtData[15]->text()));
        UserRS.SetField(QStringLiteral("Condition"), cboCondition->currentText());
        UserRS.SetField(QStringLiteral("BMR"), Val(txtBMR->text()));
        UserRS.SetField(QStringLiteral("BMI"), Val(txtBMI->text()));
        UserRS.SetField(QStringLiteral("Vo2"), Val(txtVo2->text()));
        UserRS.SetField(QStringLiteral("BodyFatMeasure"), txtBFMeasure->text());
        for (int i = 0; i < 7; ++i)
            UserRS.SetField(QString::fromLatin1(SkinfoldColumns[i]), Val(txtData[16 + i]->text()));
        UserRS.SetField(QStringLiteral("Photo"), txtPhoto->text().trimmed());
        UserRS.Update();
        UserRS.Close();
        transaction.Commit();

        bool listed = false;
        for (int i = 0; i < lstWeighIns->count(); ++i)
            if (lstWeighIns->item(i)->data(Qt::UserRole).toDate() == cboDate->date())
                listed = true;
        if (!listed) {
            LoadDates();
            QScopedValueRollback<bool> loading(m_loading, true);
            for (int i = 0; i < lstWeighIns->count(); ++i)
                if (lstWeighIns->item(i)->data(Qt::UserRole).toDate() == cboDate->date())
                    lstWeighIns->setCurrentRow(i);
        }
        cmdDelete->setEnabled(true);
        cmdSave->setEnabled(false);
        MsgBox(QStringLiteral("Weigh In Saved."), vbInformation, Msg());
    });
}

void frmWeighIn::on_cmdDelete_clicked()
{
    Guard([this] {
        if (lstWeighIns->count() == 1) {
            MsgBox(QStringLiteral("The Orvantis must have at least one weight in saved."), vbInformation, Msg());
            return;
        }
        if (MsgBox(QStringLiteral("Delete this Weigh In?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
            return;
        QDate date = cboDate->date();
        if (auto* item = lstWeighIns->currentItem())
            date = item->data(Qt::UserRole).toDate();
        SqlText = QStringLiteral("delete * from WeighIn where User_ID='") + CurrentUserID + QStringLiteral("' and date=#") +
                  date.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral("#");
        UserConn.Execute(SqlText);
        LoadDates();
        LoadWeighIn(cboDate->date());
    });
}

void frmWeighIn::on_cmdPreviewExercise_clicked()
{
    if (auto& report = ReportWeighInLink())
        Guard([&] { report(GetLocalDate()); });
}

void frmWeighIn::on_FB1_clicked() { ShowModal(QStringLiteral("Calculator")); }

void frmWeighIn::on_cmdClose_clicked() { reject(); }

void frmWeighIn::on_Command1_clicked()
{
    FileDialogOptions o;
    o.title = QStringLiteral("Select an image");
    o.folder = ProgramFolder() + QStringLiteral("/Images/");
    o.filter = QStringLiteral("GIF|*.gif|Bitmap|*.bmp|JPEG|*.jpg");
    o.defaultExt = QStringLiteral("gif");
    o.mustExist = true;
    const QString path = FileDialog(o);
    if (path.isEmpty())
        return;
    txtPhoto->setText(path.trimmed());
    showPhoto(txtPhoto->text());
}

void frmWeighIn::on_SSCommand1_clicked()
{
    txtPhoto->clear();
    Picture1->clear();
}

void frmWeighIn::on_cboDate_dateChanged(const QDate& date)
{
    if (m_loading)
        return;
    Guard([this, date] {
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            lstWeighIns->clearSelection();
            lstWeighIns->setCurrentRow(-1);
            for (int i = 0; i < lstWeighIns->count(); ++i)
                if (lstWeighIns->item(i)->data(Qt::UserRole).toDate() == date)
                    lstWeighIns->setCurrentRow(i);
        }
        LoadWeighIn(date);
    });
}

void frmWeighIn::on_lstWeighIns_itemClicked(QListWidgetItem* item)
{
    if (m_loading || !item)
        return;
    const QDate d = item->data(Qt::UserRole).toDate();
    if (d == cboDate->date())
        Guard([this, d] { LoadWeighIn(d); });
    else
        cboDate->setDate(d);
}

void frmWeighIn::on_cboGraph_currentIndexChanged(int)
{
    if (m_loading)
        return;
    Guard([this] { Graph(); });
}

void frmWeighIn::on_cmdGraph_clicked() { Guard([this] { Graph(); }); }

void frmWeighIn::on_cmdPrintGraph_clicked() { Chart1->Print(); }

void frmWeighIn::Graph()
{
    const QString item = cboGraph->currentText();
    if (item.isEmpty())
        return;
    const QDate from = txtStartDate->date();
    const QDate to = txtEndDate->date();
    const QString column = cboGraph->currentData().toString();
    if (column.isEmpty())
        return;
    const QString range = QStringLiteral(" from WeighIn where User_ID='") + CurrentUserID +
                          QStringLiteral("' and date between #") + from.toString(QStringLiteral("yyyy-MM-dd")) +
                          QStringLiteral("# and #") + to.toString(QStringLiteral("yyyy-MM-dd")) +
                          QStringLiteral("# order by Date asc");
    if (column == QLatin1String("weight") || column == QLatin1String("height") || column == QLatin1String("bodyfat"))
        SqlText = QStringLiteral("select date,") + column + range;
    else
        SqlText = QStringLiteral("select date,") + column + QStringLiteral(" ") + range;

    // Points at their days, so that weigh-ins a week apart stand further apart than two days.
    QVector<QDateTime> times;
    QVector<double> values;
    ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
        times << QDateTime(DateOf(rs.Field(0)), QTime(0, 0));
        values << Val(rs.Field(1));
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

void frmWeighIn::SetTargetCalories()
{
    SqlText = QStringLiteral("select * from WeighIn where User_ID='") + CurrentUserID + QStringLiteral("' order by date desc");
    double bmr = 0;
    if (!FirstRow(UserRS, SqlText, [&bmr](Recordset& rs) { bmr = Val(Str(rs.Field(QStringLiteral("BMR")))); }))
        return;

    SqlText = QStringLiteral("select * from User_Info where User_ID=") + CurrentUserID;
    FirstRow(UserRS, SqlText, [bmr](Recordset& rs) {
        const double diet = Val(Str(rs.Field(QStringLiteral("DietCalsPerDay"))));
        rs.SetField(QStringLiteral("TargetCals"), weighin::TargetCalories(bmr, diet));
        rs.Update();
    });
}

void frmWeighIn::done(int result)
{
    Guard([this] { SetTargetCalories(); });
    QDialog::done(result);
}
