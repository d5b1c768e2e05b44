// The Foods Library view on a fresh library store with the seeded foods: listing, the search
// rule, the nutrient grid's offset, the pie, saving with its checks, copy, move, delete, and
// the categories dialog.
#include <gtest/gtest.h>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFontMetrics>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest/QTest>
#include <QHash>
#include <QSet>

#include "core/regional.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Grid.h"
#include "fixtures/fixture.h"
#include "nutrition/frmFoodCategories.h"
#include "nutrition/frmFoods.h"
#include "nutrition/frmMoveFood.h"
#include "nutrition/frmNutSearch.h"


namespace {

class FoodsTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        // Two foods of our own in " My Favorites" (group 1): one in a convertible measure, one
        // in a measure without a units row, and one with no calories.
        LibraryConn.Execute("insert into foods (Group_ID, Name, amount, Measure, points, calories, protein, Fat, Carbs, "
                            "Fiber, Sodium) values (1, 'Test Oats', 2, 'cup', 3, 300, 10, 5, 50, 8, 0)");
        LibraryConn.Execute("insert into foods (Group_ID, Name, amount, Measure, points, calories, protein, Fat, Carbs) "
                            "values (1, 'Test Trout', 1, 'fillet', 0, 0, 30, 10, 0)");
    }

    static void SelectGroup(frmFoods& f, const QString& group)
    {
        const int i = f.cboGroups->findText(group);
        ASSERT_GE(i, 0) << group.toStdString();
        f.cboGroups->setCurrentIndex(i);
    }
    static QTreeWidgetItem* Line(frmFoods& f, const QString& name)
    {
        for (int i = 0; i < f.lstFoods->topLevelItemCount(); ++i)
            if (f.lstFoods->topLevelItem(i)->text(frmFoods::colFood) == name)
                return f.lstFoods->topLevelItem(i);
        return nullptr;
    }
    static void SelectLine(frmFoods& f, const QString& name)
    {
        QTreeWidgetItem* it = Line(f, name);
        ASSERT_TRUE(it) << name.toStdString();
        f.lstFoods->setCurrentItem(it);
    }
    static void Search(frmFoods& f, const QString& text)
    {
        f.txtSearch->setText(text);
        f.on_cmdSearch_clicked();
    }
    static QStringList Names(frmFoods& f)
    {
        QStringList names;
        for (int i = 0; i < f.lstFoods->topLevelItemCount(); ++i)
            names << f.lstFoods->topLevelItem(i)->text(frmFoods::colFood);
        return names;
    }
    // What a user's typing in a grid cell commits.
    static void EditCell(Grid* g, int row, int col, const QString& text)
    {
        static_cast<QTableWidget*>(g)->item(row - 1, col - 1)->setText(text);
    }
    QVariantList FoodRow(const QString& where)
    {
        Recordset rs(&LibraryConn);
        rs.Open("select * from foods where " + where);
        QVariantList row;
        if (!rs.Eof())
            for (int i = 0; i < rs.FieldCount(); ++i)
                row << rs.Field(i);
        rs.Close();
        return row;
    }
};

}  // namespace

