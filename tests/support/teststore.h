#pragma once

// Gives the settings a new, empty store in the test program's temporary folder, for test cases
// that must not see each other's settings.
void useFreshSettingsStore();
