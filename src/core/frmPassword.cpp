#include "core/frmPassword.h"
#include "core/shared.h"
#include "core/ui.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmPassword::frmPassword(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmPassword"));
    setWindowTitle(QStringLiteral("Password"));
    DialogCancelled = true;

    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setEchoMode(QLineEdit::Password);
    Text1->setMaxLength(50);   // User_Info.Password
    auto* label = new QLabel(QStringLiteral("&Password:"), this);
    label->setBuddy(Text1);

    Command1 = new QPushButton(QStringLiteral("OK"), this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setDefault(true);
    Command1->setEnabled(false);
    cmdCancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setAutoDefault(false);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(Command1, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    // The buttons' own slots decide; the box only places them.
    disconnect(buttons, nullptr, this, nullptr);

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(Text1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Please enter the athlete's password."), this));
    layout->addLayout(row);
    layout->addWidget(buttons);

    QMetaObject::connectSlotsByName(this);
    setMinimumWidth(320);
    CenterForm(this);
}

void frmPassword::on_Text1_textChanged(const QString& text) { Command1->setEnabled(text.trimmed().size() > 2); }

void frmPassword::on_Command1_clicked()
{
    if (!Command1->isEnabled()) return;
    if (Text1->text() == CurrentUserPassword) {
        DialogCancelled = false;
        accept();
        return;
    }
    MsgBox(QStringLiteral("Wrong Password, Please Try Again."), vbInformation, QStringLiteral("Message"));
    Text1->selectAll();
    Text1->setFocus();
}

void frmPassword::on_cmdCancel_clicked()
{
    DialogCancelled = true;
    reject();
}
