// The selection fields dialog and the exercise/sport form library on a fresh library store:
// item rules, whole-list replacement, the field picker's result, the 50-row rule, saving and
// reloading forms with list, value and formula cells, renaming, the reserved "Intervals",
// moving rows and the value cell's entry rules.
#include <gtest/gtest.h>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest/QTest>

#include "calendar/icons.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Grid.h"
#include "core/widgets/Theme.h"
#include "exercise/frmExerciseForms.h"
#include "exercise/frmSelections.h"
#include "fixtures/fixture.h"

namespace {

const QString kTooLong =
    " is too long.  Items cannot be longer than 15 characters.  Please adjust this item before saving.";

class FormsTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        // The seeded library is not what these cases are about.
        LibraryConn.Execute("delete * from endurance_exercises");
        LibraryConn.Execute("delete * from endurance_templates");
        LibraryConn.Execute("delete * from DefaultUnits");
        for (const char* unit : {"Road", "Trail", "Track"})
            LibraryConn.Execute(QString("insert into DefaultUnits (Name, unit) values ('Surface', '%1')").arg(unit));
        LibraryConn.Execute("insert into DefaultUnits (Name, unit, mtype) values ('NoList', null, 'x')");
    }

    static QStringList Units(const QString& field)
    {
        QStringList units;
        Recordset rs(&LibraryConn);
        rs.Open("select unit from DefaultUnits where name='" + SqlQuote(field) + "' order by unit");
        for (; !rs.Eof(); rs.MoveNext())
            units << Str(rs.Field(0));
        return units;
    }
    static void AddItem(const QString& category, const QString& name)
    {
        LibraryConn.Execute("insert into endurance_exercises (Category, exercise, [Desc]) values ('" + category + "', '" +
                            SqlQuote(name) + "', 'd')");
    }
    static bool Select(frmExerciseForms& f, const QString& name)
    {
        const auto lines = f.lstEndurance->findItems(name, Qt::MatchExactly);
        if (lines.isEmpty())
            return false;
        f.lstEndurance->setCurrentItem(lines.first());   // loads it, as a click does
        return true;
    }
    // The picker answers with a field typed or chosen, then "&OK".
    void PickField(const QString& name)
    {
        Ui().OnDialog("frmSelections", [name](QDialog* d) {
            auto* s = static_cast<frmSelections*>(d);
            s->cboSelect->setEditText(name);
            s->on_cmdOK_clicked();
            return s->result();
        });
    }
    static void Edit(frmExerciseForms& f, int row, int col, const QString& text)
    {
        f.SS1->SetText(row, col, text);
        f.on_SS1_edited(row, col);
    }
    static QStringList Names(const frmExerciseForms& f)
    {
        QStringList names;
        for (int r = 1; r <= f.SS1->MaxRows(); ++r)
            names << f.SS1->Text(r, frmExerciseForms::gcName);
        return names;
    }
};

