#pragma once

#include "foundation/levels.h"

#include <array>

/// A check box of the security profile and the right that it stands for.
struct ProfileBox
{
    QString Name;
    Right Member;
};

/// The boxes of the employee file: fifteen of levels by kinds of access (viewing, adding, all), four single rights and
/// five modules. The module of organizations has none and is never granted here.
extern const std::array<std::array<ProfileBox, kKinds>, kLevels> kLevelBoxes;
extern const std::array<ProfileBox, 4> kSingleRightBoxes;
extern const std::array<ProfileBox, 5> kModuleBoxes;

/// A box was checked or cleared by the user. Checking it checks what its right includes, clearing it clears what
/// includes it: less access, and at the four upper levels the levels below. Whoever maintains categories sees the
/// hidden ones.
void ChangeRight(SecurityProfile& profile, Right box, bool granted);

/// The boxes take over what a row says: whoever maintains categories sees the hidden ones whatever the row says, and
/// everybody sees his own records.
void CompleteLoadedRights(SecurityProfile& profile);

/// The user may tick this box for an employee: he holds the right that opens it. On Modify the group level opens one
/// box more.
bool MayTick(Right box, bool modifying);

/// 0 none, 1 view, 2 add, 3 absolute at a row of kLevelTable; the individual level never shows 0.
int LevelDigit(const SecurityProfile& profile, int level);
