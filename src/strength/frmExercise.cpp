#include "strength/frmExercise.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleValidator>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Form.h"
#include "core/widgets/ListFill.h"
#include "strength/frmMuscleGroup.h"
#include "strength/frmStrengthInfo.h"

namespace {

const QString kMessage = QStringLiteral("Message");
const QString kDetails = QStringLiteral("Details");
// Column sizes of strength_exercises.
constexpr int NameLength = 255;
constexpr int TextLength = 255;
constexpr int EquipmentLength = 50;

void Inform(const QString& text) { MsgBox(text, vbOKOnly + vbInformation, kMessage); }

// A level box shows a stored level: the box's own number, or the "Y" of imported pages.
bool LevelTicked(const QVariant& v)
{
    const QString text = Str(v).trimmed();
    return text.compare(QLatin1String("Y"), Qt::CaseInsensitive) == 0 || Val(v) != 0 ||
           text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0;
}

QString LevelValue(const QCheckBox* box) { return box->isChecked() ? QStringLiteral("1") : QStringLiteral("0"); }

// Selects the line of a combo box by its text; a text not in the list is shown as it is.
void SelectText(QComboBox* combo, const QString& text)
{
    const int index = combo->findText(text, Qt::MatchFixedString);
    if (index >= 0)
        combo->setCurrentIndex(index);
    else if (combo->isEditable())
        combo->setEditText(text);
    else if (!text.isEmpty()) {
        combo->addItem(text);
        combo->setCurrentIndex(combo->count() - 1);
    } else
        combo->setCurrentIndex(-1);
}

}  // namespace

frmExercise::frmExercise(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmExercise"));
    setWindowTitle(QStringLiteral("Exercise Library"));
    buildUi();
    Guard([this] {
        QScopedValueRollback<bool> loading(m_loading, true);
        SetCombos();
        optExercise[0]->setChecked(true);
        loadlist();
    });
    cmdSave->setEnabled(false);
    cmdDelete->setEnabled(false);
    cmdAssociate->setEnabled(false);
    CenterForm(this);
}

