#include "calendar/frm_main.h"
#include "employees/frm_clone_employee.h"
#include "employees/frm_employees.h"
#include "employees/frm_transfer_employees.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/controls/form_kit.h"
#include "reference/frm_unit.h"
#include "reports/frm_lists.h"
#include "selection/frm_get_approver_from_list.h"
#include "selection/frm_select_employee.h"
#include "selection/frm_select_period.h"
#include "tour.h"

#include <QTabWidget>
#include <QTest>

/// How the company comes into being, by its forms alone.

namespace
{
QString Confirming()
{
    return T("CONFIRM:", "VEUILLEZ CONFIRMER:");
}

QString Completed()
{
    return T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:");
}
} // namespace

void Tour::AddUnits()
{
    Say("Two organizations, four departments and a group");
    AddOrganization("Northern Works", "Ateliers du Nord", "Québec");
    AddOrganization("Southern Trade", "Commerce du Sud", "Sherbrooke");
    const QString north = T("Northern Works", "Ateliers du Nord");
    const QString south = T("Southern Trade", "Commerce du Sud");
    AddUnit("mnuFileDepartments", "lstOrganizations", north, "Production", "Fabrication");
    AddUnit("mnuFileDepartments", "lstOrganizations", north, "Sales", "Ventes");
    AddUnit("mnuFileDepartments", "lstOrganizations", south, "Stores", "Magasins");
    AddUnit("mnuFileDepartments", "lstOrganizations", south, "Accounting", "Comptabilité");
    AddUnit("mnuFileGroups", "lstDepartments", T("Production", "Fabrication"), "Assembly", "Assemblage");
}

void Tour::AddOrganization(const QString& english, const QString& french, const QString& city)
{
    user_.WhenOpens<frmOrganizations>([this, english, french, city](frmOrganizations&) {
        user_.Clicks("cmdAdd").Types("txtEnglishName", english).Types("txtFrenchName", french);
        user_.Types("txtAddressLine1", "100 Main Street").Types("txtCity", city).Types("txtState", "Québec");
        user_.Types("txtCountry", "Canada").Types("txtZipCode", "G1R 2B5");
        Photo("organizations");
        user_.WillAnswer(Confirming(), T("Yes", "Oui")).WillAnswer(Completed(), "OK");
        user_.Clicks("cmdAdd").Clicks("cmdQuit");
    });
    Choose("mnuFileOrganizations");
}

void Tour::AddUnit(const char* menu, const QString& parentList, const QString& parent, const QString& english,
                   const QString& french)
{
    const auto work = [this, menu, parentList, parent, english, french](QDialog&) {
        user_.Clicks("cmdAdd").Types("txtEnglishName", english).Types("txtFrenchName", french);
        user_.Picks(parentList, parent);
        Photo(QLatin1String(menu) == "mnuFileGroups" ? "groups" : "departments");
        user_.WillAnswer(Confirming(), T("Yes", "Oui")).WillAnswer(Completed(), "OK");
        user_.Clicks("cmdAdd").Clicks("cmdQuit");
    };
    user_.WhenOpens<QDialog>(work);
    Choose(menu);
}

void Tour::AddPeople()
{
    Say("Six employees with different schedules, profiles and approvers; one from a colleague's record");
    const QString production = T("Production", "Fabrication");
    const QString assembly = T("Assembly", "Assemblage");
    const QString sales = T("Sales", "Ventes");
    AddEmployee({"Côté", "Luc", "LCOTE", production, assembly, "08:30", "16:30", {}, {}, true});
    AddEmployee({"Bouchard", "Marie", "MBOUCHARD", production, assembly, "08:30", "16:30", "Côté"});
    AddEmployee({"Gagnon", "Émilie", "EGAGNON", production, assembly, {}, {}, {}, "Bouchard"});
    AddEmployee({"Roy", "Pierre", "PROY", T("Stores", "Magasins"), {}, "07:00", "15:00"});
    AddEmployee({"Smith", "Anna", "ASMITH", T("Accounting", "Comptabilité"), {}, {}, {}, {}, {}, true});
    AddEmployee({"Martin", "Jean-Paul", "JMARTIN", sales, {}, "09:00", "17:00"});
}

