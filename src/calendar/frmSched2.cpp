#include "calendar/frmSched2.h"
#include "core/widgets/Theme.h"
#include "core/widgets/Caption.h"
#include "calendar/calendarpopup.h"
#include "calendar/calendarstore.h"
#include "calendar/icons.h"
#include "calendar/planner.h"
#include "core/ini.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/store/transaction.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/DayView.h"
#include "core/widgets/ListFill.h"
#include "core/widgets/MonthCalendar.h"
#include "core/widgets/RichText.h"

#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTabWidget>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {
frmSched2* g_planner = nullptr;
bool g_adding = false;

const QString kExerciseLog = QStringLiteral("frmExerciseLog");
const QString kStrengthLog = QStringLiteral("frmStrengthLog");

QString NumText(double v) { return Str(QVariant(v)); }

QLineEdit* Figure(const QString& name)
{
    auto* e = new QLineEdit;
    e->setObjectName(name);
    e->setReadOnly(true);
    e->setAlignment(Qt::AlignRight);
    e->setMaximumWidth(90);
    return e;
}

// Runs a step of a load on its own, so that one failing statement leaves the others working.
void Step(const std::function<void()>& f) { Guard(f); }

// The time scales of cbointerval, in minutes.
constexpr int Scales[] = {60, 30, 15, 10, 5};
constexpr int ScaleCount = int(sizeof(Scales) / sizeof(Scales[0]));

// A whole number read from the settings file, or `fallback` when it is missing, not a number
// or outside first..last.
int SettingInRange(const QString& key, int first, int last, int fallback)
{
    const QString text = ReadIni(QStringLiteral("Program"), key, IniFile).trimmed();
    bool ok = false;
    const int v = text.toInt(&ok);
    return ok && v >= first && v <= last ? v : fallback;
}

// One entry of the exercises list: its name and icon, the icon's number as its data.
void AddExercise(QListWidget* list, Recordset& rs)
{
    const int image = int(Val(rs.Field(QStringLiteral("Image"))));
    auto* item = new QListWidgetItem(Str(rs.Field(QStringLiteral("exercise"))), list);
    if (image > 0) item->setIcon(ExerciseIcon(image));
    item->setData(Qt::UserRole, image);
}
}  // namespace

void ParseHiddenText(const QString& hidden, QString* workoutType, QString* key)
{
    const QStringList fields = hidden.split('\t');
    QString type, k;
    for (const QString& f : fields) {
        const QString t = f.trimmed();
        bool ok = false;
        t.toLong(&ok);
        if (ok && k.isEmpty()) k = t;
        else if (type.isEmpty()) type = t;
    }
    if (workoutType) *workoutType = type;
    if (key) *key = k;
}

// ---------------------------------------------------------------- construction

frmSched2::frmSched2(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmSched2"));
    g_planner = this;
    BuildUi();
    Form_Load();
}

frmSched2::~frmSched2()
{
    if (!m_unloaded) {
        // Closing with the program: settings and a changed log are kept; a store that is
        // already gone leaves nothing to do.
        try {
            Form_Unload();
        } catch (...) {
        }
    }
    if (g_planner == this) g_planner = nullptr;
}