void frmExercise::buildUi()
{
    resize(1000, 640);

    optExercise[0] = form::Named(new QRadioButton(QStringLiteral("E&xercises")), QStringLiteral("optExercise0"),
                                 QStringLiteral("Show the strength exercises"));
    optExercise[1] = form::Named(new QRadioButton(QStringLiteral("S&tretches")), QStringLiteral("optExercise1"),
                                 QStringLiteral("Show the stretches"));
    auto* show = new QGroupBox(QStringLiteral("Show"));
    auto* showRow = new QHBoxLayout(show);
    showRow->addWidget(optExercise[0]);
    showRow->addWidget(optExercise[1]);
    showRow->addStretch(1);
    list1 = form::Named(new QListWidget, QStringLiteral("list1"), QStringLiteral("Select an exercise to edit it"));
    list1->setSelectionMode(QAbstractItemView::SingleSelection);
    list1->setMinimumWidth(240);
    auto* left = new QVBoxLayout;
    left->addWidget(show);
    left->addWidget(form::Caption(QStringLiteral("Li&brary:"), list1));
    left->addWidget(list1, 1);

    Label2 = form::Label(QStringLiteral("Label2"), kDetails);
    QFont bold = Label2->font();
    bold.setBold(true);
    Label2->setFont(bold);

    txtExercise = form::Edit(QStringLiteral("txtExercise"), NameLength, 0, QStringLiteral("The name of the exercise"));
    cboMuscleGroup = form::Named(new QComboBox, QStringLiteral("cboMuscleGroup"),
                                 QStringLiteral("The muscle group this exercise works most"));
    cboType = form::Named(new QComboBox, QStringLiteral("cboType"), QStringLiteral("The kind of movement"));
    cboLift = form::Named(new QComboBox, QStringLiteral("cboLift"),
                          QStringLiteral("The main lift whose weight this exercise is set from"));
    txtLift = form::Edit(QStringLiteral("txtLift"), 10, 80,
                         QStringLiteral("Effort as a percentage of the main lift, 0 to 99"));
    txtLift->setValidator(new QDoubleValidator(0, 99, 2, txtLift));
    cboEquipment = form::Named(new QComboBox, QStringLiteral("cboEquipment"),
                               QStringLiteral("The equipment this exercise needs"));
    cboEquipment->setEditable(true);
    cboEquipment->setInsertPolicy(QComboBox::NoInsert);
    cboEquipment->lineEdit()->setMaxLength(EquipmentLength);
    chkBeginner = form::Check(QStringLiteral("chkBeginner"), QStringLiteral("Be&ginner"));
    chkIntermediate = form::Check(QStringLiteral("chkIntermediate"), QStringLiteral("I&ntermediate"));
    chkAdvanced = form::Check(QStringLiteral("chkAdvanced"), QStringLiteral("Ad&vanced"));
    auto* levels = new QGroupBox(QStringLiteral("Recommended level"));
    auto* levelRow = new QHBoxLayout(levels);
    for (QCheckBox* c : {chkBeginner, chkIntermediate, chkAdvanced})
        levelRow->addWidget(c);
    levelRow->addStretch(1);

    txtDesc = form::Named(new QPlainTextEdit, QStringLiteral("txtDesc"), QStringLiteral("A description of the exercise"));
    txtInstruction = form::Named(new QPlainTextEdit, QStringLiteral("txtInstruction"),
                                 QStringLiteral("How the exercise is done"));
    for (QPlainTextEdit* e : {txtDesc, txtInstruction}) {
        e->setTabChangesFocus(true);
        e->setMinimumHeight(e->fontMetrics().lineSpacing() * 3 + 12);
    }
    txtImage = form::Edit(QStringLiteral("txtImage"), TextLength, 0,
                          QStringLiteral("A picture of the \"Images\" folder"));
    Command1 = form::Button(QStringLiteral("Command1"), QStringLiteral("Choose Pict&ure..."),
                            QStringLiteral("Choose a picture of this exercise"));
    WebBrowser1 = form::Label(QStringLiteral("WebBrowser1"));
    WebBrowser1->setAccessibleName(QStringLiteral("Picture"));
    WebBrowser1->setAlignment(Qt::AlignCenter);
    WebBrowser1->setFrameShape(QFrame::StyledPanel);
    WebBrowser1->setMinimumSize(240, 200);
    WebBrowser1->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    auto* details = new QGridLayout;
    details->addWidget(Label2, 0, 0, 1, 4);
    form::AddRow(details, 1, QStringLiteral("&Exercise:"), txtExercise, 0, 3);
    form::AddRow(details, 2, QStringLiteral("&Major Muscle Group:"), cboMuscleGroup);
    form::AddRow(details, 2, QStringLiteral("T&ype of Movement:"), cboType, 2);
    form::AddRow(details, 3, QStringLiteral("Main Associated &Lift:"), cboLift);
    form::AddRow(details, 3, QStringLiteral("% o&f Lift:"), txtLift, 2);
    form::AddRow(details, 4, QStringLiteral("E&quipment:"), cboEquipment, 0, 3);
    details->addWidget(levels, 5, 0, 1, 4);
    QLabel* desc = form::AddRow(details, 6, QStringLiteral("&Description:"), txtDesc, 0, 3);
    QLabel* instruction = form::AddRow(details, 7, QStringLiteral("&Instruction:"), txtInstruction, 0, 3);
    for (QLabel* l : {desc, instruction})
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* imageRow = new QHBoxLayout;
    imageRow->addWidget(txtImage, 1);
    imageRow->addWidget(Command1);
    auto* imageField = new QWidget;
    imageField->setLayout(imageRow);
    imageRow->setContentsMargins(0, 0, 0, 0);
    form::AddRow(details, 8, QStringLiteral("&Picture:"), imageField, 0, 3);
    details->setColumnStretch(1, 1);
    details->setColumnStretch(3, 1);
    details->setRowStretch(6, 1);
    details->setRowStretch(7, 1);

    auto* right = new QVBoxLayout;
    right->addWidget(WebBrowser1, 1);

    auto* top = new QHBoxLayout;
    top->addLayout(left, 0);
    top->addSpacing(8);
    top->addLayout(details, 2);
    top->addSpacing(8);
    top->addLayout(right, 1);

    cmdNew = form::Button(QStringLiteral("cmdNew"), QStringLiteral("Ne&w"), QStringLiteral("Clear the screen for a new exercise"));
    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"), QStringLiteral("Save this exercise"));
    cmdDelete = form::Button(QStringLiteral("cmdDelete"), QStringLiteral("De&lete"), QStringLiteral("Delete this exercise"));
    cmdAssociate = form::Button(QStringLiteral("cmdAssociate"), QStringLiteral("Mi&nor Groups..."),
                                QStringLiteral("Tie this exercise to further muscle groups"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {cmdNew, cmdSave, cmdDelete, cmdAssociate})
        buttons->addWidget(b);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);

    auto* main = new QVBoxLayout(this);
    main->addLayout(top, 1);
    main->addLayout(buttons);

    connect(optExercise[0], &QRadioButton::toggled, this, [this] { Guard([&] { on_optExercise_changed(); }); });
    connect(list1, &QListWidget::itemSelectionChanged, this, [this] { Guard([&] { on_list1_clicked(); }); });
    connect(Command1, &QPushButton::clicked, this, [this] { Guard([&] { on_Command1_clicked(); }); });
    connect(cmdNew, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdNew_clicked(); }); });
    connect(cmdSave, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdSave_clicked(); }); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdDelete_clicked(); }); });
    connect(cmdAssociate, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdAssociate_clicked(); }); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);

    connect(txtExercise, &QLineEdit::textEdited, this, &frmExercise::fieldChanged);
    connect(txtLift, &QLineEdit::textEdited, this, &frmExercise::fieldChanged);
    connect(txtImage, &QLineEdit::textEdited, this, &frmExercise::fieldChanged);
    for (QComboBox* c : {cboMuscleGroup, cboType, cboLift})
        connect(c, &QComboBox::currentIndexChanged, this, &frmExercise::fieldChanged);
    connect(cboEquipment, &QComboBox::currentTextChanged, this, &frmExercise::fieldChanged);
    for (QCheckBox* c : {chkBeginner, chkIntermediate, chkAdvanced})
        connect(c, &QCheckBox::toggled, this, &frmExercise::fieldChanged);
    for (QPlainTextEdit* e : {txtDesc, txtInstruction})
        connect(e, &QPlainTextEdit::textChanged, this, &frmExercise::fieldChanged);

    setTabOrder(optExercise[0], optExercise[1]);
    setTabOrder(optExercise[1], list1);
    setTabOrder(list1, txtExercise);
    setTabOrder(txtExercise, cboMuscleGroup);
    setTabOrder(cboMuscleGroup, cboType);
    setTabOrder(cboType, cboLift);
    setTabOrder(cboLift, txtLift);
    setTabOrder(txtLift, cboEquipment);
    setTabOrder(cboEquipment, chkBeginner);
    setTabOrder(chkBeginner, chkIntermediate);
    setTabOrder(chkIntermediate, chkAdvanced);
    setTabOrder(chkAdvanced, txtDesc);
    setTabOrder(txtDesc, txtInstruction);
    setTabOrder(txtInstruction, txtImage);
    setTabOrder(txtImage, Command1);
    setTabOrder(Command1, cmdNew);
}

