#include "KarvelloUI/Screens/System/KeepModule.h"

// Written by the build.
void qml_register_types_Karvello_Screens_System(); // NOLINT(readability-identifier-naming)

namespace KarvelloUI {

void keepSystemScreenModule()
{
    [[maybe_unused]] static const volatile auto kept = &qml_register_types_Karvello_Screens_System;
}

} // namespace KarvelloUI
