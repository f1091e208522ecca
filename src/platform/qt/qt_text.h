#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/files.h"

// The one edge at which the texts of the core, in the code page, become Qt's and come back.
namespace telarium {

QString AQt(std::string_view testo);

/// "?" stands for what the code page cannot write.
std::string DaQt(const QString& testo);

QString PercorsoAQt(const Percorso& percorso);
Percorso PercorsoDaQt(const QString& percorso);

}  // namespace telarium
