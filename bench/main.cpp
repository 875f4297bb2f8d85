#include "measuring.h"
#include "platform/controls/form_kit.h"
#include "support/screen.h"

#include <QApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>
#include <cstdio>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", kScreen);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QLoggingCategory::setFilterRules("default.warning=false"); // the offscreen windows cannot be sized by hints
    QApplication application(argc, argv);
    ApplyStyle();
    SetComplaintHandler([](const QString& text) { qFatal("%s", qPrintable(text)); });
    benchmark::Initialize(&argc, argv);
    BigCompany company(QApplication::applicationDirPath() + "/big-company");
    RegisterCalendar(company);
    RegisterAttendance(company);
    RegisterApproval(company);
    RegisterLists(company);
    RegisterEmployees(company);
    RegisterCategories(company);
    benchmark::RunSpecifiedBenchmarks();
    return TellVerdicts() ? 0 : 1;
}
