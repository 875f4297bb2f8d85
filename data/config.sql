-- The configuration of one workstation. It is empty until the set-up wizard has run, and then holds one row.

CREATE TABLE Configuration (
    English BOOLEAN DEFAULT 0,
    SQL_Server BOOLEAN DEFAULT 0,
    IP_Address TEXT COLLATE NOCASE DEFAULT '',
    Username TEXT COLLATE NOCASE DEFAULT '',
    Password TEXT COLLATE NOCASE DEFAULT '',
    DatabasePath TEXT COLLATE NOCASE DEFAULT '',
    DatabaseName TEXT COLLATE NOCASE DEFAULT '',
    Configured BOOLEAN DEFAULT 0,
    LastUpgradeDate SMALLINT DEFAULT 0
);
