#include "nutrition/frmChangeAmt.h"
#include "nutrition/dailynutrition.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/widgets/ListFill.h"
#include "core/shared.h"
#include "core/ui.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmChangeAmt::frmChangeAmt(const FoodPortion& portion, QWidget* parent) : QDialog(parent), m_portion(portion)
{
    setObjectName(QStringLiteral("frmChangeAmt"));
    setWindowTitle(QStringLiteral("Change Amount"));

    const QString name = GetTabField(m_portion.foodLine, 2);
    daily::SplitAmount(GetTabField(m_portion.foodLine, 3), &m_amount, &m_measure);

    lblFood = new QLabel(name, this);
    lblFood->setObjectName(QStringLiteral("lblFood"));
    QFont f = lblFood->font();
    f.setBold(true);
    lblFood->setFont(f);
    lblOriginal = new QLabel(m_amount + QStringLiteral(" ") + m_measure, this);
    lblOriginal->setObjectName(QStringLiteral("lblOriginal"));
    txtAmt = new QLineEdit(m_amount, this);
    txtAmt->setObjectName(QStringLiteral("txtAmt"));
    cboMeasure = new QComboBox(this);
    cboMeasure->setObjectName(QStringLiteral("cboMeasure"));
    Guard([this] { FillUnits(m_measure); });

    cmdChange = new QPushButton(QStringLiteral("&Change"), this);
    cmdChange->setObjectName(QStringLiteral("cmdChange"));
    cmdChange->setDefault(true);
    cmdCancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Food:"), lblFood);
    form->addRow(QStringLiteral("Original Amount:"), lblOriginal);
    auto* lAmt = new QLabel(QStringLiteral("New &Amount:"), this);
    lAmt->setBuddy(txtAmt);
    form->addRow(lAmt, txtAmt);
    auto* lMeasure = new QLabel(QStringLiteral("&Measure:"), this);
    lMeasure->setBuddy(cboMeasure);
    form->addRow(lMeasure, cboMeasure);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdChange);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);

    QMetaObject::connectSlotsByName(this);
    txtAmt->selectAll();
    txtAmt->setFocus();
    setMinimumWidth(360);
    CenterForm(this);
}

void frmChangeAmt::FillUnits(const QString& measure)
{
    cboMeasure->clear();
    QString type;
    SqlText = QStringLiteral("select type from units where name='") + SqlQuote(measure) + QStringLiteral("'");
    FirstRow(LibraryRS, SqlText, [&type](Recordset& rs) { type = Str(rs.Field(0)); });
    if (!type.isEmpty()) {
        SqlText = QStringLiteral("select * from units where type='") + SqlQuote(type) + QStringLiteral("'");
        listfill::FillList(cboMeasure, LibraryRS, SqlText, QStringLiteral("name"), QString(), true);
    }
    // A measure without a units row (a saved meal's "meal(s)") can only stay as it is.
    int i = cboMeasure->findText(measure, Qt::MatchFixedString);
    if (i < 0 && !measure.isEmpty()) {
        cboMeasure->addItem(measure);
        i = cboMeasure->count() - 1;
    }
    cboMeasure->setCurrentIndex(i);
}

QString frmChangeAmt::ChangeAmount(const FoodPortion& portion, double newAmount, const QString& newMeasure,
                                   double oldAmount, const QString& oldMeasure)
{
    // The unit factors first: GetConversion has a recordset and SqlText of its own.
    const double newSize = newAmount * GetConversion(newMeasure);
    const double oldConversion = GetConversion(oldMeasure);
    if (portion.mealId == QLatin1String("0"))
        SqlText = QStringLiteral("select * from daily_nutrition where User_ID='") + CurrentUserID +
                  QStringLiteral("' and meal_id=9999 and type='") + SqlQuote(portion.mealType) +
                  QStringLiteral("' and food_id=") + portion.foodId;
    else
        SqlText = QStringLiteral("select * from daily_nutrition where User_ID='") + CurrentUserID +
                  QStringLiteral("' and meal_id=") + portion.mealId + QStringLiteral(" and User_ID = '") + CurrentUserID +
                  QStringLiteral("' and date = #") + portion.mealDate + QStringLiteral("# and food_id=") + portion.foodId;
    RecordsetScope scope(UserRS2);
    UserRS2.Open(SqlText);
    if (UserRS2.Eof())
        return QString();
    UserRS2.SetField(QStringLiteral("amount"), newAmount);
    UserRS2.SetField(QStringLiteral("Measure"), newMeasure);
    for (int p = daily::FirstScaled; p <= daily::LastScaled && p < UserRS2.FieldCount(); ++p) {
        const QVariant v = UserRS2.Field(p);
        if (IsNull(v))
            continue;
        UserRS2.SetField(p, daily::ScalePortion(Val(v), newSize, 1.0, oldAmount, oldConversion));
    }
    UserRS2.Update();

    QStringList line;
    line << Str(UserRS2.Field(QStringLiteral("Food_ID"))) << Str(UserRS2.Field(QStringLiteral("Name")))
         << Str(UserRS2.Field(QStringLiteral("amount"))) + QStringLiteral(" ") + Str(UserRS2.Field(QStringLiteral("Measure")));
    for (const char* c : {"calories", "protein", "Fat", "Carbs", "points"})
        line << daily::ListNumber(Val(UserRS2.Field(QString::fromLatin1(c))));
    for (int p = 13; p <= daily::LastScaled && p < UserRS2.FieldCount(); ++p)
        line << daily::ListNumber(Val(UserRS2.Field(p)));
    return line.join(QLatin1Char('\t'));
}

void frmChangeAmt::on_cmdChange_clicked()
{
    const double amount = Val(txtAmt->text());
    const QString measure = cboMeasure->currentText();
    if (amount > 0 && (txtAmt->text().trimmed() != m_amount || measure != m_measure)) {
        Guard([&] { m_newLine = ChangeAmount(m_portion, amount, measure, Val(m_amount), m_measure); });
    }
    accept();
}

void frmChangeAmt::on_cmdCancel_clicked()
{
    m_newLine.clear();
    reject();
}
