#include "nutrition/frmFoods.h"

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Grid.h"
#include "core/widgets/ListFill.h"
#include "nutrition/frmMoveFood.h"

namespace {

const QString kMessage = QStringLiteral("Message");
const QString kAction = QStringLiteral("Action");
const QString kFavorites = QStringLiteral(" My Favorites");
constexpr int MealsGroup = 65;

QString Num(double v) { return Str(QVariant(v)); }

// The hourglass while a command works.
struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

void Inform(const QString& text) { MsgBox(text, vbOKOnly + vbInformation, kMessage); }

}  // namespace

frmFoods::frmFoods(QWidget* parent, const QString& foodName) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmFoods"));
    setWindowTitle(QStringLiteral("Foods Library"));
    buildUi();
    Guard([this, foodName] {
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            FormatGrid();
            FillUnits(QString());
        }
        on_cmdFoodType_clicked(0);
        cmdSave->setEnabled(false);
        cmdDelete->setEnabled(false);
        if (!foodName.isEmpty())
            showFood(foodName);
    });
    CenterForm(this);
}

void frmFoods::buildUi()
{
    // Within a 1280x720 screen, frame included.
    resize(1120, 660);
    auto* split = new QSplitter(Qt::Horizontal, this);

    // The library, its categories, the search and the list.
    auto* left = new QWidget(split);
    auto* lv = new QVBoxLayout(left);
    lv->setContentsMargins(0, 0, 6, 0);
    auto* types = new QHBoxLayout;
    auto* typeGroup = new QButtonGroup(this);
    const char* typeNames[2] = {"Foods", "Menus"};
    const char* typeTips[2] = {"Display the list of food categories", "Display the list of restaurant categories"};
    for (int i = 0; i < 2; ++i) {
        cmdFoodType[i] = new QPushButton(QString::fromLatin1(typeNames[i]), left);
        cmdFoodType[i]->setObjectName(QStringLiteral("cmdFoodType%1").arg(i));
        cmdFoodType[i]->setCheckable(true);
        cmdFoodType[i]->setToolTip(QString::fromLatin1(typeTips[i]));
        typeGroup->addButton(cmdFoodType[i], i);
        types->addWidget(cmdFoodType[i]);
    }
    typeGroup->setExclusive(true);
    cmdFoodType[0]->setText(QStringLiteral("&Foods"));
    cmdFoodType[1]->setText(QStringLiteral("M&enus"));
    lv->addLayout(types);

    auto* form = new QFormLayout;
    cboGroups = new QComboBox(left);
    cboGroups->setObjectName(QStringLiteral("cboGroups"));
    cboGroups->setMaxVisibleItems(25);
    auto* lblGroups = new QLabel(QStringLiteral("C&ategory:"), left);
    lblGroups->setBuddy(cboGroups);
    form->addRow(lblGroups, cboGroups);
    auto* searchRow = new QHBoxLayout;
    txtSearch = new QLineEdit(left);
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    txtSearch->setToolTip(QStringLiteral("Type one or two words of the food's name and press Enter"));
    cmdSearch = new QPushButton(QStringLiteral("&Search"), left);
    cmdSearch->setObjectName(QStringLiteral("cmdSearch"));
    searchRow->addWidget(txtSearch, 1);
    searchRow->addWidget(cmdSearch);
    auto* lblSearch = new QLabel(QStringLiteral("Fin&d:"), left);
    lblSearch->setBuddy(txtSearch);
    form->addRow(lblSearch, searchRow);
    lv->addLayout(form);

    lstFoods = new QTreeWidget(left);
    lstFoods->setObjectName(QStringLiteral("lstFoods"));
    lstFoods->setColumnCount(5);
    lstFoods->setHeaderLabels({QStringLiteral("Food"), QStringLiteral("Amount"), QStringLiteral("Group"),
                               QStringLiteral("Group_ID"), QStringLiteral("Food_ID")});
    lstFoods->setColumnHidden(colGroupID, true);
    lstFoods->setColumnHidden(colFoodID, true);
    lstFoods->setRootIsDecorated(false);
    lstFoods->setUniformRowHeights(true);
    lstFoods->setAlternatingRowColors(true);
    // The name takes what the other columns leave; the full name is each line's tooltip.
    lstFoods->header()->setStretchLastSection(false);
    lstFoods->header()->setSectionResizeMode(colFood, QHeaderView::Stretch);
    lstFoods->header()->setMinimumSectionSize(60);
    lstFoods->setColumnWidth(colAmount, 90);
    lstFoods->setColumnWidth(colGroup, 150);
    lstFoods->setMinimumWidth(320);
    lstFoods->setAccessibleName(QStringLiteral("Foods"));
    lv->addWidget(lstFoods, 1);

    // The food.
    auto* right = new QWidget(split);
    auto* rv = new QVBoxLayout(right);
    rv->setContentsMargins(6, 0, 0, 0);
    auto* food = new QGroupBox(QStringLiteral("Food"), right);
    auto* grid = new QGridLayout(food);
    txtFood = new QLineEdit(food);
    txtFood->setObjectName(QStringLiteral("txtFood"));
    txtAmount = new QLineEdit(food);
    txtAmount->setObjectName(QStringLiteral("txtAmount"));
    txtAmount->setMaximumWidth(90);
    cboMeasure = new QComboBox(food);
    cboMeasure->setObjectName(QStringLiteral("cboMeasure"));
    cboMeasure->setEditable(true);
    cboMeasure->setInsertPolicy(QComboBox::NoInsert);
    cboMeasure->setMinimumWidth(160);
    for (int i = 0; i < 2; ++i) {
        txtData[i] = new QLineEdit(food);
        txtData[i]->setObjectName(QStringLiteral("txtData%1").arg(i));
        txtData[i]->setMaximumWidth(90);
    }
    cmdCalcKJ = new QPushButton(QStringLiteral("&kj to cals"), food);
    cmdCalcKJ->setObjectName(QStringLiteral("cmdCalcKJ"));
    cmdCalcKJ->setToolTip(QStringLiteral(
        "Enter a kj amount in the calories field and then press this button to convert to calories."));
    auto addLabel = [&](const QString& caption, QWidget* buddy, int row, int col) {
        auto* l = new QLabel(caption, food);
        l->setBuddy(buddy);
        grid->addWidget(l, row, col);
    };
    addLabel(QStringLiteral("&Name:"), txtFood, 0, 0);
    grid->addWidget(txtFood, 0, 1, 1, 5);
    addLabel(QStringLiteral("A&mount:"), txtAmount, 1, 0);
    grid->addWidget(txtAmount, 1, 1);
    addLabel(QStringLiteral("Meas&ure:"), cboMeasure, 1, 2);
    grid->addWidget(cboMeasure, 1, 3, 1, 3);
    addLabel(QStringLiteral("Calo&ries:"), txtData[1], 2, 0);
    grid->addWidget(txtData[1], 2, 1);
    grid->addWidget(cmdCalcKJ, 2, 2);
    addLabel(QStringLiteral("&Points:"), txtData[0], 2, 3);
    grid->addWidget(txtData[0], 2, 4);
    grid->setColumnStretch(5, 1);
    rv->addWidget(food);

    auto* lower = new QHBoxLayout;
    SS1 = new Grid(right);
    SS1->setObjectName(QStringLiteral("SS1"));
    SS1->setAccessibleName(QStringLiteral("Nutrients"));
    lower->addWidget(SS1, 3);
    Chart1 = new Chart(right);
    Chart1->setObjectName(QStringLiteral("Chart1"));
    Chart1->SetTitle(QStringLiteral("Percent of Total Calories"));
    Chart1->SetPieSlices({QStringLiteral("Carbs"), QStringLiteral("Fat"), QStringLiteral("Protein")});
    Chart1->setMinimumWidth(240);
    lower->addWidget(Chart1, 2);
    rv->addLayout(lower, 1);

    split->addWidget(left);
    split->addWidget(right);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 1);
    // The list takes half: food names in the source run long, and the nutrients beside the
    // pie need the other half.
    split->setSizes({570, 550});

    // Commands.
    auto* buttons = new QHBoxLayout;
    auto makeButton = [&](const QString& caption, const char* name, const QString& tip = QString()) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        if (!tip.isEmpty())
            b->setToolTip(tip);
        buttons->addWidget(b);
        return b;
    };
    cmdNew = makeButton(QStringLiteral("&New"), "cmdNew", QStringLiteral("Clear the form to enter a new food"));
    cmdSave = makeButton(QStringLiteral("Sa&ve"), "cmdSave", QStringLiteral("Save this food"));
    cmdDelete = makeButton(QStringLiteral("&Delete"), "cmdDelete", QStringLiteral("Delete this food"));
    cmdCopy = makeButton(QStringLiteral("&Copy..."), "cmdCopy", QStringLiteral("Copy this food to a category"));
    cmdMove = makeButton(QStringLiteral("M&ove..."), "cmdMove", QStringLiteral("Move this food to another category"));
    cmdCategories = makeButton(QStringLiteral("Cate&gories..."), "cmdCategories",
                               QStringLiteral("Add or delete food categories"));
    buttons->addStretch(1);
    cmdClose = makeButton(QStringLiteral("C&lose"), "cmdClose");
    for (auto* b : {cmdFoodType[0], cmdFoodType[1], cmdSearch, cmdCalcKJ})
        b->setAutoDefault(false);

    auto* main = new QVBoxLayout(this);
    main->addWidget(split, 1);
    main->addLayout(buttons);

    // Signals.
    connect(typeGroup, &QButtonGroup::idClicked, this, [this](int id) { Guard([&] { on_cmdFoodType_clicked(id); }); });
    connect(cboGroups, &QComboBox::currentIndexChanged, this, [this](int i) { Guard([&] { on_cboGroups_changed(i); }); });
    connect(cmdSearch, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdSearch_clicked(); }); });
    connect(txtSearch, &QLineEdit::returnPressed, this, [this] { Guard([&] { on_cmdSearch_clicked(); }); });
    // A click makes a line current before it selects it: the food loads on the selection.
    connect(lstFoods, &QTreeWidget::itemSelectionChanged, this, [this] { Guard([&] { on_lstFoods_changed(); }); });
    connect(SS1, &Grid::CellEdited, this, [this](int r, int c) { Guard([&] { on_SS1_edited(r, c); }); });
    connect(cmdCalcKJ, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdCalcKJ_clicked(); }); });
    connect(cmdSave, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdSave_clicked(); }); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdDelete_clicked(); }); });
    connect(cmdNew, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdNew_clicked(); }); });
    connect(cmdCopy, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdCopy_clicked(); }); });
    connect(cmdMove, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdMove_clicked(); }); });
    connect(cmdCategories, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdCategories_clicked(); }); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    for (QLineEdit* e : {txtFood, txtAmount, txtData[0], txtData[1]})
        connect(e, &QLineEdit::textEdited, this, [this] { fieldChanged(); });
    connect(cboMeasure, &QComboBox::currentTextChanged, this, [this] { fieldChanged(); });
}