void frmSched2::BuildUi()
{
    auto* root = new QHBoxLayout(this);
    root->setContentsMargins(6, 6, 6, 6);
    auto* split = new QSplitter(Qt::Horizontal, this);
    root->addWidget(split);

    // Left: calendar, the day's figures, the tabs.
    auto* left = new QWidget;
    auto* leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins(0, 0, 0, 0);
    CalView = new MonthCalendar;
    CalView->setObjectName(QStringLiteral("CalView"));
    leftLayout->addWidget(CalView);

    auto* panel = new QGroupBox(tr("Daily Calories"));
    auto* grid = new QGridLayout(panel);
    txtBMR = Figure(QStringLiteral("txtBMR"));
    txtCalsIn = Figure(QStringLiteral("txtCalsIn"));
    txtCalsOut = Figure(QStringLiteral("txtCalsOut"));
    txtCalsNet = Figure(QStringLiteral("txtCalsNet"));
    txtlbs = Figure(QStringLiteral("txtlbs"));
    txtWater = new QLineEdit;
    txtWater->setObjectName(QStringLiteral("txtWater"));
    txtWater->setAlignment(Qt::AlignRight);
    txtWater->setMaximumWidth(90);
    txtWater->setToolTip(tr("Glasses of water today"));
    lblCalsNet = new QLabel(QStringLiteral("= No Change"));
    lblCalsNet->setObjectName(QStringLiteral("lblCalsNet"));
    lblCalsNet->setBuddy(txtCalsNet);
    lblLbs = new QLabel(QStringLiteral("lbs"));
    lblLbs->setObjectName(QStringLiteral("lblLbs"));
    grid->addWidget(Caption(tr("&BMR:"), txtBMR), 0, 0);
    grid->addWidget(txtBMR, 0, 1);
    grid->addWidget(Caption(tr("Calories &In:"), txtCalsIn), 0, 2);
    grid->addWidget(txtCalsIn, 0, 3);
    grid->addWidget(Caption(tr("Calories &Out:"), txtCalsOut), 1, 0);
    grid->addWidget(txtCalsOut, 1, 1);
    grid->addWidget(Caption(tr("W&ater:"), txtWater), 1, 2);
    grid->addWidget(txtWater, 1, 3);
    grid->addWidget(lblCalsNet, 2, 0);
    grid->addWidget(txtCalsNet, 2, 1);
    auto* lbsRow = new QHBoxLayout;
    lbsRow->addWidget(txtlbs);
    lbsRow->addWidget(lblLbs);
    lbsRow->addStretch();
    grid->addWidget(Caption(tr("calories ="), txtlbs), 2, 2);
    grid->addLayout(lbsRow, 2, 3);
    grid->setColumnStretch(4, 1);
    leftLayout->addWidget(panel);

    Tab1 = new QTabWidget;
    Tab1->setObjectName(QStringLiteral("Tab1"));
    // Schedule
    {
        auto* page = new QWidget;
        auto* l = new QVBoxLayout(page);
        lstItems = new QListWidget;
        lstItems->setObjectName(QStringLiteral("lstItems"));
        lstItems->setIconSize(QSize(CalendarIconSize, CalendarIconSize));
        l->addWidget(Caption(tr("Today's &items:"), lstItems));
        l->addWidget(lstItems);
        auto* buttons = new QHBoxLayout;
        cmdView = new QPushButton(tr("&View"));
        cmdView->setObjectName(QStringLiteral("cmdView"));
        cmdView->setToolTip(tr("Open the selected activity"));
        cmdDelete = new QPushButton(tr("&Delete"));
        cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
        cmdDelete->setToolTip(tr("Delete the selected activity"));
        buttons->addWidget(cmdView);
        buttons->addWidget(cmdDelete);
        buttons->addStretch();
        l->addLayout(buttons);
        Tab1->addTab(page, tr("Schedule"));
    }
    // Strength Training
    {
        auto* page = new QWidget;
        auto* l = new QVBoxLayout(page);
        auto* types = new QHBoxLayout;
        optType[0] = new QRadioButton(tr("Wor&kouts"));
        optType[1] = new QRadioButton(tr("S&ports Workouts"));
        optType[0]->setObjectName(QStringLiteral("optType0"));
        optType[1]->setObjectName(QStringLiteral("optType1"));
        optType[0]->setChecked(true);
        types->addWidget(optType[0]);
        types->addWidget(optType[1]);
        types->addStretch();
        l->addLayout(types);
        cboMuscleGroup = new QComboBox;
        cboMuscleGroup->setObjectName(QStringLiteral("cboMuscleGroup"));
        auto* mg = new QHBoxLayout;
        mg->addWidget(Caption(tr("&Muscle group:"), cboMuscleGroup));
        mg->addWidget(cboMuscleGroup, 1);
        l->addLayout(mg);
        lstWorkouts = new QListWidget;
        lstWorkouts->setObjectName(QStringLiteral("lstWorkouts"));
        l->addWidget(lstWorkouts, 1);
        lblWorkoutDesc = new QLabel;
        lblWorkoutDesc->setObjectName(QStringLiteral("lblWorkoutDesc"));
        lblWorkoutDesc->setWordWrap(true);
        lblWorkoutDesc->setMinimumHeight(36);
        lblWorkoutDesc->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        l->addWidget(lblWorkoutDesc);
        cmdAddWorkout = new QPushButton(tr("&Add Workout"));
        cmdAddWorkout->setObjectName(QStringLiteral("cmdAddWorkout"));
        cmdAddWorkout->setToolTip(tr("Schedule the selected workout on the selected days"));
        cmdAddWorkout->setEnabled(false);
        l->addWidget(cmdAddWorkout, 0, Qt::AlignLeft);
        Tab1->addTab(page, tr("Strength Training"));
    }
    // Exercise/Sports
    {
        auto* page = new QWidget;
        auto* l = new QVBoxLayout(page);
        auto* types = new QHBoxLayout;
        const QString captions[3] = {tr("&Training"), tr("&Sports"), tr("A&ll")};
        for (int i = 0; i < 3; ++i) {
            optendurance[i] = new QRadioButton(captions[i]);
            optendurance[i]->setObjectName(QStringLiteral("optendurance%1").arg(i));
            types->addWidget(optendurance[i]);
        }
        optendurance[2]->setChecked(true);
        types->addStretch();
        l->addLayout(types);
        ListView1 = new QListWidget;
        ListView1->setObjectName(QStringLiteral("ListView1"));
        ListView1->setIconSize(QSize(CalendarIconSize, CalendarIconSize));
        l->addWidget(ListView1, 1);
        lblExerciseDesc = new QLabel;
        lblExerciseDesc->setObjectName(QStringLiteral("lblExerciseDesc"));
        lblExerciseDesc->setWordWrap(true);
        lblExerciseDesc->setMinimumHeight(36);
        lblExerciseDesc->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        l->addWidget(lblExerciseDesc);
        cmdAddEndurance = new QPushButton(tr("Add &Exercise/Sport"));
        cmdAddEndurance->setObjectName(QStringLiteral("cmdAddEndurance"));
        cmdAddEndurance->setToolTip(tr("Schedule the selected exercise or sport on the selected days"));
        l->addWidget(cmdAddEndurance, 0, Qt::AlignLeft);
        Tab1->addTab(page, tr("Exercise/Sports"));
    }
    // Log Book
    {
        auto* page = new QWidget;
        auto* l = new QVBoxLayout(page);
        auto* bar = new QHBoxLayout;
        Combo2 = new QFontComboBox;
        Combo2->setObjectName(QStringLiteral("Combo2"));
        Combo3 = new QComboBox;
        Combo3->setObjectName(QStringLiteral("Combo3"));
        Combo4 = new QComboBox;
        Combo4->setObjectName(QStringLiteral("Combo4"));
        bar->addWidget(Caption(tr("F&ont:"), Combo2));
        bar->addWidget(Combo2, 1);
        bar->addWidget(Caption(tr("Si&ze:"), Combo3));
        bar->addWidget(Combo3);
        bar->addWidget(Caption(tr("&Colour:"), Combo4));
        bar->addWidget(Combo4);
        l->addLayout(bar);
        RTB = new QTextEdit;
        RTB->setObjectName(QStringLiteral("RTB"));
        RTB->setAcceptRichText(false);
        l->addWidget(RTB, 1);
        Tab1->addTab(page, tr("Log Book"));
    }
    leftLayout->addWidget(Tab1, 1);
    split->addWidget(left);

    // Right: the time scale and the day view.
    auto* right = new QWidget;
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    auto* top = new QHBoxLayout;
    cbointerval = new QComboBox;
    cbointerval->setObjectName(QStringLiteral("cbointerval"));
    top->addWidget(Caption(tr("Time &scale:"), cbointerval));
    top->addWidget(cbointerval);
    top->addStretch();
    m_dayCaption = new QLabel;
    m_dayCaption->setObjectName(QStringLiteral("lblDay"));
    QFont bold = m_dayCaption->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() + 1);
    m_dayCaption->setFont(bold);
    top->addWidget(m_dayCaption);
    rightLayout->addLayout(top);
    DayView = new ::DayView;
    DayView->setObjectName(QStringLiteral("DayView"));
    rightLayout->addWidget(DayView, 1);
    split->addWidget(right);
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 1);

    mnupopup = new CalendarPopup(this);

    // The day view's new keys never take one the day already holds in the store.
    DayView->Model().SetKeyFloor([](const QDate& d) {
        if (CurrentUserID.isEmpty() || !UserConn.IsOpen()) return 0;
        try {
            Recordset rs(&UserConn);
            int k = 0;
            FirstRow(rs, QStringLiteral("select max(key) from calendar where User_ID='") + CurrentUserID
                             + QStringLiteral("' and date=#") + SqlDate(d) + QStringLiteral("#"),
                     [&k](Recordset& r) { k = int(Val(r.Field(0))); });
            return k;
        } catch (const std::exception&) {
            return 0;
        }
    });

    connect(CalView, &MonthCalendar::SelectionChanged, this, &frmSched2::CalView_SelChange);
    connect(CalView, &MonthCalendar::DateDoubleClicked, this, &frmSched2::CalView_DblClick);
    connect(CalView, &MonthCalendar::DateRightClicked, this, &frmSched2::CalView_RightClick);
    connect(DayView, &::DayView::EntrySelected, this, &frmSched2::DayView_Select);
    connect(DayView, &::DayView::EntryDoubleClicked, this, &frmSched2::DayView_DblClick);
    connect(DayView, &::DayView::EntryChanged, this, &frmSched2::DayView_Changed);
    connect(DayView, &::DayView::FreeTimeSelected, this, &frmSched2::DayView_FreeTime);
    connect(cmdView, &QPushButton::clicked, this, &frmSched2::on_cmdView_clicked);
    connect(cmdDelete, &QPushButton::clicked, this, &frmSched2::on_cmdDelete_clicked);
    connect(cmdAddWorkout, &QPushButton::clicked, this, &frmSched2::on_cmdAddWorkout_clicked);
    connect(cmdAddEndurance, &QPushButton::clicked, this, &frmSched2::on_cmdAddEndurance_clicked);
    connect(cbointerval, &QComboBox::currentIndexChanged, this, &frmSched2::on_cbointerval_currentIndexChanged);
    connect(txtWater, &QLineEdit::textChanged, this, &frmSched2::on_txtWater_textChanged);
    connect(cboMuscleGroup, &QComboBox::currentIndexChanged, this, &frmSched2::on_cboMuscleGroup_currentIndexChanged);
    connect(lstItems, &QListWidget::itemClicked, this, &frmSched2::on_lstItems_itemClicked);
    connect(ListView1, &QListWidget::currentRowChanged, this, [this] { ListView1_Select(); });
    connect(ListView1, &QListWidget::itemDoubleClicked, this, [this] {
        if (cmdAddEndurance->isEnabled()) on_cmdAddEndurance_clicked();
    });
    connect(lstWorkouts, &QListWidget::currentRowChanged, this, [this] { lstWorkouts_Select(); });
    connect(lstWorkouts, &QListWidget::itemDoubleClicked, this, [this] {
        if (cmdAddWorkout->isEnabled()) on_cmdAddWorkout_clicked();
    });
    for (int i = 0; i < 2; ++i)
        connect(optType[i], &QRadioButton::toggled, this, [this](bool on) {
            if (on && !m_loading) Guard([this] { LoadWorkouts(); });
        });
    for (int i = 0; i < 3; ++i)
        connect(optendurance[i], &QRadioButton::toggled, this, [this](bool on) {
            if (on && !m_loading) Guard([this] { LoadExercises(); });
        });
    connect(RTB, &QTextEdit::textChanged, this, [this] {
        if (!m_loading) m_logDirty = true;
    });
    connect(Combo2, &QComboBox::textActivated, this, [this] { ApplyLogFormat(2); });
    connect(Combo3, &QComboBox::textActivated, this, [this] { ApplyLogFormat(3); });
    connect(Combo4, &QComboBox::textActivated, this, [this] { ApplyLogFormat(4); });
}

