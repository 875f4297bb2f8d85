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

void RightBoxes::SetEnabled(bool enabled, bool modifying)
{
    for (const Box& box : boxes_)
        EnableOrExplain(box.Control, enabled && MayTick(box.Member, modifying),
                        enabled ? Text{"You cannot grant this right", "Vous ne pouvez accorder ce droit"}
                                : Text{"Press Add or Modify first", "Appuyez d'abord sur Ajouter ou Modifier"});
}