void frmFoods::fieldChanged()
{
    if (m_loading)
        return;
    cmdSave->setEnabled(true);
}

// ---- procedures ---------------------------------------------------------------------------

void frmFoods::FormatGrid()
{
    SS1->SetMaxRows(0);
    SS1->SetMaxCols(5);
    SS1->SetColumnHeaders({QStringLiteral("Nutrient"), QStringLiteral("Amount"), QStringLiteral("Percent of RDA"),
                           QStringLiteral("RDA"), QStringLiteral("RDA value")});
    SS1->SetRowHeadersVisible(false);
    SS1->SetColumnType(gcNutrient, Grid::TypeStatic);
    SS1->SetColumnType(gcAmount, Grid::TypeNumber);
    SS1->SetColumnType(gcPercent, Grid::TypeNumber);
    SS1->SetColumnType(gcRDA, Grid::TypeStatic);
    SS1->SetColumnType(gcRDAValue, Grid::TypeStatic);
    SS1->SetMaxLength(gcAmount, 13);
    SS1->SetMaxLength(gcPercent, 13);
    SS1->HideColumn(gcRDAValue);

    struct Row { QString name, rda, bare; };
    QList<Row> rows;
    SqlText = QStringLiteral("select * from Nutrients order by Nutrient_ID");
    bool first = true;
    ForEachRow(LibraryRS, SqlText, [&](Recordset& rs) {
        if (first) {
            first = false;   // calories has its own field
            return;
        }
        const QString measure = Str(rs.Field("Measure"));
        const double rda = Val(rs.Field("RDA"));
        rows.append({Str(rs.Field("Nutrient")) + " (" + measure + ")",
                     rda > 0 ? Num(rda) + " " + measure : QString(), Num(rda)});
    });
    SS1->SetMaxRows(rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        SS1->SetText(i + 1, gcNutrient, rows[i].name);
        SS1->SetText(i + 1, gcRDA, rows[i].rda);
        SS1->SetText(i + 1, gcRDAValue, rows[i].bare);
    }
    SS1->resizeColumnToContents(gcNutrient - 1);
    SS1->setColumnWidth(gcAmount - 1, 80);
    SS1->setColumnWidth(gcPercent - 1, 100);
    SS1->setColumnWidth(gcRDA - 1, 90);
    SS1->horizontalHeader()->setStretchLastSection(true);
}

