// The strength exercise library on a library store of its own rows: saving a new and an
// existing exercise, a name with an apostrophe through save, load, ties and delete, the
// checks before saving, a picture missing on disk, the picture chosen through the file
// dialog, the ties to minor muscle groups, and the information screen.
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "fixtures/fixture.h"
#include "strength/frmExercise.h"
#include "strength/frmMuscleGroup.h"
#include "strength/frmStrengthInfo.h"

namespace {

class ExerciseLibraryTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        // The seeded library is not what these cases are about.
        for (const char* table : {"strength_exercises", "muscle_associations", "muscle_groups", "strength_equipment"})
            LibraryConn.Execute(QString("delete * from %1").arg(table));
        for (const char* group : {"Chest", "Shoulders", "Triceps", "Legs", "Back"})
            LibraryConn.Execute(QString("insert into muscle_groups ([group]) values ('%1')").arg(group));
        for (const char* item : {"Barbell", "Dumbbells", "Bench"})
            LibraryConn.Execute(QString("insert into strength_equipment (Equipment) values ('%1')").arg(item));
        AddExercise("Bench Press", "Chest", "Free Weights", "", "1", "Y");
        AddExercise("Hamstring Stretch", "Legs", "Stretch", "", "1", "0");
        QDir(Folder()).mkpath("Images");
    }

    static void AddExercise(const QString& name, const QString& group, const QString& type, const QString& image,
                            const QString& beginner, const QString& advanced)
    {
        LibraryConn.Execute("insert into strength_exercises (exercise, muscle_group, Type, lift, Perc_Lift, Equipment, "
                            "Beginner, Intermediate, Advanced, Description, Instruction, Image) values ('" +
                            SqlQuote(name) + "', '" + group + "', '" + type + "', 'Bench Press', 100, 'Barbell', '" +
                            beginner + "', '0', '" + advanced + "', 'Lie on a bench.', 'Lower the bar to the chest.', '" +
                            image + "')");
    }
    void MakePicture(const QString& name)
    {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        ASSERT_TRUE(image.save(QDir(Folder()).filePath("Images/" + name)));
    }
    static QString LibraryText(const QString& sql)
    {
        Recordset rs(&LibraryConn);
        rs.Open(sql);
        const QString text = rs.Eof() ? QStringLiteral("<none>") : Str(rs.Field(0));
        rs.Close();
        return text;
    }
    static QStringList Ties(const QString& exercise)
    {
        QStringList groups;
        Recordset rs(&LibraryConn);
        rs.Open("select muscle_group from muscle_associations where exercise='" + SqlQuote(exercise) +
                "' order by muscle_group");
        for (; !rs.Eof(); rs.MoveNext())
            groups << Str(rs.Field(0));
        return groups;
    }
    static bool Select(frmExercise& f, const QString& name)
    {
        const auto lines = f.list1->findItems(name, Qt::MatchExactly);
        if (lines.isEmpty())
            return false;
        f.list1->setCurrentItem(lines.first());
        return true;
    }
    // Fills the form as a user would for a new exercise.
    static void Fill(frmExercise& f, const QString& name)
    {
        f.cmdNew->click();
        f.txtExercise->setText(name);
        emit f.txtExercise->textEdited(name);
        f.cboMuscleGroup->setCurrentText("Chest");
        f.cboType->setCurrentText("Free Weights");
        f.cboLift->setCurrentText("Bench Press");
        f.txtLift->setText("65");
        f.cboEquipment->setEditText("Dumbbells");
        f.txtDesc->setPlainText("  A press with dumbbells.  ");
        f.txtInstruction->setPlainText("Press up.");
    }
};

}  // namespace

