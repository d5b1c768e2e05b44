#include "exercise/psychpanel.h"

#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/widgets/Form.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace {

const QStringList& RatingItems()
{
    static const QStringList items = {QString(), QStringLiteral("very low"), QStringLiteral("low"),
                                      QStringLiteral("medium"), QStringLiteral("high"), QStringLiteral("very high")};
    return items;
}

// The rating columns in the order of cboRating 0..6.
const char* const RatingColumns[PsychPanel::Ratings] = {"Levelbefore",     "Levelafter",  "Levelfocus",    "LevelConfidence",
                                                        "LevelActivation", "LevelStress", "LevelCommitted"};

QString Key(const QDate& date, const QString& name, const QString& key)
{
    return QStringLiteral("User_ID='") + CurrentUserID + QStringLiteral("' and Date=#") + SqlDate(date) +
           QStringLiteral("# and name='") + SqlQuote(name) + QStringLiteral("' and key='") + SqlQuote(key) +
           QStringLiteral("'");
}

QLabel* Question(const QString& text, QWidget* buddy, QWidget* parent)
{
    auto* l = new QLabel(text, parent);
    l->setWordWrap(true);
    l->setBuddy(buddy);
    l->setMinimumWidth(160);
    return l;
}

}  // namespace

PsychPanel::PsychPanel(Wording wording, QWidget* parent) : QWidget(parent), m_wording(wording)
{
    setObjectName(QStringLiteral("PsychPanel"));
    auto* page = new QWidget(this);
    auto make = [](const QString& name, int maxLength) {
        return form::Edit(name, maxLength);
    };
    txtGoals = make(QStringLiteral("txtGoals"), 255);
    txtDifferent = make(QStringLiteral("txtDifferent"), 255);
    txtDoubt = make(QStringLiteral("txtDoubt"), 255);
    txtControlLevel = make(QStringLiteral("txtControlLevel"), 50);
    txtVis = make(QStringLiteral("txtVis"), 255);
    txtUnforseen = make(QStringLiteral("txtUnforseen"), 255);
    txtRating = make(QStringLiteral("txtRating"), 50);
    txtRating->setMaximumWidth(80);
    for (int i = 0; i < Ratings; ++i) {
        cboRating[i] = form::Named(new QComboBox(page), QStringLiteral("cboRating_%1").arg(i));
        cboRating[i]->addItems(RatingItems());
        cboRating[i]->setCurrentIndex(-1);
        cboRating[i]->setMinimumWidth(110);
        cboRating[i]->setMaximumWidth(150);
    }
    m_groups[0] = pair(optGoals, QStringLiteral("optGoals"));
    m_groups[1] = pair(optSleep, QStringLiteral("optSleep"));
    m_groups[2] = pair(optDoubt, QStringLiteral("optDoubt"));
    m_groups[3] = pair(optVis, QStringLiteral("optVis"));
    m_groups[4] = pair(optun, QStringLiteral("optun"));

    auto options = [page](QRadioButton* (&opt)[2]) {
        auto* w = new QWidget(page);
        auto* h = new QHBoxLayout(w);
        h->setContentsMargins(0, 0, 0, 0);
        h->addWidget(opt[0]);
        h->addWidget(opt[1]);
        h->addStretch(1);
        return w;
    };
    auto ratingPair = [this, page] {
        auto* w = new QWidget(page);
        auto* h = new QHBoxLayout(w);
        h->setContentsMargins(0, 0, 0, 0);
        auto* b = new QLabel(QStringLiteral("&before"), w);
        b->setBuddy(cboRating[0]);
        auto* d = new QLabel(QStringLiteral("&during"), w);
        d->setBuddy(cboRating[1]);
        h->addWidget(b);
        h->addWidget(cboRating[0]);
        h->addSpacing(12);
        h->addWidget(d);
        h->addWidget(cboRating[1]);
        h->addStretch(1);
        return w;
    };

    // Two columns: how it went, and what went on in the head.
    auto* left = new QGroupBox(QStringLiteral("The Workout"), page);
    auto* lg = new QGridLayout(left);
    int r = 0;
    auto add = [](QGridLayout* g, int& row, QLabel* caption, QWidget* field) {
        g->addWidget(caption, row, 0);
        g->addWidget(field, row, 1);
        ++row;
    };
    add(lg, r, Question(QStringLiteral("Did you accomplish the &goals of yor workout?"), optGoals[0], left), options(optGoals));
    add(lg, r, Question(QStringLiteral("If no, &why not?"), txtGoals, left), txtGoals);
    add(lg, r, Question(QStringLiteral("What might you do differently to make your workouts more successful and enjoyable?"),
                        txtDifferent, left),
        txtDifferent);
    auto* motivation = Question(QStringLiteral("What was your level of &motivation before and during your workout?"),
                                cboRating[0], left);
    add(lg, r, motivation, ratingPair());
    add(lg, r, Question(QStringLiteral("What was your level of &focus during the workout?"), cboRating[2], left), cboRating[2]);
    add(lg, r, Question(QStringLiteral("What was your level of c&onfidence?"), cboRating[3], left), cboRating[3]);
    add(lg, r, Question(QStringLiteral("Did you s&leep well before working out?"), optSleep[0], left), options(optSleep));
    add(lg, r, Question(QStringLiteral("A&ctivation Level?"), cboRating[4], left), cboRating[4]);
    add(lg, r, Question(QStringLiteral("S&tress Level?"), cboRating[5], left), cboRating[5]);
    lg->setRowStretch(r, 1);
    lg->setColumnStretch(1, 1);

    auto* right = new QGroupBox(QStringLiteral("Mind and Feelings"), page);
    auto* rg = new QGridLayout(right);
    r = 0;
    add(rg, r, Question(QStringLiteral("Did you have any &doubts, worries or fears?"), optDoubt[0], right), options(optDoubt));
    add(rg, r, Question(QStringLiteral("If so, w&hat were they?"), txtDoubt, right), txtDoubt);
    add(rg, r, Question(QStringLiteral("What level of co&ntrol did you feel you had during your workout?"), txtControlLevel, right),
        txtControlLevel);
    add(rg, r, Question(QStringLiteral("Did you use &visualization?"), optVis[0], right), options(optVis));
    add(rg, r, Question(QStringLiteral("If yes, how so&?"), txtVis, right), txtVis);
    const QString committed = wording == ExerciseLog ? QStringLiteral("What was your level of comm&ittment?")
                                                     : QStringLiteral("What was your level of comm&itment?");
    add(rg, r, Question(committed, cboRating[6], right), cboRating[6]);
    add(rg, r, Question(QStringLiteral("Did anything &unforeseen or unexpected happen?"), optun[0], right), options(optun));
    const QString affect = wording == ExerciseLog ? QStringLiteral("How did this &affect you?")
                                                  : QStringLiteral("If so, how did this &affect you?");
    add(rg, r, Question(affect, txtUnforseen, right), txtUnforseen);
    add(rg, r, Question(QStringLiteral("From 1- 10, &rate your overall feeling of effectiveness for this workout."), txtRating, right),
        txtRating);
    rg->setRowStretch(r, 1);
    rg->setColumnStretch(1, 1);

    auto* columns = new QHBoxLayout(page);
    columns->addWidget(left, 1);
    columns->addWidget(right, 1);

    auto* v = new QVBoxLayout(this);
    v->setContentsMargins(0, 0, 0, 0);
    v->addWidget(page);

    // Tab follows the questions down the first column, then the second.
    const QList<QWidget*> order = {optGoals[0], optGoals[1], txtGoals,     txtDifferent, cboRating[0], cboRating[1],
                                   cboRating[2], cboRating[3], optSleep[0], optSleep[1],  cboRating[4], cboRating[5],
                                   optDoubt[0],  optDoubt[1],  txtDoubt,    txtControlLevel, optVis[0], optVis[1],
                                   txtVis,       cboRating[6], optun[0],    optun[1],     txtUnforseen, txtRating};
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);

    for (auto* e : {txtGoals, txtDifferent, txtDoubt, txtControlLevel, txtVis, txtUnforseen, txtRating})
        connect(e, &QLineEdit::textChanged, this, &PsychPanel::changed);
    for (auto* c : cboRating)
        connect(c, &QComboBox::currentIndexChanged, this, &PsychPanel::changed);
    for (auto* g : m_groups)
        connect(g, &QButtonGroup::buttonToggled, this, &PsychPanel::changed);
}