// ---------------------------------------------------------------- load

void frmSched2::Form_Load()
{
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SetColor();
        DayView->SetDayStart(QTime(0, 1));
        DayView->SetDayEnd(QTime(0, 0));
        DayView->SetDate(SelectedDate());
        m_loadedDate = SelectedDate();

        Step([this] { LoadCalendarIcons(CalView, SelectedDate(), 0); });
        Step([this] { FormatLog(); });
        Step([this] { LoadNotes(); });
        Step([this] { LoadToday(); });
        Step([this] { LoadDayView(); });
        Step([this] { LoadDayItems(); });
        Step([this] { LoadNetCalories(); });
        Step([this] { LoadWater(); });

        NewStart = QTime(9, 0);
        NewEnd = QTime(9, 30);
        // Settings out of range (a hand-edited file) keep the defaults.
        const int tab = SettingInRange(QStringLiteral("Tab"), 1, Tab1->count(), 0);
        if (tab > 0) SelectTab(tab);
        const int firstDay = SettingInRange(QStringLiteral("FirstDay"), Qt::Monday, Qt::Sunday, 0);
        if (firstDay > 0) CalView->SetFirstDayOfWeek(Qt::DayOfWeek(firstDay));
        cmdView->setEnabled(false);
        cmdDelete->setEnabled(false);
        m_logDirty = false;
    }
    DayView->SetScrollTime(QTime(6, 0));
}

