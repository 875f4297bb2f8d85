-- The empty database that an installation starts with. Dates are whole serial days, durations and clock times decimal
-- hours in single precision (SINGLE_REAL). The order of the columns matters: rows are copied from table to table by it.
-- Text is never indexed in its own order, so that tools that order it otherwise still read the file soundly.

CREATE TABLE FiscalYears (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYearName TEXT COLLATE NOCASE DEFAULT '',
    CommencingDate INTEGER DEFAULT 0,
    EndingDate INTEGER DEFAULT 0,
    EnteredDate INTEGER DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    ClosedDate INTEGER DEFAULT 0,
    ClosedBy TEXT COLLATE NOCASE DEFAULT '',
    ScheduledClosingDate INTEGER DEFAULT 0,
    ReloadEmployeesList SMALLINT DEFAULT 0
);

CREATE TABLE Organizations (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationFrenchName TEXT COLLATE NOCASE DEFAULT '', OrganizationEnglishName TEXT COLLATE NOCASE DEFAULT '',
    AddressLine1 TEXT COLLATE NOCASE DEFAULT '',
    AddressLine2 TEXT COLLATE NOCASE DEFAULT '',
    Suite TEXT COLLATE NOCASE DEFAULT '',
    City TEXT COLLATE NOCASE DEFAULT '',
    StateProvince TEXT COLLATE NOCASE DEFAULT '',
    Country TEXT COLLATE NOCASE DEFAULT '',
    ZipCode TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    Active SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0
);

CREATE TABLE Departments (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    DepartmentFrenchName TEXT COLLATE NOCASE DEFAULT '', DepartmentEnglishName TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0,
    DepartmentHead INTEGER DEFAULT 0
);

CREATE TABLE Groups (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    DepartmentID INTEGER DEFAULT 0,
    GroupFrenchName TEXT COLLATE NOCASE DEFAULT '', GroupEnglishName TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0
);

CREATE TABLE Categories (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYear INTEGER DEFAULT 0,
    CategoryFrenchName TEXT COLLATE NOCASE DEFAULT '', CategoryEnglishName TEXT COLLATE NOCASE DEFAULT '',
    SystemName TEXT COLLATE NOCASE DEFAULT '',
    CanBeRemoved SMALLINT DEFAULT 0,
    ConstitutesAnAbsence SMALLINT DEFAULT 0,
    StandardEntitlement SINGLE_REAL DEFAULT 0,
    CarryOverAtYearEnd SMALLINT DEFAULT 0,
    TimeBankRelated SMALLINT DEFAULT 0,
    Restricted SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0,
    CreatedBy TEXT COLLATE NOCASE DEFAULT '',
    CreatedDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    RequiresMonitoring SMALLINT DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    IsPublic SMALLINT DEFAULT 0,
    CategoryCode TEXT COLLATE NOCASE DEFAULT '',
    CategoryColorCode TEXT COLLATE NOCASE DEFAULT ''
);

CREATE TABLE CategoriesDepartments (
    FiscalYear INTEGER DEFAULT 0,
    CategoryID INTEGER DEFAULT 0,
    DepartmentID INTEGER DEFAULT 0,
    IsUsed SMALLINT DEFAULT 0
);

CREATE TABLE CategoriesEmployees (
    EmployeeID NUMBER DEFAULT 0,
    CategoryID NUMBER DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate NUMBER DEFAULT 0,
    IsAllowedToUse NUMBER DEFAULT 0
);

