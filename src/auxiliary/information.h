#pragma once

#include <string>

// What the information window tells of the program and of the system.
namespace telarium {

/// The program's title and version, each number with the leading blank of its print form:
/// "Telarium - Versione  7. 0. 1".
std::string TitoloConVersione();

/// Starts the first program that tells about the system, of those that desktops have. A message
/// when there is none.
void StartSysInfo();

}  // namespace telarium
