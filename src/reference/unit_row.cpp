#include "reference/unit_row.h"

namespace
{
const std::vector<Column<UnitRow>> kStamps = {COLUMN(UnitRow, EnteredBy),  COLUMN(UnitRow, EnteredDate),
                                              COLUMN(UnitRow, ModifiedBy), COLUMN(UnitRow, ModifiedDate),
                                              COLUMN(UnitRow, Active),     COLUMN(UnitRow, PreviousID)};
const std::vector<Column<UnitRow>> kAddress = {
    COLUMN(UnitRow, AddressLine1),  COLUMN(UnitRow, AddressLine2), COLUMN(UnitRow, Suite),  COLUMN(UnitRow, City),
    COLUMN(UnitRow, StateProvince), COLUMN(UnitRow, Country),      COLUMN(UnitRow, ZipCode)};
const std::vector<Column<UnitRow>> kDepartmentHead = {COLUMN(UnitRow, DepartmentHead)};
} // namespace

const Table<UnitRow> kOrganizationRows = {"Organizations",
                                          Joined<UnitRow>({COLUMN(UnitRow, RecordID),
                                                           COLUMN(UnitRow, FiscalYear),
                                                           {"OrganizationFrenchName", &UnitRow::FrenchName},
                                                           {"OrganizationEnglishName", &UnitRow::EnglishName}},
                                                          kAddress, kStamps),
                                          Twin::Kept};
const Table<UnitRow> kDepartmentRows = {"Departments",
                                        Joined<UnitRow>({COLUMN(UnitRow, RecordID),
                                                         COLUMN(UnitRow, FiscalYear),
                                                         COLUMN(UnitRow, OrganizationID),
                                                         {"DepartmentFrenchName", &UnitRow::FrenchName},
                                                         {"DepartmentEnglishName", &UnitRow::EnglishName}},
                                                        kStamps, kDepartmentHead),
                                        Twin::Kept};
const Table<UnitRow> kGroupRows = {"Groups",
                                   Joined<UnitRow>({COLUMN(UnitRow, RecordID),
                                                    COLUMN(UnitRow, FiscalYear),
                                                    COLUMN(UnitRow, OrganizationID),
                                                    COLUMN(UnitRow, DepartmentID),
                                                    {"GroupFrenchName", &UnitRow::FrenchName},
                                                    {"GroupEnglishName", &UnitRow::EnglishName}},
                                                   kStamps),
                                   Twin::Kept};