void frmSched2::LoadMuscleGroups()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    cboMuscleGroup->clear();
    cboMuscleGroup->addItem(QStringLiteral("All"));
    SqlText = QStringLiteral("select distinct group from muscle_groups");
    ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) { cboMuscleGroup->addItem(Str(rs.Field(0))); });
    cboMuscleGroup->setCurrentIndex(0);
}

void frmSched2::LoadToday()
{
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        LoadMuscleGroups();

        cmdAddEndurance->setEnabled(false);
        SqlText = QStringLiteral("select distinct exercise,Image from endurance_exercises  order by exercise");
        ListView1->clear();
        listfill::FillList(ListView1, LibraryRS, SqlText, AddExercise);

        cbointerval->clear();
        cbointerval->addItems({QStringLiteral("Hourly"), QStringLiteral("Half Hour"), QStringLiteral("15 Minutes"),
                               QStringLiteral("10 Minutes"), QStringLiteral("5 Minutes")});
        cbointerval->setCurrentIndex(SettingInRange(QStringLiteral("Interval"), 0, cbointerval->count() - 1, 0));
        on_cbointerval_currentIndexChanged(cbointerval->currentIndex());

        // One month, or two side by side: what the planner's own setting can hold.
        const int months = SettingInRange(QStringLiteral("Cal"), 1, 2, 1);
        if (!ReadIni(QStringLiteral("Program"), QStringLiteral("Cal"), IniFile).isEmpty()) CalView->SetMonths(months);

        LoadWorkouts();
    }
    cmdAddEndurance->setEnabled(false);
    cmdAddWorkout->setEnabled(false);
}

void frmSched2::LoadWorkouts()
{
    lstWorkouts->clear();
    lblWorkoutDesc->clear();
    cmdAddWorkout->setEnabled(false);
    if (optType[1]->isChecked()) {
        SqlText = QStringLiteral("select distinct workout_name from workouts where wtype='sports'");
    } else {
        SqlText = QStringLiteral("select distinct workout_name from workouts where wtype='strength'");
        const QString group = cboMuscleGroup->currentText();
        if (!group.isEmpty() && group != QLatin1String("All"))
            SqlText += QStringLiteral(" and muscle_group='") + SqlQuote(group) + QStringLiteral("'");
    }
    listfill::FillList(lstWorkouts, LibraryRS, SqlText,
                       [](QListWidget* list, Recordset& rs) { list->addItem(Str(rs.Field(0))); });
}

void frmSched2::LoadExercises()
{
    if (optendurance[0]->isChecked())
        SqlText = QStringLiteral("select distinct exercise, Image from endurance_exercises where category='training' order by exercise");
    else if (optendurance[1]->isChecked())
        SqlText = QStringLiteral("select distinct exercise,Image  from endurance_exercises where category='sports' order by exercise");
    else
        SqlText = QStringLiteral("select distinct exercise,Image from endurance_exercises  order by exercise");
    ListView1->clear();
    lblExerciseDesc->clear();
    cmdAddEndurance->setEnabled(false);
    listfill::FillList(ListView1, LibraryRS, SqlText, AddExercise);
}

QDate frmSched2::SelectedDate() const { return CalView->Value(); }

void frmSched2::LoadDayView()
{
    DayView->SetDate(SelectedDate());
    m_dayCaption->setText(regional::LongDate(SelectedDate()));
    ::LoadDayView(DayView);
}

