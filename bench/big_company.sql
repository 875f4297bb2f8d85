-- A company of 1,000 employees in its eleventh year: 12 categories, 4 organizations, 20 departments and 40 groups a
-- year, 90,000 attendance records in each of the ten past years (2016 to 2025) and 100,000 in the year 2026.
-- Everything follows from numbers, so that every run measures the same company. December 31, 2026 is free of records.

PRAGMA cache_size = -1000000;

CREATE TEMP TABLE Number AS
    WITH RECURSIVE Counting(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM Counting WHERE n < 1000) SELECT n FROM Counting;

-- Year k of the company; dates are serial days.
CREATE TEMP TABLE Year AS
    SELECT n AS k, 2015 + n AS name,
           CAST(julianday((2015 + n) || '-01-01') - julianday('1899-12-30') AS INTEGER) AS first,
           CAST(julianday((2016 + n) || '-01-01') - julianday('1899-12-30') AS INTEGER) - 1 AS last
    FROM Number WHERE n <= 11;

CREATE TEMP TABLE Person AS
    SELECT n AS i, (n - 1) % 20 / 5 + 1 AS organization, (n - 1) % 20 + 1 AS department,
           (n - 1) % 20 * 2 + (n - 1) / 20 % 2 + 1 AS unit,
           (SELECT value FROM json_each('["Tremblay","Gagnon","Roy","Côté","Bouchard","Gauthier","Morin","Lavoie",
               "Fortin","Gagné","Ouellet","Pelletier","Bélanger","Lévesque","Bergeron","Leblanc","Paquette","Girard",
               "Simard","Boucher","Smith","Brown","Wilson","MacDonald","Taylor","Campbell","Anderson","Jones",
               "Émond","Zacharie","O`Neil","Nguyen","Singh","Martin","Lee","Hébert","Dubé","Poirier","Caron",
               "Beaulieu"]') WHERE key = (n - 1) % 40) AS family,
           (SELECT value FROM json_each('["Marie","Jean","Luc","Ève","Chloé","Marc","Zoé","Élise","Paul","Anne",
               "Hélène","René","Noël","Guy","Sylvie","John","Mary","Peter","Susan","David","Karen","Mark","Linda",
               "Brian","Émile"]') WHERE key = (n - 1) / 40) AS given
    FROM Number;

-- Category c of a year. `sign` is that of its durations.
CREATE TEMP TABLE Kind (c, english, french, system, bank, monitored, hidden, sign, color);
INSERT INTO Kind VALUES
    (1, 'Vacation', 'Vacances', 'Vacation', 0, 1, 0, 1, 12632064),
    (2, 'Sick', 'Maladie', 'Sick', 0, 1, 0, 1, 16761024),
    (3, 'Personal time', 'Temps personnel', 'Personal time', 0, 1, 0, 1, 16777152),
    (4, 'Doctor appointments', 'Rendez-vous médical', 'Doctor appointments', 0, 0, 0, 1, 8421376),
    (5, 'Time accumulated', 'Temps accumulé', 'Time accumulated', 1, 0, 0, 1, 12632256),
    (6, 'Time claimed', 'Temps réclamé', 'Time claimed', 1, 0, 0, -1, 12632256),
    (7, 'Time paid', 'Temps payé', 'Time paid', 1, 0, 0, -1, 12632256),
    (8, 'Time borrowed', 'Temps emprunté', 'Time borrowed', 1, 0, 0, -1, 12632256),
    (9, 'Training', 'Formation', '', 0, 0, 0, 1, 65280),
    (10, 'Jury duty', 'Juré', '', 0, 0, 0, 1, 33023),
    (11, 'Family leave', 'Congé familial', '', 0, 0, 0, 1, 8454143),
    (12, 'Special leave', 'Congé spécial', '', 0, 0, 1, 1, 16744703);

INSERT INTO FiscalYears (RecordID, FiscalYearName, CommencingDate, EndingDate, EnteredDate, EnteredBy)
    SELECT k, name, first, last, first, 'ADMIN' FROM Year;

INSERT INTO Holidays (HolidayDate, HolidayName, EnteredBy, EnteredDate)
    SELECT first + (n - 1) * 36, 'Holiday ' || n, 'ADMIN', first FROM Year JOIN Number ON n <= 10;

INSERT INTO Organizations (RecordID, FiscalYear, OrganizationEnglishName, OrganizationFrenchName, Active, PreviousID)
    SELECT (k - 1) * 4 + n, k, 'Organization ' || n, 'Organisation ' || n, 1, MAX((k - 2) * 4 + n, 0)
    FROM Year JOIN Number ON n <= 4;

INSERT INTO Departments (RecordID, FiscalYear, OrganizationID, DepartmentEnglishName, DepartmentFrenchName, Active,
                         PreviousID)
    SELECT (k - 1) * 20 + n, k, (k - 1) * 4 + (n - 1) / 5 + 1, 'Department ' || n, 'Département ' || n, 1,
           MAX((k - 2) * 20 + n, 0)
    FROM Year JOIN Number ON n <= 20;

INSERT INTO Groups (RecordID, FiscalYear, OrganizationID, DepartmentID, GroupEnglishName, GroupFrenchName, Active,
                    PreviousID)
    SELECT (k - 1) * 40 + n, k, (k - 1) * 4 + (n - 1) / 10 + 1, (k - 1) * 20 + (n - 1) / 2 + 1, 'Group ' || n,
           'Groupe ' || n, 1, MAX((k - 2) * 40 + n, 0)
    FROM Year JOIN Number ON n <= 40;

INSERT INTO Categories (RecordID, FiscalYear, CategoryEnglishName, CategoryFrenchName, SystemName,
                        ConstitutesAnAbsence, TimeBankRelated, RequiresMonitoring, Restricted, Active, IsPublic,
                        CategoryCode, CategoryColorCode, PreviousID)
    SELECT (k - 1) * 12 + c, k, english, french, system, 1 - bank, bank, monitored, hidden, 1, 1,
           SUBSTR(english, 1, 2), CAST(color AS TEXT), MAX((k - 2) * 12 + c, 0)
    FROM Year JOIN Kind;

INSERT INTO CategoriesDepartments (FiscalYear, CategoryID, DepartmentID, IsUsed)
    SELECT k, (k - 1) * 12 + c, (k - 1) * 20 + n, 1 FROM Year JOIN Kind JOIN Number ON n <= 20;

-- U0001 has every right; every fiftieth employee keeps the records of his department; the others ask for leave.
INSERT INTO Employees (RecordID, FamilyName, FirstName, LoginID, Password, EMailAddress, EnteredBy)
    VALUES (1, 'Tremblay', 'Alice', 'ADMIN', 'SECRET', 'alice@example.org', 'SYSTEM');
INSERT INTO Employees (RecordID, FiscalYear, OrganizationID, DepartmentID, GroupID, FamilyName, FirstName, EmployeeID,
                       LoginID, Username, Password, EMailAddress, HourlyRate, AttendanceApprovedBy_Main, PreviousID,
                       SelfLevelRead)
    SELECT (k - 1) * 1000 + i + 1, k, (k - 1) * 4 + organization, (k - 1) * 20 + department, (k - 1) * 40 + unit,
           family, given, 'E' || i, printf('U%04d', i), printf('U%04d', i), 'PASS',
           printf('u%04d@example.org', i), 15 + i % 30, (k - 1) * 1000 + 2, CASE k WHEN 1 THEN 0 ELSE
           (k - 2) * 1000 + i + 1 END, 1
    FROM Year JOIN Person ORDER BY k, i;
UPDATE Employees SET
    HoursWorkedDaily = 7, HoursWorkedMonday = 7, HoursWorkedTuesday = 7, HoursWorkedWednesday = 7,
    HoursWorkedThursday = 7, HoursWorkedFriday = 7,
    MONDAY_FirstHalfStart = 8.5, MONDAY_FirstHalfEnd = 12, MONDAY_SecondHalfStart = 13, MONDAY_SecondHalfEnd = 16.5,
    TUESDAY_FirstHalfStart = 8.5, TUESDAY_FirstHalfEnd = 12, TUESDAY_SecondHalfStart = 13,
    TUESDAY_SecondHalfEnd = 16.5,
    WEDNESDAY_FirstHalfStart = 8.5, WEDNESDAY_FirstHalfEnd = 12, WEDNESDAY_SecondHalfStart = 13,
    WEDNESDAY_SecondHalfEnd = 16.5,
    THURSDAY_FirstHalfStart = 8.5, THURSDAY_FirstHalfEnd = 12, THURSDAY_SecondHalfStart = 13,
    THURSDAY_SecondHalfEnd = 16.5,
    FRIDAY_FirstHalfStart = 8.5, FRIDAY_FirstHalfEnd = 12, FRIDAY_SecondHalfStart = 13, FRIDAY_SecondHalfEnd = 16.5
    WHERE FiscalYear > 0;
UPDATE Employees SET DepartmentLevelRead = 1, DepartmentLevelCreate = 1, DepartmentLevelModify = 1
    WHERE RecordID % 50 = 1;
UPDATE Employees SET
    AccessToRestrictedCategory = 1, IsAuthorizedToApprove = 1,
    GroupLevelRead = 1, GroupLevelCreate = 1, GroupLevelModify = 1,
    DepartmentLevelRead = 1, DepartmentLevelCreate = 1, DepartmentLevelModify = 1,
    OrganizationLevelRead = 1, OrganizationLevelCreate = 1, OrganizationLevelModify = 1,
    GlobalLevelRead = 1, GlobalLevelCreate = 1, GlobalLevelModify = 1,
    SelfLevelRead = 1, SelfLevelCreate = 1, SelfLevelModify = 1,
    AccessToOrganizationsModule = 1, AccessToDepartmentsModule = 1, AccessToGroupsModule = 1,
    AccessToCategoriesModule = 1, AccessToEntitlementsModule = 1, AccessToEmployeesModule = 1,
    CanGenerateReports = 1, CanViewComments = 1
    WHERE LoginID IN ('ADMIN', 'U0001');

INSERT INTO Employees_List (FiscalYear, OrgID, DeptID, GroupID, EmplID, OrgEnglishName, OrgFrenchName,
                            DeptEnglishName, DeptFrenchName, GroupEnglishName, GroupFrenchName, FamilyName, FirstName,
                            DailyHours, EMail, HourlyRate)
    SELECT Employees.FiscalYear, Employees.OrganizationID, Employees.DepartmentID, Employees.GroupID,
           Employees.RecordID, OrganizationEnglishName, OrganizationFrenchName, DepartmentEnglishName,
           DepartmentFrenchName, GroupEnglishName, GroupFrenchName, FamilyName, FirstName, HoursWorkedDaily,
           EMailAddress, HourlyRate
    FROM Employees JOIN Organizations ON Organizations.RecordID = Employees.OrganizationID
    JOIN Departments ON Departments.RecordID = Employees.DepartmentID
    JOIN Groups ON Groups.RecordID = Employees.GroupID;

INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, CarriedOver, AnnualEntitlement, MayBeCarriedOver,
                          EnteredBy, EnteredDate, Active)
    SELECT k, (k - 1) * 12 + c, (k - 1) * 1000 + i + 1, i % 5 * 7, 350, 1, 'ADMIN', first, 1
    FROM Year JOIN Kind ON monitored = 1 JOIN Person;

-- In the order of time, as users enter them. A record that would fall on a Sunday (serial days 1, 8, 15...) falls on
-- the Monday after it, so that some days have two. Of a hundred records two are cancelled; three of the last year wait
-- for approval.
CREATE TEMP TABLE Entered AS
    SELECT k, i, n, (n * 5 + i / 3) % 12 + 1 AS c, (n * 7 + i) % 100 AS fate, n % 3 > 0 AS whole,
           first + (n * 37 + i * 11) % 364 + ((first + (n * 37 + i * 11) % 364) % 7 = 1) AS day
    FROM Year JOIN Person JOIN Number ON n <= CASE k WHEN 11 THEN 100 ELSE 90 END;
INSERT INTO Attendance (FiscalYear, EmployeeID, GroupID, DepartmentID, OrganizationID, CategoryID, RecordDate,
                        Duration, StartTime, EndTime, TimeMultiplicator, TotalDuration, WholeDay, Comment, Submitted,
                        SubmittedBy, SubmittedTo_First, EnteredBy, EnteredDate, CancelledBy, CancelledDate, HourlyRate,
                        UnitCost, ExtendedCost)
    SELECT k, (k - 1) * 1000 + i + 1, (k - 1) * 40 + unit, (k - 1) * 20 + department, (k - 1) * 4 + organization,
           (k - 1) * 12 + c, day, sign * CASE whole WHEN 1 THEN 7 ELSE 3.5 END, 8.5,
           CASE whole WHEN 1 THEN 16.5 ELSE 12 END, 1, sign * CASE whole WHEN 1 THEN 7 ELSE 3.5 END, whole,
           CASE n % 5 WHEN 0 THEN 'Record ' || n || ' of the year' ELSE '' END, k = 11 AND fate IN (5, 6, 7),
           CASE WHEN k = 11 AND fate IN (5, 6, 7) THEN (k - 1) * 1000 + i + 1 ELSE 0 END,
           CASE WHEN k = 11 AND fate IN (5, 6, 7) THEN (k - 1) * 1000 + 2 ELSE 0 END,
           printf('U%04d', department), day, CASE WHEN fate < 2 THEN 'ADMIN' ELSE '' END,
           CASE WHEN fate < 2 THEN day ELSE 0 END, (15 + i % 30) || '.00', (15 + i % 30) * 100,
           (15 + i % 30) * 100 * sign * CASE whole WHEN 1 THEN 7 ELSE 3.5 END
    FROM Entered JOIN Kind USING (c) JOIN Person USING (i) ORDER BY day, i;
