#include "platform/engine_fixture.h"

#include <stdexcept>

namespace
{
class Transactions : public EngineTest
{
protected:
    static void Add(Database& database, const QString& name)
    {
        database.Execute("INSERT INTO Staff (Name) VALUES (?)", {name});
    }
    QString Names() const { return List("SELECT Name FROM Staff"); }
};

TEST_F(Transactions, WhateverLeavesTheScopeUndoesUnlessItIsKept)
{
    const auto database = Open();
    for (const auto onFailure : {Transaction::Undo, Transaction::KeepOnFailure})
        try {
            Transaction transaction(*database, onFailure);
            Add(*database, "Anne");
            EXPECT_EQ(Names(), "") << "nothing is in the file before the end";
            throw std::logic_error("in the middle");
        } catch (const std::logic_error&) {
            EXPECT_EQ(Names(), onFailure == Transaction::Undo ? "" : "Anne");
        }
    Add(*database, "Benoît");
    EXPECT_EQ(Names(), "Anne,Benoît") << "the database goes on";
}

TEST_F(Transactions, AnInnerOneEndsWithTheOuterOne)
{
    const auto database = Open();
    Transaction outer(*database);
    Add(*database, "Anne");
    {
        Transaction inner(*database);
        Add(*database, "Benoît");
        inner.Commit();
    }
    {
        Transaction inner(*database);
        Add(*database, "Chloé");
    }
    EXPECT_EQ(Names(), "");
    outer.Commit();
    EXPECT_EQ(Names(), "Anne,Benoît");
}

TEST_F(Transactions, AfterAFailureThatEndedItNothingMoreIsWrittenAndThatFailureIsTold)
{
    const auto database = Open();
    database->Execute("CREATE TABLE Strict (Name TEXT UNIQUE ON CONFLICT ROLLBACK)");
    const auto addTwice = [&] {
        for (int times = 0; times < 2; ++times)
            database->Execute("INSERT INTO Strict VALUES ('Anne')");
    };
    {
        Transaction outer(*database, Transaction::KeepOnFailure);
        Add(*database, "Anne");
        EXPECT_EQ(FailureOf([&] {
                      Transaction inner(*database);
                      addTwice();
                  }),
                  EngineError::DuplicateKey);
        EXPECT_EQ(FailureOf([&] { Add(*database, "Benoît"); }), EngineError::DuplicateKey);
        EXPECT_EQ(FailureOf([&] { outer.Commit(); }), EngineError::DuplicateKey);
    }
    EXPECT_EQ(Names(), "");
    Add(*database, "Chloé");
    EXPECT_EQ(Names(), "Chloé");
}

TEST_F(Transactions, ADatabaseClosedOrLostInTheMiddleKeepsNothing)
{
    DefaultWorkspace().OpenDatabase(File(), ";PWD=" + kPassword);
    DataControl::Reconnect = [this](DataControl&) { DefaultWorkspace().OpenDatabase(File(), ";PWD=" + kPassword); };
    DataControl datAbsence("frmTest");
    {
        Transaction transaction(datAbsence.Engine());
        Add(datAbsence.Engine(), "Anne");
        ASSERT_TRUE(QFile::rename(File(), File("Moved.mdb")));
        EXPECT_EQ(FailureOf([&] { datAbsence.Read("SELECT * FROM Staff"); }), EngineError::ConnectionLost)
            << "a new connection would not be the one that the transaction is open on";
        ASSERT_TRUE(QFile::rename(File("Moved.mdb"), File()));
        DefaultWorkspace().Close();
        EXPECT_EQ(FailureOf([&] { transaction.Commit(); }), EngineError::ConnectionLost);
    }
    DataControl::Reconnect = {};
    EXPECT_EQ(Names(), "");
}

TEST_F(Transactions, AFailedCreationLeavesNoFile)
{
    EXPECT_EQ(FailureOf([this] { Database::Create(File("New.mdb"), "x", "CREATE TABLE A (B); CREATE TABLE A (B);"); }),
              EngineError::TableExists);
    EXPECT_FALSE(QFile::exists(File("New.mdb")));
}
} // namespace