QButtonGroup* PsychPanel::pair(QRadioButton* (&opt)[2], const QString& name)
{
    opt[0] = form::Named(new QRadioButton(QStringLiteral("Yes"), this), name + QStringLiteral("_0"));
    opt[1] = form::Named(new QRadioButton(QStringLiteral("No"), this), name + QStringLiteral("_1"));
    auto* group = new QButtonGroup(this);
    group->setObjectName(name);
    group->addButton(opt[0], 0);
    group->addButton(opt[1], 1);
    return group;
}

void PsychPanel::changed()
{
    if (!m_loading)
        emit Changed();
}

void PsychPanel::setAnswer(QRadioButton* (&opt)[2], const QVariant& stored)
{
    if (IsNull(stored))
        return;
    (Val(stored) != 0 ? opt[0] : opt[1])->setChecked(true);
}

void PsychPanel::LoadPsych(const QDate& date, const QString& name, const QString& key)
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SqlText = QStringLiteral("select * from Daily_Psych where ") + Key(date, name, key);
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        auto text = [&rs](const char* column) { return Str(rs.Field(QString::fromLatin1(column))); };
        setAnswer(optGoals, rs.Field(QStringLiteral("AccomplishGoals")));
        setAnswer(optSleep, rs.Field(QStringLiteral("sleep")));
        setAnswer(optDoubt, rs.Field(QStringLiteral("Doubts")));
        setAnswer(optVis, rs.Field(QStringLiteral("Vis")));
        setAnswer(optun, rs.Field(QStringLiteral("Unexpected")));
        txtGoals->setText(text("AccompishText"));
        txtDifferent->setText(text("AccomplishDifferent"));
        txtDoubt->setText(text("DoubtText"));
        txtControlLevel->setText(text("LevelControl"));
        txtVis->setText(text("VisTExt"));
        txtUnforseen->setText(text("UnexpectedTExt"));
        txtRating->setText(text("LevelRating"));
        for (int i = 0; i < Ratings; ++i)
            cboRating[i]->setCurrentIndex(cboRating[i]->findText(text(RatingColumns[i]), Qt::MatchExactly));
    });
}