void frmSched2::LoadDayItems()
{
    const QString id = CurrentUserID;
    const QString date = SqlDate(SelectedDate());
    lstItems->clear();
    // One entry per row of a source, with the source's caption and icon.
    const auto entryPerRow = [](const QString& caption) {
        return [caption](QListWidget* list, Recordset&) { new QListWidgetItem(ItemIcon(caption), caption, list); };
    };
    SqlText = QStringLiteral("select * from WeighIn where User_ID='") + id + QStringLiteral("' and date=#") + date + QStringLiteral("#");
    listfill::FillList(lstItems, UserRS, SqlText, entryPerRow(QStringLiteral("Weigh In")));
    SqlText = QStringLiteral("select * from wellness where User_ID='") + id + QStringLiteral("' and date=#") + date + QStringLiteral("#");
    listfill::FillList(lstItems, UserRS, SqlText, entryPerRow(QStringLiteral("Wellness")));
    SqlText = QStringLiteral("select * from setup_meals where User_ID=") + id + QStringLiteral(" and show=true order by [Position]");
    listfill::FillList(lstItems, UserRS, SqlText, [](QListWidget* list, Recordset& rs) {
        auto* item = new QListWidgetItem(ItemIcon(QStringLiteral("Meal")), Str(rs.Field(QStringLiteral("meal"))).trimmed(), list);
        item->setData(Qt::UserRole, rs.Field(QStringLiteral("Meal_ID")));
    });
}

void frmSched2::LoadNetCalories()
{
    const QString id = CurrentUserID;
    const QString date = SqlDate(SelectedDate());

    SqlText = QStringLiteral("select personal_measurements from User_Info where User_ID=") + id;
    FirstRow(UserRS, SqlText,
             [this](Recordset& rs) { lblLbs->setText(Str(rs.Field(QStringLiteral("personal_measurements")))); });

    double intake = 0;
    SqlText = QStringLiteral("select * from daily_nutrition where User_ID='") + id + QStringLiteral("' and date=#") + date
              + QStringLiteral("# and meal_id<>9999");
    ForEachRow(UserRS, SqlText, [&intake](Recordset& rs) { intake += Val(rs.Field(QStringLiteral("calories"))); });

    double bmr = 0;
    const auto takeWeighIn = [&](Recordset& rs) {
        bmr = Val(rs.Field(QStringLiteral("bmr")));
        m_dayWeight = Val(rs.Field(QStringLiteral("weight")));
    };
    SqlText = QStringLiteral("select weight,bmr,date from WeighIn where User_ID ='") + id + QStringLiteral("' and date <=#") + date
              + QStringLiteral("# order by date");
    const bool found = ForEachRow(UserRS, SqlText, takeWeighIn) > 0;
    if (!found) {
        // A day before every weigh-in takes the first one.
        SqlText = QStringLiteral("select weight,bmr,date from WeighIn where User_ID ='") + id + QStringLiteral("' order by date");
        if (!FirstRow(UserRS, SqlText, takeWeighIn)) m_dayWeight = 0;
    }

    const long burned = DayCalories();
    const double out = regional::Round(bmr + burned, 0);
    const double net = intake - out;
    txtBMR->setText(NumText(bmr));
    txtCalsOut->setText(NumText(burned));
    txtCalsIn->setText(NumText(intake));
    txtCalsNet->setText(NumText(regional::Round(qAbs(net), 0)));
    txtlbs->setText(NumText(qAbs(regional::Round(net / 3500.0, 2))));
    if (net < 0) lblCalsNet->setText(QStringLiteral("= Loss of "));
    else if (net == 0) lblCalsNet->setText(QStringLiteral("= No Change"));
    else lblCalsNet->setText(QStringLiteral("= Gain of "));
}

void frmSched2::LoadWater()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SqlText = QStringLiteral("select * from daily_water where User_ID=") + CurrentUserID + QStringLiteral(" and date=#")
              + SqlDate(SelectedDate()) + QStringLiteral("#");
    QString water = QStringLiteral("0");
    FirstRow(UserRS, SqlText, [&water](Recordset& rs) { water = Str(rs.Field(QStringLiteral("water"))); });
    txtWater->setText(water);
}

void frmSched2::on_txtWater_textChanged(const QString& text)
{
    if (m_loading) return;
    Guard([&] {
        // The day's row is replaced: the old one stays unless the new one is written.
        StoreTransaction transaction(UserConn);
        RecordsetScope scope(UserRS);
        const QString date = SqlDate(SelectedDate());
        SqlText = QStringLiteral("delete * from daily_water where User_ID=") + CurrentUserID + QStringLiteral(" and date=#")
                  + date + QStringLiteral("#");
        UserConn.Execute(SqlText);
        UserRS.Open(QStringLiteral("daily_water"));
        UserRS.AddNew();
        UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
        UserRS.SetField(QStringLiteral("Date"), SelectedDate());
        UserRS.SetField(QStringLiteral("water"), Val(text));
        UserRS.Update();
        UserRS.Close();
        transaction.Commit();
    });
}

// ---------------------------------------------------------------- log book

void frmSched2::FormatLog()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    QFont f(QStringLiteral("ms sans serif"));
    f.setPointSize(10);
    RTB->document()->setDefaultFont(f);
    RTB->setCurrentFont(f);
    Combo2->setCurrentFont(f);
    Combo3->clear();
    for (int s : {8, 10, 12, 14, 18, 24, 36}) Combo3->addItem(QString::number(s));
    Combo3->setCurrentText(QStringLiteral("10"));
    Combo4->clear();
    Combo4->addItems({QStringLiteral("Black"), QStringLiteral("Red"), QStringLiteral("Green"), QStringLiteral("Blue")});
}

void frmSched2::ApplyLogFormat(int which)
{
    QTextCharFormat fmt;
    if (which == 2) {
        fmt.setFontFamilies(QStringList{Combo2->currentFont().family()});
    } else if (which == 3) {
        const double size = Val(Combo3->currentText());
        if (size <= 0) return;
        fmt.setFontPointSize(size);
    } else {
        static const QColor colours[] = {Qt::black, Qt::red, QColor(0, 128, 0), Qt::blue};
        const int i = Combo4->currentIndex();
        if (i < 0 || i > 3) return;
        fmt.setForeground(colours[i]);
    }
    RTB->mergeCurrentCharFormat(fmt);
    if (!m_loading) m_logDirty = true;
    RTB->setFocus();
}

