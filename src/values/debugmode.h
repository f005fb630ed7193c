#pragma once

// Whether the program was started with "-debug": the write side then logs every ExifTool
// argument list and ExifTool's output. Set once at start-up; read from any thread.
namespace DebugMode {
bool isEnabled();
void setEnabled(bool enabled);
} // namespace DebugMode