void PsychPanel::SavePsych(const QDate& date, const QString& name, const QString& key)
{
    UserConn.Execute(QStringLiteral("delete * from Daily_Psych where ") + Key(date, name, key));
    RecordsetScope scope(UserRS);
    UserRS.Open(QStringLiteral("Daily_Psych"));
    UserRS.AddNew();
    UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
    UserRS.SetField(QStringLiteral("Date"), date);
    UserRS.SetField(QStringLiteral("Name"), name);
    UserRS.SetField(QStringLiteral("Key"), key);
    // A "Yes" is written; "No" and no answer keep the column's default, false. The strength
    // log writes its first answer either way.
    if (m_wording == StrengthLog)
        UserRS.SetField(QStringLiteral("AccomplishGoals"), optGoals[0]->isChecked());
    else if (optGoals[0]->isChecked())
        UserRS.SetField(QStringLiteral("AccomplishGoals"), true);
    if (optSleep[0]->isChecked())
        UserRS.SetField(QStringLiteral("sleep"), true);
    if (optDoubt[0]->isChecked())
        UserRS.SetField(QStringLiteral("Doubts"), true);
    if (optVis[0]->isChecked())
        UserRS.SetField(QStringLiteral("Vis"), true);
    if (optun[0]->isChecked())
        UserRS.SetField(QStringLiteral("Unexpected"), true);
    UserRS.SetField(QStringLiteral("AccompishText"), txtGoals->text().trimmed());
    UserRS.SetField(QStringLiteral("AccomplishDifferent"), txtDifferent->text().trimmed());
    UserRS.SetField(QStringLiteral("DoubtText"), txtDoubt->text().trimmed());
    UserRS.SetField(QStringLiteral("LevelControl"), txtControlLevel->text().trimmed());
    UserRS.SetField(QStringLiteral("VisTExt"), txtVis->text().trimmed());
    UserRS.SetField(QStringLiteral("UnexpectedTExt"), txtUnforseen->text().trimmed());
    UserRS.SetField(QStringLiteral("LevelRating"), txtRating->text());
    for (int i = 0; i < Ratings; ++i)
        UserRS.SetField(QString::fromLatin1(RatingColumns[i]), cboRating[i]->currentText());
    UserRS.Update();
}