void frmSched2::LoadNotes()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SqlText = QStringLiteral("select * from daily_log where User_ID='") + CurrentUserID + QStringLiteral("' and date=#")
              + SqlDate(SelectedDate()) + QStringLiteral("#");
    QString text;
    FirstRow(UserRS, SqlText, [&text](Recordset& rs) { text = Str(rs.Field(QStringLiteral("Log"))); });
    QFont f = RTB->document()->defaultFont();
    RTB->clear();
    RTB->document()->setDefaultFont(f);
    if (!text.isEmpty()) RichText::Read(text, *RTB->document());
}

void frmSched2::SaveLog()
{
    const QDate day = m_loadedDate.isValid() ? m_loadedDate : SelectedDate();
    // The day's log is replaced: the old one stays unless the new one is written.
    StoreTransaction transaction(UserConn);
    RecordsetScope scope(UserRS);
    SqlText = QStringLiteral("delete * from daily_log where User_ID ='") + CurrentUserID + QStringLiteral("' and date =#")
              + SqlDate(day) + QStringLiteral("#");
    UserConn.Execute(SqlText);
    UserRS.Open(QStringLiteral("daily_log"));
    UserRS.AddNew();
    UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
    UserRS.SetField(QStringLiteral("Date"), day);
    UserRS.SetField(QStringLiteral("Log"), RichText::Write(*RTB->document()));
    UserRS.Update();
    UserRS.Close();
    transaction.Commit();
    m_logDirty = false;
}

// ---------------------------------------------------------------- calendar

void frmSched2::CalView_SelChange()
{
    if (m_loading) return;
    if (m_logDirty) {
        // The log of the day being left is kept before the day changes; if that fails the
        // text stays on screen and dirty, and the day does not reload over it.
        if (!Guard([this] { SaveLog(); })) return;
    }
    cmdDelete->setEnabled(false);
    cmdView->setEnabled(false);
    DayView->SetDate(SelectedDate());
    NewStart = QTime(9, 0);
    NewEnd = QTime(9, 30);
    Step([this] { LoadNotes(); });
    Step([this] { LoadDayView(); });
    Step([this] { LoadDayItems(); });
    Step([this] { LoadNetCalories(); });
    Step([this] { LoadWater(); });
    m_loadedDate = SelectedDate();
    m_logDirty = false;
}

void frmSched2::CalView_DblClick(const QDate& date)
{
    Guard([&] {
        if (!CalView->HasPicture(date)) {
            SelectedKey.clear();
            ShowModal(QStringLiteral("frmQuickPick"));
            AfterLog();
            return;
        }
        SqlText = QStringLiteral("select * from calendar where date=#") + SqlDate(date) + QStringLiteral("# and User_ID='")
                  + CurrentUserID + QStringLiteral("'");
        QString type;
        const bool found = FirstRow(UserRS, SqlText, [&type](Recordset& rs) {
            SelectedKey = Str(rs.Field(QStringLiteral("Key")));
            SelectedName = SqlQuote(Str(rs.Field(QStringLiteral("Name"))));
            type = Str(rs.Field(QStringLiteral("WorkoutType")));
        });
        if (!found) return;
        if (type == QLatin1String("Exercise")) ShowModal(kExerciseLog);
        else if (type == QLatin1String("Strength")) ShowModal(kStrengthLog);
        AfterLog();
    });
}

void frmSched2::CalView_RightClick(const QDate& date, const QPoint& globalPos)
{
    if (!CalView->IsSelected(date)) CalView->SetValue(date);
    mnupopup->Popup(date, globalPos);
}

void frmSched2::SetMultiCalendar(bool multi) { CalView->SetMonths(multi ? 2 : 1); }

void frmSched2::SetColor()
{
    theme::ApplyToCalendar(CalView);
    DayView->SetColor(theme::Color());
    theme::ApplyToTabs(Tab1);
    // The day's entries wear the colour too.
    if (!m_loading) Step([this] { LoadDayView(); });
}

void frmSched2::SetFirstDay(int index)
{
    if (index < 0 || index > 6) return;
    CalView->SetFirstDayOfWeek(index == 0 ? Qt::Sunday : Qt::DayOfWeek(index));
}

void frmSched2::SelectTab(int tab)
{
    if (tab >= 1 && tab <= Tab1->count()) Tab1->setCurrentIndex(tab - 1);
}

void frmSched2::ShowSportsList()
{
    SelectTab(3);
    optendurance[1]->setChecked(true);
}

// ---------------------------------------------------------------- day view

void frmSched2::DayView_Select(int id)
{
    const DayViewEntry* e = DayView->Entry(id);
    if (!e) return;
    QString type, key;
    ParseHiddenText(e->hiddenText, &type, &key);
    SelectedName = SqlQuote(e->text);
    SelectedKey = key;
    cmdView->setEnabled(true);
    cmdDelete->setEnabled(true);
}

void frmSched2::DayView_DblClick(int id)
{
    DayView_Select(id);
    const DayViewEntry* e = DayView->Entry(id);
    if (!e) return;
    QString type;
    ParseHiddenText(e->hiddenText, &type, nullptr);
    OpenEntry(type);
}