TEST_F(ExerciseLibraryTest, ListsLoadsAndSavesAnExerciseWithAnApostrophe)
{
    frmExercise f;
    ASSERT_EQ(f.list1->count(), 1);
    EXPECT_EQ(f.list1->item(0)->text(), "Bench Press");
    EXPECT_EQ(f.cboMuscleGroup->count(), 5);
    EXPECT_EQ(f.cboType->count(), 7);
    EXPECT_EQ(f.cboLift->count(), 4);
    EXPECT_EQ(f.cboEquipment->count(), 3);
    EXPECT_EQ(f.Label2->text(), "Details");
    f.optExercise[1]->setChecked(true);
    ASSERT_EQ(f.list1->count(), 1);
    EXPECT_EQ(f.list1->item(0)->text(), "Hamstring Stretch");
    f.optExercise[0]->setChecked(true);

    // Loading: a "Y" from an imported page ticks the box as the box's own "1" does.
    ASSERT_TRUE(Select(f, "Bench Press"));
    EXPECT_EQ(f.txtExercise->text(), "Bench Press");
    EXPECT_EQ(f.cboMuscleGroup->currentText(), "Chest");
    EXPECT_EQ(f.cboType->currentText(), "Free Weights");
    EXPECT_EQ(f.txtLift->text(), "100");
    EXPECT_EQ(f.cboEquipment->currentText(), "Barbell");
    EXPECT_TRUE(f.chkBeginner->isChecked());
    EXPECT_FALSE(f.chkIntermediate->isChecked());
    EXPECT_TRUE(f.chkAdvanced->isChecked());
    EXPECT_EQ(f.txtInstruction->toPlainText(), "Lower the bar to the chest.");
    EXPECT_TRUE(f.cmdDelete->isEnabled());
    EXPECT_TRUE(f.cmdAssociate->isEnabled());
    EXPECT_FALSE(f.cmdSave->isEnabled());

    // Save is on only with a name, a type, a main group and a level.
    const QString name = "Farmer's Dumbbell Press";
    Fill(f, name);
    EXPECT_FALSE(f.cmdSave->isEnabled());
    f.chkIntermediate->setChecked(true);
    EXPECT_TRUE(f.cmdSave->isEnabled());
    f.cboType->setCurrentIndex(0);
    EXPECT_FALSE(f.cmdSave->isEnabled());
    f.cboType->setCurrentText("Free Weights");
    EXPECT_TRUE(f.cmdSave->isEnabled());
    f.cmdSave->click();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Exercise Saved."});
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    EXPECT_EQ(Ui().LastMessage().icon, vbInformation);

    // The new row, its tie to the major group, and its line selected.
    const QString where = " from strength_exercises where exercise='" + SqlQuote(name) + "'";
    EXPECT_EQ(CountLibrary(where.mid(6)), 1);
    EXPECT_EQ(LibraryText("select Description" + where), "A press with dumbbells.");
    EXPECT_EQ(LibraryText("select Perc_Lift" + where), "65");
    EXPECT_EQ(LibraryText("select Equipment" + where), "Dumbbells");
    EXPECT_EQ(LibraryText("select Beginner & Intermediate & Advanced" + where), "010");
    EXPECT_EQ(Ties(name), QStringList{"Chest"});
    ASSERT_NE(f.list1->currentItem(), nullptr);
    EXPECT_EQ(f.list1->currentItem()->text(), name);
    EXPECT_EQ(f.list1->count(), 2);

    // Loaded back by its name, and saved again as the same row.
    ASSERT_TRUE(Select(f, "Bench Press"));
    ASSERT_TRUE(Select(f, name));
    Ui().ClearMessages();
    EXPECT_EQ(f.txtExercise->text(), name);
    EXPECT_TRUE(f.chkIntermediate->isChecked());
    EXPECT_FALSE(f.chkBeginner->isChecked());
    EXPECT_TRUE(Ui().Messages().isEmpty());
    f.txtLift->setText("70");
    emit f.txtLift->textEdited("70");
    f.cmdSave->click();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Exercise Saved."});
    EXPECT_EQ(CountLibrary(where.mid(6)), 1);
    EXPECT_EQ(LibraryText("select Perc_Lift" + where), "70");
    EXPECT_EQ(Ties(name), QStringList{"Chest"});

    // Saved under a new name, the ties stay under the old one.
    f.txtExercise->setText("Dumbbell Press");
    emit f.txtExercise->textEdited("Dumbbell Press");
    f.cmdSave->click();
    EXPECT_EQ(CountLibrary(where.mid(6)), 0);
    EXPECT_EQ(LibraryText("select Perc_Lift from strength_exercises where exercise='Dumbbell Press'"), "70");
    EXPECT_EQ(Ties(name), QStringList{"Chest"});
    EXPECT_EQ(f.list1->currentItem()->text(), "Dumbbell Press");
}

