#pragma once
// The question of the nutrition views when a search finds nothing in one category: add the
// food to the Foods Library, or search all categories.
//
//   frmNutSearch question(text, parent);
//   switch (ShowModal(&question)) {
//   case frmNutSearch::AddToLibrary: ...; case frmNutSearch::SearchAll: ...; }
#include <QDialog>
#include <QString>

class QLabel;
class QPushButton;

class frmNutSearch : public QDialog {
    Q_OBJECT
public:
    // The dialog's results (0: closed without a choice).
    enum Choice { AddToLibrary = 1, SearchAll = 2 };

    // `searchText`: the text that was not found, shown in the question.
    explicit frmNutSearch(const QString& searchText = QString(), QWidget* parent = nullptr);

    QLabel* lblMessage = nullptr;
    QPushButton* cmdAdd = nullptr;      // "Add to Foods Library"
    QPushButton* cmdSearch = nullptr;   // "Search all Categories"

    // The question's text for a search text.
    static QString MessageText(const QString& text);
};