void frmFoods::FillUnits(const QString& measure)
{
    QScopedValueRollback<bool> loading(m_loading, true);
    cboMeasure->clear();
    if (measure.isEmpty()) {
        SqlText = QStringLiteral("select * from units where type <> 'distance' order by type desc");
        listfill::FillList(cboMeasure, LibraryRS, SqlText, QStringLiteral("name"), QString(), true);
    } else {
        QString type;
        SqlText = "select type from units where name='" + SqlQuote(measure) + "'";
        FirstRow(LibraryRS, SqlText, [&type](Recordset& rs) { type = Str(rs.Field("type")); });
        if (!type.isEmpty()) {
            SqlText = "select * from units where type='" + SqlQuote(type) + "'";
            listfill::FillList(cboMeasure, LibraryRS, SqlText, QStringLiteral("name"), QString(), true);
        } else {
            // A measure without a units row converts into nothing: it is the only choice.
            cboMeasure->addItem(measure);
        }
    }
    cboMeasure->setCurrentIndex(-1);
}

double frmFoods::GetUnit(const QString& name)
{
    double result = 0.0;
    SqlText = "select conversion from units where name='" + SqlQuote(name) + "'";
    FirstRow(LibraryRS, SqlText, [&result](Recordset& rs) {
        if (!IsNull(rs.Field(0)))
            result = Val(rs.Field(0));
    });
    return result;
}

