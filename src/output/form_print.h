#pragma once
// The Print command: the form on paper as it stands on the screen, on the configured printer.

#include <string>

namespace lw {

class Form;
class PlatformPort;
struct ProgramParts;
struct UserChoices;

void askAndPrint(const ProgramParts& parts, Form& form);
// The printer the next page goes to: the one a print chose, else the machine's default, else empty.
std::string currentPrinter(const UserChoices& choices, PlatformPort& platform);

}  // namespace lw
