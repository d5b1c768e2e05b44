#include "athlete/frmCondition.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmCondition::frmCondition(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCondition"));
    setWindowTitle(QStringLiteral("Conditioning Test"));

    auto* heading = new QLabel(QStringLiteral("What distance can you cover in 12 minutes?"));
    QFont f = heading->font();
    f.setBold(true);
    heading->setFont(f);

    lstCondition = new QTreeWidget;
    lstCondition->setObjectName(QStringLiteral("lstCondition"));
    lstCondition->setHeaderLabels({QStringLiteral("Distance"), QStringLiteral("Level"), QStringLiteral("Description")});
    lstCondition->setRootIsDecorated(false);
    heading->setBuddy(lstCondition);
    // Row 0 is blank: choosing it leaves the condition alone.
    const QStringList rows[] = {
        {QString(), QString(), QString()},
        {QStringLiteral("less than 1 mile"), QStringLiteral("1"), QStringLiteral("Sedentary")},
        {QStringLiteral("1 to 1.24 miles"), QStringLiteral("2"), QStringLiteral("Fair")},
        {QStringLiteral("1.25 to 1.49 miles"), QStringLiteral("3"), QStringLiteral("Good")},
        {QStringLiteral("1.5 to 1.74 miles"), QStringLiteral("4"), QStringLiteral("Very Good")},
        {QStringLiteral("1.75 miles or more"), QStringLiteral("5"), QStringLiteral("Superb")}};
    for (const QStringList& r : rows) lstCondition->addTopLevelItem(new QTreeWidgetItem(r));
    lstCondition->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);

    auto* notes = new QVBoxLayout;
    for (const QString& text :
         {QStringLiteral("If you are 35 years old or under, take the 12-minute test to determine your fitness level "
                         "unless you have a known medical problem."),
          QStringLiteral("If you are over 35 years old and have been exercising regularly( at least 3 times per week "
                         "for  a minimum of six weeks) take the 12 minute test."),
          QStringLiteral("If you are over 35 years of age and have not been exercising regularly do not take the 12 "
                         "minute test.  Consider your initial condition Sedentary to start.")}) {
        auto* l = new QLabel(text);
        l->setWordWrap(true);
        notes->addWidget(l);
    }

    cmdClose = new QPushButton(QStringLiteral("&Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(lstCondition, &QTreeWidget::itemDoubleClicked, this, &QDialog::accept);

    auto* lay = new QVBoxLayout(this);
    lay->addWidget(heading);
    lay->addWidget(lstCondition, 1);
    lay->addLayout(notes);
    auto* b = new QHBoxLayout;
    b->addStretch();
    b->addWidget(cmdClose);
    lay->addLayout(b);
    resize(520, 420);
}

void frmCondition::done(int result)
{
    // Closing, by any way, with a row selected takes the row's position minus one.
    QTreeWidgetItem* item = lstCondition->currentItem();
    if (m_target && item && item->isSelected()) {
        const int row = lstCondition->indexOfTopLevelItem(item);
        if (row > 0) m_target->setCurrentIndex(row - 1);
    }
    QDialog::done(result);
}
