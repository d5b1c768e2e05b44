#pragma once
// A signed-in athlete on fresh stores, with helpers to put rows on days.
#include <QVariantMap>

#include "fixtures/fixture.h"
#include "core/shared.h"
#include "core/store/recordset.h"

class CalendarTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete(QStringLiteral("Jo"));
    }

    // Adds one row to a user-store table.
    void AddRow(const QString& table, const QVariantMap& fields)
    {
        Recordset rs(&UserConn);
        rs.Open(table);
        rs.AddNew();
        for (auto it = fields.constBegin(); it != fields.constEnd(); ++it) rs.SetField(it.key(), it.value());
        rs.Update();
        rs.Close();
    }

    // A calendar entry with its times of day.
    void AddEntry(const QDate& d, int key, const QString& name, const QString& type, const QString& start,
                  const QString& end, int image = 1, double cals = 0)
    {
        AddRow(QStringLiteral("calendar"), {{"User_ID", id}, {"Date", d}, {"Key", key}, {"Name", name},
                                             {"WorkoutType", type}, {"StartTime", start}, {"EndTime", end},
                                             {"Image", image}, {"Cals", cals}});
    }

    QVariant UserValue(const QString& sql)
    {
        Recordset rs(&UserConn);
        rs.Open(sql);
        const QVariant v = rs.Eof() ? QVariant() : rs.Field(0);
        rs.Close();
        return v;
    }

    QString id;
};