void frmExercise::fieldChanged()
{
    if (m_loading)
        return;
    EnableSave();
}

void frmExercise::SetCombos()
{
    cboType->clear();
    cboType->addItems({QString(), QStringLiteral("Cardio"), QStringLiteral("Free Weights"), QStringLiteral("Machine"),
                       QStringLiteral("Isometric"), QStringLiteral("Plyometric"), QStringLiteral("Stretch")});
    cboType->setCurrentIndex(-1);
    cboLift->clear();
    cboLift->addItems({QString(), QStringLiteral("Squat"), QStringLiteral("Bench Press"), QStringLiteral("Deadlift")});
    cboLift->setCurrentIndex(-1);
    cboEquipment->clear();
    listfill::FillList(cboEquipment, LibraryRS, QStringLiteral("select * from strength_equipment order by equipment"),
                       QStringLiteral("Equipment"), QString(), true);
    cboEquipment->setCurrentIndex(-1);
    cboEquipment->setEditText(QString());
}

void frmExercise::loadlist()
{
    cboMuscleGroup->clear();
    listfill::FillList(cboMuscleGroup, LibraryRS, QStringLiteral("select distinct group from muscle_groups"),
                       QStringLiteral("Group"), QString(), true);
    cboMuscleGroup->setCurrentIndex(-1);
    Loadexercises();
}

void frmExercise::Loadexercises()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    list1->clear();
    SqlText = optExercise[1]->isChecked()
                  ? QStringLiteral("select * from strength_exercises where type='Stretch' order by exercise")
                  : QStringLiteral("select * from strength_exercises where type not like 'Stretch' order by exercise");
    listfill::FillList(list1, LibraryRS, SqlText, QStringLiteral("exercise"), QStringLiteral("exercise_id"));
}

void frmExercise::clearform()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    txtExercise->clear();
    cboMuscleGroup->setCurrentIndex(-1);
    cboType->setCurrentIndex(-1);
    cboLift->setCurrentIndex(-1);
    txtLift->clear();
    cboEquipment->setCurrentIndex(-1);
    cboEquipment->setEditText(QString());
    for (QCheckBox* c : {chkBeginner, chkIntermediate, chkAdvanced})
        c->setChecked(false);
    txtDesc->clear();
    txtInstruction->clear();
    txtImage->clear();
    ShowExercisePicture(WebBrowser1, QString());
    Label2->setText(kDetails);
}

