#include "reference/category_colors.h"

QString ColorName(int position)
{
    constexpr Text kTones[] = {{"Rose", "Rose"},     {"Orange", "Orange"},       {"Yellow", "Jaune"},  {"Lime", "Lime"},
                               {"Green", "Vert"},    {"Turquoise", "Turquoise"}, {"Sky blue", "Azur"}, {"Blue", "Bleu"},
                               {"Violet", "Violet"}, {"Magenta", "Magenta"}};
    constexpr Text kShades[] = {{"vivid", "vif"}, {"light", "clair"}, {"pale", "pâle"}};
    return T(kTones[position % kColorTones]) + ", " + T(kShades[position / kColorTones]);
}
