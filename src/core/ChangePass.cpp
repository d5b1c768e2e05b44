#include "core/ChangePass.h"
#include "core/shared.h"
#include "core/ui.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

ChangePass::ChangePass(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("ChangePass"));
    setWindowTitle(QStringLiteral("Change Password"));

    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setEchoMode(QLineEdit::Password);
    Text1->setMaxLength(50);   // User_Info.Password
    Text1->installEventFilter(this);
    Text2 = new QLineEdit(this);
    Text2->setObjectName(QStringLiteral("Text2"));
    Text2->setEchoMode(QLineEdit::Password);
    Text2->setMaxLength(50);   // User_Info.Password

    Command1 = new QPushButton(QStringLiteral("OK"), this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setDefault(true);
    cmdCancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setAutoDefault(false);

    auto* form = new QFormLayout;
    auto* l1 = new QLabel(QStringLiteral("&Password"), this);
    l1->setBuddy(Text1);
    auto* l2 = new QLabel(QStringLiteral("&Confirm Password"), this);
    l2->setBuddy(Text2);
    form->addRow(l1, Text1);
    form->addRow(l2, Text2);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(Command1, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    disconnect(buttons, nullptr, this, nullptr);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);

    QMetaObject::connectSlotsByName(this);
    Text1->setText(CurrentUserPassword.trimmed());
    Text2->setText(CurrentUserPassword.trimmed());
    EnableSave();
    setMinimumWidth(340);
    CenterForm(this);
}

bool ChangePass::eventFilter(QObject* watched, QEvent* event)
{
    // A password holds no spaces: a typed space is dropped.
    if (watched == Text1 && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->text() == QLatin1String(" "))
        return true;
    return QDialog::eventFilter(watched, event);
}

void ChangePass::EnableSave()
{
    Command1->setEnabled(Text1->text().toUpper() == Text2->text().toUpper() || Text2->text().isEmpty());
}

void ChangePass::on_Text1_textChanged(const QString&) { EnableSave(); }
void ChangePass::on_Text2_textChanged(const QString&) { EnableSave(); }

void ChangePass::on_Command1_clicked()
{
    if (!Command1->isEnabled()) return;
    Guard([this] {
        UserRS.Close();
        UserRS.Open(QStringLiteral("select * from User_Info where User_ID=") + CurrentUserID);
        if (UserRS.Eof()) {
            UserRS.Close();
            MsgBox(QStringLiteral("Can't update user password."), vbInformation, QStringLiteral("Message"));
            return;
        }
        const QString pw = Text2->text().trimmed();
        UserRS.SetField(QStringLiteral("Password"), pw);
        UserRS.Update();
        UserRS.Close();
        CurrentUserPassword = pw;
        accept();
    });
}

void ChangePass::on_cmdCancel_clicked() { reject(); }