void frmExercise::EnableSave()
{
    const bool level = chkBeginner->isChecked() || chkIntermediate->isChecked() || chkAdvanced->isChecked();
    cmdSave->setEnabled(!cboType->currentText().isEmpty() && !cboMuscleGroup->currentText().isEmpty() &&
                        !txtExercise->text().isEmpty() && level);
}

QListWidgetItem* frmExercise::selectedLine() const
{
    QListWidgetItem* line = list1->currentItem();
    return line && line->isSelected() ? line : nullptr;
}

void frmExercise::on_optExercise_changed()
{
    if (m_loading)
        return;
    clearform();
    Loadexercises();
    cmdSave->setEnabled(false);
    cmdDelete->setEnabled(false);
    cmdAssociate->setEnabled(false);
}

void frmExercise::on_list1_clicked()
{
    if (m_loading)
        return;
    if (selectedLine())
        LoadExercise();
}

void frmExercise::LoadExercise()
{
    QListWidgetItem* line = selectedLine();
    if (!line)
        return;
    clearform();
    QScopedValueRollback<bool> loading(m_loading, true);
    const QString name = line->text();
    SqlText = QStringLiteral("select * from strength_exercises where Exercise='") + SqlQuote(name) + "'";
    FirstRow(LibraryRS, SqlText, [this](Recordset& rs) {
        txtExercise->setText(Str(rs.Field(QStringLiteral("exercise"))));
        SelectText(cboMuscleGroup, Str(rs.Field(QStringLiteral("muscle_group"))));
        txtDesc->setPlainText(Str(rs.Field(QStringLiteral("Description"))));
        txtInstruction->setPlainText(Str(rs.Field(QStringLiteral("Instruction"))));
        SelectText(cboType, Str(rs.Field(QStringLiteral("Type"))));
        SelectText(cboLift, Str(rs.Field(QStringLiteral("lift"))));
        const QVariant perc = rs.Field(QStringLiteral("Perc_Lift"));
        txtLift->setText(IsNull(perc) ? QString() : Str(perc));
        SelectText(cboEquipment, Str(rs.Field(QStringLiteral("Equipment"))));
        chkBeginner->setChecked(LevelTicked(rs.Field(QStringLiteral("Beginner"))));
        chkIntermediate->setChecked(LevelTicked(rs.Field(QStringLiteral("Intermediate"))));
        chkAdvanced->setChecked(LevelTicked(rs.Field(QStringLiteral("Advanced"))));
        txtImage->setText(Str(rs.Field(QStringLiteral("Image"))));
    });
    Label2->setText(kDetails + QStringLiteral(": ") + txtExercise->text());
    // A picture that is not in the folder is forgotten, so the next save clears it.
    if (!txtImage->text().isEmpty() && !ShowExercisePicture(WebBrowser1, txtImage->text()))
        txtImage->clear();
    cmdAssociate->setEnabled(true);
    cmdDelete->setEnabled(true);
    cmdSave->setEnabled(false);
}

void frmExercise::on_Command1_clicked()
{
    FileDialogOptions o;
    o.title = QStringLiteral("Select a picture");
    o.folder = ProgramFolder() + QStringLiteral("/Images/");
    o.filter = QStringLiteral("GIF|*.gif|Bitmap|*.bmp|JPEG|*.jpg");
    o.defaultExt = QStringLiteral("gif");
    o.mustExist = true;
    const QString path = FileDialog(o);
    if (path.isEmpty())
        return;
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        txtImage->setText(QFileInfo(path).fileName());
    }
    ShowExercisePicture(WebBrowser1, txtImage->text());
    cmdSave->setEnabled(true);
}

void frmExercise::on_cmdNew_clicked()
{
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        list1->clearSelection();
        list1->setCurrentRow(-1);
    }
    clearform();
    cmdSave->setEnabled(false);
    cmdDelete->setEnabled(false);
    cmdAssociate->setEnabled(false);
    txtExercise->setFocus();
}

