#include "core/frmAboutBox.h"
#include "core/frmOpen.h"
#include "core/ui.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmAboutBox::frmAboutBox(QWidget* parent) : QDialog(parent)
{
    const QString product = QStringLiteral("Orvantis");
    setObjectName(QStringLiteral("frmAboutBox"));
    setWindowTitle(QStringLiteral("About ") + product);

    lblTitle = new QLabel(product, this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont f = lblTitle->font();
    f.setPointSize(f.pointSize() + 8);
    f.setBold(true);
    lblTitle->setFont(f);
    lblVersion = new QLabel(frmOpen::VersionText(QStringLiteral(" ")), this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    lblDescription = new QLabel(
        QStringLiteral("A training and nutrition logbook for athletes, their coaches and anyone who follows a "
                       "fitness plan: plan and record sessions, workouts, meals and measurements on a calendar, "
                       "and read totals, graphs and printable pages over any range of dates."),
        this);
    lblDescription->setWordWrap(true);
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblTitle);
    layout->addWidget(lblVersion);
    layout->addSpacing(8);
    layout->addWidget(lblDescription);
    layout->addStretch();
    layout->addLayout(buttons);
    QMetaObject::connectSlotsByName(this);
    resize(420, 220);
    CenterForm(this);
}

void frmAboutBox::on_cmdOK_clicked() { accept(); }
