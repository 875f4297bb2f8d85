#pragma once

/// From here on the toolkit's own texts (file dialog, context menus, print dialog) are in the language of the session,
/// at the moment when they are shown.
void InstallToolkitTexts();