TEST_F(ExerciseLibraryTest, SaveChecksAndDeleteWithAnApostrophe)
{
    frmExercise f;
    f.cmdNew->click();
    f.on_cmdSave_clicked();
    f.txtExercise->setText("Push-up");
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().MessageTexts(),
              (QStringList{"Please enter a name.",
                           "Please select at least one exercise level for this exercise before saving."}));
    EXPECT_EQ(CountLibrary("strength_exercises"), 2);

    // Delete asks first; No stops, and without a line there is nothing to delete.
    Ui().ClearMessages();
    Ui().Answer(vbNo);
    f.on_cmdDelete_clicked();
    Ui().Answer(vbYes);
    f.on_cmdDelete_clicked();
    ASSERT_EQ(Ui().Messages().size(), 3);
    const QString question =
        "This exercise may be associated with multiple muscle groups.  Deleting it will remove all of these "
        "associations.  Do you want to continue?";
    EXPECT_EQ(Ui().Messages()[0].text, question);
    EXPECT_EQ(Ui().Messages()[0].title, "Action");
    EXPECT_EQ(Ui().Messages()[0].icon, vbQuestion);
    EXPECT_EQ(Ui().Messages()[2].text, "No exercise selected to delete.");

    // An exercise named with an apostrophe goes with every tie of its name.
    const QString name = "Arnold's Press";
    AddExercise(name, "Shoulders", "Free Weights", "", "1", "1");
    LibraryConn.Execute("insert into muscle_associations (exercise, muscle_group) values ('Arnold''s Press', 'Shoulders')");
    LibraryConn.Execute("insert into muscle_associations (exercise, muscle_group) values ('Arnold''s Press', 'Triceps')");
    f.optExercise[1]->setChecked(true);
    f.optExercise[0]->setChecked(true);
    ASSERT_EQ(f.list1->count(), 2);
    ASSERT_TRUE(Select(f, name));
    EXPECT_EQ(f.cboMuscleGroup->currentText(), "Shoulders");
    Ui().ClearMessages();
    f.cmdDelete->click();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{question});
    EXPECT_EQ(CountLibrary("strength_exercises where exercise='Arnold''s Press'"), 0);
    EXPECT_TRUE(Ties(name).isEmpty());
    // The first remaining line is selected and loaded.
    ASSERT_EQ(f.list1->count(), 1);
    EXPECT_EQ(f.txtExercise->text(), "Bench Press");
    EXPECT_EQ(CountLibrary("strength_exercises"), 2);
}

TEST_F(ExerciseLibraryTest, PicturesFromTheImagesFolder)
{
    MakePicture("bench.bmp");
    LibraryConn.Execute("update strength_exercises set Image='bench.bmp' where exercise='Bench Press'");
    AddExercise("Dips", "Triceps", "Free Weights", "gone.gif", "1", "1");

    frmExercise f;
    ASSERT_TRUE(Select(f, "Bench Press"));
    EXPECT_EQ(f.txtImage->text(), "bench.bmp");
    EXPECT_FALSE(f.WebBrowser1->pixmap().isNull());
    EXPECT_TRUE(f.WebBrowser1->property("address").toString().startsWith("file:///"));

    // A picture missing on disk blanks the field, so the next save clears it.
    ASSERT_TRUE(Select(f, "Dips"));
    EXPECT_EQ(f.txtImage->text(), "");
    EXPECT_TRUE(f.WebBrowser1->pixmap().isNull());
    f.chkIntermediate->setChecked(true);
    ASSERT_TRUE(f.cmdSave->isEnabled());
    f.cmdSave->click();
    EXPECT_EQ(LibraryText("select Image from strength_exercises where exercise='Dips'"), "");

    // Choosing a picture: the file dialog on the Images folder, the name without its folder.
    MakePicture("dips.jpg");
    Ui().AnswerFile(QDir(Folder()).filePath("Images/dips.jpg"));
    f.Command1->click();
    ASSERT_EQ(Ui().FileDialogsShown().size(), 1);
    const FileDialogOptions& o = Ui().FileDialogsShown().first();
    EXPECT_EQ(o.filter, "GIF|*.gif|Bitmap|*.bmp|JPEG|*.jpg");
    EXPECT_EQ(o.defaultExt, "gif");
    EXPECT_EQ(QDir(o.folder).canonicalPath(), QDir(QDir(Folder()).filePath("Images")).canonicalPath());
    EXPECT_EQ(f.txtImage->text(), "dips.jpg");
    EXPECT_FALSE(f.WebBrowser1->pixmap().isNull());
    EXPECT_TRUE(f.cmdSave->isEnabled());
    f.cmdSave->click();
    EXPECT_EQ(LibraryText("select Image from strength_exercises where exercise='Dips'"), "dips.jpg");

    // The information screen: caption, texts and picture; none when the file is gone.
    AddExercise("O'Brien Curl", "Arms", "Free Weights", "dips.jpg", "1", "0");
    {
        frmStrengthInfo info("O'Brien Curl");
        EXPECT_EQ(info.windowTitle(), "Exercise Information for O'Brien Curl");
        EXPECT_EQ(info.lblDescription->text(), "Lie on a bench.");
        EXPECT_EQ(info.lblInstruction->text(), "Lower the bar to the chest.");
        EXPECT_FALSE(info.WebBrowser1->pixmap().isNull());
    }
    QFile::remove(QDir(Folder()).filePath("Images/dips.jpg"));
    frmStrengthInfo gone("Dips");
    EXPECT_TRUE(gone.WebBrowser1->pixmap().isNull());
    EXPECT_EQ(gone.lblDescription->text(), "Lie on a bench.");
    for (const RecordedMessage& m : Ui().Messages())
        EXPECT_NE(m.title, "Error") << m.text.toStdString();
}