TEST_F(FormsTest, SelectionFieldsSaveWholeListsOfShortItems)
{
    frmSelections s(frmSelections::Manage);
    EXPECT_FALSE(s.cmdOK->isVisibleTo(&s));
    EXPECT_EQ(s.cboSelect->count(), 1);   // a name with no items is no field
    EXPECT_EQ(s.cboSelect->itemText(0), "Surface");

    // Choosing a field shows its items; nothing to save yet.
    s.cboSelect->setCurrentIndex(0);
    s.on_cboSelect_chosen(0);
    EXPECT_EQ(s.txtSelect->toPlainText(), "Road\nTrail\nTrack");
    EXPECT_TRUE(s.cmdDelete->isEnabled());
    EXPECT_FALSE(s.cmdSave->isEnabled());

    // An item of 16 characters stops the save before anything is written.
    s.txtSelect->setPlainText("Grass\nSixteen chars xx\nSand");
    EXPECT_TRUE(s.cmdSave->isEnabled());
    s.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Sixteen chars xx" + kTooLong);
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    EXPECT_EQ(Ui().LastMessage().icon, vbInformation);
    EXPECT_EQ(Units("Surface"), QStringList({"Road", "Track", "Trail"}));

    // 15 characters are accepted, blank lines add nothing, and the old list goes whole.
    s.txtSelect->setPlainText("Grass\r\n\r\n   \r\nFifteen chars x\r\n  Sand  \r\n");
    s.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Selection Field information saved.");
    EXPECT_EQ(Units("Surface"), QStringList({"Fifteen chars x", "Grass", "Sand"}));
    EXPECT_FALSE(s.cmdSave->isEnabled());

    // Save needs both a name and items.
    s.on_cmdNew_clicked();
    EXPECT_FALSE(s.cmdDelete->isEnabled());
    s.cboSelect->setEditText("Shoe's");
    EXPECT_FALSE(s.cmdSave->isEnabled());
    s.txtSelect->setPlainText("Racer");
    EXPECT_TRUE(s.cmdSave->isEnabled());
    s.on_cmdSave_clicked();
    EXPECT_EQ(Units("Shoe's"), QStringList({"Racer"}));
    EXPECT_EQ(s.cboSelect->findText("Shoe's"), 0);

    // Delete asks first.
    Ui().Answer(vbNo);
    s.on_cmdDelete_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this selection field?");
    EXPECT_EQ(Ui().LastMessage().title, "Action");
    EXPECT_EQ(Units("Shoe's").size(), 1);
    s.on_cmdDelete_clicked();
    EXPECT_TRUE(Units("Shoe's").isEmpty());
    EXPECT_EQ(s.cboSelect->findText("Shoe's"), -1);
    EXPECT_EQ(s.cboSelect->currentText(), "");
}

TEST_F(FormsTest, PickerReturnsTheFieldOnlyWhenSaved)
{
    frmSelections s(frmSelections::PickForForm);
    EXPECT_TRUE(s.cmdOK->isVisibleTo(&s));
    s.cboSelect->setEditText("Weather");
    s.txtSelect->setPlainText("Sunny\nRain");
    s.on_cmdOK_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please save selection field before adding it to the exercise/sport form.");
    EXPECT_EQ(s.Result(), "");
    EXPECT_EQ(s.result(), 0);
    s.on_cmdSave_clicked();
    s.on_cmdOK_clicked();
    EXPECT_EQ(s.Result(), "Weather\tselection");
    EXPECT_EQ(s.result(), QDialog::Accepted);

    // Closed by the window's button: a cancel.
    frmSelections t(frmSelections::PickForForm);
    t.show();
    t.cboSelect->setEditText("Weather");
    t.close();
    EXPECT_EQ(t.Result(), "");
}

TEST_F(FormsTest, AddingFieldsStopsAfterTheFiftyFirstRow)
{
    frmExerciseForms f;
    // Cancelling the picker adds nothing.
    Ui().OnDialog("frmSelections", [](QDialog* d) {
        static_cast<frmSelections*>(d)->cboSelect->setEditText("Distance");
        d->close();
        return 0;
    });
    f.on_cmdAdd_clicked();
    EXPECT_EQ(f.SS1->MaxRows(), 0);

    // A selection field becomes a list cell with an empty first item.
    PickField("Surface");
    f.on_cmdAdd_clicked();
    ASSERT_EQ(f.SS1->MaxRows(), 1);
    EXPECT_EQ(f.SS1->GetCellType(1, 2), Grid::TypeList);
    EXPECT_EQ(f.SS1->ListItems(1, 2), QStringList({"", "Road", "Trail", "Track"}));
    EXPECT_EQ(f.SS1->Text(1, 3), "selection");
    EXPECT_EQ(f.SS1->CellBackColor(1, 1), theme::FromWinColor(0xFFFFC0));

    // A field without items stays a plain cell.
    PickField("Distance");
    for (int i = 0; i < 49; ++i)
        f.on_cmdAdd_clicked();
    EXPECT_EQ(f.SS1->MaxRows(), 50);
    EXPECT_NE(f.SS1->GetCellType(50, 2), Grid::TypeList);
    f.on_cmdAdd_clicked();   // the 51st is allowed
    EXPECT_EQ(f.SS1->MaxRows(), 51);
    const int shown = int(Ui().DialogsShown().size());
    f.on_cmdAdd_clicked();   // the 52nd is not
    EXPECT_EQ(f.SS1->MaxRows(), 51);
    EXPECT_EQ(Ui().LastMessage().text, "Maximum of 50 rows per template.");
    EXPECT_EQ(Ui().DialogsShown().size(), shown);
}

