#pragma once

namespace KarvelloUI {

/// Keeps the linker from leaving the types of the module `Karvello.Screens.System` out of a program that shows its screens.
void keepSystemScreenModule();

} // namespace KarvelloUI