void frmFoods::GetUnits(QComboBox* combo, const QString& unit)
{
    QString name, unitType;
    SqlText = "select * from units where units!name = '" + SqlQuote(unit) + "'";
    FirstRow(LibraryRS, SqlText, [&](Recordset& rs) {
        name = Str(rs.Field("name"));
        unitType = Str(rs.Field("unit_type"));
    });
    combo->clear();
    SqlText = "select * from units where unit_type = '" + SqlQuote(unitType) + "' order by name";
    if (listfill::FillList(combo, LibraryRS, SqlText, QStringLiteral("name"), QString(), true) == 0) {
        SqlText = QStringLiteral("select * from units ");
        listfill::FillList(combo, LibraryRS, SqlText, QStringLiteral("name"), QString(), true);
    }
    SelectListItem(combo, name.isEmpty() ? unit : name);
}

QTreeWidgetItem* frmFoods::selectedLine() const
{
    QTreeWidgetItem* it = lstFoods->currentItem();
    return it && it->isSelected() ? it : nullptr;
}

void frmFoods::LoadFoodData()
{
    QTreeWidgetItem* line = selectedLine();
    if (!line)
        return;
    QScopedValueRollback<bool> loading(m_loading, true);
    for (int i = 1; i <= 3; ++i)
        Chart1->SetPieValue(i, 0);

    const QString foodId = line->text(colFoodID);
    if (cboGroups->currentIndex() >= 0) {
        SqlText = "select * from foods where group_id=" + cboGroups->currentData().toString() +
                  " and food_id=" + foodId;
    } else {
        QString group = line->text(colGroup);
        if (group == QLatin1String("My Favorites"))
            group = kFavorites;
        SqlText = "select * from foods a, food_groups b where b.group='" + SqlQuote(group) +
                  "' and a.food_id=" + foodId + " and a.group_id=b.group_id";
    }
    // FillUnits uses the shared recordset: keep what is still needed of the row first.
    QString measure, points;
    double calories = 0, protein = 0, carbs = 0, fat = 0;
    QStringList amounts;
    const bool found = FirstRow(LibraryRS, SqlText, [&](Recordset& rs) {
        txtFood->setText(Str(rs.Field("Name")));
        txtAmount->setText(Str(rs.Field("amount")));
        measure = Str(rs.Field("Measure"));
        calories = Val(rs.Field("calories"));
        protein = Val(rs.Field("protein"));
        carbs = Val(rs.Field("Carbs"));
        fat = Val(rs.Field("Fat"));
        points = Str(rs.Field("points"));
        for (int row = 1; row <= SS1->MaxRows(); ++row)
            amounts << (FoodsOffset + row < rs.FieldCount() ? Str(rs.Field(FoodsOffset + row)) : QString());
    });
    if (!found)
        return;

    FillUnits(measure);
    SelectListItem(cboMeasure, measure);
    if (cboMeasure->currentIndex() < 0)
        cboMeasure->setEditText(measure);
    txtData[1]->setText(Str(QVariant(calories)));
    for (int row = 1; row <= SS1->MaxRows(); ++row)
        SS1->SetText(row, gcAmount, amounts.value(row - 1));

    if (calories > 0 && (protein != 0 || carbs != 0 || fat != 0)) {
        const double total = protein * 4 + carbs * 4 + fat * 9;
        if (total > 0) {
            const double pc = carbs > 0 ? 100 * carbs * 4 / total : 0;
            const double pf = fat > 0 ? 100 * fat * 9 / total : 0;
            const double pp = protein > 0 ? 100 * protein * 4 / total : 0;
            Chart1->SetPieValue(1, regional::Round(pc, 0));
            Chart1->SetPieValue(2, regional::Round(pf, 0));
            Chart1->SetPieValue(3, regional::Round(pp, 0));
        }
    }
    txtData[0]->setText(points);

    for (int row = 1; row <= SS1->MaxRows(); ++row) {
        const double amount = SS1->Value(row, gcAmount);
        const double rda = SS1->Value(row, gcRDAValue);
        SS1->ClearCell(row, gcPercent);
        if (amount != 0 && rda != 0)
            SS1->SetText(row, gcPercent, Num(regional::Round(amount / rda * 100, 2)));
    }
    cmdDelete->setEnabled(true);
    cmdSave->setEnabled(false);
}