CREATE TABLE Employees (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    DepartmentID INTEGER DEFAULT 0,
    GroupID INTEGER DEFAULT 0,
    FamilyName TEXT COLLATE NOCASE DEFAULT '', FirstName TEXT COLLATE NOCASE DEFAULT '',
    EmployeeID TEXT COLLATE NOCASE DEFAULT '',
    AddressLine1 TEXT COLLATE NOCASE DEFAULT '',
    AddressLine2 TEXT COLLATE NOCASE DEFAULT '',
    City TEXT COLLATE NOCASE DEFAULT '',
    ProvinceState TEXT COLLATE NOCASE DEFAULT '',
    Country TEXT COLLATE NOCASE DEFAULT '',
    PhoneHome TEXT COLLATE NOCASE DEFAULT '',
    PhoneOffice TEXT COLLATE NOCASE DEFAULT '',
    DateOfBirth INTEGER DEFAULT 0,
    DateOfHire INTEGER DEFAULT 0,
    DateEntered INTEGER DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    DeactivatedDate INTEGER DEFAULT 0,
    DeactivatedBy TEXT COLLATE NOCASE DEFAULT '',
    ReasonForDeactivation TEXT COLLATE NOCASE DEFAULT '',
    EmployeeType SMALLINT DEFAULT 0,
    HourlyRate NUMBER DEFAULT 0,
    IsAuthorizedToApprove SMALLINT DEFAULT 0,
    AttendanceApprovedBy_Main INTEGER DEFAULT 0,
    AttendanceApprovedBy_Backup INTEGER DEFAULT 0,
    HoursWorkedSunday SINGLE_REAL DEFAULT 0, HoursWorkedMonday SINGLE_REAL DEFAULT 0,
    HoursWorkedTuesday SINGLE_REAL DEFAULT 0, HoursWorkedWednesday SINGLE_REAL DEFAULT 0,
    HoursWorkedThursday SINGLE_REAL DEFAULT 0, HoursWorkedFriday SINGLE_REAL DEFAULT 0,
    HoursWorkedSaturday SINGLE_REAL DEFAULT 0,
    MONDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, MONDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    MONDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, MONDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    TUESDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, TUESDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    TUESDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, TUESDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    WEDNESDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, WEDNESDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    WEDNESDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, WEDNESDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    THURSDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, THURSDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    THURSDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, THURSDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    FRIDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, FRIDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    FRIDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, FRIDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    SATURDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, SATURDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    SATURDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, SATURDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    SUNDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, SUNDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    SUNDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, SUNDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    AccessToRestrictedCategory SMALLINT DEFAULT 0,
    GroupLevelRead SMALLINT DEFAULT 0, GroupLevelCreate SMALLINT DEFAULT 0, GroupLevelModify SMALLINT DEFAULT 0,
    DepartmentLevelRead SMALLINT DEFAULT 0, DepartmentLevelCreate SMALLINT DEFAULT 0, DepartmentLevelModify SMALLINT DEFAULT 0,
    OrganizationLevelRead SMALLINT DEFAULT 0, OrganizationLevelCreate SMALLINT DEFAULT 0, OrganizationLevelModify SMALLINT DEFAULT 0,
    GlobalLevelRead SMALLINT DEFAULT 0, GlobalLevelCreate SMALLINT DEFAULT 0, GlobalLevelModify SMALLINT DEFAULT 0,
    SelfLevelRead SMALLINT DEFAULT 0, SelfLevelCreate SMALLINT DEFAULT 0, SelfLevelModify SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0,
    IsAllowedToCarryOverVacation SMALLINT DEFAULT 0,
    IsAllowedToCarryOverTimeBanked SMALLINT DEFAULT 0,
    AccessToOrganizationsModule SMALLINT DEFAULT 0,
    AccessToDepartmentsModule SMALLINT DEFAULT 0,
    AccessToGroupsModule SMALLINT DEFAULT 0,
    AccessToCategoriesModule SMALLINT DEFAULT 0,
    AccessToEntitlementsModule SMALLINT DEFAULT 0,
    AccessToEmployeesModule SMALLINT DEFAULT 0,
    Comment TEXT COLLATE NOCASE DEFAULT '',
    EMailAddress TEXT COLLATE NOCASE DEFAULT '',
    Username TEXT COLLATE NOCASE DEFAULT '',
    Password TEXT COLLATE NOCASE DEFAULT '',
    HoursWorkedDaily SINGLE_REAL DEFAULT 0,
    CanGenerateReports SMALLINT DEFAULT 0,
    CanViewComments SMALLINT DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    LoginID TEXT COLLATE NOCASE DEFAULT '',
    ReportTo INTEGER DEFAULT 0,
    Title TEXT COLLATE NOCASE DEFAULT '',
    Gender INTEGER DEFAULT 0,
    Language INTEGER DEFAULT 0,
    LoggedIn DATETIME DEFAULT 0
);

