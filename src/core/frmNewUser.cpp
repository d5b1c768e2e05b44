#include "core/frmNewUser.h"
#include "core/frmWebView.h"
#include "core/ui.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

QString frmNewUser::NoteText()
{
    return QStringLiteral(
        "You can fill out your basic information in the Athlete Information Window and its various categories.  "
        "You can return to this window at a later date to enter more detailed information as your understanding of "
        "the Orvantis grows.  The Athlete Information window is very detailed, if you require further information or "
        "explanations, please take some time to review the included help file to get an understand the extensive "
        "functionality of the Orvantis.");
}

frmNewUser::frmNewUser(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmNewUser"));
    setWindowTitle(QStringLiteral("Note to First time Users"));
    lblNote = new QLabel(NoteText(), this);
    lblNote->setObjectName(QStringLiteral("lblNote"));
    lblNote->setWordWrap(true);
    lblNote->setTextInteractionFlags(Qt::TextSelectableByMouse);
    cmdClose = new QPushButton(QStringLiteral("Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setDefault(true);
    Command1 = new QPushButton(QStringLiteral("Read Help"), this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setAutoDefault(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblNote, 1);
    layout->addLayout(buttons);
    QMetaObject::connectSlotsByName(this);
    resize(460, 220);
    CenterForm(this);
}

void frmNewUser::on_cmdClose_clicked() { accept(); }

void frmNewUser::on_Command1_clicked() { frmWebView::ShowHelp(QStringLiteral("helpfile.htm")); }