TEST_F(FormsTest, SaveReloadRenameAndDeleteAnItemWithAQuote)
{
    {
        frmExerciseForms f;
        EXPECT_EQ(f.cboImage->count(), ExerciseIconCount());
        EXPECT_EQ(f.cboImage->itemData(2).toInt(), 3);
        f.txtExerciseName->setText("  Runner's Loop ");
        EXPECT_TRUE(f.cmdSave->isEnabled());
        f.txtComments->setPlainText(" Around the lake ");
        f.cboImage->setCurrentIndex(0);
        PickField("Distance");
        f.on_cmdAdd_clicked();
        PickField("Time");
        f.on_cmdAdd_clicked();
        PickField("Pace");
        f.on_cmdAdd_clicked();
        PickField("Surface");
        f.on_cmdAdd_clicked();
        PickField("Split");
        f.on_cmdAdd_clicked();
        Edit(f, 1, 2, "10");
        Edit(f, 1, 3, "km");
        Edit(f, 2, 2, "50");
        Edit(f, 3, 2, "=B2/B1");
        Edit(f, 4, 2, "Trail");
        Edit(f, 5, 2, "=B1+");
        EXPECT_EQ(f.SS1->Text(3, 2), "5");
        EXPECT_EQ(f.SS1->Text(5, 2), "#ERR");
        f.on_cmdSave_clicked();
        EXPECT_EQ(Ui().LastMessage().text, "Exercise Information Saved.");
        EXPECT_FALSE(f.cmdSave->isEnabled());
        ASSERT_EQ(f.lstEndurance->count(), 1);
        EXPECT_EQ(f.lstEndurance->item(0)->text(), "Runner's Loop");
    }
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Runner''s Loop' and category='Training' "
                           "and [Desc]='Around the lake' and Image=1"), 1);
    EXPECT_EQ(CountLibrary("endurance_templates where name='Runner''s Loop' and field_name='Pace' and "
                           "Formula='=B2/B1' and Value='' and worder=3"), 1);
    EXPECT_EQ(CountLibrary("endurance_templates where name='Runner''s Loop' and field_name='Distance' and "
                           "Value='10' and Formula='' and Units='km' and worder=1"), 1);

    frmExerciseForms f;
    ASSERT_TRUE(Select(f, "Runner's Loop"));
    EXPECT_EQ(f.txtExerciseName->text(), "Runner's Loop");
    EXPECT_EQ(f.cboImage->currentData().toInt(), 1);
    EXPECT_TRUE(f.cmdDelete->isEnabled());
    EXPECT_FALSE(f.cmdSave->isEnabled());
    EXPECT_EQ(Names(f), QStringList({"Distance", "Time", "Pace", "Surface", "Split"}));
    EXPECT_EQ(f.SS1->GetCellType(1, 2), Grid::TypeNumber);
    EXPECT_EQ(f.SS1->GetCellType(3, 2), Grid::TypeFormula);
    EXPECT_EQ(f.SS1->Text(3, 2), "5");
    EXPECT_EQ(static_cast<QTableWidget*>(f.SS1)->item(2, 1)->toolTip(), "Formula =B2/B1");
    EXPECT_EQ(f.SS1->Text(5, 2), "#ERR");
    EXPECT_EQ(f.SS1->GetCellType(4, 2), Grid::TypeList);
    EXPECT_EQ(f.SS1->Text(4, 2), "Trail");   // the stored choice stays
    EXPECT_EQ(f.SS1->CellBackColor(5, 1), theme::FromWinColor(0xFFFFC0));
    // The grid recomputes a formula when a cell it reads changes.
    Edit(f, 1, 2, "5");
    EXPECT_EQ(f.SS1->Text(3, 2), "10");
    EXPECT_TRUE(f.cmdSave->isEnabled());

    // Saved under an edited name: the old item goes.
    f.txtExerciseName->setText("Runner's Loop 2");
    f.on_cmdSave_clicked();
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Runner''s Loop'"), 0);
    EXPECT_EQ(CountLibrary("endurance_templates where name='Runner''s Loop'"), 0);
    EXPECT_EQ(CountLibrary("endurance_templates where name='Runner''s Loop 2'"), 5);
    ASSERT_EQ(f.lstEndurance->count(), 1);
    EXPECT_EQ(f.lstEndurance->item(0)->text(), "Runner's Loop 2");

    // An item without fields has no template rows.
    f.on_cmdNew_clicked();
    EXPECT_EQ(f.SS1->MaxRows(), 0);
    f.txtExerciseName->setText("Yoga");
    f.on_cmdSave_clicked();
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Yoga' and Image is null"), 1);
    EXPECT_EQ(CountLibrary("endurance_templates where name='Yoga'"), 0);

    // Delete asks; the first line is shown after.
    ASSERT_TRUE(Select(f, "Runner's Loop 2"));
    Ui().Answer(vbNo);
    f.on_cmdDelete_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this Exercise/Sport?");
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Runner''s Loop 2'"), 1);
    f.on_cmdDelete_clicked();
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Runner''s Loop 2'"), 0);
    EXPECT_EQ(CountLibrary("endurance_templates where name='Runner''s Loop 2'"), 0);
    ASSERT_EQ(f.lstEndurance->count(), 1);
    EXPECT_EQ(f.txtExerciseName->text(), "Yoga");
}