TEST_F(FoodsTest, GridRowsFollowTheFoodsColumnsAfterCalories)
{
    frmFoods f;
    // 37 catalogue rows, calories skipped: 36 grid rows, one per nutrient column of foods.
    ASSERT_EQ(f.SS1->MaxRows(), 36);
    EXPECT_EQ(f.SS1->Text(0, frmFoods::gcPercent), "Percent of RDA");
    EXPECT_EQ(f.SS1->Text(1, frmFoods::gcNutrient), "Protein (g)");
    EXPECT_EQ(f.SS1->Text(1, frmFoods::gcRDA), "50 g");
    EXPECT_EQ(f.SS1->Text(1, frmFoods::gcRDAValue), "50");
    EXPECT_TRUE(f.SS1->IsColumnHidden(frmFoods::gcRDAValue));
    EXPECT_EQ(f.SS1->Text(11, frmFoods::gcRDA), "");       // caffeine: no RDA, blank
    EXPECT_TRUE(f.SS1->IsLocked(1, frmFoods::gcNutrient));
    EXPECT_FALSE(f.SS1->IsLocked(1, frmFoods::gcAmount));

    SelectGroup(f, "Fruits and Fruit Juices");
    SelectLine(f, "Bananas, raw");
    const QVariantList row = FoodRow("name='Bananas, raw'");
    ASSERT_EQ(row.size(), 43);
    EXPECT_EQ(f.txtFood->text(), "Bananas, raw");
    EXPECT_EQ(f.txtData[1]->text(), Str(row[6]));
    for (int n = 1; n <= 36; ++n)
        EXPECT_EQ(f.SS1->Text(n, frmFoods::gcAmount), Str(row[6 + n])) << "grid row " << n;
    // Percent of RDA from amount and the hidden RDA.
    EXPECT_EQ(f.SS1->Text(1, frmFoods::gcPercent), Str(QVariant(regional::Round(Val(row[7]) / 50 * 100, 2))));
    EXPECT_EQ(f.SS1->Text(11, frmFoods::gcPercent), "");

    // The pie: energy shares of carbs, fat and protein from 4, 9 and 4 kcal a gram.
    const double p = Val(row[7]), fat = Val(row[8]), c = Val(row[9]);
    const double total = p * 4 + c * 4 + fat * 9;
    EXPECT_DOUBLE_EQ(f.Chart1->PieValue(1), regional::Round(100 * c * 4 / total, 0));
    EXPECT_DOUBLE_EQ(f.Chart1->PieValue(2), regional::Round(100 * fat * 9 / total, 0));
    EXPECT_DOUBLE_EQ(f.Chart1->PieValue(3), regional::Round(100 * p * 4 / total, 0));

    // Measures: only those of the food's own type; a measure without a units row is its own.
    SelectGroup(f, " My Favorites");
    SelectLine(f, "Test Oats");
    EXPECT_EQ(f.cboMeasure->currentText(), "cup");
    EXPECT_GE(f.cboMeasure->findText("tbsp"), 0);
    EXPECT_LT(f.cboMeasure->findText("g"), 0);
    EXPECT_DOUBLE_EQ(f.Chart1->PieValue(1), 70);   // 200 of 285 kcal
    EXPECT_DOUBLE_EQ(f.Chart1->PieValue(2), 16);
    EXPECT_DOUBLE_EQ(f.Chart1->PieValue(3), 14);
    SelectLine(f, "Test Trout");
    EXPECT_EQ(f.cboMeasure->currentText(), "fillet");
    EXPECT_EQ(f.cboMeasure->count(), 1);
    for (int i = 1; i <= 3; ++i)
        EXPECT_DOUBLE_EQ(f.Chart1->PieValue(i), 0);   // no calories: the pie stays empty
    EXPECT_DOUBLE_EQ(f.GetUnit("cup"), 236.5882365);
    EXPECT_DOUBLE_EQ(f.GetUnit("fillet"), 0);

    // New: everything cleared, all measures offered.
    f.on_cmdNew_clicked();
    EXPECT_EQ(f.txtFood->text(), "");
    EXPECT_EQ(f.SS1->Text(1, frmFoods::gcAmount), "");
    EXPECT_FALSE(f.cmdDelete->isEnabled());
    EXPECT_GE(f.cboMeasure->findText("g"), 0);
    EXPECT_LT(f.cboMeasure->findText("miles"), 0);
}