CREATE TABLE Employees_List (
    FiscalYear INTEGER DEFAULT 0,
    OrgID INTEGER DEFAULT 0,
    DeptID INTEGER DEFAULT 0,
    GroupID INTEGER DEFAULT 0,
    EmplID INTEGER DEFAULT 0,
    OrgEnglishName TEXT COLLATE NOCASE DEFAULT '',
    OrgFrenchName TEXT COLLATE NOCASE DEFAULT '', DeptEnglishName TEXT COLLATE NOCASE DEFAULT '',
    DeptFrenchName TEXT COLLATE NOCASE DEFAULT '', GroupEnglishName TEXT COLLATE NOCASE DEFAULT '',
    GroupFrenchName TEXT COLLATE NOCASE DEFAULT '',
    FamilyName TEXT COLLATE NOCASE DEFAULT '', FirstName TEXT COLLATE NOCASE DEFAULT '',
    DailyHours SINGLE_REAL DEFAULT 0,
    EMail TEXT COLLATE NOCASE DEFAULT '',
    CanViewComments SMALLINT DEFAULT 0,
    CanViewHidden SMALLINT DEFAULT 0,
    HourlyRate NUMBER DEFAULT 0
);

CREATE TABLE Entitlements (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYear INTEGER DEFAULT 0,
    CategoryID INTEGER DEFAULT 0,
    EmployeeID INTEGER DEFAULT 0,
    CarriedOver SINGLE_REAL DEFAULT 0,
    AnnualEntitlement SINGLE_REAL DEFAULT 0,
    MayBeCarriedOver SMALLINT DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    Comment TEXT COLLATE NOCASE DEFAULT ''
);

CREATE TABLE Entitlements_Reproduction (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    DeptOrg TEXT COLLATE NOCASE DEFAULT '',
    Employee TEXT COLLATE NOCASE DEFAULT '',
    Category TEXT COLLATE NOCASE DEFAULT '',
    Entitlement SINGLE_REAL DEFAULT 0,
    EmployeeID INTEGER DEFAULT 0,
    CategoryID INTEGER DEFAULT 0,
    CarryOver SINGLE_REAL DEFAULT 0,
    NewEmployeeID INTEGER DEFAULT 0,
    NewCategoryID INTEGER DEFAULT 0,
    Active SMALLINT DEFAULT 0
);

CREATE TABLE Attendance (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    FiscalYear INTEGER DEFAULT 0,
    EmployeeID INTEGER DEFAULT 0,
    GroupID INTEGER DEFAULT 0,
    DepartmentID INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    CategoryID INTEGER DEFAULT 0,
    RecordDate INTEGER DEFAULT 0,
    Duration SINGLE_REAL DEFAULT 0,
    StartTime SINGLE_REAL DEFAULT 0,
    EndTime SINGLE_REAL DEFAULT 0,
    TimeMultiplicator SINGLE_REAL DEFAULT 0,
    TotalDuration SINGLE_REAL DEFAULT 0,
    WholeDay SMALLINT DEFAULT 0,
    Comment TEXT COLLATE NOCASE DEFAULT '',
    Justified SMALLINT DEFAULT 0,
    Submitted SMALLINT DEFAULT 0,
    SubmittedDateTime INTEGER DEFAULT 0,
    SubmittedBy INTEGER DEFAULT 0,
    SubmittedTo_First INTEGER DEFAULT 0,
    SubmittedTo_Second INTEGER DEFAULT 0,
    RequestStatus SMALLINT DEFAULT 0,
    ApprovedDateTime SINGLE_REAL DEFAULT 0,
    ApprovedBy TEXT COLLATE NOCASE DEFAULT '',
    DeniedDateTime SINGLE_REAL DEFAULT 0,
    DeniedBy TEXT COLLATE NOCASE DEFAULT '',
    ApprovalRefusalMessage TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    CancelledBy TEXT COLLATE NOCASE DEFAULT '',
    CancelledDate INTEGER DEFAULT 0,
    HourlyRate TEXT COLLATE NOCASE DEFAULT '',
    UnitCost INTEGER DEFAULT 0,
    ExtendedCost INTEGER DEFAULT 0
);

