// Athlete Information: meals of the day, nutrient goals and the burn rates of the intensity
// levels.
#include "athlete/energymodel.h"
#include "athlete/frmUserInfo.h"
#include "core/regional.h"
#include "core/rows.h"
#include "core/store/transaction.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTreeWidget>

using energy::NumText;

namespace {
const QString kMessage = QStringLiteral("Message");
constexpr int MealIdRole = Qt::UserRole;
constexpr int PositionRole = Qt::UserRole + 1;
constexpr int StartTimeRole = Qt::UserRole + 2;

// "7:00AM" in the system's "Medium Time"; a text that is no time is shown as it is.
QString MealTime(const QString& text)
{
    QString t = text.trimmed();
    t.replace(QRegularExpression(QStringLiteral("(?i)\\s*([ap]m)$")), QStringLiteral(" \\1"));
    const QTime time = regional::ParseTime(t);
    if (!time.isValid()) return text;
    return regional::FormatDate(QDateTime(QDate::currentDate(), time), QStringLiteral("Medium Time"));
}

// One above the highest meal number of all athletes.
long NextMealId()
{
    UserRS2.Close();
    SqlText = QStringLiteral("select max(meal_id)from setup_meals");
    UserRS2.Open(SqlText);
    const long id = UserRS2.Eof() ? 1 : long(Val(UserRS2.Field(0))) + 1;
    UserRS2.Close();
    return id;
}
}  // namespace

// ---------------------------------------------------------------------------- meals

void frmUserInfo::LoadMeals()
{
    lstMeals->clear();
    SqlText = "select * from setup_meals where User_ID=" + CurrentUserID + " order by [Position]";
    const QString sql = SqlText;
    auto add = [this](Recordset& rs) {
        const QString start = Str(rs.Field("StartTime"));
        auto* item = new QTreeWidgetItem(QStringList{Str(rs.Field("meal")), MealTime(start),
                                                     Val(rs.Field("Show")) != 0 ? QStringLiteral("Yes")
                                                                                : QStringLiteral("No")});
        item->setData(0, MealIdRole, Str(rs.Field("Meal_ID")));
        item->setData(0, PositionRole, Val(rs.Field("Position")));
        item->setData(0, StartTimeRole, start);
        lstMeals->addTopLevelItem(item);
    };
    UserRS.Close();
    if (ForEachRow(UserRS, sql, add) == 0) {
        // A new athlete starts with the six meals of a usual day, all of them or none.
        StoreTransaction meals(UserConn);
        int position = 1;
        for (const energy::DefaultMeal& m : energy::DefaultMeals()) {
            const long id = NextMealId();
            UserRS.Open(QStringLiteral("setup_meals"));
            UserRS.AddNew();
            UserRS.SetField("User_ID", Val(CurrentUserID));
            UserRS.SetField("Meal_ID", qlonglong(id));
            UserRS.SetField("meal", m.meal);
            UserRS.SetField("StartTime", m.startTime);
            UserRS.SetField("Position", position++);
            UserRS.SetField("Show", true);
            UserRS.Update();
            UserRS.Close();
        }
        meals.Commit();
        ForEachRow(UserRS, sql, add);
    }
    for (int c = 0; c < 3; ++c) lstMeals->resizeColumnToContents(c);
}

void frmUserInfo::MealSelected()
{
    QTreeWidgetItem* item = lstMeals->currentItem();
    if (!item || !item->isSelected()) return;
    const QScopedValueRollback<bool> loading(Loading, true);   // filling the fields is no change of the athlete
    txtMeal->setText(item->text(0));
    txtMealTime->setText(item->data(0, StartTimeRole).toString());
    chkShow->setChecked(item->text(2) == QLatin1String("Yes"));
}

void frmUserInfo::on_cmdNewMeal_clicked()
{
    lstMeals->clearSelection();
    lstMeals->setCurrentItem(nullptr);
    txtMeal->clear();
    txtMealTime->clear();
    chkShow->setChecked(true);
    txtMeal->setFocus();
}

void frmUserInfo::on_cmdAddMeal_clicked()
{
    Guard([this] {
        QTreeWidgetItem* selected = lstMeals->currentItem();
        if (selected && !selected->isSelected()) selected = nullptr;
        const QString mealId = selected ? selected->data(0, MealIdRole).toString() : QStringLiteral("0");
        const QString name = txtMeal->text().trimmed();
        UserRS.Close();
        SqlText = "select * from setup_meals where meal_id=" + mealId + " and User_ID=" + CurrentUserID;
        UserRS.Open(SqlText);
        double position = 0;
        QString keep = mealId;
        if (!UserRS.Eof()) {
            position = Val(UserRS.Field("Position"));
        } else {
            UserRS.Close();
            const long id = NextMealId();
            keep = QString::number(id);
            for (int i = 0; i < lstMeals->topLevelItemCount(); ++i)
                position = qMax(position, lstMeals->topLevelItem(i)->data(0, PositionRole).toDouble());
            position += 1;
            UserRS.Open(QStringLiteral("setup_meals"));
            UserRS.AddNew();
            UserRS.SetField("Meal_ID", qlonglong(id));
        }
        UserRS.SetField("User_ID", Val(CurrentUserID));
        UserRS.SetField("meal", name);
        UserRS.SetField("StartTime", txtMealTime->text().trimmed());
        UserRS.SetField("Position", position);
        UserRS.SetField("Show", chkShow->isChecked());
        UserRS.Update();
        UserRS.Close();
        LoadMeals();
        for (int i = 0; i < lstMeals->topLevelItemCount(); ++i)
            if (lstMeals->topLevelItem(i)->data(0, MealIdRole).toString() == keep)
                lstMeals->setCurrentItem(lstMeals->topLevelItem(i));
    });
}