void frmExercise::on_cmdSave_clicked()
{
    const QString name = txtExercise->text().trimmed();
    if (name.isEmpty()) {
        Inform(QStringLiteral("Please enter a name."));
        return;
    }
    if (!chkBeginner->isChecked() && !chkIntermediate->isChecked() && !chkAdvanced->isChecked()) {
        Inform(QStringLiteral("Please select at least one exercise level for this exercise before saving."));
        return;
    }
    QListWidgetItem* line = selectedLine();
    const bool added = line == nullptr;
    QVariant id;
    {
        StoreTransaction transaction(LibraryConn);
        RecordsetScope scope(LibraryRS);
        if (!added) {
            SqlText = QStringLiteral("select * from strength_exercises where Exercise_ID=") +
                      Str(line->data(Qt::UserRole));
            LibraryRS.Open(SqlText, &LibraryConn);
            if (LibraryRS.Eof())
                LibraryRS.AddNew();
        } else {
            LibraryRS.Open(QStringLiteral("Muscle_Associations"), &LibraryConn);
            LibraryRS.AddNew();
            LibraryRS.SetField(QStringLiteral("muscle_group"), cboMuscleGroup->currentText());
            LibraryRS.SetField(QStringLiteral("exercise"), name);
            LibraryRS.Update();
            LibraryRS.Close();
            LibraryRS.Open(QStringLiteral("strength_exercises"), &LibraryConn);
            LibraryRS.AddNew();
        }
        LibraryRS.SetField(QStringLiteral("exercise"), name);
        LibraryRS.SetField(QStringLiteral("muscle_group"), cboMuscleGroup->currentText());
        LibraryRS.SetField(QStringLiteral("Description"), txtDesc->toPlainText().trimmed().left(TextLength));
        LibraryRS.SetField(QStringLiteral("Instruction"), txtInstruction->toPlainText().trimmed().left(TextLength));
        LibraryRS.SetField(QStringLiteral("Type"), cboType->currentText());
        LibraryRS.SetField(QStringLiteral("lift"), cboLift->currentText());
        LibraryRS.SetField(QStringLiteral("Perc_Lift"), Val(txtLift->text()));
        LibraryRS.SetField(QStringLiteral("Equipment"), cboEquipment->currentText().left(EquipmentLength));
        LibraryRS.SetField(QStringLiteral("Beginner"), LevelValue(chkBeginner));
        LibraryRS.SetField(QStringLiteral("Intermediate"), LevelValue(chkIntermediate));
        LibraryRS.SetField(QStringLiteral("Advanced"), LevelValue(chkAdvanced));
        LibraryRS.SetField(QStringLiteral("Image"), txtImage->text().trimmed());
        LibraryRS.Update();
        id = LibraryRS.Field(QStringLiteral("exercise_id"));
        LibraryRS.Close();
        transaction.Commit();
    }
    if (added) {
        Loadexercises();
        QScopedValueRollback<bool> loading(m_loading, true);
        for (int i = 0; i < list1->count(); ++i)
            if (Val(list1->item(i)->data(Qt::UserRole)) == Val(id)) {
                list1->setCurrentRow(i);
                break;
            }
        cmdAssociate->setEnabled(selectedLine() != nullptr);
        cmdDelete->setEnabled(selectedLine() != nullptr);
    } else {
        line->setText(name);
    }
    Label2->setText(kDetails + QStringLiteral(": ") + name);
    cmdSave->setEnabled(false);
    Inform(QStringLiteral("Exercise Saved."));
}

void frmExercise::on_cmdDelete_clicked()
{
    if (MsgBox(QStringLiteral("This exercise may be associated with multiple muscle groups.  Deleting it will remove "
                              "all of these associations.  Do you want to continue?"),
               vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;
    QListWidgetItem* line = selectedLine();
    if (!line) {
        Inform(QStringLiteral("No exercise selected to delete."));
        return;
    }
    {
        StoreTransaction transaction(LibraryConn);
        SqlText = QStringLiteral("delete * from strength_exercises where exercise_id=") + Str(line->data(Qt::UserRole));
        LibraryConn.Execute(SqlText);
        SqlText = QStringLiteral("delete * from muscle_associations where exercise='") + SqlQuote(line->text()) + "'";
        LibraryConn.Execute(SqlText);
        transaction.Commit();
    }
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        delete line;
        list1->clearSelection();
    }
    clearform();
    cmdSave->setEnabled(false);
    cmdDelete->setEnabled(false);
    cmdAssociate->setEnabled(false);
    if (list1->count() > 0)
        list1->setCurrentRow(0);
}

void frmExercise::on_cmdAssociate_clicked()
{
    QListWidgetItem* line = selectedLine();
    const QString exercise = line ? line->text() : txtExercise->text().trimmed();
    frmMuscleGroup associations(exercise, this);
    ShowModal(&associations);
}
