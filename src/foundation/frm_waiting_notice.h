#pragma once

/// From here on the window in front says that it waits while the database does not answer for more than a second:
/// another user holds the file, or its share is slow or gone.
void InstallWaitingNotice();