CREATE TABLE Holidays (
    HolidayDate INTEGER DEFAULT 0,
    HolidayName TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    CancelledBy TEXT COLLATE NOCASE DEFAULT '',
    CancelledDate INTEGER DEFAULT 0
);

CREATE TABLE BlockedDays (
    BlockedDate NUMBER DEFAULT 0,
    BlockedDateName TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate NUMBER DEFAULT 0,
    CancelledBy TEXT COLLATE NOCASE DEFAULT '',
    CancelledDate NUMBER DEFAULT 0,
    EmployeeID INTEGER DEFAULT 0
);

CREATE TABLE Messages (
    SentFrom NUMBER DEFAULT 0,
    SentTo NUMBER DEFAULT 0,
    Message TEXT COLLATE NOCASE DEFAULT '',
    DeliveryDate NUMBER DEFAULT 0,
    Picture TEXT COLLATE NOCASE DEFAULT '',
    DeliveryTime TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate NUMBER DEFAULT 0,
    DateRead NUMBER DEFAULT 0,
    RemovedDate NUMBER DEFAULT 0
);

CREATE TABLE ErrorLog (
    ErrorCode INTEGER DEFAULT 0,
    ErrorDescription TEXT COLLATE NOCASE DEFAULT '',
    Form TEXT COLLATE NOCASE DEFAULT '',
    ProcedureName TEXT COLLATE NOCASE DEFAULT '',
    Occurred SINGLE_REAL DEFAULT 0,
    SQL TEXT COLLATE NOCASE DEFAULT ''
);

CREATE TABLE WebSites (
    RecordID INTEGER PRIMARY KEY AUTOINCREMENT,
    HostName TEXT COLLATE NOCASE DEFAULT '',
    IPAddress TEXT COLLATE NOCASE DEFAULT '',
    Username TEXT COLLATE NOCASE DEFAULT '',
    Password TEXT COLLATE NOCASE DEFAULT '',
    RemoteFolderName TEXT COLLATE NOCASE DEFAULT '',
    URL TEXT COLLATE NOCASE DEFAULT ''
);

CREATE TABLE AddressBook (
    EmployeeID INTEGER DEFAULT 0,
    Name TEXT COLLATE NOCASE DEFAULT '',
    EMailAddress TEXT COLLATE NOCASE DEFAULT ''
);

CREATE TABLE SAC (
    Status TEXT COLLATE NOCASE DEFAULT '',
    StatusDateTime SINGLE_REAL DEFAULT 0
);

-- The audit twins: images of rows before they change. RecordID is the base row's key and repeats.

