#pragma once

/// Starts the first of the desktop's system information tools that is installed, beside this program. False when there
/// is none or it does not start.
bool StartSystemInformation();
