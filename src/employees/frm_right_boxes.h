#pragma once

#include "employees/employee_record.h"
#include "employees/security_profile_rules.h"
#include "foundation/frm_captions.h"

#include <functional>

/// The check boxes of the security profile and of the modules, which move each other across the two tabs.
class RightBoxes
{
public:
    /// `changed` is called when the user checks or clears a box.
    explicit RightBoxes(std::function<void(Right box, bool granted)> changed) : changed_(std::move(changed)) {}

    /// A new box; the layout that it is put into owns it.
    QCheckBox* Make(const ProfileBox& box, const Text& caption = {});
    /// Shows what is granted; nothing is reported.
    void Show(const SecurityProfile& profile);
    /// Enables the boxes that the user may tick, or none while there is a reason why not.
    void EnableEntry(const Text& whyNot, bool modifying);

private:
    struct Box
    {
        Right Member;
        QCheckBox* Control;
    };
    std::function<void(Right, bool)> changed_;
    std::vector<Box> boxes_;
};
