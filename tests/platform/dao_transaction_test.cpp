#include "platform/engine_fixture.h"

#include <stdexcept>

namespace
{
class Transactions : public EngineTest
{
protected:
    QString Names() const { return List("SELECT Name FROM Staff"); }

    std::unique_ptr<Database> database = Open();
};

TEST_F(Transactions, WhateverLeavesTheScopeUndoesUnlessItIsKept)
{
    for (const auto onFailure : {Transaction::Undo, Transaction::KeepOnFailure})
        try {
            Transaction transaction(*database, onFailure);
            Hire(*database, {"Anne"});
            EXPECT_EQ(Names(), "") << "nothing is in the file before the end";
            throw std::logic_error("in the middle");
        } catch (const std::logic_error&) {
            EXPECT_EQ(Names(), onFailure == Transaction::Undo ? "" : "Anne");
        }
    Transaction(*database, Transaction::KeepOnFailure).Commit();
    {
        const Transaction next(*database);
        EXPECT_TRUE(database->IsInTransaction());
    }
    Hire(*database, {"Benoît"});
    EXPECT_EQ(Names(), "Anne,Benoît") << "the database goes on";
}

TEST_F(Transactions, AnInnerOneEndsWithTheOuterOne)
{
    Transaction outer(*database);
    Hire(*database, {"Anne"});
    {
        Transaction inner(*database);
        Hire(*database, {"Benoît"});
        inner.Commit();
    }
    {
        Transaction inner(*database);
        Hire(*database, {"Chloé"});
    }
    EXPECT_EQ(Names(), "");
    EXPECT_TRUE(database->IsInTransaction());
    outer.Commit();
    EXPECT_EQ(Names(), "Anne,Benoît");
}

TEST_F(Transactions, AfterAFailureThatEndedItNothingMoreIsWrittenAndThatFailureIsTold)
{
    database->Execute("CREATE TABLE Strict (Name TEXT UNIQUE ON CONFLICT ROLLBACK)");
    {
        Transaction outer(*database, Transaction::KeepOnFailure);
        Hire(*database, {"Anne"});
        EXPECT_EQ(FailureOf([&] {
                      Transaction inner(*database);
                      for (int times = 0; times < 2; ++times)
                          database->Execute("INSERT INTO Strict VALUES ('Anne')");
                  }),
                  EngineError::DuplicateKey);
        EXPECT_EQ(FailureOf([&] { Hire(*database, {"Benoît"}); }), EngineError::DuplicateKey);
        EXPECT_EQ(FailureOf([&] { outer.Commit(); }), EngineError::DuplicateKey);
    }
    EXPECT_EQ(Names(), "");
    Hire(*database, {"Chloé"});
    EXPECT_EQ(Names(), "Chloé");
}

TEST_F(Transactions, ARollBackThatFailsHidesNothing)
{
    const Transaction outer(*database);
    EXPECT_THROW(
        {
            const Transaction inner(*database);
            database->Execute("RELEASE inner_transaction"); // there is nothing left to go back to
            throw std::logic_error("in the middle");
        },
        std::logic_error);
    EXPECT_EQ(FailureOf([&] { database->Execute("SELEKT"); }), EngineError::StatementError);
    Hire(*database, {"Anne"});
    EXPECT_EQ(List(*database, "SELECT Name FROM Staff"), "Anne") << "a failure that ended nothing leaves it open";
}

TEST_F(Transactions, ADatabaseClosedOrLostInTheMiddleKeepsNothing)
{
    OpenShared();
    DataControl::Reconnect = [this](DataControl&) { OpenShared(); };
    DataControl datAbsence("frmTest");
    {
        Transaction transaction(datAbsence.Engine());
        Hire(datAbsence.Engine(), {"Anne"});
        ASSERT_TRUE(QFile::rename(File(), File("Moved.mdb")));
        EXPECT_EQ(FailureOf([&] { transaction.Commit(); }), EngineError::DiskError);
        ASSERT_TRUE(QFile::rename(File("Moved.mdb"), File()));
    }
    {
        Transaction transaction(datAbsence.Engine());
        Hire(datAbsence.Engine(), {"Anne"});
        DefaultWorkspace().Close();
        EXPECT_EQ(FailureOf([&] { datAbsence.Read("SELECT * FROM Staff"); }), 0) << "through a new connection";
        EXPECT_EQ(FailureOf([&] { transaction.Commit(); }), EngineError::ConnectionLost);
    }
    DataControl::Reconnect = {};
    DefaultWorkspace().Forget();
    EXPECT_EQ(Names(), "");
}
} // namespace