TEST_F(FoodsTest, SearchUsesTwoTermsAndSkipsSavedMeals)
{
    LibraryConn.Execute("insert into foods (Group_ID, Name, amount, Measure) values (65, 'Banana Breakfast', 1, 'meal(s)')");
    frmFoods f;
    SelectGroup(f, "Fruits and Fruit Juices");

    Search(f, "banana raw");
    QStringList names = Names(f);
    EXPECT_TRUE(names.contains("Bananas, raw"));
    EXPECT_TRUE(names.contains("Pepper, banana, raw"));
    for (const QString& n : names) {
        EXPECT_TRUE(n.contains("banana", Qt::CaseInsensitive) && n.contains("raw", Qt::CaseInsensitive)) << n.toStdString();
    }
    EXPECT_EQ(f.cboGroups->currentIndex(), -1);   // groups now come from the lines
    QTreeWidgetItem* line = Line(f, "Bananas, raw");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->text(frmFoods::colGroup), "Fruits and Fruit Juices");
    EXPECT_EQ(line->text(frmFoods::colAmount), "1 medium");
    SelectLine(f, "Bananas, raw");
    EXPECT_EQ(f.txtFood->text(), "Bananas, raw");

    // Saved meals (group 65) are never found.
    Search(f, "breakfast");
    EXPECT_FALSE(Names(f).contains("Banana Breakfast"));

    // A third word stays with the second: "banana, raw" is one term, matched as written.
    Search(f, "pepper banana, raw");
    EXPECT_EQ(Names(f), QStringList({"Pepper, banana, raw", "Pepper, banana, raw, by weight"}));
    Ui().ClearMessages();
    Search(f, "pepper banana raw");
    EXPECT_EQ(f.lstFoods->topLevelItemCount(), 0);
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().text, "Food not found.");
    EXPECT_EQ(Ui().LastMessage().title, "Message");

    // One letter is enough here; a quote is doubled, not an error.
    Search(f, "q");
    EXPECT_GT(f.lstFoods->topLevelItemCount(), 10);
    Ui().ClearMessages();
    Search(f, "domino's");
    EXPECT_GT(f.lstFoods->topLevelItemCount(), 0);
    EXPECT_TRUE(Ui().Messages().isEmpty());

    // " My Favorites" shows without its blank and still loads through the mapping.
    Search(f, "test oats");
    line = Line(f, "Test Oats");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->text(frmFoods::colGroup), "My Favorites");
    SelectLine(f, "Test Oats");
    EXPECT_EQ(f.txtFood->text(), "Test Oats");
    EXPECT_EQ(f.SS1->Text(4, frmFoods::gcAmount), "8");   // fiber, position 10
}

TEST_F(FoodsTest, SaveChecksInOrderAndWritesTheRow)
{
    frmFoods f;
    const long before = CountLibrary("foods");

    // No category and no food.
    f.txtFood->setText("Homemade Granola");
    f.txtAmount->setText("1");
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please Select a Food Group before Saving.");
    EXPECT_EQ(Ui().LastMessage().icon, vbInformation);

    SelectGroup(f, " My Favorites");
    f.txtFood->setText("Homemade Granola");
    f.txtAmount->setText("abc");                          // no number: amount 0
    f.cboMeasure->setCurrentIndex(f.cboMeasure->findText("cup"));
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please enter an amount.");
    f.txtAmount->setText("0.5 cups");
    f.cboMeasure->setCurrentIndex(-1);
    f.cboMeasure->setEditText("");
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please select a measure.");

    // A name that differs only in case is the same name.
    f.cboMeasure->setCurrentIndex(f.cboMeasure->findText("cup"));
    f.txtFood->setText("BANANAS, RAW");
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "This food exists in the database.  Please choose another name.");
    EXPECT_EQ(CountLibrary("foods"), before);

    // A new food: the amount by its leading number, a blank nutrient cell as 0.
    f.txtFood->setText("Homemade Granola");
    f.txtData[0]->setText("4");
    f.txtData[1]->setText("250");
    f.SS1->SetText(1, frmFoods::gcAmount, "6.5");
    f.SS1->SetText(36, frmFoods::gcAmount, "12");
    Ui().ClearMessages();
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Food saved."});
    EXPECT_EQ(CountLibrary("foods"), before + 1);
    QVariantList row = FoodRow("name='Homemade Granola'");
    ASSERT_EQ(row.size(), 43);
    EXPECT_DOUBLE_EQ(Val(row[1]), 1);
    EXPECT_DOUBLE_EQ(Val(row[3]), 0.5);
    EXPECT_EQ(Str(row[4]), "cup");
    EXPECT_DOUBLE_EQ(Val(row[5]), 4);
    EXPECT_DOUBLE_EQ(Val(row[6]), 250);
    EXPECT_DOUBLE_EQ(Val(row[7]), 6.5);
    EXPECT_FALSE(IsNull(row[8]));
    EXPECT_DOUBLE_EQ(Val(row[8]), 0);
    EXPECT_DOUBLE_EQ(Val(row[42]), 12);
    EXPECT_FALSE(f.cmdSave->isEnabled());
    EXPECT_TRUE(Line(f, "Homemade Granola"));

    // A selected food with its name emptied: "Please enter a name." and nothing changes.
    SelectLine(f, "Test Oats");
    f.txtFood->setText("");
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please enter a name.");
    EXPECT_FALSE(FoodRow("name='Test Oats'").isEmpty());

    // A changed food may take another food's name: only new foods are checked.
    f.txtFood->setText("Homemade Granola");
    Ui().ClearMessages();
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Food saved."});
    EXPECT_EQ(CountLibrary("foods where name='Homemade Granola'"), 2);
    EXPECT_EQ(f.txtFood->text(), "Homemade Granola");     // the line is selected again

    // A measure without a units row is kept when the food is saved again.
    SelectLine(f, "Test Trout");
    f.txtData[1]->setText("180");
    f.on_cmdSave_clicked();
    row = FoodRow("name='Test Trout'");
    EXPECT_EQ(Str(row[4]), "fillet");
    EXPECT_DOUBLE_EQ(Val(row[6]), 180);
}

