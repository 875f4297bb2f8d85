#pragma once

#include <QString>

#include <functional>

/// Asks which mail program the workstation uses and keeps the answer for good; "Do not specify at this time" changes
/// nothing. A MAPI session ends. Throws RuntimeError when the answer cannot be kept; it holds for the session then.
void SpecifyMailerComponent();

/// Offers, after an upgrade, to download the component that an older mail program needs, and keeps how that ended: the
/// question above comes next when the component was installed. Throws RuntimeError.
void DownloadRedemption();

/// Takes the component of the earlier version off the workstation, once: a marker file in the program's folder says
/// what was found. When the component can still be used, the user is told. Throws nothing.
void UpgradeMailerDLL();

/// What the earlier version has left on the workstation. This system has neither its folders nor its register of
/// components: nothing is found.
struct EarlierComponent
{
    std::function<bool(const QString& path)> Delete = [](const QString&) { return false; }; ///< there was such a file
    std::function<bool()> CanBeCreated = [] { return false; };
};
/// Tests put their own in.
void SetEarlierComponent(const EarlierComponent& component);
