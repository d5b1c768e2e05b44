#include "exercise/frmHRM.h"

#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Form.h"
#include "exercise/rules/hrmdevice.h"
#include "exercise/rules/hrmtext.h"
#include "exercise/rules/hrmzones.h"

#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSettings>
#include <QVBoxLayout>

namespace {

QString Msg() { return QStringLiteral("Message"); }
QString NothingFound() { return QStringLiteral("No Heart Rate Monitor Information Found."); }

// The application setting of the monitor type.
const char* const SettingKey = "ID/HRM";

// The file dialog's filter; the entry of each device type is chosen first for it.
const char* const ImportFilter =
    "Heart Rate File|*.hrm|Text File|*.txt|FIT File|*.fit|TCX File|*.tcx|GPX File|*.gpx";

}  // namespace

QStringList frmHRM::MonitorTypes()
{
    return {QString(),          QStringLiteral("Mio"), QStringLiteral("Polar"),
            QStringLiteral("Acumen"), QStringLiteral("Timex"), QStringLiteral("Other"),
            QStringLiteral("FIT"), QStringLiteral("TCX"), QStringLiteral("GPX")};
}

QString frmHRM::StoredMonitorType()
{
    return QSettings().value(QLatin1String(SettingKey)).toString();
}

frmHRM::frmHRM(const HrmSession& session, QWidget* parent) : QDialog(parent), m_session(session)
{
    setObjectName(QStringLiteral("frmHRM"));
    QScopedValueRollback<bool> loading(m_loading, true);
    setWindowTitle(QStringLiteral("Heart Rate Monitor Info for ") + m_session.name + QStringLiteral(" on ") +
                   regional::LongDate(m_session.date));

    cboHRM = form::Named(new QComboBox(this), QStringLiteral("cboHRM"));
    txtInterval = form::Edit(QStringLiteral("txtInterval"), 10, 80);
    txtBPM = form::Edit(QStringLiteral("txtBPM"), 5, 80, QStringLiteral("Enter HRM reading"));
    lstHRM = form::Named(new QListWidget(this), QStringLiteral("lstHRM"));
    lstHRM->setUniformItemSizes(true);
    lstHRM->setMinimumWidth(150);
    Graph1 = form::Named(new Chart(this), QStringLiteral("Graph1"));
    Graph1->SetStyle(Chart::Line);
    Graph1->SetLegendVisible(false);
    Graph1->SetSeriesNames({QStringLiteral("Heart Rate")});
    Graph1->SetAxisTitles(QStringLiteral("Elapsed Time (minutes)"), QString());
    Graph1->setMinimumSize(480, 320);

    Command2 = form::Button(QStringLiteral("Command2"), QStringLiteral("&Import..."),
                            QStringLiteral("Import a heart rate monitor or device file"));
    Command1 = form::Button(QStringLiteral("Command1"), QStringLiteral("C&lear"));
    cmdAdd = form::Button(QStringLiteral("cmdAdd"), QStringLiteral("&Add"));
    cmdDelete = form::Button(QStringLiteral("cmdDelete"), QStringLiteral("&Del"));
    cmdPrint = form::Button(QStringLiteral("cmdPrint"), QStringLiteral("&Print"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));

    auto* fields = new QGridLayout;
    form::AddRow(fields, 0, QStringLiteral("HRM &Type"), cboHRM, 0, 2);
    form::AddRow(fields, 1, QStringLiteral("Sample &Rate"), txtInterval);
    fields->addWidget(new QLabel(QStringLiteral("seconds"), this), 1, 2);
    form::AddRow(fields, 2, QStringLiteral("&Sample"), txtBPM);
    fields->addWidget(cmdAdd, 2, 2);
    fields->setColumnStretch(1, 1);

    auto* listButtons = new QHBoxLayout;
    listButtons->addWidget(cmdDelete);
    listButtons->addWidget(Command1);
    auto* left = new QVBoxLayout;
    left->addLayout(fields);
    left->addWidget(form::Caption(QStringLiteral("&HRM List"), lstHRM));
    left->addWidget(lstHRM, 1);
    left->addLayout(listButtons);
    left->addWidget(Command2);

    auto* top = new QHBoxLayout;
    top->addLayout(left);
    top->addWidget(Graph1, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(cmdPrint);
    bottom->addStretch(1);
    bottom->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(bottom);

    cboHRM->addItems(MonitorTypes());
    const QString stored = StoredMonitorType();
    cboHRM->setCurrentIndex(std::max(0, int(cboHRM->findText(stored))));

    QMetaObject::connectSlotsByName(this);
    txtInterval->installEventFilter(this);
    setTabOrder(cboHRM, txtInterval);
    setTabOrder(txtInterval, txtBPM);
    setTabOrder(txtBPM, cmdAdd);
    setTabOrder(cmdAdd, lstHRM);
    setTabOrder(lstHRM, cmdDelete);
    setTabOrder(cmdDelete, Command1);
    setTabOrder(Command1, Command2);
    setTabOrder(Command2, Graph1);
    setTabOrder(Graph1, cmdPrint);
    setTabOrder(cmdPrint, cmdClose);

    lstHRM->clear();
    cmdAdd->setEnabled(false);
    cmdDelete->setEnabled(false);
    Graph1->Clear();
    Guard([this] { LoadHRM(); });
    Guard([this] { GraphHRM(); });
    resize(960, 600);
    CenterForm(this);
}

QString frmHRM::sessionWhere() const
{
    return QStringLiteral(" where User_ID='") + CurrentUserID + QStringLiteral("' and sport='") +
           SqlQuote(m_session.name) + QStringLiteral("' and HRM_date=#") + SqlDate(m_session.date) +
           QStringLiteral("#");
}

void frmHRM::LoadHRM()
{
    // Two sessions of one sport on a day show the same readings: the key is not asked.
    SqlText = QStringLiteral("select * from HRM") + sessionWhere();
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        const QVariant interval = rs.Field(QStringLiteral("Length_Interval"));
        if (!IsNull(interval))
            txtInterval->setText(Str(interval));
        SetReadings(Str(rs.Field(QStringLiteral("HRM"))).split(QLatin1Char('\t'), Qt::SkipEmptyParts));
    });
}