CREATE TABLE Attendance_Modifications (
    RecordID INTEGER,
    FiscalYear INTEGER DEFAULT 0,
    EmployeeID INTEGER DEFAULT 0,
    GroupID INTEGER DEFAULT 0,
    DepartmentID INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    CategoryID INTEGER DEFAULT 0,
    RecordDate INTEGER DEFAULT 0,
    Duration SINGLE_REAL DEFAULT 0,
    StartTime SINGLE_REAL DEFAULT 0,
    EndTime SINGLE_REAL DEFAULT 0,
    TimeMultiplicator SINGLE_REAL DEFAULT 0,
    TotalDuration SINGLE_REAL DEFAULT 0,
    WholeDay SMALLINT DEFAULT 0,
    Comment TEXT COLLATE NOCASE DEFAULT '',
    Justified SMALLINT DEFAULT 0,
    Submitted SMALLINT DEFAULT 0,
    SubmittedDateTime INTEGER DEFAULT 0,
    SubmittedBy INTEGER DEFAULT 0,
    SubmittedTo_First INTEGER DEFAULT 0,
    SubmittedTo_Second INTEGER DEFAULT 0,
    RequestStatus SMALLINT DEFAULT 0,
    ApprovedDateTime SINGLE_REAL DEFAULT 0,
    ApprovedBy TEXT COLLATE NOCASE DEFAULT '',
    DeniedDateTime SINGLE_REAL DEFAULT 0,
    DeniedBy TEXT COLLATE NOCASE DEFAULT '',
    ApprovalRefusalMessage TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    CancelledBy TEXT COLLATE NOCASE DEFAULT '',
    CancelledDate INTEGER DEFAULT 0,
    HourlyRate TEXT COLLATE NOCASE DEFAULT '',
    UnitCost INTEGER DEFAULT 0,
    ExtendedCost INTEGER DEFAULT 0
);

CREATE TABLE Categories_Modifications (
    RecordID INTEGER,
    FiscalYear INTEGER DEFAULT 0,
    CategoryFrenchName TEXT COLLATE NOCASE DEFAULT '', CategoryEnglishName TEXT COLLATE NOCASE DEFAULT '',
    SystemName TEXT COLLATE NOCASE DEFAULT '',
    CanBeRemoved SMALLINT DEFAULT 0,
    ConstitutesAnAbsence SMALLINT DEFAULT 0,
    StandardEntitlement SINGLE_REAL DEFAULT 0,
    CarryOverAtYearEnd SMALLINT DEFAULT 0,
    TimeBankRelated SMALLINT DEFAULT 0,
    Restricted SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0,
    CreatedBy TEXT COLLATE NOCASE DEFAULT '',
    CreatedDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    RequiresMonitoring SMALLINT DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    IsPublic SMALLINT DEFAULT 0,
    CategoryCode TEXT COLLATE NOCASE DEFAULT '',
    CategoryColorCode TEXT COLLATE NOCASE DEFAULT ''
);

CREATE TABLE Departments_Modifications (
    RecordID INTEGER,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    DepartmentFrenchName TEXT COLLATE NOCASE DEFAULT '', DepartmentEnglishName TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0,
    DepartmentHead INTEGER DEFAULT 0
);