TEST_F(FormsTest, AFailedSaveKeepsTheItemAsItWas)
{
    AddItem("Training", "Rowing");
    LibraryConn.Execute("insert into endurance_templates (Category, Name, field_name, Value, worder) values ('Training', 'Rowing', 'Strokes', '30', 1)");
    frmExerciseForms f;
    ASSERT_TRUE(Select(f, "Rowing"));
    f.txtComments->setPlainText("On the river");
    RawSql(LibraryConn, "alter table endurance_templates rename to endurance_templates_gone");
    f.cmdSave->click();
    RawSql(LibraryConn, "alter table endurance_templates_gone rename to endurance_templates");
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Rowing' and [Desc]='d'"), 1);
    EXPECT_EQ(CountLibrary("endurance_templates where name='Rowing' and field_name='Strokes'"), 1);
    EXPECT_FALSE(LibraryRS.IsOpen());
    f.cmdSave->click();   // and the screen goes on working
    EXPECT_EQ(Ui().LastMessage().text, "Exercise Information Saved.");
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Rowing' and [Desc]='On the river'"), 1);
}

TEST_F(FormsTest, IntervalsIsReservedInEitherCategoryAndOnlyInThatSpelling)
{
    AddItem("Training", "Intervals");
    AddItem("Sports", "Intervals");
    AddItem("Sports", "Tennis");
    LibraryConn.Execute("insert into endurance_templates (Category, Name, field_name, worder) values ('Sports', 'Tennis', 'Sets', 1)");
    frmExerciseForms f;
    for (QRadioButton* option : {f.optTraining, f.optSports}) {
        option->setChecked(true);
        ASSERT_TRUE(Select(f, "Intervals"));
        Ui().ClearMessages();
        f.on_cmdDelete_clicked();
        ASSERT_EQ(Ui().Messages().size(), 1);   // refused without a question
        EXPECT_EQ(Ui().LastMessage().text, "Intervals are a reserved exercise and cannot be deleted.");
    }
    EXPECT_EQ(CountLibrary("endurance_exercises where exercise='Intervals'"), 2);

    // The option shows its own category, sorted; a form is read from its own category.
    EXPECT_EQ(f.lstEndurance->count(), 2);
    EXPECT_EQ(f.lstEndurance->item(0)->text(), "Intervals");
    ASSERT_TRUE(Select(f, "Tennis"));
    EXPECT_EQ(Names(f), QStringList({"Sets"}));

    LibraryConn.Execute("delete * from endurance_exercises where category='Sports' and exercise='Intervals'");
    AddItem("Sports", "intervals");
    f.optTraining->setChecked(true);
    f.optSports->setChecked(true);
    ASSERT_TRUE(Select(f, "intervals"));
    f.on_cmdDelete_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this Exercise/Sport?");
    EXPECT_EQ(CountLibrary("endurance_exercises where category='Sports' and exercise='intervals'"), 0);
    EXPECT_EQ(CountLibrary("endurance_exercises where category='Training' and exercise='Intervals'"), 1);
}