void frmFoods::clearForm()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    lstFoods->setCurrentItem(nullptr);
    lstFoods->clearSelection();
    txtFood->clear();
    txtAmount->clear();
    txtData[0]->clear();
    txtData[1]->clear();
    SS1->ClearColumn(gcAmount);
    SS1->ClearColumn(gcPercent);
    Chart1->ClearPie();
    cmdDelete->setEnabled(false);
    FillUnits(QString());
    cmdSave->setEnabled(false);
}

void frmFoods::ListCategory()
{
    if (cboGroups->currentIndex() < 0)
        return;
    clearForm();
    QScopedValueRollback<bool> loading(m_loading, true);
    m_fromSearch = false;
    lstFoods->clear();
    SqlText = "select * from foods, food_groups where food_groups.group = '" + SqlQuote(cboGroups->currentText()) +
              "' and food_groups.group_id=foods.group_id order by name";
    QList<QTreeWidgetItem*> lines;
    ForEachRow(LibraryRS, SqlText, [&lines](Recordset& rs) {
        auto* it = new QTreeWidgetItem;
        it->setText(colFood, Str(rs.Field("Name")));
        it->setToolTip(colFood, it->text(colFood));
        it->setText(colAmount, Str(rs.Field("amount")) + " " + Str(rs.Field("Measure")));
        it->setText(colGroupID, Str(rs.Field(1)));
        it->setText(colFoodID, Str(rs.Field(0)));
        it->setData(0, Qt::UserRole, rs.Field(0));
        lines << it;
    });
    lstFoods->addTopLevelItems(lines);
    lstFoods->setCurrentItem(nullptr);
    fitGroupColumn();
    cmdSave->setEnabled(false);
}