TEST_F(ExerciseLibraryTest, MinorMuscleGroupTies)
{
    const QString name = "Arnold's Press";
    AddExercise(name, "Shoulders", "Free Weights", "", "1", "1");
    LibraryConn.Execute("insert into muscle_associations (exercise, muscle_group) values ('Arnold''s Press', 'Shoulders')");
    LibraryConn.Execute("insert into muscle_associations (exercise, muscle_group) values ('Arnold''s Press', 'Triceps')");

    frmMuscleGroup g(name);
    EXPECT_EQ(g.cboExercise->count(), 3);
    EXPECT_EQ(g.cboExercise->currentText(), name);
    EXPECT_EQ(g.lblMainAss->text(), "Shoulders");
    // Every group but the main one, with the exercise's ties selected.
    QStringList lines, selected;
    for (int i = 0; i < g.List1->count(); ++i) {
        lines << g.List1->item(i)->text();
        if (g.List1->item(i)->isSelected())
            selected << g.List1->item(i)->text();
    }
    EXPECT_EQ(lines.size(), 4);
    EXPECT_FALSE(lines.contains("Shoulders"));
    EXPECT_EQ(selected, QStringList{"Triceps"});

    // A click rewrites the ties from the selection; the main group's own row goes.
    QListWidgetItem* chest = g.List1->findItems("Chest", Qt::MatchExactly).first();
    chest->setSelected(true);
    emit g.List1->itemClicked(chest);
    EXPECT_EQ(Ties(name), (QStringList{"Chest", "Triceps"}));
    QListWidgetItem* triceps = g.List1->findItems("Triceps", Qt::MatchExactly).first();
    triceps->setSelected(false);
    emit g.List1->itemClicked(triceps);
    EXPECT_EQ(Ties(name), QStringList{"Chest"});

    // Another exercise shows its own main group and ties.
    g.cboExercise->setCurrentText("Bench Press");
    EXPECT_EQ(g.lblMainAss->text(), "Chest");
    EXPECT_TRUE(g.List1->findItems("Chest", Qt::MatchExactly).isEmpty());
    EXPECT_TRUE(g.List1->selectedItems().isEmpty());
    EXPECT_TRUE(Ui().Messages().isEmpty());

    // Opened from the library on the selected exercise.
    frmExercise f;
    ASSERT_TRUE(Select(f, name));
    QString shown;
    Ui().OnDialog("frmMuscleGroup", [&shown](QDialog* d) {
        shown = static_cast<frmMuscleGroup*>(d)->cboExercise->currentText();
        return 1;
    });
    f.cmdAssociate->click();
    EXPECT_EQ(shown, name);
}