void frmSched2::on_cmdView_clicked()
{
    const DayViewEntry* e = DayView->Entry(DayView->SelectedId());
    if (!e) return;
    QString type;
    ParseHiddenText(e->hiddenText, &type, nullptr);
    OpenEntry(type);
}

void frmSched2::OpenEntry(const QString& type)
{
    Guard([&] {
        if (type == QLatin1String("Strength")) ShowModal(kStrengthLog);
        else if (type == QLatin1String("Exercise")) ShowModal(kExerciseLog);
        else if (type == QLatin1String("Appointment")) ShowModal(QStringLiteral("frmAppointment"));
        else return;
        AfterLog();
    });
}

void frmSched2::AfterLog()
{
    // The screen over the planner may have changed the day's entries and figures.
    RefreshRequested = false;
    Step([this] { LoadDayView(); });
    Step([this] { LoadDayItems(); });
    Step([this] { LoadNetCalories(); });
    cmdView->setEnabled(false);
    cmdDelete->setEnabled(false);
}

void frmSched2::DayView_Changed(int id, const QDateTime& start, const QDateTime& end)
{
    const DayViewEntry* e = DayView->Entry(id);
    if (!e) return;
    QString type, key;
    ParseHiddenText(e->hiddenText, &type, &key);
    if (type.isEmpty() || type == QLatin1String("Nutrition") || key.isEmpty()) return;
    const QString name = SqlQuote(e->text);
    const QString date = SqlDate(SelectedDate());
    Guard([&] {
        // The log's times and the calendar's move together.
        StoreTransaction transaction(UserConn);
        if (type == QLatin1String("Strength"))
            SqlText = QStringLiteral("select * from Daily_Weights where User_ID='");
        else
            SqlText = QStringLiteral("select * from Daily_Exercise where User_ID='");
        SqlText += CurrentUserID + QStringLiteral("' and Date=#") + date + QStringLiteral("# and name='") + name
                   + QStringLiteral("' and key='") + key + QStringLiteral("'");
        ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
            rs.SetField(QStringLiteral("StartTime"), start);
            rs.SetField(QStringLiteral("EndTime"), end);
            rs.Update();
        });
        SqlText = QStringLiteral("select * from calendar where User_ID='") + CurrentUserID + QStringLiteral("' and Date=#")
                  + date + QStringLiteral("# and key=") + key;
        ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
            rs.SetField(QStringLiteral("StartTime"), EntryTimeText(start));
            rs.SetField(QStringLiteral("EndTime"), EntryTimeText(end));
            rs.Update();
        });
        transaction.Commit();
    });
}

void frmSched2::DayView_FreeTime(const QDateTime& start, const QDateTime& end)
{
    NewStart = start.time();
    NewEnd = end.date() > start.date() ? QTime(23, 59, 59) : end.time();
    cmdView->setEnabled(false);
    cmdDelete->setEnabled(false);
}

void frmSched2::on_cmdDelete_clicked()
{
    const DayViewEntry* e = DayView->Entry(DayView->SelectedId());
    if (!e) return;
    if (MsgBox(QStringLiteral("Delete this activity?"), vbYesNo + vbQuestion, QStringLiteral("Message")) != vbYes) return;
    const int id = e->id;
    QString type, key;
    ParseHiddenText(e->hiddenText, &type, &key);
    const QString name = SqlQuote(e->text);
    const QString id_ = CurrentUserID;
    const QString date = SqlDate(SelectedDate());
    Guard([&] {
        // The activity leaves every table at once or stays in all of them.
        StoreTransaction transaction(UserConn);
        if (type == QLatin1String("Strength")) {
            UserConn.Execute(QStringLiteral("delete * from Daily_Weights where User_ID='") + id_ + QStringLiteral("' and Date=#")
                             + date + QStringLiteral("# and name='") + name + QStringLiteral("' and key='") + key
                             + QStringLiteral("'"));
        } else {
            UserConn.Execute(QStringLiteral("delete * from Daily_Exercise where User_ID='") + id_ + QStringLiteral("' and Date=#")
                             + date + QStringLiteral("# and name='") + name + QStringLiteral("' and key='") + key
                             + QStringLiteral("'"));
            UserConn.Execute(QStringLiteral("delete * from Daily_Intervals where User_ID='") + id_ + QStringLiteral("' and date=#")
                             + date + QStringLiteral("# and key='") + key + QStringLiteral("'"));
        }
        UserConn.Execute(QStringLiteral("delete * from calendar where date=#") + date + QStringLiteral("# and User_ID='") + id_
                         + QStringLiteral("' and key=") + key);
        UserConn.Execute(QStringLiteral("delete * from HRM where User_ID='") + id_ + QStringLiteral("' and HRM_date=#") + date
                         + QStringLiteral("# and key='") + key + QStringLiteral("' and SPORT='") + name + QStringLiteral("'"));
        UserConn.Execute(QStringLiteral("delete * from Daily_Psych where User_ID='") + id_ + QStringLiteral("' and Date=#") + date
                         + QStringLiteral("# and name='") + name + QStringLiteral("' and key='") + key + QStringLiteral("'"));
        transaction.Commit();
        DayView->RemoveEntry(id);
        LoadCalendarIcons(CalView, SelectedDate(), 1);
        LoadDayView();
        LoadNetCalories();
    });
    cmdView->setEnabled(false);
    cmdDelete->setEnabled(false);
}

// ---------------------------------------------------------------- lists and adding

void frmSched2::on_cboMuscleGroup_currentIndexChanged(int)
{
    if (m_loading) return;
    Guard([this] { LoadWorkouts(); });
}

