#pragma once

#include <QFont>
#include <QStringList>
#include <string_view>

namespace telarium {

/// The typefaces of this machine, sorted by name: those whose names the code page can write, and
/// Arial, for which the machine has a font of the same metrics.
QStringList FamiglieInstallate();

bool FamigliaInstallata(std::string_view nome);

/// A font of that type; the size, in points, is brought into the bounds of what can be drawn.
QFont FontDi(std::string_view famiglia, double punti, bool grassetto, bool corsivo);

/// Whether type of that size, in points, shows anything.
bool CorpoVisibile(double punti);

}  // namespace telarium