CREATE TABLE Employees_Modifications (
    RecordID INTEGER,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    DepartmentID INTEGER DEFAULT 0,
    GroupID INTEGER DEFAULT 0,
    FamilyName TEXT COLLATE NOCASE DEFAULT '', FirstName TEXT COLLATE NOCASE DEFAULT '',
    EmployeeID TEXT COLLATE NOCASE DEFAULT '',
    AddressLine1 TEXT COLLATE NOCASE DEFAULT '',
    AddressLine2 TEXT COLLATE NOCASE DEFAULT '',
    City TEXT COLLATE NOCASE DEFAULT '',
    ProvinceState TEXT COLLATE NOCASE DEFAULT '',
    Country TEXT COLLATE NOCASE DEFAULT '',
    PhoneHome TEXT COLLATE NOCASE DEFAULT '',
    PhoneOffice TEXT COLLATE NOCASE DEFAULT '',
    DateOfBirth INTEGER DEFAULT 0,
    DateOfHire INTEGER DEFAULT 0,
    DateEntered INTEGER DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    DeactivatedDate INTEGER DEFAULT 0,
    DeactivatedBy TEXT COLLATE NOCASE DEFAULT '',
    ReasonForDeactivation TEXT COLLATE NOCASE DEFAULT '',
    EmployeeType SMALLINT DEFAULT 0,
    HourlyRate NUMBER DEFAULT 0,
    IsAuthorizedToApprove SMALLINT DEFAULT 0,
    AttendanceApprovedBy_Main INTEGER DEFAULT 0,
    AttendanceApprovedBy_Backup INTEGER DEFAULT 0,
    HoursWorkedSunday SINGLE_REAL DEFAULT 0, HoursWorkedMonday SINGLE_REAL DEFAULT 0,
    HoursWorkedTuesday SINGLE_REAL DEFAULT 0, HoursWorkedWednesday SINGLE_REAL DEFAULT 0,
    HoursWorkedThursday SINGLE_REAL DEFAULT 0, HoursWorkedFriday SINGLE_REAL DEFAULT 0,
    HoursWorkedSaturday SINGLE_REAL DEFAULT 0,
    MONDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, MONDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    MONDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, MONDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    TUESDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, TUESDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    TUESDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, TUESDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    WEDNESDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, WEDNESDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    WEDNESDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, WEDNESDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    THURSDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, THURSDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    THURSDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, THURSDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    FRIDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, FRIDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    FRIDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, FRIDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    SATURDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, SATURDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    SATURDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, SATURDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    SUNDAY_FirstHalfStart SINGLE_REAL DEFAULT 0, SUNDAY_FirstHalfEnd SINGLE_REAL DEFAULT 0,
    SUNDAY_SecondHalfStart SINGLE_REAL DEFAULT 0, SUNDAY_SecondHalfEnd SINGLE_REAL DEFAULT 0,
    AccessToRestrictedCategory SMALLINT DEFAULT 0,
    GroupLevelRead SMALLINT DEFAULT 0, GroupLevelCreate SMALLINT DEFAULT 0, GroupLevelModify SMALLINT DEFAULT 0,
    DepartmentLevelRead SMALLINT DEFAULT 0, DepartmentLevelCreate SMALLINT DEFAULT 0, DepartmentLevelModify SMALLINT DEFAULT 0,
    OrganizationLevelRead SMALLINT DEFAULT 0, OrganizationLevelCreate SMALLINT DEFAULT 0, OrganizationLevelModify SMALLINT DEFAULT 0,
    GlobalLevelRead SMALLINT DEFAULT 0, GlobalLevelCreate SMALLINT DEFAULT 0, GlobalLevelModify SMALLINT DEFAULT 0,
    SelfLevelRead SMALLINT DEFAULT 0, SelfLevelCreate SMALLINT DEFAULT 0, SelfLevelModify SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0,
    IsAllowedToCarryOverVacation SMALLINT DEFAULT 0,
    IsAllowedToCarryOverTimeBanked SMALLINT DEFAULT 0,
    AccessToOrganizationsModule SMALLINT DEFAULT 0,
    AccessToDepartmentsModule SMALLINT DEFAULT 0,
    AccessToGroupsModule SMALLINT DEFAULT 0,
    AccessToCategoriesModule SMALLINT DEFAULT 0,
    AccessToEntitlementsModule SMALLINT DEFAULT 0,
    AccessToEmployeesModule SMALLINT DEFAULT 0,
    Comment TEXT COLLATE NOCASE DEFAULT '',
    EMailAddress TEXT COLLATE NOCASE DEFAULT '',
    Username TEXT COLLATE NOCASE DEFAULT '',
    Password TEXT COLLATE NOCASE DEFAULT '',
    HoursWorkedDaily SINGLE_REAL DEFAULT 0,
    CanGenerateReports SMALLINT DEFAULT 0,
    CanViewComments SMALLINT DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    LoginID TEXT COLLATE NOCASE DEFAULT '',
    ReportTo INTEGER DEFAULT 0,
    Title TEXT COLLATE NOCASE DEFAULT '',
    Gender INTEGER DEFAULT 0,
    Language INTEGER DEFAULT 0,
    LoggedIn DATETIME DEFAULT 0,
    ID INTEGER PRIMARY KEY AUTOINCREMENT
);