void frmUserInfo::on_cmdDelMeal_clicked()
{
    QTreeWidgetItem* item = lstMeals->currentItem();
    if (!item || !item->isSelected()) return;
    if (lstMeals->topLevelItemCount() <= 1) {
        MsgBox(QStringLiteral("You must have at least one meal per day."), vbInformation, kMessage);
        return;
    }
    const QString mealId = item->data(0, MealIdRole).toString();
    Guard([&] {
        UserRS.Close();
        SqlText = "select * from daily_nutrition where User_ID='" + CurrentUserID + "' and meal_id=" + mealId;
        UserRS.Open(SqlText);
        const bool hasFoods = !UserRS.Eof();
        UserRS.Close();
        if (hasFoods) {
            MsgBox(QStringLiteral("This meal has foods saved with it.  Please delete the foods before removing this meal."),
                   vbInformation, kMessage);
            return;
        }
        UserConn.Execute("delete * from setup_meals where meal_id=" + mealId + " and User_ID=" + CurrentUserID);
        LoadMeals();
        on_cmdNewMeal_clicked();
    });
}

void frmUserInfo::MoveMeal(int step)
{
    QTreeWidgetItem* item = lstMeals->currentItem();
    if (!item || !item->isSelected()) return;
    const int row = lstMeals->indexOfTopLevelItem(item);
    const int other = row + step;
    if (other < 0 || other >= lstMeals->topLevelItemCount()) return;
    QTreeWidgetItem* neighbour = lstMeals->topLevelItem(other);
    const QString meal = item->data(0, MealIdRole).toString();
    const QString next = neighbour->data(0, MealIdRole).toString();
    const QString pos = NumText(item->data(0, PositionRole).toDouble());
    const QString nextPos = NumText(neighbour->data(0, PositionRole).toDouble());
    // The up button writes [Position] and the down button [position]: the same column.
    const QString column = step < 0 ? QStringLiteral("[Position]") : QStringLiteral("[position]");
    Guard([&] {
        // The two meals change places together or not at all.
        StoreTransaction swap(UserConn);
        UserConn.Execute("update setup_meals set " + column + "=" + nextPos + " where User_ID=" + CurrentUserID +
                         " and meal_id=" + meal);
        UserConn.Execute("update setup_meals set " + column + "=" + pos + " where User_ID=" + CurrentUserID +
                         " and meal_id=" + next);
        swap.Commit();
        LoadMeals();
        for (int i = 0; i < lstMeals->topLevelItemCount(); ++i)
            if (lstMeals->topLevelItem(i)->data(0, MealIdRole).toString() == meal)
                lstMeals->setCurrentItem(lstMeals->topLevelItem(i));
    });
}

void frmUserInfo::on_cmdMealUp_clicked() { MoveMeal(-1); }
void frmUserInfo::on_cmdMealDown_clicked() { MoveMeal(1); }

// ---------------------------------------------------------------------------- nutrient goals

void frmUserInfo::FormatGrid()
{
    const QScopedValueRollback<bool> loading(Loading, true);
    SS1->setRowCount(0);
    LibraryRS.Close();
    SqlText = QStringLiteral("select * from Nutrients order by Nutrient_ID");
    int row = 0;
    ForEachRow(LibraryRS, SqlText, [&](Recordset& rs) {
        SS1->insertRow(row);
        auto* name = new QTableWidgetItem(Str(rs.Field("Nutrient")) + " (" + Str(rs.Field("Measure")) + ")");
        name->setFlags(name->flags() & ~Qt::ItemIsEditable);
        auto* rda = new QTableWidgetItem(IsNull(rs.Field("RDA")) ? QString() : Str(rs.Field("RDA")));
        rda->setFlags(rda->flags() & ~Qt::ItemIsEditable);
        rda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* goal = new QTableWidgetItem;
        goal->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        SS1->setItem(row, 0, name);
        SS1->setItem(row, 1, goal);
        SS1->setItem(row, 2, rda);
        ++row;
    });
}

void frmUserInfo::FillMacroRows(double targetCals, double protein, double fat, double carbs, bool onlyEmpty)
{
    const struct { int row; double percent; double perGram; } macros[] = {
        {1, protein, 4.0}, {2, fat, 9.0}, {3, carbs, 4.0}};
    for (const auto& m : macros) {
        if (m.row >= SS1->rowCount()) continue;
        QTableWidgetItem* cell = SS1->item(m.row, 1);
        if (!cell) continue;
        if (onlyEmpty && Val(cell->text()) != 0) continue;
        cell->setText(NumText(energy::MacroGrams(targetCals, m.percent, m.perGram)));
    }
}

