#pragma once

#include <QStringList>
#include <string_view>

namespace telarium {

/// The typefaces of this machine, sorted by name: those whose names the code page can write, and
/// Arial, for which the machine has a font of the same metrics.
QStringList FamiglieInstallate();

bool FamigliaInstallata(std::string_view nome);

}  // namespace telarium
