#pragma once

#include <string>

namespace quillon {

/// Tells the user why the program does not start: on standard error, or in a message box on Windows, where a program
/// with windows has no standard error. Needs no application.
void TellStartFailure(const std::string& text);

}  // namespace quillon