TEST_F(FoodsTest, EditingAmountOrPercentAndKilojoules)
{
    frmFoods f;
    SelectGroup(f, " My Favorites");
    SelectLine(f, "Test Oats");
    EXPECT_FALSE(f.cmdSave->isEnabled());

    // Protein (row 1, RDA 50): the amount gives the percent, the percent gives the amount.
    EditCell(f.SS1, 1, frmFoods::gcAmount, "20");
    EXPECT_EQ(f.SS1->Text(1, frmFoods::gcPercent), "40");
    EXPECT_TRUE(f.cmdSave->isEnabled());
    EditCell(f.SS1, 1, frmFoods::gcPercent, "33.333");
    EXPECT_EQ(f.SS1->Text(1, frmFoods::gcAmount), "16.67");
    // No RDA (caffeine, row 11): nothing is recalculated.
    EditCell(f.SS1, 11, frmFoods::gcAmount, "80");
    EXPECT_EQ(f.SS1->Text(11, frmFoods::gcPercent), "");

    f.txtData[1]->setText("418.4");
    f.on_cmdCalcKJ_clicked();
    EXPECT_EQ(f.txtData[1]->text(), "100");
    EXPECT_DOUBLE_EQ(Val(FoodRow("name='Test Oats'")[6]), 300);   // converted, not saved

    // Unsaved changes block copy and move.
    f.on_cmdCopy_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please save this food before copying it.");
    f.on_cmdMove_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please save this food before moving it.");
}

TEST_F(FoodsTest, CopyMoveAndDelete)
{
    frmFoods f;
    SelectGroup(f, " My Favorites");
    f.on_cmdCopy_clicked();   // nothing selected
    EXPECT_EQ(Ui().LastMessage().text, "Please save this food before copying it.");

    auto chooseGroup = [](const QString& group) {
        return [group](QDialog* d) {
            auto* dlg = qobject_cast<frmMoveFood*>(d);
            const auto found = dlg->lstGroups->findItems(group, Qt::MatchExactly);
            if (found.isEmpty())
                return 0;
            dlg->lstGroups->setCurrentItem(found.first());
            dlg->on_cmdOK_clicked();
            return dlg->result();
        };
    };
    Ui().OnDialog("frmMoveFood", chooseGroup("Breakfast Cereals"));

    // Copy: a new row with every column, named with a "2"; a second copy has that name too.
    SelectLine(f, "Test Oats");
    f.on_cmdCopy_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "The food has been copied.");
    QVariantList copy = FoodRow("name='Test Oats2'");
    QVariantList orig = FoodRow("name='Test Oats'");
    ASSERT_EQ(copy.size(), 43);
    EXPECT_DOUBLE_EQ(Val(copy[1]), 6);   // Breakfast Cereals
    for (int i = 3; i < 43; ++i)
        EXPECT_EQ(Str(copy[i]), Str(orig[i])) << "column " << i;
    EXPECT_NE(Val(copy[0]), Val(orig[0]));
    SelectLine(f, "Test Oats");
    f.on_cmdCopy_clicked();
    EXPECT_EQ(CountLibrary("foods where name='Test Oats2'"), 2);

    // Move: asked first; No leaves the food where it is.
    Ui().OnDialog("frmMoveFood", chooseGroup("Burger King"));
    SelectLine(f, "Test Trout");
    Ui().Answer(vbNo);
    f.on_cmdMove_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Are you sure you want to permanently move Test Trout to the group Burger King?");
    EXPECT_EQ(Ui().LastMessage().title, "Action");
    EXPECT_DOUBLE_EQ(Val(FoodRow("name='Test Trout'")[1]), 1);
    SelectLine(f, "Test Trout");
    f.on_cmdMove_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "The food has been moved.");
    EXPECT_DOUBLE_EQ(Val(FoodRow("name='Test Trout'")[1]), 40);
    EXPECT_FALSE(Line(f, "Test Trout"));   // the category was listed again

    // Delete after Yes; No keeps the row.
    SelectLine(f, "Test Oats");
    Ui().Answer(vbNo);
    f.on_cmdDelete_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this food?");
    EXPECT_EQ(CountLibrary("foods where name='Test Oats'"), 1);
    SelectLine(f, "Test Oats");
    f.on_cmdDelete_clicked();
    EXPECT_EQ(CountLibrary("foods where name='Test Oats'"), 0);
    EXPECT_FALSE(Line(f, "Test Oats"));
    EXPECT_EQ(f.txtFood->text(), "");
}

