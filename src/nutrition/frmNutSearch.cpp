#include "nutrition/frmNutSearch.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/ui.h"

QString frmNutSearch::MessageText(const QString& text)
{
    return text + QStringLiteral(" is not found in this category.\n"
                                 "Would you like to add it to the Foods Database or\n"
                                 "would you like to search for it in all the categories?");
}

frmNutSearch::frmNutSearch(const QString& searchText, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmNutSearch"));
    setWindowTitle(QStringLiteral("Food Search"));
    lblMessage = new QLabel(MessageText(searchText), this);
    lblMessage->setObjectName(QStringLiteral("lblMessage"));
    cmdAdd = new QPushButton(QStringLiteral("&Add to Foods Library"), this);
    cmdAdd->setObjectName(QStringLiteral("cmdAdd"));
    cmdSearch = new QPushButton(QStringLiteral("&Search all Categories"), this);
    cmdSearch->setObjectName(QStringLiteral("cmdSearch"));
    cmdSearch->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdAdd);
    buttons->addWidget(cmdSearch);
    auto* lay = new QVBoxLayout(this);
    lay->addWidget(lblMessage);
    lay->addLayout(buttons);
    connect(cmdAdd, &QPushButton::clicked, this, [this] { done(AddToLibrary); });
    connect(cmdSearch, &QPushButton::clicked, this, [this] { done(SearchAll); });
    CenterForm(this);
}