void frmUserInfo::LoadNutrientGoals()
{
    const QScopedValueRollback<bool> loading(Loading, true);
    UserRS.Close();
    SqlText = "select * from Nutrient_Goals where User_ID='" + CurrentUserID + "'";
    UserRS.Open(SqlText);
    if (!UserRS.Eof()) {
        for (int i = 0; i < SS1->rowCount() && i + 1 < UserRS.FieldCount(); ++i) {
            const QVariant v = UserRS.Field(i + 1);
            if (QTableWidgetItem* cell = SS1->item(i, 1)) cell->setText(IsNull(v) ? QString() : Str(v));
        }
    }
    UserRS.Close();

    SqlText = "select * from User_Info where User_ID=" + CurrentUserID;
    UserRS.Open(SqlText);
    if (!UserRS.Eof())
        FillMacroRows(Val(UserRS.Field("TargetCals")), Val(UserRS.Field("protein")), Val(UserRS.Field("Fat")),
                      Val(UserRS.Field("Carbs")), true);
    UserRS.Close();
}

void frmUserInfo::SaveNutrientGoals()
{
    // The old goals go only when the new ones are there.
    StoreTransaction goals(UserConn);
    UserConn.Execute("delete * from Nutrient_Goals where User_ID='" + CurrentUserID + "'");
    UserRS.Close();
    UserRS.Open(QStringLiteral("Nutrient_Goals"));
    UserRS.AddNew();
    UserRS.SetField("User_ID", CurrentUserID);
    for (int i = 0; i < SS1->rowCount() && i + 1 < UserRS.FieldCount(); ++i) {
        const QTableWidgetItem* cell = SS1->item(i, 1);
        const QString text = cell ? cell->text().trimmed() : QString();
        UserRS.SetField(i + 1, Val(text.isEmpty() ? QStringLiteral("0") : text));
    }
    UserRS.Update();
    UserRS.Close();
    goals.Commit();
}

void frmUserInfo::on_SSCommand2_clicked()
{
    for (int i = 0; i < SS1->rowCount(); ++i)
        if (SS1->item(i, 1) && SS1->item(i, 2)) SS1->item(i, 1)->setText(SS1->item(i, 2)->text());
}

void frmUserInfo::on_SSCommand3_clicked()
{
    Guard([this] {
        UserRS.Close();
        SqlText = "select * from User_Info where User_ID=" + CurrentUserID;
        UserRS.Open(SqlText);
        if (!UserRS.Eof())
            FillMacroRows(Val(UserRS.Field("TargetCals")), Val(UserRS.Field("protein")), Val(UserRS.Field("Fat")),
                          Val(UserRS.Field("Carbs")), false);
        UserRS.Close();
    });
}

// ---------------------------------------------------------------------------- intensity

void frmUserInfo::LoadCaloricBurn()
{
    UserRS.Close();
    SqlText = "select * from Intensity where User_ID=" + CurrentUserID + " order by Intensity";
    int i = 0;
    const long rows = ForEachRowWhile(UserRS, SqlText, [&](Recordset& rs) {
        if (i >= txtInt.size()) return false;
        txtInt[i++]->setText(Str(rs.Field("Value")));
        return true;
    });
    if (rows > 0) return;
    const QList<double>& rates = energy::DefaultIntensity();
    StoreTransaction defaults(UserConn);
    UserRS.Open(QStringLiteral("Intensity"));
    for (int r = 0; r < rates.size(); ++r) {
        UserRS.AddNew();
        UserRS.SetField("User_ID", Val(CurrentUserID));
        UserRS.SetField("Intensity", r + 1);
        UserRS.SetField("Value", rates[r]);
        UserRS.Update();
    }
    UserRS.Close();
    defaults.Commit();
    for (int r = 0; r < txtInt.size(); ++r) txtInt[r]->setText(NumText(rates.value(r)));
}

void frmUserInfo::SaveIntensity()
{
    // The old rates go only when the new ones are there.
    StoreTransaction rates(UserConn);
    UserConn.Execute("delete * from Intensity where User_ID=" + CurrentUserID);
    UserRS.Close();
    UserRS.Open(QStringLiteral("Intensity"));
    for (int i = 0; i < txtInt.size(); ++i) {
        UserRS.AddNew();
        UserRS.SetField("User_ID", Val(CurrentUserID));
        UserRS.SetField("Intensity", i + 1);
        UserRS.SetField("Value", Val(txtInt[i]->text()));
        UserRS.Update();
    }
    UserRS.Close();
    rates.Commit();
}

void frmUserInfo::on_SSCommand1_clicked()
{
    const QList<double>& rates = energy::DefaultIntensity();
    for (int i = 0; i < txtInt.size(); ++i) txtInt[i]->setText(NumText(rates.value(i)));
    Guard([this] { SaveIntensity(); });
}
