#pragma once

/// What menu entries tell that need nothing of the main window.
void ShowDatabaseLocation();
void ShowKeys();