CREATE TABLE Entitlements_Modifications (
    RecordID INTEGER,
    FiscalYear INTEGER DEFAULT 0,
    CategoryID INTEGER DEFAULT 0,
    EmployeeID INTEGER DEFAULT 0,
    CarriedOver SINGLE_REAL DEFAULT 0,
    AnnualEntitlement SINGLE_REAL DEFAULT 0,
    MayBeCarriedOver SMALLINT DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    Comment TEXT COLLATE NOCASE DEFAULT ''
);

CREATE TABLE Groups_Modifications (
    RecordID INTEGER,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationID INTEGER DEFAULT 0,
    DepartmentID INTEGER DEFAULT 0,
    GroupFrenchName TEXT COLLATE NOCASE DEFAULT '', GroupEnglishName TEXT COLLATE NOCASE DEFAULT '',
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    Active SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0
);

CREATE TABLE Organizations_Modifications (
    RecordID INTEGER,
    FiscalYear INTEGER DEFAULT 0,
    OrganizationFrenchName TEXT COLLATE NOCASE DEFAULT '', OrganizationEnglishName TEXT COLLATE NOCASE DEFAULT '',
    AddressLine1 TEXT COLLATE NOCASE DEFAULT '',
    AddressLine2 TEXT COLLATE NOCASE DEFAULT '',
    Suite TEXT COLLATE NOCASE DEFAULT '',
    City TEXT COLLATE NOCASE DEFAULT '',
    StateProvince TEXT COLLATE NOCASE DEFAULT '',
    Country TEXT COLLATE NOCASE DEFAULT '',
    ZipCode TEXT COLLATE NOCASE DEFAULT '',
    EnteredDate INTEGER DEFAULT 0,
    EnteredBy TEXT COLLATE NOCASE DEFAULT '',
    ModifiedDate INTEGER DEFAULT 0,
    ModifiedBy TEXT COLLATE NOCASE DEFAULT '',
    Active SMALLINT DEFAULT 0,
    PreviousID INTEGER DEFAULT 0
);

-- The calendar, the guards, the time bank and the sums of the reports read live records of a scope: each index holds
-- all that they read, so that the wide records stay on the disk.

CREATE INDEX Attendance_Employee
    ON Attendance (EmployeeID, CancelledDate, Submitted, RecordDate, CategoryID, FiscalYear, TotalDuration);
CREATE INDEX Attendance_Group
    ON Attendance (GroupID, CancelledDate, Submitted, RecordDate, CategoryID, FiscalYear, TotalDuration);
CREATE INDEX Attendance_Department
    ON Attendance (DepartmentID, CancelledDate, Submitted, RecordDate, CategoryID, FiscalYear, TotalDuration);
CREATE INDEX Attendance_Organization
    ON Attendance (OrganizationID, CancelledDate, Submitted, RecordDate, CategoryID, FiscalYear, TotalDuration);
CREATE INDEX Attendance_Year ON Attendance (FiscalYear, CancelledDate, Submitted, CategoryID, TotalDuration);
CREATE INDEX Attendance_Date ON Attendance (RecordDate, CancelledDate, Submitted, CategoryID);
CREATE INDEX Attendance_SubmittedBy ON Attendance (SubmittedBy, CancelledDate, RequestStatus);
CREATE INDEX Attendance_SubmittedTo_First ON Attendance (SubmittedTo_First, Submitted, RequestStatus);
CREATE INDEX Attendance_SubmittedTo_Second ON Attendance (SubmittedTo_Second, Submitted, RequestStatus);
-- "WHERE EnteredBy = ? COLLATE BINARY": what a user has entered; log-in names are stored in capitals.
CREATE INDEX Attendance_EnteredBy ON Attendance (EnteredBy COLLATE BINARY, EnteredDate, CategoryID, SubmittedBy);

