#pragma once
// frmHRM, "Heart Rate Monitor": the heart-rate readings of one exercise session, typed or
// imported from a monitor's file, drawn, stored, and turned into zone times and an average.
#include <QDate>
#include <QDialog>
#include <QStringList>
#include <functional>

class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class Chart;

// The session whose readings are shown, and where its zone times go.
struct HrmSession {
    QDate date;
    QString name;   // the session's name (sport)
    QString key;
    // Given the five zone times ("hh:mm:ss") and the average rate after each save of the readings.
    std::function<void(const QStringList& zoneTimes, double averageHR)> zonesChanged;
};

class frmHRM : public QDialog {
    Q_OBJECT
public:
    explicit frmHRM(const HrmSession& session, QWidget* parent = nullptr);

    // The monitor types of the list: the monitors' own, then the device files.
    static QStringList MonitorTypes();
    // Where the chosen type is kept between runs (per-user application settings).
    static QString StoredMonitorType();

    // Stores the list (when it holds more than one reading) and sends the zone times and the
    // average to the session's log.
    void SaveHRM();
    // Redraws the chart from the list.
    void GraphHRM();
    // A number of samples as "hh:mm:ss" at the sample rate of txtInterval.
    QString ConvertMin(double samples) const;
    // Kept empty: closing still calls it.
    void CalcZones() {}
    // Imports a file of the chosen type (Command2 after its file dialog).
    void ImportFile(const QString& path);

    QComboBox* cboHRM = nullptr;
    QLineEdit* txtInterval = nullptr;
    QLineEdit* txtBPM = nullptr;
    QListWidget* lstHRM = nullptr;
    Chart* Graph1 = nullptr;
    QPushButton* Command2 = nullptr;   // "&Import..."
    QPushButton* Command1 = nullptr;   // "C&lear"
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_Command2_clicked();
    void on_Command1_clicked();
    void on_cmdAdd_clicked();
    void on_cmdDelete_clicked();
    void on_cmdPrint_clicked();
    void on_cmdClose_clicked();
    void on_cboHRM_currentIndexChanged(int index);
    void on_txtBPM_textChanged(const QString& text);
    void on_lstHRM_itemSelectionChanged();

public:
    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LoadHRM();
    void SetReadings(const QStringList& readings);
    QString sessionWhere() const;

    HrmSession m_session;
    bool m_loading = false;
};