// The description under a list: the first column of the statement's first row.
void frmSched2::ShowDescription(QLabel* label, const QString& sql)
{
    Guard([&] {
        SqlText = sql;
        FirstRow(LibraryRS, SqlText, [label](Recordset& rs) { label->setText(Str(rs.Field(0))); });
    });
}

void frmSched2::ListView1_Select()
{
    QListWidgetItem* item = ListView1->currentItem();
    cmdAddEndurance->setEnabled(item && ui::HasScreen(kExerciseLog));
    lblExerciseDesc->clear();
    if (!item || m_loading) return;
    ShowDescription(lblExerciseDesc, QStringLiteral("select desc from endurance_exercises where exercise='")
                                         + SqlQuote(item->text()) + QStringLiteral("'"));
}

void frmSched2::lstWorkouts_Select()
{
    QListWidgetItem* item = lstWorkouts->currentItem();
    cmdAddWorkout->setEnabled(item && ui::HasScreen(kStrengthLog));
    lblWorkoutDesc->clear();
    if (!item || m_loading) return;
    ShowDescription(lblWorkoutDesc, QStringLiteral("select workout_desc from workouts where workout_name='")
                                        + SqlQuote(item->text()) + QStringLiteral("'"));
}

void frmSched2::on_cmdAddEndurance_clicked()
{
    QListWidgetItem* item = ListView1->currentItem();
    if (!item || !ui::HasScreen(kExerciseLog)) return;
    if (m_logDirty) Guard([this] { SaveLog(); });
    SelectedItem = item->text();
    SelectedKey.clear();
    Adding = true;
    g_adding = true;
    ShowModal(kExerciseLog);
    Adding = false;
    g_adding = false;
    AfterLog();
}

void frmSched2::on_cmdAddWorkout_clicked()
{
    QListWidgetItem* item = lstWorkouts->currentItem();
    if (!item || !ui::HasScreen(kStrengthLog)) return;
    if (m_logDirty) Guard([this] { SaveLog(); });
    SelectedItem = item->text();
    SelectedKey.clear();
    Adding = true;
    g_adding = true;
    ShowModal(kStrengthLog);
    Adding = false;
    g_adding = false;
    AfterLog();
}

void frmSched2::on_lstItems_itemClicked(QListWidgetItem* item)
{
    if (!item) return;
    const QString text = item->text();
    Guard([&] {
        if (text == QLatin1String("Wellness")) {
            ShowModal(QStringLiteral("frmWellness"));
        } else if (text == QLatin1String("Weigh In")) {
            ShowModal(QStringLiteral("frmWeighIn"));
        } else {
            // The diary opens on the meal's tab by its caption.
            SelectedItem = text;
            ShowModal(QStringLiteral("frmNutrition"));
        }
        LoadDayItems();
        LoadNetCalories();
    });
}

void frmSched2::on_cbointerval_currentIndexChanged(int index)
{
    if (index < 0 || index >= ScaleCount) return;
    DayView->SetScale(Scales[index]);
    if (!m_loading) WriteIni(QStringLiteral("Program"), QStringLiteral("Interval"), QString::number(index), IniFile);
}

// ---------------------------------------------------------------- close

void frmSched2::Form_Unload()
{
    m_unloaded = true;
    WriteIni(QStringLiteral("Program"), QStringLiteral("Cal"), QString::number(CalView->Months()), IniFile);
    WriteIni(QStringLiteral("Program"), QStringLiteral("Tab"), QString::number(Tab1->currentIndex() + 1), IniFile);
    if (m_logDirty && UserConn.IsOpen() && !CurrentUserID.isEmpty()) SaveLog();
}

// ---------------------------------------------------------------- the open planner

frmSched2* OpenPlanner() { return g_planner; }
DayView* PlannerDayView() { return g_planner ? g_planner->DayView : nullptr; }
MonthCalendar* PlannerCalendar() { return g_planner ? g_planner->CalView : nullptr; }

void LoadDayItems()
{
    if (g_planner) g_planner->LoadDayItems();
}
void LoadNetCalories()
{
    if (g_planner) g_planner->LoadNetCalories();
}
void LoadDayView()
{
    if (g_planner) g_planner->LoadDayView();
}

QTime PlannerStartTime() { return g_planner ? g_planner->NewStart : QTime(9, 0); }
QTime PlannerEndTime() { return g_planner ? g_planner->NewEnd : QTime(9, 30); }
bool PlannerAdding() { return g_adding; }
void SetPlannerAdding(bool adding) { g_adding = adding; }

int PlannerYear() { return g_planner ? g_planner->CalView->Year() : CalendarQDate().year(); }
bool PlannerDateSelected(const QDate& d)
{
    return g_planner ? g_planner->CalView->IsSelected(d) : d == CalendarQDate();
}
QList<QDate> PlannerSelectedDates()
{
    return g_planner ? g_planner->CalView->SelectedDates() : QList<QDate>{CalendarQDate()};
}

bool ForEachSelectedDay(const std::function<bool(const QDate&)>& fn)
{
    const int year = PlannerYear();
    for (int month = 1; month <= 12; ++month)
        for (int day = 1; day <= 31; ++day) {
            const QDate d(year, month, day);
            if (d.isValid() && PlannerDateSelected(d) && !fn(d))
                return false;
        }
    return true;
}

void RefreshPlanner()
{
    if (g_planner) g_planner->RefreshRequested = true;
}