TEST_F(FoodsTest, CategoriesAndTheSearchQuestion)
{
    frmFoodCategories c;
    EXPECT_EQ(c.cboType->currentText(), "Foods");
    EXPECT_GE(c.cboType->findText("Menus"), 0);
    EXPECT_FALSE(c.lstGroups->findItems(" My Favorites", Qt::MatchExactly).isEmpty());

    c.txtGroup->setText("Sports Drinks");
    c.on_cmdAdd_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Food Group Added.");
    c.txtGroup->setText("SPORTS DRINKS");
    c.on_cmdAdd_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "This food group already exists.");
    EXPECT_EQ(CountLibrary("food_groups where [group]='Sports Drinks'"), 1);

    // Deleting a category deletes its foods, after the question.
    c.lstGroups->setCurrentItem(c.lstGroups->findItems(" My Favorites", Qt::MatchExactly).first());
    c.on_cmdDelete_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this food group and all associated foods?");
    EXPECT_EQ(CountLibrary("foods where group_id=1"), 0);
    EXPECT_EQ(CountLibrary("food_groups where group_id=1"), 0);

    // The last category of a type can't go.
    c.cboType->setCurrentIndex(c.cboType->findText("Meals"));
    ASSERT_EQ(c.lstGroups->count(), 1);
    c.lstGroups->setCurrentRow(0);
    c.on_cmdDelete_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "You must have at least one category for the program to function.");
    EXPECT_EQ(CountLibrary("food_groups where group_id=65"), 1);

    frmNutSearch q("kiwano");
    EXPECT_EQ(q.lblMessage->text(),
              "kiwano is not found in this category.\nWould you like to add it to the Foods Database or\n"
              "would you like to search for it in all the categories?");
    EXPECT_EQ(q.cmdAdd->text().remove('&'), "Add to Foods Library");
    EXPECT_EQ(q.cmdSearch->text().remove('&'), "Search all Categories");
    q.cmdSearch->click();
    EXPECT_EQ(q.result(), frmNutSearch::SearchAll);
}

TEST_F(FoodsTest, ScreenDrawsWithAFoodShown)
{
    frmFoods f(nullptr, "Bananas, raw");
    EXPECT_EQ(f.txtFood->text(), "Bananas, raw");          // the food handed in is shown
    f.resize(1200, 760);
    f.show();
    QCoreApplication::processEvents();
    const QImage shot = f.grab().toImage();
    EXPECT_EQ(shot.width(), 1200);
    // A picture of the view for a person to look at.
    shot.save(QDir::temp().filePath("orvantis-foods.png"));
}

TEST_F(FoodsTest, ClickingALineShowsItsFood)
{
    frmFoods f;
    f.show();
    Search(f, "test oats");
    QTreeWidgetItem* it = Line(f, "Test Oats");
    ASSERT_TRUE(it);
    // A mouse click: the line becomes current first, selected after.
    QTest::mouseClick(f.lstFoods->viewport(), Qt::LeftButton, {}, f.lstFoods->visualItemRect(it).center());
    EXPECT_TRUE(it->isSelected());
    EXPECT_EQ(f.txtFood->text(), "Test Oats");
    EXPECT_EQ(f.txtData[1]->text(), "300");
    EXPECT_TRUE(f.cmdDelete->isEnabled());
}