void frmFoods::SearchFoods()
{
    QString text = SqlQuote(txtSearch->text()).trimmed();
    QString filter;
    const int blank = text.indexOf(' ');
    if (blank >= 0)
        filter = "like '%" + text.left(blank) + "%' and name like '%" + text.mid(blank + 1) + "%'";
    else
        filter = "like '%" + text + "%'";

    clearForm();
    QList<QTreeWidgetItem*> lines;
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        m_fromSearch = true;
        cboGroups->setCurrentIndex(-1);   // a line's group comes from the line itself
        lstFoods->clear();
        SqlText = "select * from foods a, food_groups b where name " + filter +
                  " and a.group_id = b.group_id and a.group_id <> 65 order by a.name";
        ForEachRow(LibraryRS, SqlText, [&lines](Recordset& rs) {
            const QVariant groupId = rs.Field(1);
            if (Val(groupId) == MealsGroup)
                return;
            QString group = Str(rs.Field("Group"));
            if (group == kFavorites)
                group = QStringLiteral("My Favorites");
            auto* it = new QTreeWidgetItem;
            it->setText(colFood, Str(rs.Field("Name")));
            it->setToolTip(colFood, it->text(colFood));
            it->setText(colAmount, Str(rs.Field("amount")) + " " + Str(rs.Field("Measure")));
            it->setText(colGroup, group);
            it->setToolTip(colGroup, group);
            it->setText(colGroupID, Str(groupId));
            it->setText(colFoodID, Str(rs.Field(0)));
            it->setData(0, Qt::UserRole, rs.Field(0));
            lines << it;
        });
        lstFoods->addTopLevelItems(lines);
        lstFoods->setCurrentItem(nullptr);
        fitGroupColumn();
    }
    if (lines.isEmpty())
        Inform(QStringLiteral("Food not found."));
}

void frmFoods::fitGroupColumn()
{
    // Wide enough for the groups shown, within reason; a cut group has its tooltip.
    constexpr int widest = 170;
    const QFontMetrics fm(lstFoods->font());
    int width = fm.horizontalAdvance(lstFoods->headerItem()->text(colGroup)) + 24;
    for (int i = 0; i < lstFoods->topLevelItemCount() && width < widest; ++i)
        width = qMax(width, fm.horizontalAdvance(lstFoods->topLevelItem(i)->text(colGroup)) + 16);
    lstFoods->setColumnWidth(colGroup, qMin(width, widest));
}

void frmFoods::selectFoodId(long foodId)
{
    for (int i = 0; i < lstFoods->topLevelItemCount(); ++i) {
        QTreeWidgetItem* it = lstFoods->topLevelItem(i);
        if (long(Val(it->text(colFoodID))) == foodId) {
            lstFoods->setCurrentItem(it);
            it->setSelected(true);
            lstFoods->scrollToItem(it);
            LoadFoodData();
            return;
        }
    }
}

void frmFoods::showFood(const QString& name)
{
    txtSearch->setText(name);
    SearchFoods();
    for (int i = 0; i < lstFoods->topLevelItemCount(); ++i) {
        QTreeWidgetItem* it = lstFoods->topLevelItem(i);
        if (it->text(colFood).compare(name, Qt::CaseInsensitive) == 0) {
            selectFoodId(long(Val(it->text(colFoodID))));
            return;
        }
    }
}

// ---- commands -----------------------------------------------------------------------------

void frmFoods::on_cmdFoodType_clicked(int index)
{
    cmdFoodType[index]->setChecked(true);
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        cboGroups->clear();
        SqlText = index == 0 ? QStringLiteral("select * from food_groups where type = 'Foods' ")
                             : QStringLiteral("select * from food_groups where type = 'Menus'");
        ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) {
            cboGroups->addItem(Str(rs.Field("Group")), rs.Field("Group_ID"));
        });
        cboGroups->setCurrentIndex(-1);
    }
    clearForm();
    lstFoods->clear();
}

void frmFoods::on_cboGroups_changed(int index)
{
    if (m_loading || index < 0)
        return;
    ListCategory();
}

void frmFoods::on_cmdSearch_clicked() { SearchFoods(); }

void frmFoods::on_lstFoods_changed()
{
    if (m_loading)
        return;
    LoadFoodData();
}

void frmFoods::on_SS1_edited(int row, int col)
{
    if (m_loading)
        return;
    const double rda = SS1->Value(row, gcRDAValue);
    if (rda > 0) {
        QScopedValueRollback<bool> loading(m_loading, true);
        if (col == gcAmount) {
            const double amount = SS1->Value(row, gcAmount);
            if (amount > 0)
                SS1->SetText(row, gcPercent, Num(regional::Round(amount / rda * 100, 2)));
        } else if (col == gcPercent) {
            const double percent = SS1->Value(row, gcPercent);
            if (percent > 0)
                SS1->SetText(row, gcAmount, Num(regional::Round(percent * rda / 100, 2)));
        }
    }
    cmdSave->setEnabled(true);
}

void frmFoods::on_cmdCalcKJ_clicked()
{
    txtData[1]->setText(Num(regional::Round(Val(txtData[1]->text()) / 4.184, 2)));
    fieldChanged();
}