TEST_F(FormsTest, RowsMoveAsBlocksWithTheirFormulasAsTyped)
{
    frmExerciseForms f;
    for (const char* name : {"A", "B", "C"}) {
        PickField(name);
        f.on_cmdAdd_clicked();
    }
    Edit(f, 1, 2, "2");
    Edit(f, 3, 2, "=B1*3");
    f.SS1->SetActiveCell(1, 2);
    f.on_cmdUp_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Can't move selected exercise(s) up.");
    f.on_cmdDown_clicked();
    EXPECT_EQ(Names(f), QStringList({"B", "A", "C"}));
    EXPECT_EQ(f.SS1->ActiveRow(), 2);

    // The last two rows up together: the formula keeps its text, now reading the empty B1.
    f.SS1->clearSelection();
    f.SS1->setRangeSelected(QTableWidgetSelectionRange(1, 0, 2, 2), true);
    f.on_cmdUp_clicked();
    EXPECT_EQ(Names(f), QStringList({"A", "C", "B"}));
    EXPECT_EQ(f.SS1->Formula(2, 2), "B1*3");
    EXPECT_EQ(f.SS1->Text(2, 2), "6");
    EXPECT_EQ(f.SS1->Text(3, 2), "");
    f.SS1->clearSelection();
    f.SS1->SetActiveCell(3, 1);
    f.on_cmdDown_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Can't move selected exercise(s) down.");

    f.on_cmdDeleteField_clicked();
    EXPECT_EQ(Names(f), QStringList({"A", "C"}));
}

TEST_F(FormsTest, ValueCellsTakeTheirTypeFromWhatIsTyped)
{
    frmExerciseForms f;
    f.show();
    PickField("Shoes");
    f.on_cmdAdd_clicked();
    f.on_cmdAdd_clicked();
    Edit(f, 1, 2, "42");
    EXPECT_EQ(f.SS1->GetCellType(1, 2), Grid::TypeNumber);

    // Letters typed into a number cell make it a text cell instead of being refused.
    f.SS1->SetActiveCell(1, 2);
    QTest::keyClick(f.SS1, Qt::Key_F2);
    auto* editor = f.SS1->viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    editor->selectAll();
    QTest::keyClicks(editor, "Fast");
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();   // the editor commits once back in the event loop
    EXPECT_EQ(f.SS1->Text(1, 2), "Fast");
    EXPECT_EQ(f.SS1->GetCellType(1, 2), Grid::TypeText);

    // A formula is read-only; F2 opens its text for editing.
    Edit(f, 2, 2, "=2*3");
    EXPECT_EQ(f.SS1->GetCellType(2, 2), Grid::TypeFormula);
    f.SS1->SetActiveCell(2, 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);   // the first editor goes
    QTest::keyClick(f.SS1, Qt::Key_F2);
    editor = f.SS1->viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClicks(editor, "+1");
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();   // the editor commits once back in the event loop
    EXPECT_EQ(f.SS1->Formula(2, 2), "2*3+1");
    EXPECT_EQ(f.SS1->Text(2, 2), "7");
    // Opened and left with Escape: still the formula.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::keyClick(f.SS1, Qt::Key_F2);
    editor = f.SS1->viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    QTest::keyClick(editor, Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_EQ(f.SS1->GetCellType(2, 2), Grid::TypeFormula);
    EXPECT_EQ(f.SS1->Text(2, 2), "7");

    const QImage shot = f.grab().toImage();
    EXPECT_LE(shot.width(), 1280);
    EXPECT_LE(shot.height(), 720);
    if (qEnvironmentVariableIsSet("ORVANTIS_SHOTS"))
        shot.save(QDir::temp().filePath("orvantis-exerciseforms.png"));
}

}  // namespace
