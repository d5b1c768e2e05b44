#pragma once
// frmHRM, "Heart Rate Monitor": the heart-rate readings of one exercise session, typed or
// imported from a monitor's file, drawn, stored, and turned into zone times and an average.
#include <QDate>
#include <QDialog>
#include <QStringList>
#include <functional>

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

private:
    HrmSession m_session;
};
