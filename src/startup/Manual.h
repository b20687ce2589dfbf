#pragma once

#include <QString>

/// The address of the user manual that came with the program: of the installed one if the program
/// is installed, else of the one in its source folder.
QString ManualAddress();