TEST_F(FoodsTest, SeededServingsHoldWhatTheirMeasureSays)
{
    // A serving in a weight unit holds that weight's nutrients: the source's "12 oz, serving
    // 2.7 oz" weighing 77 g is 2.72 oz, at the source's 296 kcal a 100 g.
    QVariantList row = FoodRow("name='Sausage, pork and beef, with cheddar cheese, smoked'");
    ASSERT_EQ(row.size(), 43);
    EXPECT_EQ(Str(row[4]), "oz");
    EXPECT_NEAR(Val(row[6]) / (Val(row[3]) * 28.349523125) * 100, 296, 0.5);

    // A food served by count can be had in grams too, from its twin row of 100 g.
    row = FoodRow("name='Bananas, raw'");
    ASSERT_EQ(row.size(), 43);
    EXPECT_EQ(Str(row[3]) + " " + Str(row[4]), "1 medium");
    const QVariantList grams = FoodRow("name='Bananas, raw, by weight'");
    ASSERT_EQ(grams.size(), 43);
    EXPECT_EQ(Str(grams[3]) + " " + Str(grams[4]), "100 g");
    EXPECT_EQ(Val(grams[1]), Val(row[1]));
    EXPECT_NEAR(Val(row[6]), Val(grams[6]) * 1.18, 0.01);   // a medium banana weighs 118 g

    // And so every seeded food whose measure is no weight or volume.
    QHash<QString, QString> kind;
    Recordset units(&LibraryConn);
    units.Open("select * from units");
    for (; !units.Eof(); units.MoveNext())
        kind.insert(Str(units.Field("name")).toLower(), Str(units.Field("type")));
    units.Close();
    QSet<QString> names;
    QList<QPair<QString, QString>> served;
    Recordset foods(&LibraryConn);
    foods.Open("select name, measure from foods where group_id <> 65");
    for (; !foods.Eof(); foods.MoveNext()) {
        const QString name = Str(foods.Field(0));
        names.insert(name);
        served.append({name, Str(foods.Field(1))});
    }
    foods.Close();
    ASSERT_GT(served.size(), 5000);
    int count = 0;
    for (const auto& [name, measure] : served) {
        const QString k = kind.value(measure.toLower());
        if (k == "weight" || k == "volume" || name.startsWith("Test ") || name.size() > 243)
            continue;
        ++count;
        EXPECT_TRUE(names.contains(name + ", by weight")) << name.toStdString() << " (" << measure.toStdString() << ")";
    }
    EXPECT_GT(count, 1000);
}

// A search that fails leaves the view listening: the next category lists and its food loads.
TEST_F(FoodsTest, AFailedSearchLeavesTheViewWorking)
{
    frmFoods f;
    RawSql(LibraryConn, "alter table food_groups rename to food_groups_gone");
    f.txtSearch->setText("Test Oats");
    f.cmdSearch->click();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    RawSql(LibraryConn, "alter table food_groups_gone rename to food_groups");
    Ui().ClearMessages();

    SelectGroup(f, " My Favorites");
    ASSERT_TRUE(Line(f, "Test Oats"));
    SelectLine(f, "Test Oats");
    EXPECT_EQ(f.txtFood->text(), "Test Oats");
    EXPECT_TRUE(Ui().MessageTexts().isEmpty());
}

// The list shows a food's name (the column that stretches, the whole name as its tooltip) and
// its group; the view fits a 1280x720 screen.
TEST_F(FoodsTest, ListShowsNamesAndGroups)
{
    LibraryConn.Execute("insert into foods (Group_ID, Name, amount, Measure, calories) values (1, "
                        "'Test Cereals ready-to-eat, whole grain oats, honey and almond clusters', 1, 'cup', 210)");
    frmFoods f;
    EXPECT_LE(f.width(), 1280);
    EXPECT_LE(f.height(), 680);
    EXPECT_LE(f.minimumSizeHint().height(), 600);
    f.show();
    QCoreApplication::processEvents();
    Search(f, "Test");
    QTreeWidgetItem* cereal = Line(f, "Test Cereals ready-to-eat, whole grain oats, honey and almond clusters");
    ASSERT_TRUE(cereal);
    EXPECT_EQ(cereal->toolTip(frmFoods::colFood), cereal->text(frmFoods::colFood));
    EXPECT_EQ(f.lstFoods->header()->sectionResizeMode(frmFoods::colFood), QHeaderView::Stretch);
    const QFontMetrics fm(f.lstFoods->font());
    EXPECT_GE(f.lstFoods->columnWidth(frmFoods::colGroup), fm.horizontalAdvance("My Favorites"));
    EXPECT_GE(f.lstFoods->columnWidth(frmFoods::colFood), 200);
    EXPECT_GT(f.lstFoods->columnWidth(frmFoods::colFood), f.lstFoods->columnWidth(frmFoods::colGroup));
}
