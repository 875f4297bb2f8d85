#pragma once

#include "foundation/frm_base.h"

/// The program's name, version and purpose, and the way to the desktop's system information.
class frmAbout : public FormBase
{
public:
    explicit frmAbout(QWidget* parent = nullptr);

private:
    static void cmdSysInfo_Click();
};
