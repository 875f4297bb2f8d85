#include "platform/engine_fixture.h"

#include <limits>

namespace
{
class Records : public EngineTest
{
protected:
    Records() { Hire(*database_, {"Anne", "Benoît", "Chloé"}); }

    std::unique_ptr<Database> database_ = Open();
};

TEST_F(Records, AResultIsReadWholeAndWalkedToItsEnd)
{
    Recordset staff = database_->OpenRecordset("SELECT *, 'x' AS Name FROM Staff ORDER BY RecordID");
    Recordset none = database_->OpenRecordset("SELECT * FROM Staff WHERE RecordID = 0");
    QStringList names;
    database_.reset();
    for (const Recordset& record : staff)
        names << record.Text("NAME");
    EXPECT_EQ(names.join(','), "Anne,Benoît,Chloé") << "whatever the letter case of the column; the first one goes";
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
        {"SELECT * FROM Staff WHERE Name = \"Anne\"", EngineError::UnknownName},
        {"INSERT INTO Staff (Salary) VALUES (1)", EngineError::UnknownName},
        {"SELECT * FROM Staff WHERE RecordID = ?", EngineError::UnknownName},
        {"CREATE TABLE Staff (Name TEXT);", EngineError::TableExists},
        {"ALTER TABLE Staff ADD COLUMN Name TEXT;", EngineError::FieldExists},
        {"INSERT INTO Staff (RecordID) VALUES (1)", EngineError::DuplicateKey},
        {"SELEKT 1", EngineError::StatementError},
        {"", EngineError::StatementError},
        {"DELETE FROM Staff; DELETE FROM Staff", EngineError::StatementError},
    };
    for (const auto& [sql, number] : cases)
        EXPECT_EQ(FailureOf([&] { database_->Execute(sql); }), number) << sql;
    EXPECT_EQ(database_->Execute("UPDATE Staff SET Days = 3 WHERE Name <> 'anne'"), 2);
    EXPECT_EQ(database_->LastKey(), 3);
}

TEST_F(Records, NullAndEmptyReadsLeaveTargetsUntouchedButAnUnknownColumnThrows)
{
    const auto taken = [](const Recordset& from) {
        int days = 5;
        float hours = 5;
        bool flag = true;
        QString name = "before";
        from.Take("Days", days);
        from.Take("Hours", hours);
        from.Take("Days", flag);
        from.Take("Name", name);
        return QStringLiteral("%1 %2 %3 %4").arg(days).arg(hours).arg(flag).arg(name);
    };
    const Recordset none = database_->OpenRecordset("SELECT * FROM Staff WHERE RecordID = 0");
    const QString nulls = "SELECT SUM(Days) AS Days, SUM(Hours) AS Hours, NULL AS Name FROM Staff WHERE 1 = 0";
    for (const Recordset& empty : {Recordset(), none, database_->OpenRecordset(nulls)})
        EXPECT_EQ(taken(empty), "5 5 1 before");
    EXPECT_EQ(taken(database_->OpenRecordset("SELECT 0 AS Days, 0 AS Hours, '' AS Name")), "0 0 0 ");
    EXPECT_EQ(taken(database_->OpenRecordset("SELECT 2 AS days, 0.5 AS HOURS, 'x' AS Name")), "2 0.5 1 x");
    QString salary;
    EXPECT_EQ(FailureOf([&] { none.Take("Salary", salary); }), EngineError::NoSuchField);
}

TEST_F(Records, ValuesOfEveryKindComeBackAsTheyWent)
{
    const qint64 large = std::numeric_limits<qint64>::max();
    const QString quote = "O'Brien\"; DROP TABLE Staff; --";
    database_->Execute("CREATE TABLE Kinds (Value)");
    for (const QVariant& value :
         {BoundValue(true), BoundValue(-3), BoundValue(large), BoundValue(0.1), BoundValue(0.5F),
          BoundValue("l`été — ½"), BoundValue(QString()), BoundValue(QVariant()), BoundValue(nullptr),
          BoundValue(QLatin1String("plain")), BoundValue(quote)})
        database_->Execute("INSERT INTO Kinds VALUES (?)", {value});
    EXPECT_EQ(List(*database_, "SELECT typeof(Value) FROM Kinds"),
              "integer,integer,integer,real,real,text,text,null,null,text,text");
    EXPECT_EQ(List(*database_, "SELECT Value FROM Kinds"),
              "1,-3,9223372036854775807,0.1,0.5,l`été — ½,,,,plain," + quote);
}
} // namespace
