#include "employees/frm_right_boxes.h"

QCheckBox* RightBoxes::Make(const ProfileBox& box, const Text& caption)
{
    auto* control = MakeButton<QCheckBox>(box.Name, caption);
    QObject::connect(control, &QCheckBox::clicked, control,
                     [this, right = box.Member](bool checked) { changed_(right, checked); });
    boxes_.push_back({box.Member, control});
    return control;
}

void RightBoxes::Show(const SecurityProfile& profile)
{
    for (const Box& box : boxes_)
        box.Control->setChecked(profile.*box.Member == 1);
}

void RightBoxes::EnableEntry(const Text& whyNot, bool modifying)
{
    constexpr Text kNotGranted = {"You cannot grant this right", "Vous ne pouvez accorder ce droit"};
    for (const Box& box : boxes_)
        EnableUnless(box.Control, whyNot.IsEmpty() && !MayTick(box.Member, modifying) ? kNotGranted : whyNot);
}