CREATE INDEX Entitlements_Employee ON Entitlements (EmployeeID, CategoryID);
CREATE INDEX Entitlements_Category ON Entitlements (CategoryID, EmployeeID);
CREATE INDEX Entitlements_Year ON Entitlements (FiscalYear, Active);

CREATE INDEX Employees_Year ON Employees (FiscalYear, DeactivatedDate);
CREATE INDEX Employees_Organization ON Employees (OrganizationID, DeactivatedDate);
CREATE INDEX Employees_Department ON Employees (DepartmentID, DeactivatedDate);
CREATE INDEX Employees_Group ON Employees (GroupID, DeactivatedDate);
CREATE INDEX Employees_ApprovedBy_Main ON Employees (AttendanceApprovedBy_Main);
CREATE INDEX Employees_ApprovedBy_Backup ON Employees (AttendanceApprovedBy_Backup);
CREATE INDEX Employees_Previous ON Employees (PreviousID);
CREATE INDEX Employees_LoginID ON Employees (LoginID COLLATE BINARY, FiscalYear);

CREATE INDEX Employees_List_Year ON Employees_List (FiscalYear, OrgID, DeptID, GroupID);
CREATE INDEX Employees_List_Employee ON Employees_List (EmplID);
CREATE INDEX Employees_List_Department ON Employees_List (DeptID);
CREATE INDEX Employees_List_Group ON Employees_List (GroupID);

CREATE INDEX Categories_Year ON Categories (FiscalYear, Active);
CREATE INDEX Categories_Previous ON Categories (PreviousID);
CREATE INDEX CategoriesDepartments_Category ON CategoriesDepartments (CategoryID, DepartmentID, IsUsed);
CREATE INDEX CategoriesDepartments_Department ON CategoriesDepartments (DepartmentID, IsUsed, CategoryID);
CREATE INDEX CategoriesDepartments_Year ON CategoriesDepartments (FiscalYear);
CREATE INDEX Organizations_Year ON Organizations (FiscalYear, Active);
CREATE INDEX Organizations_Previous ON Organizations (PreviousID);
CREATE INDEX Departments_Year ON Departments (FiscalYear, Active);
CREATE INDEX Departments_Organization ON Departments (OrganizationID);
CREATE INDEX Departments_Previous ON Departments (PreviousID);
CREATE INDEX Groups_Year ON Groups (FiscalYear, Active);
CREATE INDEX Groups_Department ON Groups (DepartmentID);
CREATE INDEX Groups_Previous ON Groups (PreviousID);
CREATE INDEX Holidays_Date ON Holidays (HolidayDate);
CREATE INDEX AddressBook_Employee ON AddressBook (EmployeeID);

CREATE INDEX Attendance_Modifications_Record ON Attendance_Modifications (RecordID);
CREATE INDEX Categories_Modifications_Record ON Categories_Modifications (RecordID);
CREATE INDEX Departments_Modifications_Record ON Departments_Modifications (RecordID);
CREATE INDEX Employees_Modifications_Record ON Employees_Modifications (RecordID);
CREATE INDEX Entitlements_Modifications_Record ON Entitlements_Modifications (RecordID);
CREATE INDEX Groups_Modifications_Record ON Groups_Modifications (RecordID);
CREATE INDEX Organizations_Modifications_Record ON Organizations_Modifications (RecordID);

-- The distributor's hosting server; a deployment puts its own values here.
INSERT INTO WebSites (RecordID, HostName, IPAddress, Username, Password, RemoteFolderName, URL)
    VALUES (1, 'Tarvell hosting', 'ftp.tarvell.example', 'schedules', 'schedules', 'schedules',
            'http://www.tarvell.example/schedules');

-- The state of the system: no fiscal year is being generated.
INSERT INTO SAC (Status, StatusDateTime) VALUES ('U-NR-NOCP', 0);
