#include "platform/engine_fixture.h"

#include <stdexcept>

namespace
{
class Batches : public EngineTest
{
protected:
    static void Add(Database& database, const char* name)
    {
        database.Execute("INSERT INTO Staff (Name) VALUES (?)", {name});
    }
    QString Names() const { return List("SELECT Name FROM Staff"); }
};

TEST_F(Batches, WhatWasWrittenBeforeAFailureStays)
{
    const auto database = Open();
    try {
        Batch batch(*database);
        Add(*database, "Anne");
        EXPECT_EQ(Names(), "") << "nothing is in the file before the end";
        throw std::runtime_error("in the middle");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(Names(), "Anne");
    }
}

TEST_F(Batches, RollbackUndoesTheBatchAndTheDatabaseGoesOn)
{
    const auto database = Open();
    {
        Batch batch(*database);
        Add(*database, "Anne");
        batch.Rollback();
        batch.Commit();
    }
    EXPECT_EQ(Names(), "");
    Add(*database, "Benoît");
    EXPECT_EQ(Names(), "Benoît");
}

TEST_F(Batches, AnInnerBatchEndsWithTheOuterOne)
{
    const auto database = Open();
    Batch outer(*database);
    Add(*database, "Anne");
    {
        Batch inner(*database);
        Add(*database, "Benoît");
    }
    {
        Batch inner(*database);
        Add(*database, "Chloé");
        inner.Rollback();
    }
    EXPECT_EQ(Names(), "");
    outer.Commit();
    EXPECT_EQ(Names(), "Anne,Benoît");
}

TEST_F(Batches, ClosingTheDatabaseUndoesAnOpenBatchWithoutHarm)
{
    auto database = Open();
    Batch batch(*database);
    Add(*database, "Anne");
    database.reset();
    EXPECT_EQ(FailureOf([&] { batch.Commit(); }), EngineError::ConnectionLost);
    EXPECT_EQ(Names(), "");
}

TEST_F(Batches, AFailedCreationLeavesNoFile)
{
    EXPECT_EQ(FailureOf([this] { Database::Create(File("New.mdb"), "x", "CREATE TABLE A (B); CREATE TABLE A (B);"); }),
              EngineError::TableExists);
    EXPECT_FALSE(QFile::exists(File("New.mdb")));
}
} // namespace
