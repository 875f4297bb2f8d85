#include "platform/engine_fixture.h"

#include <limits>

namespace
{
class Records : public EngineTest
{
protected:
    Records() : database_(Open())
    {
        for (const char* name : {"Anne", "Benoît", "Chloé"})
            database_->Execute("INSERT INTO Staff (Name, Hours, Days) VALUES (?, 7.5, 1)", {name});
    }
    Recordset All() { return database_->OpenRecordset("SELECT * FROM Staff ORDER BY RecordID"); }

    std::unique_ptr<Database> database_;
};

TEST_F(Records, AResultIsReadWholeAndWalkedToItsEnd)
{
    Recordset staff = All();
    Recordset none = database_->OpenRecordset("SELECT * FROM Staff WHERE RecordID = 0");
    QStringList names;
    database_.reset();
    for (const Recordset& record : staff)
        names << record.Text("NAME");
    EXPECT_EQ(names.join(','), "Anne,Benoît,Chloé") << "whatever the letter case of the column";
    EXPECT_EQ(FailureOf([&] { staff.Text("Name"); }), EngineError::NoCurrentRecord);
    staff.MoveFirst();
    EXPECT_EQ(staff.Text("Name"), "Anne");
    EXPECT_EQ(FailureOf([&] { staff.Text("Salary"); }), EngineError::NoSuchField);
    EXPECT_EQ(FailureOf([&] { none.MoveFirst(); }), EngineError::NoCurrentRecord);
}

TEST_F(Records, StatementsFailUnderTheEnginesNumbers)
{
    const std::pair<const char*, int> cases[] = {
        {"SELECT * FROM Nowhere", EngineError::NoSuchTable},
        {"SELECT Salary FROM Staff", EngineError::UnknownName},
        {"INSERT INTO Staff (Salary) VALUES (1)", EngineError::UnknownName},
        {"SELECT * FROM Staff WHERE RecordID = ?", EngineError::UnknownName},
        {"CREATE TABLE Staff (Name TEXT);", EngineError::TableExists},
        {"ALTER TABLE Staff ADD COLUMN Name TEXT;", EngineError::FieldExists},
        {"INSERT INTO Staff (RecordID) VALUES (1)", EngineError::DuplicateKey},
        {"SELEKT 1", EngineError::StatementError},
        {"DELETE FROM Staff; DELETE FROM Staff", EngineError::StatementError},
    };
    for (const auto& [sql, number] : cases)
        EXPECT_EQ(FailureOf([&] { database_->Execute(sql); }), number) << sql;
    EXPECT_EQ(database_->Execute("UPDATE Staff SET Days = 3 WHERE Name <> 'anne'"), 2);
}

TEST_F(Records, NullAndEmptyReadsLeaveTargetsUntouched)
{
    int days = 5;
    float hours = 5;
    bool flag = true;
    QString name = "before";
    const auto takeAll = [&](const Recordset& from) {
        from.Take("Days", days);
        from.Take("Hours", hours);
        from.Take("Days", flag);
        from.Take("Name", name);
    };
    takeAll(Recordset());
    takeAll(database_->OpenRecordset("SELECT * FROM Staff WHERE RecordID = 0"));
    takeAll(
        database_->OpenRecordset("SELECT SUM(Days) AS Days, SUM(Hours) AS Hours, NULL AS Name FROM Staff WHERE 1 = 0"));
    EXPECT_EQ(days, 5);
    EXPECT_EQ(hours, 5);
    EXPECT_TRUE(flag);
    EXPECT_EQ(name, "before");
    takeAll(database_->OpenRecordset("SELECT 0 AS Days, 0 AS Hours, '' AS Name"));
    EXPECT_EQ(days, 0);
    EXPECT_EQ(hours, 0);
    EXPECT_FALSE(flag);
    EXPECT_EQ(name, "");
}

TEST_F(Records, ValuesOfEveryKindComeBackAsTheyWent)
{
    const qint64 large = std::numeric_limits<qint64>::max();
    database_->Execute("CREATE TABLE Kinds (Value)");
    for (const QVariant& value :
         {BoundValue(true), BoundValue(-3), BoundValue(large), BoundValue(0.1), BoundValue("l`été — ½"),
          BoundValue(QString()), BoundValue(QVariant()), BoundValue(nullptr), BoundValue(QLatin1String("plain"))})
        database_->Execute("INSERT INTO Kinds VALUES (?)", {value});
    EXPECT_EQ(List(*database_, "SELECT typeof(Value) FROM Kinds"),
              "integer,integer,integer,real,text,text,null,null,text");
    EXPECT_EQ(List(*database_, "SELECT Value FROM Kinds"), "1,-3,9223372036854775807,0.1,l`été — ½,,,,plain");
    const QString quote = "O'Brien\"; DROP TABLE Staff; --";
    EXPECT_EQ(List(*database_, "SELECT ?", {quote}), quote);
}
} // namespace
