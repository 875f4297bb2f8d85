#include "foundation/frm_toolkit_texts.h"
#include "platform/controls/form_kit.h"
#include "support/house.h"
#include "support/screen.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", kScreen);
    QApplication application(argc, argv);
    ApplyStyle();
    InstallToolkitTexts();
    SetComplaintHandler([](const QString& text) { ADD_FAILURE() << qUtf8Printable(text); });
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
