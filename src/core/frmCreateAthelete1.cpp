#include "core/frmCreateAthelete1.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

const QStringList& frmCreateAthelete1::Purposes()
{
    static const QStringList list = {
        QStringLiteral("Personal Fitness"),  QStringLiteral("Weight Loss"),       QStringLiteral("Sports Training"),
        QStringLiteral("Nutrition"),         QStringLiteral("Strength Training"), QStringLiteral("Aerobic Training"),
        QStringLiteral("Sports Stats"),      QStringLiteral("Sports Training-Pro")};
    return list;
}

frmCreateAthelete1::frmCreateAthelete1(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCreateAthelete1"));
    setWindowTitle(QStringLiteral("Create Athlete"));
    DialogCancelled = true;

    // Page one: name and sex.
    auto* page1 = new QWidget(this);
    Text1 = new QLineEdit(page1);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setMaxLength(50);
    auto* lblName = new QLabel(QStringLiteral("Please enter your name."), page1);
    lblName->setBuddy(Text1);
    optFemale = new QRadioButton(QStringLiteral("&Female"), page1);
    optFemale->setObjectName(QStringLiteral("optFemale"));
    optMale = new QRadioButton(QStringLiteral("&Male"), page1);
    optMale->setObjectName(QStringLiteral("optMale"));
    auto* lblSex = new QLabel(QStringLiteral("Please select your sex."), page1);
    auto* l1 = new QVBoxLayout(page1);
    l1->addWidget(lblName);
    l1->addWidget(Text1);
    l1->addSpacing(12);
    l1->addWidget(lblSex);
    auto* sexRow = new QHBoxLayout;
    sexRow->addWidget(optFemale);
    sexRow->addWidget(optMale);
    sexRow->addStretch();
    l1->addLayout(sexRow);
    l1->addStretch();

    // Page two: the main purpose.
    auto* page2 = new QWidget(this);
    Combo1 = new QComboBox(page2);
    Combo1->setObjectName(QStringLiteral("Combo1"));
    Combo1->addItems(Purposes());
    Combo1->setCurrentIndex(-1);
    auto* lblPurpose = new QLabel(QStringLiteral("Please select your main reason for using the Orvantis."), page2);
    lblPurpose->setWordWrap(true);
    lblPurpose->setBuddy(Combo1);
    auto* l2 = new QVBoxLayout(page2);
    l2->addWidget(lblPurpose);
    l2->addWidget(Combo1);
    l2->addStretch();

    Pages = new QStackedWidget(this);
    Pages->setObjectName(QStringLiteral("Pages"));
    Pages->addWidget(page1);
    Pages->addWidget(page2);

    auto makeButton = [this](const char* name, const QString& caption) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        return b;
    };
    cmdBack = makeButton("cmdBack", QStringLiteral("< &Back"));
    cmdCancel = makeButton("cmdCancel", QStringLiteral("Cancel"));
    cmdNext = makeButton("cmdNext", QStringLiteral("&Next >"));
    cmdNext->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdBack);
    buttons->addWidget(cmdNext);
    buttons->addSpacing(12);
    buttons->addWidget(cmdCancel);

    auto* heading = new QLabel(QStringLiteral("<b>Create Athlete</b>"), this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(Pages, 1);
    layout->addLayout(buttons);

    QMetaObject::connectSlotsByName(this);
    ShowPage(0);
    resize(440, 260);
    CenterForm(this);
}

void frmCreateAthelete1::ShowPage(int page)
{
    Pages->setCurrentIndex(page);
    cmdBack->setEnabled(page > 0);
    cmdNext->setText(page == Pages->count() - 1 ? QStringLiteral("&Finish") : QStringLiteral("&Next >"));
    EnableNext();
    if (page == 0) Text1->setFocus();
    else Combo1->setFocus();
}

void frmCreateAthelete1::EnableNext()
{
    if (Pages->currentIndex() == 0)
        cmdNext->setEnabled(!Text1->text().trimmed().isEmpty() && (optFemale->isChecked() || optMale->isChecked()));
    else
        cmdNext->setEnabled(Combo1->currentIndex() >= 0);
}

void frmCreateAthelete1::on_Text1_textChanged(const QString&) { EnableNext(); }
void frmCreateAthelete1::on_optFemale_toggled(bool) { EnableNext(); }
void frmCreateAthelete1::on_optMale_toggled(bool) { EnableNext(); }
void frmCreateAthelete1::on_Combo1_currentIndexChanged(int) { EnableNext(); }

void frmCreateAthelete1::on_cmdBack_clicked()
{
    if (Pages->currentIndex() > 0) ShowPage(Pages->currentIndex() - 1);
}

bool frmCreateAthelete1::NameExists(const QString& name)
{
    // Names are compared without regard to case, for every letter.
    return AthleteNameTaken(name);
}

void frmCreateAthelete1::on_cmdNext_clicked()
{
    if (!cmdNext->isEnabled()) return;
    if (Pages->currentIndex() == 0) {
        bool exists = false;
        if (!Guard([&] { exists = NameExists(Text1->text().trimmed()); })) return;
        if (exists) {
            MsgBox(QStringLiteral("This user already exists.  Please try another name or remove existing athlete."),
                   vbInformation, QStringLiteral("Message"));
            Text1->setFocus();
            Text1->selectAll();
            return;
        }
        ShowPage(1);
        return;
    }
    Guard([this] { Finish(); });
}

void frmCreateAthelete1::Finish()
{
    const QString name = Text1->text().trimmed();
    const QString purpose = Combo1->currentText();
    const QString sex = optFemale->isChecked() ? QStringLiteral("F") : QStringLiteral("M");
    UserRS.Close();
    UserRS.Open(QStringLiteral("User_Info"));
    UserRS.AddNew();
    UserRS.SetField(QStringLiteral("Name"), name);
    UserRS.SetField(QStringLiteral("Fitness_Goals"), purpose);
    UserRS.SetField(QStringLiteral("Purpose"), purpose);
    UserRS.SetField(QStringLiteral("sex"), sex);
    UserRS.Update();
    // The new row's own number: an older store may hold another athlete of this name.
    CurrentUserID = QString::number(static_cast<qlonglong>(Val(UserRS.Field(QStringLiteral("User_ID")))));
    UserRS.Close();
    DataChanged = true;

    CurrentUserName = name;
    CurrentUserSex = sex;
    DialogCancelled = false;
    accept();
}

void frmCreateAthelete1::on_cmdCancel_clicked()
{
    DialogCancelled = true;
    reject();
}

void frmCreateAthelete1::closeEvent(QCloseEvent* event)
{
    if (result() != QDialog::Accepted) DialogCancelled = true;
    QDialog::closeEvent(event);
}
