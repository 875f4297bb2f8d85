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

TEST_F(Records, UpdateWritesOnlyWhatWasChangedSoThatTheLastWriteOfEachColumnWins)
{
    Recordset mine = All();
    Open()->Execute("UPDATE Staff SET Days = 9 WHERE Name = 'Benoît'");
    mine.MoveNext();
    mine.Edit();
    mine["name"] = "Bruno";
    EXPECT_EQ(mine.Text("NAME"), "Bruno") << "the value being edited is read back, whatever the letter case";
    mine.Update();
    EXPECT_EQ(mine.Text("Name"), "Bruno");
    EXPECT_EQ(List("SELECT Name || Days FROM Staff"), "Anne1,Bruno9,Chloé1");
}

TEST_F(Records, ChangesAreDroppedByMovingOrCancelling)
{
    Recordset staff = All();
    for (const auto& leave : {std::function<void()>([&] { staff.CancelUpdate(); }), {[&] { staff.MoveFirst(); }}}) {
        staff.Edit();
        staff["Name"] = "Nobody";
        leave();
        EXPECT_EQ(staff.Text("Name"), "Anne");
        EXPECT_EQ(FailureOf([&] { staff.Update(); }), EngineError::NoEditStarted);
    }
    EXPECT_EQ(List("SELECT Name FROM Staff"), "Anne,Benoît,Chloé");
}

TEST_F(Records, ANewRecordLeavesTheCursorInItsPlace)
{
    Recordset staff = All();
    staff.MoveNext();
    staff.AddNew();
    EXPECT_TRUE(staff.IsNull("Name")) << "a new record has no value yet";
    staff["Name"] = "Denis";
    EXPECT_EQ(staff.Text("Name"), "Denis");
    staff.Update();
    EXPECT_EQ(staff.Text("Name"), "Benoît");
    EXPECT_EQ(database_->LastKey(), 4);
    EXPECT_EQ(List("SELECT Name FROM Staff WHERE RecordID = 4"), "Denis");

    Recordset none = database_->OpenRecordset("SELECT * FROM Staff WHERE RecordID = 0");
    none.AddNew();
    none.Update();
    EXPECT_TRUE(none.AtEnd());
    EXPECT_EQ(List("SELECT COUNT(*) FROM Staff"), "5");
}

TEST_F(Records, DeletingWhileWalkingRemovesEachRecordOnce)
{
    Recordset staff = All();
    for (; !staff.AtEnd(); staff.MoveNext()) {
        if (staff.Text("Name") == "Benoît")
            continue;
        staff.Delete();
        EXPECT_EQ(FailureOf([&] { staff.Text("Name"); }), EngineError::NoCurrentRecord);
    }
    EXPECT_EQ(List("SELECT Name FROM Staff"), "Benoît");
    staff.MoveFirst();
    EXPECT_EQ(staff.Text("Name"), "Benoît");
    EXPECT_EQ(staff.RecordCount(), 1);
}

TEST_F(Records, MisuseHasItsNumber)
{
    Recordset staff = All();
    Recordset none = database_->OpenRecordset("SELECT * FROM Staff WHERE RecordID = 0");
    Recordset joined = database_->OpenRecordset("SELECT * FROM Staff, Staff AS Other");
    EXPECT_EQ(FailureOf([&] { staff["Name"] = "Zoé"; }), EngineError::NoEditStarted);
    EXPECT_EQ(FailureOf([&] { staff.Text("Salary"); }), EngineError::NoSuchField);
    EXPECT_EQ(FailureOf([&] { none.Edit(); }), EngineError::NoCurrentRecord);
    EXPECT_EQ(FailureOf([&] { none.MoveFirst(); }), EngineError::NoCurrentRecord);
    EXPECT_EQ(FailureOf([&] { joined.Edit(); }), EngineError::ReadOnly);
    staff.Edit();
    EXPECT_EQ(FailureOf([&] { staff["Salary"] = 1; }), EngineError::NoSuchField);
    staff["Name"] = "Zoé";
    Open()->Execute("DELETE FROM Staff WHERE Name = 'Anne'");
    EXPECT_EQ(FailureOf([&] { staff.Update(); }), EngineError::NoCurrentRecord) << "removed by another user";
    database_.reset();
    EXPECT_EQ(FailureOf([&] { staff.Update(); }), EngineError::ConnectionLost);
    EXPECT_EQ(staff.RecordCount(), 3) << "what was read stays readable";
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
        from.Take("Unknown", days);
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

TEST_F(Records, ColumnsKeepTheirPrecision)
{
    Recordset staff = All();
    staff.Edit();
    staff["Hours"] = 7.35;
    staff["Days"] = 9997.5;
    staff["Seen"] = 46000.123456789;
    staff.Update();
    Recordset read = All();
    float hours = 0;
    read.Take("Hours", hours);
    EXPECT_EQ(hours, 7.35F);
    EXPECT_EQ(read.Value("Hours").toDouble(), static_cast<double>(7.35F));
    EXPECT_EQ(staff.Value("Hours"), read.Value("Hours")) << "the record in hand holds what the file holds";
    EXPECT_EQ(read.Value("Days"), QVariant(9998)) << "a whole-number column takes the even neighbour";
    EXPECT_EQ(read.Value("Seen").toDouble(), 46000.123456789);
    database_->Execute("UPDATE Staff SET Hours = ? WHERE RecordID = 1", {1e-7F});
    EXPECT_EQ(All().Single("Hours"), 1e-7F) << "midnight differs from none";
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
