#pragma once

/// Lets ChooseFile show the desktop's own file dialog.
void InstallFileDialog();