void frmHRM::SetReadings(const QStringList& readings)
{
    lstHRM->clear();
    lstHRM->addItems(readings);
}

QString frmHRM::ConvertMin(double samples) const
{
    return hrm::ConvertMin(Val(txtInterval->text()), samples);
}

void frmHRM::SaveHRM()
{
    if (lstHRM->count() <= 1)
        return;
    QStringList readings;
    readings.reserve(lstHRM->count());
    for (int i = 0; i < lstHRM->count(); ++i)
        readings.append(lstHRM->item(i)->text());
    QString text;
    text.reserve(readings.size() * 4);
    for (const QString& r : readings)
        text += r + QLatin1Char('\t');

    hrm::ZoneBounds bounds;
    SqlText = QStringLiteral("select * from hrm_info where User_ID = '") + CurrentUserID + QStringLiteral("'");
    FirstRow(UserRS, SqlText, [&bounds](Recordset& rs) {
        for (int z = 0; z < 5; ++z) {
            bounds.lower[z] = Val(rs.Field(QStringLiteral("Z%1Lower").arg(z + 1)));
            bounds.upper[z] = Val(rs.Field(QStringLiteral("Z%1Upper").arg(z + 1)));
        }
    });
    const hrm::ZoneCounts zones = hrm::CountZones(readings, bounds);

    {
        // The old row goes only when the new one is written.
        StoreTransaction transaction(UserConn);
        SqlText = QStringLiteral("delete * from HRM") + sessionWhere() + QStringLiteral(" and key='") +
                  SqlQuote(m_session.key) + QStringLiteral("'");
        UserConn.Execute(SqlText);
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("HRM"));
        UserRS.AddNew();
        UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
        UserRS.SetField(QStringLiteral("HRM_Date"), m_session.date);
        UserRS.SetField(QStringLiteral("Length_Interval"), txtInterval->text());
        UserRS.SetField(QStringLiteral("sport"), m_session.name);
        UserRS.SetField(QStringLiteral("Key"), m_session.key);
        UserRS.SetField(QStringLiteral("HRM"), text);
        UserRS.Update();
        UserRS.Close();
        transaction.Commit();
    }

    if (m_session.zonesChanged) {
        QStringList times;
        for (int z = 0; z < 5; ++z)
            times.append(ConvertMin(double(zones.count[z])));
        m_session.zonesChanged(times, zones.average);
    }
}

void frmHRM::GraphHRM()
{
    Graph1->Clear();
    Graph1->SetTitle(QString());
    if (lstHRM->count() == 0)
        return;
    QStringList readings;
    readings.reserve(lstHRM->count());
    for (int i = 0; i < lstHRM->count(); ++i)
        readings.append(lstHRM->item(i)->text());
    const hrm::GraphPoints points = hrm::GraphHRMPoints(readings, Val(txtInterval->text()));
    Graph1->SetTitle(m_session.name + QStringLiteral(" - Heart Rate") + QStringLiteral(" for ") +
                     regional::LongDate(m_session.date));
    Graph1->SetData(points.labels, {points.values});
}