void frmFoods::on_cmdSave_clicked()
{
    WaitCursor wait;
    QTreeWidgetItem* line = selectedLine();
    const bool haveGroup = cboGroups->currentIndex() >= 0;
    if (!line && !haveGroup) {
        Inform(QStringLiteral("Please Select a Food Group before Saving."));
        return;
    }
    QString group;
    if (!haveGroup) {
        if (!line) {
            Inform(QStringLiteral("Please select a food group before saving."));
            return;
        }
        group = line->text(colGroupID);
    } else {
        group = cboGroups->currentData().toString();
    }
    if (line && txtFood->text().isEmpty()) {
        Inform(QStringLiteral("Please enter a name."));
        return;
    }
    if (Val(txtAmount->text()) == 0) {
        Inform(QStringLiteral("Please enter an amount."));
        return;
    }
    if (cboMeasure->currentText().isEmpty()) {
        Inform(QStringLiteral("Please select a measure."));
        return;
    }

    const long previous = line ? long(Val(line->text(colFoodID))) : 0;
    RecordsetScope scope(LibraryRS);
    if (!line) {
        SqlText = "select * from Foods where name='" + SqlQuote(txtFood->text()) + "'";
        const bool exists = FirstRow(LibraryRS, SqlText, [](Recordset&) {});
        if (exists) {
            Inform(QStringLiteral("This food exists in the database.  Please choose another name."));
            return;
        }
        LibraryRS.Open(QStringLiteral("Foods"), &LibraryConn);
        LibraryRS.AddNew();
    } else {
        SqlText = "select * from Foods where food_id=" + line->text(colFoodID);
        LibraryRS.Open(SqlText, &LibraryConn);
    }
    LibraryRS.SetField("Group_ID", Val(group));
    LibraryRS.SetField("Name", txtFood->text());
    LibraryRS.SetField("amount", Val(txtAmount->text()));
    LibraryRS.SetField("Measure", cboMeasure->currentText().left(30));
    LibraryRS.SetField("points", Val(txtData[0]->text()));
    LibraryRS.SetField("calories", Val(txtData[1]->text()));
    for (int row = 1; row <= SS1->MaxRows(); ++row)
        LibraryRS.SetField(FoodsOffset + row, SS1->Text(row, gcAmount).isEmpty() ? 0.0 : SS1->Value(row, gcAmount));
    LibraryRS.Update();
    LibraryRS.Close();

    Inform(QStringLiteral("Food saved."));
    if (m_fromSearch)
        SearchFoods();
    else
        ListCategory();
    if (previous)
        selectFoodId(previous);
    cmdSave->setEnabled(false);
}

void frmFoods::on_cmdDelete_clicked()
{
    QTreeWidgetItem* line = selectedLine();
    if (!line)
        return;
    if (MsgBox(QStringLiteral("Delete this food?"), vbYesNo + vbQuestion, kAction) != vbYes)
        return;
    SqlText = "delete * from Foods where food_id=" + line->text(colFoodID);
    LibraryConn.Execute(SqlText);
    on_cmdNew_clicked();
    if (m_fromSearch)
        SearchFoods();
    else
        ListCategory();
}

void frmFoods::on_cmdNew_clicked() { clearForm(); }

void frmFoods::on_cmdCopy_clicked() { copyOrMove(false); }
void frmFoods::on_cmdMove_clicked() { copyOrMove(true); }

void frmFoods::copyOrMove(bool move)
{
    QTreeWidgetItem* line = selectedLine();
    if (!line || cmdSave->isEnabled()) {
        Inform(move ? QStringLiteral("Please save this food before moving it.")
                    : QStringLiteral("Please save this food before copying it."));
        return;
    }
    bool completed = false;
    {
        frmMoveFood dlg(line->text(colFood), move ? frmMoveFood::Move : frmMoveFood::Copy, this);
        ShowModal(&dlg);
        completed = dlg.Completed();
    }
    if (completed) {
        if (m_fromSearch)
            SearchFoods();
        else
            ListCategory();
    }
}

void frmFoods::on_cmdCategories_clicked()
{
    ShowModal(QStringLiteral("frmFoodCategories"));
    on_cmdFoodType_clicked(cmdFoodType[1]->isChecked() ? 1 : 0);
}