void Tour::AddEmployee(const NewEmployee& person)
{
    user_.WhenOpens<frmEmployees>([this, person](frmEmployees& form) {
        if (person.LoginID != "LCOTE")
            user_.WhenOpens<frmCloneEmployee>([this, person](frmCloneEmployee& clone) {
                if (person.Template.isEmpty())
                    return void(user_.Clicks("cmdNewEmployee"));
                const QStringList entries = user_.Entries("lstCloneEmployees");
                user_.Picks("lstCloneEmployees", entries.filter(person.Template).value(0));
                Photo("clone_employee");
                user_.Clicks("cmdCloneEmployee");
                Q_UNUSED(clone);
            });
        user_.Works(form).Clicks("cmdAdd");
        FillEmployee(person);
        user_.WillAnswer(Confirming(), T("Yes", "Oui"));
        user_.WillAnswer(T("REMINDER:", "RAPPEL:"), "OK").WillAnswer(Completed(), "OK");
        user_.Clicks("cmdAdd").Clicks("cmdQuit");
    });
    Choose("mnuFileEmployees");
}

void Tour::FillEmployee(const NewEmployee& person)
{
    auto* tabs = dynamic_cast<QDialog&>(user_.The<frmEmployees>()).findChild<QTabWidget*>("sstEmployees");
    const auto turnTo = [this, tabs](int page) {
        if (!user_.HasKeysOnly())
            tabs->setCurrentIndex(page);
        else
            while (tabs->currentIndex() != page)
                QTest::keyClick(user_.The<frmEmployees>().focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    };
    const bool pictured = person.LoginID == "MBOUCHARD";
    const auto photo = [this, pictured](const QString& name) {
        if (pictured)
            Photo(name);
    };
    user_.Types("txtName", person.FamilyName).Types("txtFirstName", person.FirstName);
    user_.Types("txtEMail", person.LoginID.toLower() + "@example.org").Types("txtHourlyRate", "24.5");
    user_.Types("txtAddressLine1", "12 Elm Street").Types("txtPostalCode", "g1r 2b5").Types("txtCity", "Québec");
    if (person.Template.isEmpty())
        user_.Picks("lstDepartments", person.Department);
    if (person.Template.isEmpty() && !person.Group.isEmpty())
        user_.Picks("lstGroups", person.Group);
    photo("employees_1_general");

    turnTo(1);
    if (!person.Start.isEmpty())
        for (int day = 1; day <= 5; ++day) {
            user_.Picks(ArrayName("cboFirstHalfStartTime", day), person.Start);
            user_.Picks(ArrayName("cboFirstHalfEndTime", day), "12:00");
            user_.Picks(ArrayName("cboSecondHalfStartTime", day), "13:00");
            user_.Picks(ArrayName("cboSecondHalfEndTime", day), person.End);
        }
    else if (person.Template.isEmpty())
        user_.WillAnswer(Confirming(), T("Yes", "Oui")).Checks("chkIrregularHours");
    photo("employees_2_schedule");

    turnTo(2);
    user_.Types("txtUserName", person.LoginID).Types("txtPassword", "pass");
    user_.Checks("chkApprovalAuthority", person.Approves);
    if (!person.Approver.isEmpty())
        user_.Picks("cboApprovedBy_FirstLevel",
                    user_.Entries("cboApprovedBy_FirstLevel").filter(person.Approver).value(0));
    photo("employees_3_profile");
    if (pictured) {
        turnTo(3);
        photo("employees_4_modules");
    }
}

void Tour::TransferEmployee()
{
    Say("Émilie moves from production to sales");
    user_.WhenOpens<frmEmployees>([this](frmEmployees& form) {
        user_.WhenOpens<frmTransferEmployees>([this](frmTransferEmployees&) {
            user_.Picks("lstFromEmployee", "Gagnon, Émilie").Picks("lstToDepartment", T("Sales", "Ventes"));
            Photo("transfer_employees");
            user_.WillAnswer(Confirming(), T("Yes", "Oui")).WillAnswer(Completed(), "OK");
            user_.Clicks("cmdProcess").Clicks("cmdQuit");
        });
        user_.Works(form).Clicks("cmdTransfer").Clicks("cmdQuit");
    });
    Choose("mnuFileEmployees");
}

void Tour::DeactivateEmployee()
{
    Say("Jean-Paul leaves");
    user_.WhenOpens<frmEmployees>([this](frmEmployees& form) {
        user_.WhenOpens<frmSelectEmployee>(
            [this](frmSelectEmployee&) { user_.Picks("lstEmployees", "Martin, Jean-Paul").Clicks("cmdSelect"); });
        user_.Works(form).Clicks("cmdDeactivate");
        user_.WillAnswer(Confirming(), T("Yes", "Oui"));
        user_.WhenOpens<QDialog>([this](QDialog&) {
            user_.Types("txtInput", T("Retired", "Retraité"));
            Photo("deactivation_reason");
            user_.Clicks("cmdOK");
        });
        user_.WillAnswer(Completed(), "OK").Clicks("cmdDeactivate").Clicks("cmdQuit");
    });
    Choose("mnuFileEmployees");
}

void Tour::ModifyEmployee()
{
    Say("Pierre gets an approver from the list and a better rate since March");
    user_.WhenOpens<frmEmployees>([this](frmEmployees& form) {
        user_.WhenOpens<frmSelectEmployee>(
            [this](frmSelectEmployee&) { user_.Picks("lstEmployees", "Roy, Pierre").Clicks("cmdSelect"); });
        user_.Works(form).Clicks("cmdModify").Types("txtHourlyRate", "26");
        form.findChild<QTabWidget*>("sstEmployees")->setCurrentIndex(2);
        const std::pair<const char*, const char*> approvers[] = {{"cmdGetApprover1FromList", "Luc"},
                                                                 {"cmdGetApprover2FromList", "Anna"}};
        for (const auto& [button, name] : approvers) {
            user_.WhenOpens<frmGetApproverFromList>([this, name = name](frmGetApproverFromList&) {
                user_.Picks("lstApprovers", user_.Entries("lstApprovers").filter(name).value(0));
                Photo("get_approver_from_list");
                user_.Clicks("cmdSelect");
            });
            user_.Clicks(button);
        }
        user_.Checks("chkGroup_Absolute").WillAnswer(Confirming(), T("Yes", "Oui"));
        user_.WillAnswer(T("New hourly rate specified:", "Un changement de taux horaire a été détecté!"),
                         T("Yes", "Oui"));
        user_.WhenOpens<frmSelectPeriod>([this](frmSelectPeriod&) {
            user_.Picks("cboFrom", FormatDate(SerialOfDate({2026, 3, 2}), "ddd dd-mmm-yyyy"));
            Photo("select_period");
            user_.Clicks("cmdOK");
        });
        user_.WillAnswer(Completed(), "OK").Clicks("cmdModify").Clicks("cmdQuit");
    });
    Choose("mnuFileEmployees");
}

void Tour::ListEmployees()
{
    Say("The list of employees");
    user_.WhenOpens<frmEmployees>([this](frmEmployees& form) {
        user_.WhenOpens<frmLists>([this](frmLists&) {
            Photo("lists_employees");
            user_.Clicks("cmdOK");
        });
        user_.Works(form).Clicks("cmdListRecords").Clicks("cmdQuit");
    });
    Choose("mnuFileEmployees");
}