void frmHRM::on_Command2_clicked()
{
    const QString type = cboHRM->currentText();
    if (type.isEmpty()) {
        MsgBox(QStringLiteral("Please Select a Heart Rate Monitor before importing data."), vbInformation, Msg());
        return;
    }
    FileDialogOptions o;
    o.title = QStringLiteral("Import Heart Rate Data");
    o.filter = QString::fromLatin1(ImportFilter);
    const bool device = hrm::IsDeviceType(type);
    o.defaultExt = device ? type.toLower() : QStringLiteral("hrm");
    o.filterIndex = type == QLatin1String("FIT") ? 3 : type == QLatin1String("TCX") ? 4
                  : type == QLatin1String("GPX") ? 5 : 1;
    const QString path = FileDialog(o);
    if (path.isEmpty())
        return;
    Guard([this, path] { ImportFile(path); });
}

void frmHRM::ImportFile(const QString& path)
{
    const QString type = cboHRM->currentText();
    if (hrm::IsDeviceType(type)) {
        // A device file is read whole first: one that cannot be read leaves the list as it is.
        const hrm::DeviceImport in = hrm::ReadDeviceFile(path);
        if (!in.error.isEmpty()) {
            MsgBox(in.error, vbInformation, Msg());
            return;
        }
        if (in.resampled.readings.isEmpty()) {
            MsgBox(NothingFound(), vbInformation, Msg());
            return;
        }
        txtInterval->setText(QString::number(in.resampled.rate));
        SetReadings(hrm::ToList(in.resampled.readings));
    } else {
        lstHRM->clear();
        QFile file(path);
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray bytes = file.readAll();
            if (type == QLatin1String("Polar")) {
                const hrm::TextImport in = hrm::ReadPolar(bytes);
                if (in.interval)
                    txtInterval->setText(NumberText(*in.interval));
                SetReadings(in.readings);
            } else {
                SetReadings(hrm::ReadFixedColumns(bytes).readings);
            }
        }
        if (lstHRM->count() == 0) {
            MsgBox(NothingFound(), vbInformation, Msg());
            return;
        }
    }
    SaveHRM();
    GraphHRM();
    MsgBox(QStringLiteral("Heart Rate Monitor Information Imported."), vbInformation, Msg());
}

void frmHRM::on_Command1_clicked()
{
    if (MsgBox(QStringLiteral("Clear the HRM List?"), vbYesNo | vbQuestion, QStringLiteral("Action")) != vbYes)
        return;
    lstHRM->clear();
    Graph1->Clear();
    Graph1->SetTitle(QString());
}

void frmHRM::on_cmdAdd_clicked()
{
    const double bpm = Val(txtBPM->text());
    if (bpm <= 0)
        return;
    lstHRM->addItem(NumberText(bpm));
    txtBPM->clear();
    cmdAdd->setEnabled(false);
    Guard([this] {
        SaveHRM();
        GraphHRM();
    });
}

void frmHRM::on_cmdDelete_clicked()
{
    const int row = lstHRM->currentRow();
    if (row < 0 || !lstHRM->item(row)->isSelected()) {
        cmdDelete->setEnabled(false);
        return;
    }
    delete lstHRM->takeItem(row);
    txtBPM->clear();
    cmdDelete->setEnabled(false);
    cmdAdd->setEnabled(false);
    Guard([this] {
        SaveHRM();
        GraphHRM();
    });
}

void frmHRM::on_cmdPrint_clicked()
{
    Graph1->Print();
}

void frmHRM::on_cmdClose_clicked()
{
    accept();
}

void frmHRM::on_cboHRM_currentIndexChanged(int)
{
    if (m_loading)
        return;
    QSettings().setValue(QLatin1String(SettingKey), cboHRM->currentText());
}

void frmHRM::on_txtBPM_textChanged(const QString& text)
{
    cmdAdd->setEnabled(Val(text) > 0);
}

bool frmHRM::eventFilter(QObject* watched, QEvent* event)
{
    // A sample rate of 0 becomes 1 whenever the field is left, changed or not.
    if (watched == txtInterval && event->type() == QEvent::FocusOut && Val(txtInterval->text()) == 0)
        txtInterval->setText(QStringLiteral("1"));
    return QDialog::eventFilter(watched, event);
}

void frmHRM::on_lstHRM_itemSelectionChanged()
{
    if (m_loading)
        return;
    cmdDelete->setEnabled(!lstHRM->selectedItems().isEmpty());
}

void frmHRM::done(int result)
{
    Guard([this] {
        SaveHRM();
        CalcZones();
    });
    QDialog::done(result);
}
